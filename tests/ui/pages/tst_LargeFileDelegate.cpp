// What the rows of the Space Map's list look like, and which of them lies under the pointer.
#include "ui/pages/LargeFileDelegate.h"

#include "LargeFilesTest.h"
#include "support/pixels.h"
#include "support/uitest.h"
#include "ui/Theme.h"
#include "ui/pages/LargeFileKind.h"
#include "ui/pages/LargeFilesModel.h"
#include "ui/paint.h"

#include <QCursor>
#include <QFontMetrics>
#include <QHeaderView>
#include <QScrollBar>
#include <QTableView>

using namespace Qt::StringLiterals;
using namespace largetest;
using pixels::at;
using pixels::count;
using pixels::faded;
using pixels::isNear;
using pixels::over;
using pixels::setLook;
using ui::LargeFileDelegate;
using ui::LargeFilesModel;
using ui::paint::withAlpha;

namespace {

constexpr QRect kCell(0, 0, 300, 54);
constexpr int kZoom = 4;
const QString kLongName = QString(200, u'w') + u".mov"_s;

} // namespace

class TestLargeFileDelegate : public QObject {
  Q_OBJECT

 private slots:
  void initTestCase() { Theme::get().install(qApp); }
  void init();
  void cleanup() { m_view.reset(); }

  void layoutOfACell();
  void layoutMovesWithTheCell();
  void layoutFromRightToLeft();
  void everyCellIsOneHeight();
  void lineUnderEveryCell();
  void emptyBox();
  void tickedBox();
  void nameCell();
  void nameAndFolder();
  void longNamesAreShortened();
  void kindCell();
  void ages_data();
  void ages();
  void sizeCell();
  void textsEndAtTheMargin();
  void painterComesBackAsItWas();
  void hoverFollowsThePointer();
  void hoverIsPainted();
  void hoverFollowsTheScrolling();
  void hoverGoesWithThePointer();
  void eventsPassOn();

 private:
  /// One cell of the first row on nothing.
  [[nodiscard]] QImage painted(int column, double ratio = 1) const {
    QImage image(kCell.size() * ratio, QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(ratio);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    QStyleOptionViewItem option;
    option.rect = kCell;
    m_view->itemDelegate()->paint(&painter, option, m_model.index(0, column));
    painter.end();
    return image.convertToFormat(QImage::Format_ARGB32);
  }
  /// Whether a part of a cell, in logical pixels, has ink of a colour; looked at where strokes are wide.
  [[nodiscard]] bool inked(int column, const QRectF& part, const QColor& ink) const {
    const QImage cell = painted(column, kZoom);
    return count(cell, {part.topLeft() * kZoom, part.size() * kZoom}, ink) > 3;
  }
  [[nodiscard]] LargeFileDelegate* delegate() const { return qobject_cast<LargeFileDelegate*>(m_view->itemDelegate()); }
  /// Shows twenty rows, of which seven are to be seen.
  void fillAndShow() {
    QList<LargeFile> files;
    for (int i = 0; i < 20; ++i) files << file(QString::number(i), 100 - i);
    m_model.setFiles(files);
    m_view->verticalHeader()->setDefaultSectionSize(LargeFileDelegate::kRowHeight);
    m_view->setVerticalScrollMode(QTableView::ScrollPerPixel);
    m_view->viewport()->setMouseTracking(true);
    m_view->resize(500, 7 * LargeFileDelegate::kRowHeight + 30);
    m_view->move(100, 100);
    m_view->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_view.get()));
    QCoreApplication::processEvents();
  }
  /// As the window system does: the pointer is there, and the viewport hears of it.
  void pointAt(const QPoint& place, QEvent::Type type = QEvent::MouseMove) const {
    const QPoint global = m_view->viewport()->mapToGlobal(place);
    QCursor::setPos(global);
    if (type == QEvent::MouseMove) {
      QMouseEvent move(type, place, global, Qt::NoButton, Qt::NoButton, Qt::NoModifier);
      QCoreApplication::sendEvent(m_view->viewport(), &move);
    } else if (type == QEvent::Enter) {
      QEnterEvent enter(place, place, global);
      QCoreApplication::sendEvent(m_view->viewport(), &enter);
    } else {
      QEvent event(type);
      QCoreApplication::sendEvent(m_view->viewport(), &event);
    }
  }
  [[nodiscard]] static QPoint inRow(int row) { return {200, row * LargeFileDelegate::kRowHeight + 20}; }

  LargeFilesModel m_model;
  std::unique_ptr<QTableView> m_view;
};

