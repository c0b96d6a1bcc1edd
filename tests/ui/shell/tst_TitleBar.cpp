// The title bar that the window draws, its buttons, and the edges by which the window is resized.
#include "support/pixels.h"
#include "support/uitest.h"
#include "ui/Theme.h"
#include "ui/shell/CaptionButton.h"
#include "ui/shell/ResizeBorder.h"
#include "ui/shell/TitleBar.h"
#include "ui/shell/frame.h"

#include <QLabel>
#include <QLayout>
#include <QSignalSpy>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;
using namespace ui;

class TestTitleBar : public QObject {
  Q_OBJECT

 private slots:
  void initTestCase() { Theme::get().install(qApp); }
  void init();
  void cleanup() { m_window.reset(); }

  void order();
  void logoPlace();
  void buttonsWork();
  void menuTellsItsPlace();
  void menuTellsItsPlaceMirrored();
  void menuCanBeAskedFor();
  void glyphFollowsTheWindow();
  void doubleClickZooms();
  void buttonColours();
  void shapes_data();
  void shapes();
  void shapesAreCrisp();
  void frameGoesWithWhatWasBuilt();
  void gripsCoverTheEdge();
  void gripsLeaveTheContent();
  void gripCursors();
  void gripsFollowTheWindow();

 private:
  [[nodiscard]] CaptionButton* button(CaptionButton::Kind kind) const {
    for (CaptionButton* one : m_bar->findChildren<CaptionButton*>())
      if (one->kind() == kind) return one;
    return nullptr;
  }

  std::unique_ptr<QWidget> m_window;
  TitleBar* m_bar = nullptr;
};

void TestTitleBar::init() {
  pixels::setLook(false);
  m_window = std::make_unique<QWidget>();
  m_bar = new TitleBar(m_window.get());
  auto* column = new QVBoxLayout(m_window.get());
  column->setContentsMargins(0, 0, 0, 0);
  column->addWidget(m_bar);
  column->addStretch();
  m_window->resize(700, 400);
  m_window->show();
}

void TestTitleBar::order() {
  QCOMPARE(m_bar->height(), 40);
  QCOMPARE(m_bar->findChild<QLabel*>()->text(), u"Tarnwick"_s);
  QCOMPARE(m_bar->findChild<QLabel*>()->x(), 46);
  int right = m_bar->width();
  for (const auto kind :
       {CaptionButton::Close, CaptionButton::Maximize, CaptionButton::Minimize, CaptionButton::Menu}) {
    QCOMPARE(button(kind)->size(), QSize(46, 40));
    QCOMPARE(button(kind)->x() + 46, right);
    QVERIFY(!button(kind)->accessibleName().isEmpty());
    right -= 46;
  }
  QCOMPARE(button(CaptionButton::Menu)->toolTip(), u"Menu"_s);
}

void TestTitleBar::logoPlace() {
  QCOMPARE(titleBarLogo({960, 40}), QRectF(12, 9, 22, 22));
  QCOMPARE(titleBarLogo({960, 40}, Qt::RightToLeft), QRectF(926, 9, 22, 22)); // clear of the buttons at the left
  const QImage shown = pixels::rendered(*m_bar);
  QVERIFY(shown.pixelColor(23, 20).alpha() > 0);
  QCOMPARE(shown.pixelColor(8, 20).alpha(), 0);
}

void TestTitleBar::buttonsWork() {
  button(CaptionButton::Maximize)->click();
  QVERIFY(m_window->isMaximized());
  button(CaptionButton::Maximize)->click();
  QVERIFY(!m_window->isMaximized());
  button(CaptionButton::Minimize)->click();
  QVERIFY(m_window->isMinimized());
  m_window->showNormal();
  button(CaptionButton::Close)->click();
  QVERIFY(m_window->isHidden());
}

void TestTitleBar::menuTellsItsPlace() {
  QSignalSpy asked(m_bar, &TitleBar::menuRequested);
  button(CaptionButton::Menu)->click();
  QCOMPARE(asked.count(), 1);
  QCOMPARE(asked[0][0].toPoint(), m_bar->mapToGlobal(QPoint(700 - 4 * 46, 40)));
}

