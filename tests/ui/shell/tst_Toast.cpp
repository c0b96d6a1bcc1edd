#include "ui/shell/Toast.h"

#include "support/pixels.h"
#include "support/uitest.h"
#include "ui/Theme.h"

#include <QLabel>
#include <QPushButton>
#include <QSignalSpy>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using ui::Toast;

namespace {

constexpr int kAboveEdge = 24;

} // namespace

class TestToast : public QObject {
  Q_OBJECT

 private slots:
  void initTestCase() { Theme::get().install(qApp); }
  void init();
  void cleanup() { m_area.reset(); }

  void hiddenAtFirst();
  void standsAtTheFoot();
  void followsTheLookWhileShown();
  void followsTheWindow();
  void hiddenStaysWhereItIs();
  void newerReplacesAndLasts();
  void undoGoesAndTells();
  void notUndoableIsNarrower();
  void longMessageWraps();
  void textIsPlain();
  void mirrored();
  void countsWhileTheWindowIsHidden();
  void invertsTheLook_data();
  void invertsTheLook();

 private:
  [[nodiscard]] QPushButton* button() const { return m_toast->findChild<QPushButton*>(); }
  [[nodiscard]] QPoint wanted() const {
    return {(m_area->width() - m_toast->width()) / 2, m_area->height() - m_toast->height() - kAboveEdge};
  }
  /// What the toast has still to last, in ms; -1 when it is over.
  [[nodiscard]] int rest() const { return m_toast->findChild<QTimer*>()->remainingTime(); }

  std::unique_ptr<QWidget> m_area;
  Toast* m_toast = nullptr;
};

void TestToast::init() {
  pixels::setLook(false);
  m_area = std::make_unique<QWidget>();
  m_area->resize(801, 500);
  m_toast = new Toast(m_area.get());
  m_area->show();
}

void TestToast::hiddenAtFirst() { QVERIFY(m_toast->isHidden()); }

void TestToast::standsAtTheFoot() {
  m_toast->show(u"3 files moved to the Trash"_s, false);
  QVERIFY(m_toast->isVisible());
  QCOMPARE(m_toast->pos(), wanted());
  QCOMPARE(m_toast->accessibleName(), u"3 files moved to the Trash"_s);
}

void TestToast::followsTheLookWhileShown() {
  m_toast->show(u"Done"_s, true);
  for (const bool dark : {true, false}) {
    pixels::setLook(dark);
    for (QWidget* part : QList<QWidget*>{m_toast->findChild<QLabel*>(), button()})
      QCOMPARE(part->palette().color(part->foregroundRole()), Theme::get().toastFg);
  }
}

void TestToast::followsTheWindow() {
  m_toast->show(u"Done"_s, true);
  m_area->resize(640, 377);
  QCOMPARE(m_toast->pos(), wanted());
}

void TestToast::hiddenStaysWhereItIs() {
  m_toast->show(u"Done"_s, true);
  const QPoint before = m_toast->pos();
  m_toast->hide();
  m_area->resize(640, 377);
  QCOMPARE(m_toast->pos(), before);
}

void TestToast::newerReplacesAndLasts() {
  m_toast->show(u"First"_s, false);
  QTRY_VERIFY(rest() < Toast::kShownFor.count() - 500); // timers may be rounded by a twentieth
  const int before = rest();
  m_toast->show(u"Second"_s, false);
  QVERIFY(rest() > before);
  QCOMPARE(m_toast->accessibleName(), u"Second"_s);
  QTRY_VERIFY_WITH_TIMEOUT(m_toast->isHidden(), int(Toast::kShownFor.count()) * 2);
}

void TestToast::undoGoesAndTells() {
  bool hiddenThen = false;
  connect(m_toast, &Toast::undo, this, [&] { hiddenThen = m_toast->isHidden(); });
  QSignalSpy undone(m_toast, &Toast::undo);
  m_toast->show(u"Moved"_s, true);
  QCOMPARE(button()->text(), u"Undo"_s);
  QTest::mouseClick(button(), Qt::LeftButton);
  QCOMPARE(undone.count(), 1);
  QVERIFY(hiddenThen);
}

void TestToast::notUndoableIsNarrower() {
  m_toast->show(u"Moved"_s, true);
  const int wide = m_toast->width();
  m_toast->show(u"Moved"_s, false);
  QVERIFY(button()->isHidden());
  QVERIFY2(m_toast->width() <= wide - button()->width(), qPrintable(QString::number(m_toast->width())));
  QCOMPARE(m_toast->pos(), wanted());
}

void TestToast::longMessageWraps() {
  m_toast->show(u"Moved"_s, true);
  const int oneLine = m_toast->height();
  m_toast->show(u"Simulator cleanup failed: "_s + u"no such device set "_s.repeated(12), true);
  QCOMPARE(m_toast->width(), m_area->width() - 2 * kAboveEdge);
  QVERIFY(m_toast->height() > oneLine);
  QCOMPARE(m_toast->pos(), wanted());
  const auto* text = m_toast->findChild<QLabel*>();
  QVERIFY(text->height() >= text->heightForWidth(text->width()));
  m_area->resize(2 * m_area->width(), m_area->height());
  QVERIFY(m_toast->height() < m_area->height());
  QCOMPARE(m_toast->pos(), wanted());
  m_toast->show(u"Moved"_s, true);
  QCOMPARE(m_toast->height(), oneLine);
}

void TestToast::mirrored() {
  m_toast->show(u"80 MB moved to the Trash"_s, true);
  const QRect undo = button()->geometry();
  const QRect words = m_toast->findChild<QLabel*>()->geometry();
  const pixels::Mirrored mirrored;
  m_toast = new Toast(m_area.get());
  m_toast->show(u"80 MB moved to the Trash"_s, true);
  const auto there = [this](const QRect& rect) {
    return QRect(m_toast->width() - rect.right() - 1, rect.y(), rect.width(), rect.height());
  };
  QCOMPARE(button()->geometry(), there(undo));
  QCOMPARE(m_toast->findChild<QLabel*>()->geometry(), there(words));
}

void TestToast::textIsPlain() {
  m_toast->show(u"Couldn't open <b>x</b>"_s, false);
  QCOMPARE(m_toast->findChild<QLabel*>()->textFormat(), Qt::PlainText);
}

void TestToast::countsWhileTheWindowIsHidden() {
  m_area->hide();
  m_toast->show(u"Almost full"_s, false);
  QVERIFY(rest() > 0);
  m_area->show();
  QVERIFY(m_toast->isVisible());
  QCOMPARE(m_toast->pos(), wanted());
}

void TestToast::invertsTheLook_data() {
  QTest::addColumn<bool>("dark");
  QTest::newRow("light") << false;
  QTest::newRow("dark") << true;
}

void TestToast::invertsTheLook() {
  QFETCH(bool, dark);
  pixels::setLook(dark);
  m_toast->show(u"Moved"_s, true);
  const Theme& theme = Theme::get();
  const QImage shown = pixels::rendered(*m_toast);
  QVERIFY(pixels::isNear(shown.pixelColor(4, m_toast->height() / 2), theme.toastBg));
  QCOMPARE(shown.pixelColor(0, 0).alpha(), 0); // round corners
  QVERIFY(m_toast->findChild<QLabel*>()->styleSheet().contains(theme.toastFg.name()));
  QVERIFY(button()->styleSheet().contains(theme.toastFg.name()));
}

int main(int argc, char** argv) { return uitest::run<TestToast>(argc, argv); }

#include "tst_Toast.moc"