void TestLargeFileDelegate::init() {
  setLook(false);
  QCursor::setPos(5, 5);
  m_model.unusedMonths = 6;
  m_model.setFiles({file(u"a.mov"_s, 1234)});
  m_view = std::make_unique<QTableView>();
  m_view->setModel(&m_model);
  m_view->setItemDelegate(new LargeFileDelegate(&m_model, m_view.get()));
}

void TestLargeFileDelegate::layoutOfACell() {
  const ui::FileCellLayout layout = ui::fileCellLayout(QRect(0, 0, 300, 54));
  QCOMPARE(layout.line, QRect(0, 53, 300, 1));
  QCOMPARE(layout.box, QRectF(12, 26 - 9, 18, 18));
  QCOMPARE(layout.boxBody, QRectF(12.75, 17.75, 16.5, 16.5));
  QCOMPARE(layout.boxRadius, 5.0);
  QCOMPARE(layout.tick, QPolygonF({{17, 26.5}, {20, 29.5}, {25.5, 23}}));
  QCOMPARE(layout.tile, QRectF(12.5, 12.5, 27, 27));
  QCOMPARE(layout.tileRadius, 8.0);
  QCOMPARE(layout.icon, QRectF(19, 19, 14, 14));
  QCOMPARE(layout.name, QRect(QPoint(52, 9), QPoint(299 - 12, 53 - 9)));
  QCOMPARE(layout.text, QRect(12, 0, 276, 54));
}

void TestLargeFileDelegate::layoutMovesWithTheCell() {
  const QPoint by(40, 108);
  const ui::FileCellLayout here = ui::fileCellLayout(kCell);
  const ui::FileCellLayout there = ui::fileCellLayout(kCell.translated(by));
  QCOMPARE(there.line, here.line.translated(by));
  QCOMPARE(there.box, here.box.translated(by));
  QCOMPARE(there.tick, here.tick.translated(by));
  QCOMPARE(there.tile, here.tile.translated(by));
  QCOMPARE(there.name, here.name.translated(by));
  QCOMPARE(there.text, here.text.translated(by));
}

void TestLargeFileDelegate::layoutFromRightToLeft() {
  const ui::FileCellLayout layout = ui::fileCellLayout(QRect(40, 0, 300, 54), Qt::RightToLeft);
  QCOMPARE(layout.line, QRect(40, 53, 300, 1));
  QCOMPARE(layout.box, QRectF(310, 17, 18, 18));
  QCOMPARE(layout.boxBody, QRectF(310.75, 17.75, 16.5, 16.5));
  QCOMPARE(layout.tick, QPolygonF({{315, 26.5}, {318, 29.5}, {323.5, 23}})); // a tick has no direction
  QCOMPARE(layout.tile, QRectF(300.5, 12.5, 27, 27));
  QCOMPARE(layout.icon, QRectF(307, 19, 14, 14));
  QCOMPARE(layout.name, QRect(52, 9, 236, 36)); // 52 from the right end, 12 from the left one
  QCOMPARE(layout.text, QRect(52, 0, 276, 54));
}

void TestLargeFileDelegate::everyCellIsOneHeight() {
  for (int column = 0; column < 5; ++column)
    QCOMPARE(m_view->itemDelegate()->sizeHint({}, m_model.index(0, column)), QSize(100, 54));
}