void TestTitleBar::menuTellsItsPlaceMirrored() {
  m_bar->setLayoutDirection(Qt::RightToLeft);
  m_bar->layout()->activate();
  QSignalSpy asked(m_bar, &TitleBar::menuRequested);
  m_bar->requestMenu();
  QCOMPARE(asked[0][0].toPoint(), m_bar->mapToGlobal(QPoint(4 * 46, 40)));
}

void TestTitleBar::menuCanBeAskedFor() {
  QSignalSpy asked(m_bar, &TitleBar::menuRequested);
  m_bar->requestMenu();
  QCOMPARE(asked.count(), 1);
  QCOMPARE(asked[0][0].toPoint(), m_bar->mapToGlobal(QPoint(700 - 4 * 46, 40)));
}

void TestTitleBar::glyphFollowsTheWindow() {
  CaptionButton* maximize = button(CaptionButton::Maximize);
  const QImage normal = pixels::rendered(*maximize);
  m_window->showMaximized();
  QTRY_VERIFY(m_window->isMaximized());
  QVERIFY(pixels::rendered(*maximize) != normal);
  m_window->showNormal();
  QTRY_VERIFY(!m_window->isMaximized());
  QCOMPARE(pixels::rendered(*maximize), normal);
}

void TestTitleBar::doubleClickZooms() {
  QTest::mouseDClick(m_bar, Qt::RightButton, {}, QPoint(300, 20));
  QVERIFY(!m_window->isMaximized());
  QTest::mouseDClick(m_bar, Qt::LeftButton, {}, QPoint(300, 20));
  QVERIFY(m_window->isMaximized());
}

void TestTitleBar::buttonColours() {
  const Theme& theme = Theme::get();
  for (const bool dark : {false, true}) {
    pixels::setLook(dark);
    for (const auto kind : {CaptionButton::Menu, CaptionButton::Close}) {
      const bool close = kind == CaptionButton::Close;
      CaptionButton one(kind);
      QCOMPARE(pixels::rendered(one).pixelColor(2, 2).alpha(), 0);
      QEnterEvent enter(QPointF(5, 5), QPointF(5, 5), QPointF(5, 5));
      QCoreApplication::sendEvent(&one, &enter);
      QVERIFY(pixels::isNear(pixels::rendered(one).pixelColor(2, 2), close ? QColor(0xc4, 0x2b, 0x1c) : theme.hover));
      one.setDown(true);
      QVERIFY(pixels::isNear(pixels::rendered(one).pixelColor(2, 2), close ? QColor(0xa6, 0x2a, 0x1d) : theme.press));
    }
  }
}

void TestTitleBar::shapes_data() {
  QTest::addColumn<int>("kind");
  QTest::addColumn<bool>("maximized");
  QTest::addColumn<QRectF>("bounds");
  QTest::newRow("menu") << 0 << false << QRectF(-6, -4, 12, 8);
  QTest::newRow("minimise") << 1 << false << QRectF(-5, 0, 10, 0);
  QTest::newRow("maximise") << 2 << false << QRectF(-5, -5, 10, 10);
  QTest::newRow("restore") << 2 << true << QRectF(-5, -5, 10, 10);
  QTest::newRow("close") << 3 << false << QRectF(-5, -5, 10, 10);
}

void TestTitleBar::shapes() {
  QFETCH(int, kind);
  QFETCH(bool, maximized);
  QFETCH(QRectF, bounds);
  QCOMPARE(captionShape(CaptionButton::Kind(kind), maximized).boundingRect(), bounds);
}

// A line of one pixel fills one row, also where the middle of the button lies between two.
void TestTitleBar::shapesAreCrisp() {
  for (const double ratio : {1.0, 1.5, 2.0}) {
    CaptionButton one(CaptionButton::Minimize);
    const QImage shown = pixels::rendered(one, ratio);
    const int x = int(23 * ratio);
    QList<int> alphas;
    for (int y = 0; y < shown.height(); ++y)
      if (const int alpha = shown.pixelColor(x, y).alpha(); alpha > 8) alphas << alpha; // but for rounding
    QCOMPARE(alphas.size(), 1);
    QVERIFY(alphas[0] > 250);
  }
}

