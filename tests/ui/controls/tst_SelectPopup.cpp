// The popup of a select: where it opens, how a row is chosen by mouse, keyboard and reader, and its paint.
#include "SelectTest.h"

#include <QAbstractAnimation>
#include <QAccessible>
#include <QSignalSpy>

using namespace Qt::StringLiterals;
using pixels::isNear;
using pixels::over;
using pixels::rendered;
using pixels::setLook;
using selecttest::popup;
using selecttest::Shown;
using ui::Select;
using ui::SelectPopup;
using ui::SelectPopupLayout;

namespace {

QPoint rowCentre(int row) {
  return SelectPopupLayout(Theme::get().mac).rowRect(row, popup()->width()).center().toPoint();
}

void moveTo(QWidget* widget, const QPoint& at) {
  QMouseEvent event(QEvent::MouseMove, QPointF(at), QPointF(widget->mapToGlobal(at)), Qt::NoButton, Qt::NoButton,
                    Qt::NoModifier);
  QApplication::sendEvent(widget, &event);
}

void release(QWidget* widget, const QPoint& at) {
  QMouseEvent event(QEvent::MouseButtonRelease, QPointF(at), QPointF(widget->mapToGlobal(at)), Qt::LeftButton,
                    Qt::NoButton, Qt::NoModifier);
  QApplication::sendEvent(widget, &event);
}

/// Until a release counts as a choice.
bool graceIsOver(const QElapsedTimer& sinceOpening) {
  return QTest::qWaitFor([&] { return sinceOpening.elapsed() > SelectPopup::kReleaseGraceMs; });
}

} // namespace

class TestSelectPopup : public SelectTest {
  Q_OBJECT

 private slots:
  void initTestCase() { Theme::get().install(qApp); }
  void init() { make(); }
  void cleanup() { drop(); }

  void popupSizes();
  void popupPlaces_data();
  void popupPlaces();
  void popupPlacesMirrored();
  void popupRows();
  void opensOverTheControl_data();
  void opensOverTheControl();
  void fadesIn();
  void opensOnceOnly();
  void choosing();
  void choosingTheCurrentOne();
  void quickClickLeavesItOpen();
  void releaseAfterAWhileChooses();
  void releaseOutsideCloses();
  void pointerHighlights();
  void keysInThePopup();
  void escapeCloses();
  void emptySelection();
  void selectGoesWhileOpen();
  void popupPaintsMac();
  void popupPaintsWin();
  void popupPaintsMirrored_data();
  void popupPaintsMirrored();
  void popupIsReadOut();
};

void TestSelectPopup::popupSizes() {
  const SelectPopupLayout mac(true);
  QCOMPARE(mac.popupSize(100, 50, 3), QSize(100 + 24 + 38 + 28, 26 * 3 + 36));
  QCOMPARE(mac.popupSize(100, 200, 1), QSize(200 + 16 + 28, 26 + 36));
  const SelectPopupLayout win(false);
  QCOMPARE(win.popupSize(100, 50, 3), QSize(100 + 12 + 38 + 28, 34 * 3 + 36));
  QCOMPARE(win.popupSize(100, 200, 1), QSize(200 + 28, 34 + 36));
}

