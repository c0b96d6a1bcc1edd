// Every view of the window from right to left: each widget lies where the mirror shows it, texts and all.
#include "app/AppSettings.h"
#include "gallery/views.h"
#include "support/SampleHome.h"
#include "support/pixels.h"
#include "support/uitest.h"
#include "ui/Theme.h"

#include <QMenu>

#include <memory>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

struct Piece {
  QString name;
  QRect place; ///< in the window
};

/// All that is on show, in the order in which it was made.
std::vector<Piece> piecesOf(const QWidget& window) {
  std::vector<Piece> pieces;
  for (const QWidget* one : window.findChildren<QWidget*>()) {
    if (!one->isVisible()) continue;
    QString name = QString::fromLatin1(one->metaObject()->className());
    const auto* label = qobject_cast<const QLabel*>(one);
    if (label) name += u" "_s + label->text();
    pieces.push_back({name, QRect(window.mapFromGlobal(one->mapToGlobal(QPoint())), one->size())});
  }
  return pieces;
}

std::vector<Piece> shown(const gallery::ViewEntry& entry, const QSize& size) {
  const auto scene = gallery::openView(entry);
  scene->window.resize(size);
  QCoreApplication::processEvents();
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  QCoreApplication::processEvents();
  return piecesOf(scene->window);
}

QString told(const QRect& rect) {
  return u"%1, %2, %3 x %4"_s.arg(rect.x()).arg(rect.y()).arg(rect.width()).arg(rect.height());
}

} // namespace

class TestDirections : public QObject {
  Q_OBJECT

 private slots:
  void initTestCase() { Theme::get().install(qApp); }
  void init() { pixels::setLook(false); }
  void cleanup() { Theme::get().mac = true; }

  void viewsAreMirrored_data();
  void viewsAreMirrored();
};

void TestDirections::viewsAreMirrored_data() {
  QTest::addColumn<int>("index");
  QTest::addColumn<bool>("mac");
  for (const bool mac : {true, false})
    for (size_t i = 0; i < gallery::views().size(); ++i)
      QTest::addRow("%s, %s", gallery::views()[i].name, mac ? "mac" : "win") << int(i) << mac;
}

void TestDirections::viewsAreMirrored() {
  QFETCH(int, index);
  QFETCH(bool, mac);
  Theme::get().mac = mac;
  const FixtureHome home;
  fillSampleHome(home);
  const gallery::ViewEntry& entry = gallery::views()[size_t(index)];
  const QSize size = gallery::viewSizes().front();
  const std::vector<Piece> here = shown(entry, size);
  const pixels::Mirrored mirrored;
  const std::vector<Piece> there = shown(entry, size);
  QCOMPARE(there.size(), here.size());
  for (size_t i = 0; i < here.size(); ++i) {
    QCOMPARE(there[i].name, here[i].name);
    QRect wanted = here[i].place;
    wanted.moveLeft(size.width() - here[i].place.right() - 1);
    if (there[i].place != wanted)
      QFAIL(qPrintable(u"%1: at %2 instead of %3"_s.arg(here[i].name, told(there[i].place), told(wanted))));
  }
}

int main(int argc, char** argv) { return uitest::run<TestDirections>(argc, argv); }

#include "tst_Directions.moc"
