// ctest: TIMEOUT 400
// Every view of the window from right to left: each widget lies where a mirror would show it.
#include "app/AppSettings.h"
#include "gallery/views.h"
#include "support/SampleHome.h"
#include "support/pixels.h"
#include "support/uitest.h"
#include "ui/Theme.h"

#include <QAbstractAnimation>
#include <QLabel>

#include <algorithm>
#include <memory>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

struct Piece {
  QString name;
  QRect place; ///< in the window
};

/// All that is on show in the window itself; menus over it keep to the screen.
std::vector<Piece> piecesOf(const QWidget& window) {
  std::vector<Piece> pieces;
  for (const QWidget* one : window.findChildren<QWidget*>()) {
    if (!one->isVisible() || one->window() != &window) continue;
    QString name = QString::fromLatin1(one->metaObject()->className());
    const auto* label = qobject_cast<const QLabel*>(one);
    if (label) name += u" "_s + label->text();
    pieces.push_back({name, QRect(window.mapFromGlobal(one->mapToGlobal(QPoint())), one->size())});
  }
  return pieces;
}

/// Nothing slides into its place any more; what has no end doesn't count.
bool isAtRest(const QWidget& window) {
  return std::ranges::none_of(window.findChildren<QAbstractAnimation*>(), [](const QAbstractAnimation* one) {
    return one->state() == QAbstractAnimation::Running && one->totalDuration() >= 0;
  });
}

std::vector<Piece> shown(const gallery::ViewEntry& entry, const QSize& size) {
  AppSettings::instance().put("history/freed", QVariantMap());
  const auto scene = gallery::openView(entry);
  scene->window.resize(size);
  QCoreApplication::processEvents();
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  if (!QTest::qWaitFor([&] { return isAtRest(scene->window); })) qFatal("it never rests");
  QCoreApplication::processEvents();
  return piecesOf(scene->window);
}

/// What is centred on whole pixels may be one off.
bool isThere(const Piece& one, const Piece& wanted) {
  const QRect& place = wanted.place;
  return one.name == wanted.name && one.place.size() == place.size() && one.place.y() == place.y() &&
         qAbs(one.place.x() - place.x()) <= 1;
}

QString told(const QRect& rect) {
  return u"%1, %2, %3 x %4"_s.arg(rect.x()).arg(rect.y()).arg(rect.width()).arg(rect.height());
}

} // namespace

class TestDirections : public QObject {
  Q_OBJECT

 private slots:
  void initTestCase() {
    Theme::get().install(qApp);
    fillSampleHome(m_home);
  }
  void init() { pixels::setLook(false); }
  void cleanup() { Theme::get().mac = true; }

  void viewsAreMirrored_data();
  void viewsAreMirrored();

 private:
  FixtureHome m_home;
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
  const gallery::ViewEntry& entry = gallery::views()[size_t(index)];
  const QSize size = gallery::viewSizes().front();
  const std::vector<Piece> here = shown(entry, size);
  const pixels::Mirrored mirrored;
  std::vector<Piece> there = shown(entry, size);
  QCOMPARE(there.size(), here.size());
  for (const Piece& one : here) {
    Piece wanted = one;
    wanted.place.moveLeft(size.width() - one.place.right() - 1);
    const auto found = std::ranges::find_if(there, [&](const Piece& each) { return isThere(each, wanted); });
    if (found == there.end()) QFAIL(qPrintable(u"no %1 at %2"_s.arg(one.name, told(wanted.place))));
    there.erase(found);
  }
}

int main(int argc, char** argv) { return uitest::run<TestDirections>(argc, argv); }

#include "tst_Directions.moc"