void TestSelectPopup::popupPlaces_data() {
  QTest::addColumn<bool>("mac");
  QTest::addColumn<QRect>("select");
  QTest::addColumn<int>("row");
  QTest::addColumn<QPoint>("place");
  // The popup is 200 by 140, the screen from (0, 30) to (799, 599).
  QTest::newRow("mac, first") << true << QRect(300, 200, 150, 30) << 0 << QPoint(266, 200 + 2 - 18);
  QTest::newRow("mac, third") << true << QRect(300, 200, 150, 30) << 2 << QPoint(266, 200 + 2 - 18 - 52);
  QTest::newRow("mac, none") << true << QRect(300, 200, 150, 30) << -1 << QPoint(266, 200 + 2 - 18);
  QTest::newRow("mac, odd height") << true << QRect(300, 200, 150, 33) << 0 << QPoint(266, 200 + 3 - 18);
  QTest::newRow("win, first") << false << QRect(300, 200, 150, 34) << 0 << QPoint(286, 200 - 18);
  QTest::newRow("win, third") << false << QRect(300, 200, 150, 34) << 2 << QPoint(286, 200 - 18 - 68);
  QTest::newRow("win, low control") << false << QRect(300, 200, 150, 31) << 0 << QPoint(286, 200 - 1 - 18);
  QTest::newRow("left edge") << true << QRect(5, 200, 150, 30) << 0 << QPoint(-14, 184);
  QTest::newRow("right edge") << true << QRect(790, 200, 150, 30) << 0 << QPoint(799 - 200 + 14, 184);
  QTest::newRow("top edge") << true << QRect(300, 40, 150, 30) << 2 << QPoint(266, 16);
  QTest::newRow("bottom edge") << true << QRect(300, 560, 150, 30) << 0 << QPoint(266, 599 - 140 + 14);
}

void TestSelectPopup::popupPlaces() {
  QFETCH(bool, mac);
  QFETCH(QRect, select);
  QFETCH(int, row);
  QFETCH(QPoint, place);
  QCOMPARE(SelectPopupLayout(mac).popupPlace(select, row, {200, 140}, QRect(QPoint(0, 30), QPoint(799, 599))), place);
}

// Its rows hang over by as much at the other side.
void TestSelectPopup::popupPlacesMirrored() {
  const QRect select(300, 200, 150, 30);
  const QRect screen(QPoint(0, 30), QPoint(799, 599));
  const auto rtl = Qt::RightToLeft;
  QCOMPARE(SelectPopupLayout(true).popupPlace(select, 0, {200, 140}, screen, rtl), QPoint(450 + 34 - 200, 184));
  QCOMPARE(SelectPopupLayout(false).popupPlace(select, 0, {200, 140}, screen, rtl).x(), 450 + 14 - 200);
}

void TestSelectPopup::popupRows() {
  const SelectPopupLayout mac(true);
  QCOMPARE(mac.rowRect(0, 200), QRectF(18, 18, 164, 26));
  QCOMPARE(mac.rowRect(2, 200), QRectF(18, 70, 164, 26));
  QCOMPARE(SelectPopupLayout(false).rowRect(2, 200), QRectF(18, 86, 164, 34));
  QCOMPARE(mac.rowAt({20, 19}, 3, 200), 0);
  QCOMPARE(mac.rowAt({20, 60}, 3, 200), 1);
  QCOMPARE(mac.rowAt({20, 44}, 3, 200), 0); // the first that holds the shared edge
  QCOMPARE(mac.rowAt({20, 100}, 3, 200), -1);
  QCOMPARE(mac.rowAt({10, 60}, 3, 200), -1);
  QCOMPARE(mac.rowAt({190, 60}, 3, 200), -1);
  QCOMPARE(SelectPopupLayout::body({200, 140}), QRectF(14, 14, 172, 112));
}

void TestSelectPopup::opensOverTheControl_data() {
  QTest::addColumn<bool>("mac");
  QTest::newRow("mac") << true;
  QTest::newRow("win") << false;
}