void TestLargeFileDelegate::lineUnderEveryCell() {
  for (const bool dark : {false, true}) {
    setLook(dark);
    for (int column = 0; column < 5; ++column) {
      const QImage cell = painted(column);
      for (const int x : {0, 150, 299}) QVERIFY(isNear(at(cell, {double(x), 53}), Theme::get().line));
      QCOMPARE(at(cell, {150, 52}).alpha(), 0);
    }
  }
}

void TestLargeFileDelegate::emptyBox() {
  const QPointF middle(21, 26);
  const QPointF edge(21, 18); // within the outline, which goes from 17 to 18.5
  const QImage light = painted(0);
  QVERIFY(isNear(at(light, middle), Qt::white));
  QVERIFY(at(light, {21, 17}).alpha() > 0);
  QVERIFY(at(light, {21, 17}).lightness() < 180);
  QCOMPARE(at(light, {21, 16}).alpha(), 0);
  QCOMPARE(at(light, {21, 35}).alpha(), 0);
  QCOMPARE(at(light, {11, 26}).alpha(), 0);
  QCOMPARE(at(light, {12, 17}).alpha(), 0); // its corners are round
  QVERIFY(at(light, edge) != at(light, middle));
  setLook(true);
  const QImage dark = painted(0);
  QVERIFY(isNear(at(dark, middle), withAlpha(Qt::white, 0x0a)));
  QVERIFY(isNear(at(dark, {21, 17}), withAlpha(Qt::white, 0x47)));
}

void TestLargeFileDelegate::tickedBox() {
  m_model.toggle(m_model.files().at(0).path);
  const QBrush gradient = Theme::gradient({12, 17, 18, 18});
  for (const bool dark : {false, true}) {
    setLook(dark);
    const QImage cell = painted(0);
    const QPointF clear(15, 21); // off the mark
    QVERIFY(isNear(at(cell, clear), pixels::brushAt(gradient, clear)));
    QVERIFY(isNear(at(cell, {20, 29}), Qt::white)); // where the mark turns
    QVERIFY(isNear(at(cell, {23, 25}), Qt::white));
    QVERIFY(!isNear(at(cell, {17, 30}), Qt::white));
    QCOMPARE(at(cell, {21, 16}).alpha(), 0); // no outline
  }
  m_model.toggle(m_model.files().at(0).path);
}

void TestLargeFileDelegate::nameCell() {
  for (const QString& kind : {u"Video"_s, u"Archive"_s, u"File"_s}) {
    m_model.setFiles({file(u"a"_s, 1, kind)});
    const QColor colour = ui::kindStyle(kind).colour;
    for (const bool dark : {false, true}) {
      setLook(dark);
      const QImage cell = painted(1);
      const QColor fill = faded(colour, dark ? 0.14 : 0.12);
      QVERIFY(isNear(at(cell, {15, 26}), fill));
      // A pixel wide outline around 12.5 to 39.5 lies on the pixels 12 and 39.
      QVERIFY(isNear(at(cell, {12, 26}), over(faded(colour, 0.22), faded(colour, (dark ? 0.14 : 0.12) / 2))));
      QCOMPARE(at(cell, {11, 26}).alpha(), 0);
      QVERIFY(at(cell, {39, 26}).alpha() > 0);
      QCOMPARE(at(cell, {40, 26}).alpha(), 0);
      QVERIFY(inked(1, {19, 19, 14, 14}, colour)); // the icon
      QVERIFY(!inked(1, {13, 13, 5, 27}, colour));
    }
  }
}