// Also where the window manager, which was only starting, can do more by now.
void TestTitleBar::frameGoesWithWhatWasBuilt() {
  QCOMPARE(frame::kind(), frame::Kind::Drawn);
  QWidget framed;
  frame::setUp(&framed, frame::Kind::System, nullptr, nullptr);
  QVERIFY(!framed.windowFlags().testFlag(Qt::FramelessWindowHint));
  QVERIFY(!framed.findChild<ResizeBorder*>());
  QWidget bare;
  frame::setUp(&bare, frame::Kind::Drawn, nullptr, nullptr);
  QVERIFY(bare.windowFlags().testFlag(Qt::FramelessWindowHint));
  QVERIFY(bare.findChild<ResizeBorder*>());
}

void TestTitleBar::gripsCoverTheEdge() {
  const QSize size(700, 400);
  QRegion edge(QRect(QPoint(), size));
  edge -= QRect(QPoint(), size).adjusted(4, 6, -4, -6); // 10 pixels of a scroll bar are more than it takes
  QRegion covered;
  for (const ResizeGrip& grip : resizeGrips(size)) {
    QVERIFY2(!covered.intersects(grip.region), "grips lie on one another");
    covered += grip.region;
  }
  QCOMPARE(covered, edge);
}

void TestTitleBar::gripsLeaveTheContent() {
  new ResizeBorder(m_window.get());
  CaptionButton* close = button(CaptionButton::Close);
  const QPoint corner = close->mapTo(m_window.get(), close->rect().topRight());
  QCOMPARE(m_window->childAt(corner + QPoint(-4, 6)), close);
  QVERIFY(m_window->childAt(corner + QPoint(-3, 6)) != close);
  QVERIFY(m_window->childAt(corner + QPoint(-4, 5)) != close);
}

void TestTitleBar::gripCursors() {
  QCOMPARE(resizeCursor(Qt::TopEdge), Qt::SizeVerCursor);
  QCOMPARE(resizeCursor(Qt::BottomEdge), Qt::SizeVerCursor);
  QCOMPARE(resizeCursor(Qt::LeftEdge), Qt::SizeHorCursor);
  QCOMPARE(resizeCursor(Qt::RightEdge), Qt::SizeHorCursor);
  QCOMPARE(resizeCursor(Qt::TopEdge | Qt::LeftEdge), Qt::SizeFDiagCursor);
  QCOMPARE(resizeCursor(Qt::BottomEdge | Qt::RightEdge), Qt::SizeFDiagCursor);
  QCOMPARE(resizeCursor(Qt::TopEdge | Qt::RightEdge), Qt::SizeBDiagCursor);
  QCOMPARE(resizeCursor(Qt::BottomEdge | Qt::LeftEdge), Qt::SizeBDiagCursor);
}

void TestTitleBar::gripsFollowTheWindow() {
  new ResizeBorder(m_window.get());
  const auto cursorAt = [this](const QPoint& at) {
    const QWidget* child = m_window->childAt(at);
    return child ? child->cursor().shape() : Qt::ArrowCursor;
  };
  QCOMPARE(cursorAt({699, 399}), Qt::SizeFDiagCursor);
  m_window->resize(500, 300);
  QCOMPARE(cursorAt({499, 299}), Qt::SizeFDiagCursor);
  QCOMPARE(cursorAt({250, 299}), Qt::SizeVerCursor);
  QCOMPARE(cursorAt({0, 150}), Qt::SizeHorCursor);
  m_window->showMaximized();
  QTRY_VERIFY(m_window->isMaximized());
  QCOMPARE(cursorAt({0, 150}), Qt::ArrowCursor);
}

int main(int argc, char** argv) { return uitest::run<TestTitleBar>(argc, argv); }

#include "tst_TitleBar.moc"