void TestSelectPopup::opensOverTheControl() {
  QFETCH(bool, mac);
  Theme::get().mac = mac;
  Shown shown;
  QVERIFY(shown.open());
  QVERIFY(shown.select->isOpen());
  SelectPopup* opened = popup();
  QCOMPARE(opened->hovered(), 1);
  QCOMPARE(opened->windowType(), Qt::Popup);
  QVERIFY(opened->windowFlags().testFlag(Qt::FramelessWindowHint));
  QVERIFY(opened->windowFlags().testFlag(Qt::NoDropShadowWindowHint));
  QVERIFY(opened->testAttribute(Qt::WA_TranslucentBackground));
  QVERIFY(opened->testAttribute(Qt::WA_DeleteOnClose));
  QVERIFY(opened->hasMouseTracking());
  QCOMPARE(opened->font(), shown.select->font());
  const QRect control(shown.select->mapToGlobal(QPoint()), shown.select->size());
  const SelectPopupLayout metrics(mac);
  const QRectF row = metrics.rowRect(1, opened->width()).translated(opened->pos());
  QVERIFY(qAbs(row.center().y() - QRectF(control).center().y()) <= 2);
  QCOMPARE(opened->height(), 3 * (mac ? 26 : 34) + 36);
  QCOMPARE(opened->width(), 160 + (mac ? 16 : 0) + 28);
  QCOMPARE(opened->x(), control.x() - (mac ? 34 : 14));
  QCOMPARE(rendered(*shown.select).pixelColor(90, 4), Theme::get().surface2);
}

void TestSelectPopup::fadesIn() {
  Shown shown;
  QVERIFY(shown.open());
  QVERIFY(popup()->findChild<QAbstractAnimation*>());
  QTRY_VERIFY(!popup()->findChild<QAbstractAnimation*>());
  QCOMPARE(popup()->windowOpacity(), 1.0);
}

void TestSelectPopup::opensOnceOnly() {
  Shown shown;
  QVERIFY(shown.open());
  const SelectPopup* first = popup();
  shown.select->showPopup();
  QVERIFY(popup() == first);
  const QPointer<SelectPopup> alive(popup());
  shown.select->hidePopup();
  QVERIFY(!shown.select->isOpen());
  QTRY_VERIFY(!alive);
  shown.select->hidePopup(); // nothing to hide
  QVERIFY(shown.open());
}

void TestSelectPopup::choosing() {
  Shown shown;
  QVERIFY(shown.open());
  QSignalSpy activated(shown.select, &QComboBox::activated);
  QSignalSpy changed(shown.select, &QComboBox::currentIndexChanged);
  const QPointer<SelectPopup> alive(popup());
  QVERIFY(graceIsOver(shown.sinceOpening));
  release(popup(), rowCentre(2));
  QCOMPARE(shown.select->currentIndex(), 2);
  QCOMPARE(activated.count(), 1);
  QCOMPARE(activated[0][0].toInt(), 2);
  QCOMPARE(changed.count(), 1);
  QVERIFY(!shown.select->isOpen());
  QTRY_VERIFY(!alive);
}

void TestSelectPopup::choosingTheCurrentOne() {
  Shown shown;
  QVERIFY(shown.open());
  QSignalSpy activated(shown.select, &QComboBox::activated);
  QTest::keyClick(popup(), Qt::Key_Return);
  QVERIFY(activated.isEmpty());
  QVERIFY(!shown.select->isOpen());
}

void TestSelectPopup::quickClickLeavesItOpen() {
  Shown shown;
  QVERIFY(QTest::qWaitForWindowExposed(&shown.window));
  QTest::mousePress(shown.select, Qt::LeftButton);
  QVERIFY(popup());
  release(popup(), rowCentre(2));
  QVERIFY(popup());
  QVERIFY(shown.select->isOpen());
  QCOMPARE(shown.select->currentIndex(), 1);
}

void TestSelectPopup::releaseAfterAWhileChooses() {
  Shown shown;
  QVERIFY(QTest::qWaitForWindowExposed(&shown.window));
  QTest::mousePress(shown.select, Qt::LeftButton);
  shown.sinceOpening.start();
  QVERIFY(popup());
  QVERIFY(graceIsOver(shown.sinceOpening));
  release(popup(), rowCentre(0));
  QVERIFY(!popup());
  QCOMPARE(shown.select->currentIndex(), 0);
}

void TestSelectPopup::releaseOutsideCloses() {
  Shown shown;
  QVERIFY(shown.open());
  QVERIFY(graceIsOver(shown.sinceOpening));
  release(popup(), {16, 16}); // on the body, beside the rows
  QVERIFY(popup());
  release(popup(), {5, 5}); // in the shadow
  QVERIFY(!popup());
  QCOMPARE(shown.select->currentIndex(), 1);
}