void TestLargeFileDelegate::nameAndFolder() {
  for (const bool dark : {false, true}) {
    setLook(dark);
    const Theme& theme = Theme::get();
    const QFontMetrics name(theme.font(13, 500));
    const QFontMetrics folder(theme.mono(11, 400));
    QVERIFY(inked(1, {52, 9, 236, double(name.height())}, theme.text));
    QVERIFY(inked(1, {52, 45.0 - folder.height(), 236, double(folder.height())}, theme.text3));
    QVERIFY(!inked(1, {52, 45.0 - folder.height(), 236, double(folder.height())}, theme.text));
    QVERIFY(!inked(1, {52, 0, 236, 9}, theme.text));
    QVERIFY(!inked(1, {40, 0, 12, 53}, theme.text));
    QVERIFY(!inked(1, {52, 46, 236, 7}, theme.text3));
  }
}

void TestLargeFileDelegate::longNamesAreShortened() {
  const auto wide = [this](const QString& name, const QString& dir) {
    m_model.setFiles({file(name, 1, u"Video"_s, dir)});
    return painted(1);
  };
  const QString folder = u"/"_s + QString(200, u'v') + u"/end"_s;
  const QImage shortened = wide(kLongName, folder);
  for (int y = 0; y < 53; ++y)
    for (int x = 288; x < 300; ++x) QCOMPARE(shortened.pixelColor(x, y).alpha(), 0);
  // The name loses its end, the folder its middle.
  QCOMPARE(wide(kLongName + u"other"_s, folder), shortened);
  QVERIFY(wide(u'i' + kLongName, folder) != shortened);
  QVERIFY(wide(kLongName, folder + u"other"_s) != shortened);
  QVERIFY(wide(kLongName, u"/other"_s + folder) != shortened);
}

void TestLargeFileDelegate::kindCell() {
  m_model.setFiles({file(u"a"_s, 1, u"Disk image"_s)});
  const QColor ink = Theme::get().text2;
  QVERIFY(inked(2, {12, 18, 80, 18}, ink));
  QVERIFY(!inked(2, {150, 0, 150, 53}, ink)); // from the left
  QVERIFY(!inked(2, {0, 0, 12, 53}, ink));
}

void TestLargeFileDelegate::ages_data() {
  QTest::addColumn<int>("unusedMonths");
  QTest::addColumn<int>("age");
  QTest::addColumn<bool>("younger");
  QTest::addColumn<bool>("warns");
  QTest::newRow("today") << 6 << 0 << false << false;
  QTest::newRow("a day less") << 6 << 6 << true << false;
  QTest::newRow("to the day") << 6 << 6 << false << true;
  QTest::newRow("long ago") << 6 << 40 << false << true;
  QTest::newRow("another limit, below") << 12 << 11 << false << false;
  QTest::newRow("another limit") << 12 << 12 << false << true;
}

void TestLargeFileDelegate::ages() {
  QFETCH(int, unusedMonths);
  QFETCH(int, age);
  QFETCH(bool, younger);
  QFETCH(bool, warns);
  m_model.unusedMonths = unusedMonths;
  m_model.setFiles({younger ? justYounger(file(u"a"_s, 1), age) : aged(file(u"a"_s, 1), age)});
  for (const bool dark : {false, true}) {
    setLook(dark);
    const Theme& theme = Theme::get();
    const QRectF text(150, 0, 138, 53);
    QCOMPARE(inked(3, text, theme.warn), warns);
    QCOMPARE(inked(3, text, theme.text2), !warns);
    QVERIFY(!inked(3, {0, 0, 150, 53}, warns ? theme.warn : theme.text2)); // at the right
  }
}

void TestLargeFileDelegate::sizeCell() {
  for (const bool dark : {false, true}) {
    setLook(dark);
    const int width = QFontMetrics(Theme::get().mono(13, 600)).horizontalAdvance(fmt::bytes(1234 * kMb));
    QVERIFY(inked(4, {288.0 - width, 15, double(width), 24}, Theme::get().text));
    QVERIFY(!inked(4, {0, 0, 286.0 - width, 53}, Theme::get().text));
  }
}