void TestSelectPopup::pointerHighlights() {
  Shown shown;
  QVERIFY(shown.open());
  moveTo(popup(), rowCentre(2));
  QCOMPARE(popup()->hovered(), 2);
  moveTo(popup(), {5, 5});
  QCOMPARE(popup()->hovered(), 2);
  QCOMPARE(shown.select->currentIndex(), 1);
}

void TestSelectPopup::keysInThePopup() {
  for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Space}) {
    Shown shown;
    QVERIFY(shown.open());
    QTest::keyClick(popup(), Qt::Key_Up);
    QCOMPARE(popup()->hovered(), 0);
    QTest::keyClick(popup(), Qt::Key_Up);
    QCOMPARE(popup()->hovered(), 0);
    for (int presses = 0; presses < 4; ++presses) QTest::keyClick(popup(), Qt::Key_Down);
    QCOMPARE(popup()->hovered(), 2);
    QCOMPARE(shown.select->currentIndex(), 1);
    QTest::keyClick(popup(), key);
    QCOMPARE(shown.select->currentIndex(), 2);
    QVERIFY(!popup());
  }
}

void TestSelectPopup::escapeCloses() {
  Shown shown;
  QVERIFY(shown.open());
  QTest::keyClick(popup(), Qt::Key_Down);
  QTest::keyClick(popup(), Qt::Key_A);
  QVERIFY(popup());
  QTest::keyClick(popup(), Qt::Key_Escape);
  QVERIFY(!popup());
  QCOMPARE(shown.select->currentIndex(), 1);
}

void TestSelectPopup::emptySelection() {
  Shown shown(-1);
  QVERIFY(shown.open());
  QCOMPARE(popup()->hovered(), -1);
  const int top = popup()->y();
  for (const bool mac : {true, false}) {
    Theme::get().mac = mac;
    const QImage image = rendered(*popup());
    QCOMPARE(image.pixelColor(popup()->width() - 24, rowCentre(0).y()), Theme::get().surface);
  }
  Theme::get().mac = true;
  popup()->close();
  shown.select->setCurrentIndex(0);
  QVERIFY(shown.open());
  QCOMPARE(popup()->y(), top);
}

void TestSelectPopup::selectGoesWhileOpen() {
  Shown shown;
  QVERIFY(shown.open());
  const QPointer<SelectPopup> opened(popup());
  delete shown.select.data();
  QVERIFY(opened);
  QCOMPARE(opened->itemCount(), 0);
  rendered(*opened);
  QTest::keyClick(opened.data(), Qt::Key_Return);
  QTRY_VERIFY(!opened);
}

void TestSelectPopup::popupPaintsMac() {
  Shown shown;
  QVERIFY(shown.open());
  moveTo(popup(), rowCentre(2));
  for (const bool dark : {true, false}) {
    setLook(dark);
    const Theme& theme = Theme::get();
    const QImage image = rendered(*popup());
    const auto at = [&](int row) { return image.pixelColor(popup()->width() - 24, rowCentre(row).y()); };
    QCOMPARE(at(0), theme.surface);
    QCOMPARE(at(1), theme.surface);
    QCOMPARE(at(2), theme.accent);
    // The check mark stands before the current row only.
    const auto marked = [&](int row) {
      for (int x = 25; x < 37; ++x)
        for (int y = -6; y < 6; ++y)
          if (image.pixelColor(x, rowCentre(row).y() + y) != theme.surface) return true;
      return false;
    };
    QVERIFY(!marked(0));
    QVERIFY(marked(1));
    // The shadow's innermost layer, and the outermost two, which are nothing.
    const int middle = popup()->width() / 2;
    QVERIFY(image.pixelColor(middle, popup()->height() - 13).alpha() > 20);
    QVERIFY(image.pixelColor(middle, popup()->height() - 13).red() < 60);
    QCOMPARE(image.pixelColor(middle, 1).alpha(), 0);
  }
}

void TestSelectPopup::popupPaintsWin() {
  Theme::get().mac = false;
  Shown shown;
  QVERIFY(shown.open());
  moveTo(popup(), rowCentre(2));
  for (const bool dark : {true, false}) {
    setLook(dark);
    const Theme& theme = Theme::get();
    const QColor body = dark ? theme.surface2 : theme.surface;
    const QImage image = rendered(*popup());
    const auto at = [&](int row) { return image.pixelColor(popup()->width() - 24, rowCentre(row).y()); };
    QCOMPARE(at(0), body);
    QVERIFY(isNear(at(1), over(theme.press, body)));
    QVERIFY(isNear(at(2), over(theme.hover, body)));
    QVERIFY(isNear(image.pixelColor(19, rowCentre(1).y()), theme.accent));
    QVERIFY(isNear(image.pixelColor(19, rowCentre(2).y()), over(theme.hover, body)));
  }
}

void TestSelectPopup::popupPaintsMirrored_data() { opensOverTheControl_data(); }

// Rows begin at the right, with their mark before the text, and a size keeps its unit at its end.
void TestSelectPopup::popupPaintsMirrored() {
  QFETCH(bool, mac);
  Theme::get().mac = mac;
  const pixels::Mirrored mirrored;
  Shown shown(0);
  const auto picture = [&](const QString& text, int current) {
    shown.select->setItemText(1, text);
    shown.select->setCurrentIndex(current);
    if (!shown.open()) qFatal("the popup didn't open");
    moveTo(popup(), rowCentre(2)); // away from the row that is looked at
    const QImage image = rendered(*popup());
    popup()->close();
    return image;
  };
  const QImage with = picture(u"80 MB"_s, 0);
  const QRect words = pixels::difference(with, picture(u" "_s, 0));
  const SelectPopupLayout layout(mac);
  const QRectF row = layout.rowRect(1, with.width());
  QVERIFY(row.contains(words));
  QVERIFY2(qAbs(row.right() - layout.inset - words.right()) <= 3, qPrintable(QString::number(words.right())));
  QCOMPARE(picture(u"\u200e80 MB"_s, 0), with); // said to go from left to right
  const QImage marked = picture(u"80 MB"_s, 1);
  QVERIFY(marked.copy(words.right() + 2, words.top(), layout.inset, words.height()) !=
          with.copy(words.right() + 2, words.top(), layout.inset, words.height()));
}

void TestSelectPopup::popupIsReadOut() {
  Shown shown;
  shown.select->setAccessibleName(u"Look"_s);
  QVERIFY(shown.open());
  QAccessibleInterface* list = QAccessible::queryAccessibleInterface(popup());
  QVERIFY(list);
  QCOMPARE(list->role(), QAccessible::List);
  QCOMPARE(list->text(QAccessible::Name), u"Look"_s);
  QCOMPARE(list->childCount(), 3);
  QCOMPARE(list->child(2)->role(), QAccessible::ListItem);
  QCOMPARE(list->child(2)->text(QAccessible::Name), u"Dark and long"_s);
  QVERIFY(list->child(1)->state().selected);
  QVERIFY(!list->child(1)->state().invisible);
  // The keys of the keyboard go to the popup, which has no focus of its own.
  QCOMPARE(list->focusChild(), list->child(1));
  QVERIFY(list->child(1)->state().focused);
  QTest::keyClick(popup(), Qt::Key_Down);
  QCOMPARE(list->focusChild(), list->child(2));
  QVERIFY(list->child(2)->state().focused);
  QVERIFY(list->child(2)->state().focusable);
  QVERIFY(!list->child(2)->state().selected);
  QVERIFY(!list->child(1)->state().focused);
  list->child(0)->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
  QCOMPARE(shown.select->currentIndex(), 0);
  QVERIFY(!popup());
}

int main(int argc, char** argv) { return uitest::run<TestSelectPopup>(argc, argv); }

#include "tst_SelectPopup.moc"