void TestLargeFileDelegate::textsEndAtTheMargin() {
  for (const int column : {3, 4}) {
    const QImage cell = painted(column);
    for (int y = 0; y < 53; ++y)
      for (int x = 288; x < 300; ++x) QCOMPARE(cell.pixelColor(x, y).alpha(), 0);
    bool ends = false;
    for (int y = 0; y < 53; ++y)
      for (int x = 280; x < 288; ++x) ends = ends || cell.pixelColor(x, y).alpha() > 0;
    QVERIFY(ends);
  }
}

void TestLargeFileDelegate::painterComesBackAsItWas() {
  QImage image(kCell.size(), QImage::Format_ARGB32_Premultiplied);
  QPainter painter(&image);
  painter.setPen(Qt::white);
  const QFont font = painter.font();
  for (int column = 0; column < 5; ++column) {
    QStyleOptionViewItem option;
    option.rect = kCell;
    m_view->itemDelegate()->paint(&painter, option, m_model.index(0, column));
    QCOMPARE(painter.pen().color(), QColor(Qt::white));
    QCOMPARE(painter.font(), font);
    QVERIFY(!painter.testRenderHint(QPainter::Antialiasing));
  }
}

void TestLargeFileDelegate::hoverFollowsThePointer() {
  fillAndShow();
  QCOMPARE(delegate()->hoverRow(), -1);
  pointAt(inRow(2));
  QCOMPARE(delegate()->hoverRow(), 2);
  pointAt(inRow(4), QEvent::Enter);
  QCOMPARE(delegate()->hoverRow(), 4);
  m_model.setFiles({file(u"only"_s, 1)});
  QCoreApplication::processEvents();
  pointAt(inRow(4)); // below the last row
  QCOMPARE(delegate()->hoverRow(), -1);
}

void TestLargeFileDelegate::hoverIsPainted() {
  fillAndShow();
  QCOMPARE(at(painted(2), {200, 10}).alpha(), 0);
  pointAt(inRow(0));
  for (const bool dark : {false, true}) {
    setLook(dark);
    for (int column = 0; column < 5; ++column) {
      const QImage cell = painted(column);
      QVERIFY(isNear(at(cell, {0, 0}), Theme::get().hover));
      QVERIFY(isNear(at(cell, {299, 4}), Theme::get().hover));
      QVERIFY(isNear(at(cell, {0, 53}), over(Theme::get().line, Theme::get().hover)));
    }
  }
  pointAt(inRow(1));
  QCOMPARE(at(painted(2), {200, 10}).alpha(), 0);
}

// The pointer rests, the rows move under it.
void TestLargeFileDelegate::hoverFollowsTheScrolling() {
  fillAndShow();
  pointAt(inRow(2));
  pixels::Repaints repaints(m_view->viewport());
  m_view->verticalScrollBar()->setValue(3 * LargeFileDelegate::kRowHeight);
  QCOMPARE(delegate()->hoverRow(), 5);
  QTRY_VERIFY(repaints.count > 0);
  m_view->verticalScrollBar()->setValue(0);
  QCOMPARE(delegate()->hoverRow(), 2);
}

void TestLargeFileDelegate::hoverGoesWithThePointer() {
  fillAndShow();
  pointAt(inRow(2));
  QCoreApplication::processEvents();
  pixels::Repaints repaints(m_view->viewport());
  pointAt({200, -200}, QEvent::Leave);
  QCOMPARE(delegate()->hoverRow(), -1);
  QTRY_VERIFY(repaints.count > 0);
  m_view->verticalScrollBar()->setValue(100); // and outside nothing comes under it
  QCOMPARE(delegate()->hoverRow(), -1);
}

void TestLargeFileDelegate::eventsPassOn() {
  fillAndShow();
  bool heard = false;
  connect(m_view.get(), &QTableView::entered, this, [&] { heard = true; });
  pointAt(inRow(1));
  QVERIFY(heard);
}

int main(int argc, char** argv) { return uitest::run<TestLargeFileDelegate>(argc, argv); }

#include "tst_LargeFileDelegate.moc"
