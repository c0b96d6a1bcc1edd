#include "app/AppSettings.h"
#include "support/uitest.h"
#include "ui/Theme.h"
#include "ui/controls/PageHeader.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QMouseEvent>
#include <QPushButton>
#include <QTextDocument>

using namespace Qt::StringLiterals;
using ui::PageHeader;

namespace {

/// The labels in the order in which they stand.
struct Lines {
  QLabel* eyebrow;
  QLabel* title;
  QLabel* subtitle;

  explicit Lines(const PageHeader& header) {
    const auto all = header.findChildren<QLabel*>();
    Q_ASSERT(all.size() == 3);
    eyebrow = all[0];
    title = all[1];
    subtitle = all[2];
  }
};

QHBoxLayout* outer(const PageHeader& header) { return qobject_cast<QHBoxLayout*>(header.layout()); }
QLayout* actions(const PageHeader& header) { return header.layout()->itemAt(1)->layout(); }

QString asPlainText(const QString& html) {
  QTextDocument document;
  document.setHtml(html);
  return document.toPlainText();
}

void send(QWidget* widget, QEvent::Type type, const QPoint& at, Qt::MouseButton button, Qt::MouseButtons held) {
  QMouseEvent event(type, QPointF(at), QPointF(widget->mapToGlobal(at)), button, held, Qt::NoModifier);
  QApplication::sendEvent(widget, &event);
}

/// A header in a window, as it stands in the program.
struct Shown {
  QWidget window;
  PageHeader* header;

  explicit Shown(const QString& title, const QString& subtitle = {}) {
    auto* column = new QVBoxLayout(&window);
    column->setContentsMargins({});
    header = new PageHeader(title, subtitle);
    column->addWidget(header);
    column->addStretch();
    window.resize(600, 300);
    window.show();
  }
  /// Until what layouts have put off is done.
  void settle() { QApplication::processEvents(); }
};

/// Counts what reaches the header.
class Counter : public QObject {
 public:
  int moves = 0;

 protected:
  bool eventFilter(QObject* /*watched*/, QEvent* event) override {
    if (event->type() == QEvent::MouseMove) ++moves;
    return false;
  }
};

} // namespace

class TestPageHeader : public QObject {
  Q_OBJECT

 private slots:
  void initTestCase() { Theme::get().install(qApp); }
  void init() { Theme::get().mac = true; }

  void geometry_data();
  void geometry();
  void toolbarGeometry_data();
  void toolbarGeometry();
  void toolbarMirrored();
  void linesHaveTheirRoles();
  void emptyLinesLeaveNoGap();
  void actionsStandAtTheBottomRight();
  void longTitleWrapsBesideTheActions();
  void toolbarPutsTheEyebrowBehindTheTitle();
  void toolbarWithoutEyebrow();
  void toolbarShowsSpecialCharacters_data();
  void toolbarShowsSpecialCharacters();
  void titleOutsideTheToolbarIsPlain();
  void titleFollowsTheLook();
  void leavingTheToolbarRestoresAll();
  void dragStartsOnTitleToo();
  void doubleClickZooms_data();
  void doubleClickZooms();
  void otherButtonsPass();
};

void TestPageHeader::geometry_data() {
  QTest::addColumn<bool>("mac");
  QTest::addColumn<QMargins>("margins");
  QTest::newRow("mac") << true << QMargins(28, 22, 28, 18);
  QTest::newRow("win") << false << QMargins(32, 20, 32, 18);
}

void TestPageHeader::geometry() {
  QFETCH(bool, mac);
  QFETCH(QMargins, margins);
  Theme::get().mac = mac;
  const PageHeader header(u"Title"_s, u"Words"_s);
  QCOMPARE(outer(header)->contentsMargins(), margins);
  QCOMPARE(outer(header)->spacing(), 16);
  QCOMPARE(outer(header)->stretch(0), 1);
  QCOMPARE(outer(header)->stretch(1), 0);
  const QLayout* texts = header.layout()->itemAt(0)->layout();
  QCOMPARE(texts->spacing(), 3);
  QCOMPARE(texts->contentsMargins(), QMargins());
  QCOMPARE(actions(header)->spacing(), 8);
  QCOMPARE(actions(header)->contentsMargins(), QMargins());
  QCOMPARE(header.layout()->itemAt(1)->alignment(), Qt::AlignBottom);
  QVERIFY(!header.isToolbar());
}

void TestPageHeader::toolbarGeometry_data() {
  QTest::addColumn<bool>("mac");
  QTest::addColumn<int>("actionsTop");
  QTest::newRow("mac") << true << 6;
  QTest::newRow("win") << false << 4;
}

void TestPageHeader::toolbarGeometry() {
  QFETCH(bool, mac);
  QFETCH(int, actionsTop);
  Theme::get().mac = mac;
  PageHeader header(u"Title"_s);
  header.setToolbar(true, 124);
  QVERIFY(header.isToolbar());
  QCOMPARE(outer(header)->contentsMargins(), QMargins(124, 0, 28, 6));
  QCOMPARE(header.layout()->itemAt(1)->alignment(), Qt::AlignTop);
  QCOMPARE(actions(header)->contentsMargins(), QMargins(0, actionsTop, 0, 0));
  QLabel* title = Lines(header).title;
  QCOMPARE(title->minimumHeight(), 42);
  QCOMPARE(title->alignment(), Qt::AlignLeft | Qt::AlignVCenter);
  title->ensurePolished();
  QCOMPARE(title->font().pixelSize(), 15);
  QCOMPARE(int(title->font().weight()), 600);
}

void TestPageHeader::toolbarMirrored() {
  PageHeader header(u"Title"_s);
  header.setLayoutDirection(Qt::RightToLeft);
  header.setTitle(u"<b>12 GB</b> found"_s);
  QVERIFY(Lines(header).title->alignment() & Qt::AlignRight);
  header.setToolbar(true, 124);
  QCOMPARE(outer(header)->contentsMargins(), QMargins(28, 0, 124, 6));
  QVERIFY(Lines(header).title->alignment() & Qt::AlignRight); // rich text knows its own direction alone
}

void TestPageHeader::linesHaveTheirRoles() {
  const PageHeader header(u"Title"_s, u"Words"_s);
  const Lines lines(header);
  QCOMPARE(lines.eyebrow->property("role").toString(), u"micro"_s);
  QCOMPARE(lines.eyebrow->font().capitalization(), QFont::AllUppercase);
  QCOMPARE(lines.title->property("role").toString(), u"h1"_s);
  QCOMPARE(lines.title->text(), u"Title"_s);
  QCOMPARE(lines.subtitle->property("role").toString(), u"sub"_s);
  QCOMPARE(lines.subtitle->text(), u"Words"_s);
}

void TestPageHeader::emptyLinesLeaveNoGap() {
  Shown shown(u"Title"_s);
  const Lines lines(*shown.header);
  QVERIFY(!lines.subtitle->isVisible());
  QVERIFY(!lines.eyebrow->isVisible());
  const int titleAlone = lines.title->sizeHint().height() + 22 + 18;
  QCOMPARE(shown.header->sizeHint().height(), titleAlone);

  shown.header->setSubtitle(u"Words"_s);
  QVERIFY(lines.subtitle->isVisible());
  shown.settle();
  QCOMPARE(shown.header->sizeHint().height(), titleAlone + 3 + lines.subtitle->sizeHint().height());
  shown.header->setEyebrow(u"Overview"_s);
  QVERIFY(lines.eyebrow->isVisible());
  QCOMPARE(lines.eyebrow->text(), u"Overview"_s);
  shown.settle();
  QVERIFY(lines.eyebrow->geometry().bottom() < lines.title->y());
  shown.header->setEyebrow(u"Größe"_s);
  QCOMPARE(lines.eyebrow->text(), u"Grösse"_s); // for capitals
  QVERIFY(lines.title->geometry().bottom() < lines.subtitle->y());

  shown.header->setSubtitle({});
  shown.header->setEyebrow({});
  QVERIFY(!lines.subtitle->isVisible());
  QVERIFY(!lines.eyebrow->isVisible());
  shown.settle();
  QCOMPARE(shown.header->sizeHint().height(), titleAlone);
}

void TestPageHeader::actionsStandAtTheBottomRight() {
  Shown shown(u"Title"_s, u"Words that make the header high"_s);
  auto* first = new QPushButton(u"First"_s);
  auto* second = new QPushButton(u"Second"_s);
  shown.header->addAction(first);
  shown.header->addAction(second);
  shown.settle();
  QCOMPARE(second->geometry().right() + 1, shown.header->width() - 28);
  QCOMPARE(second->x() - first->geometry().right() - 1, 8);
  QCOMPARE(second->geometry().bottom() + 1, shown.header->height() - 18);
  shown.header->setToolbar(true, 100);
  shown.settle();
  QCOMPARE(second->y(), 6);
  QCOMPARE(Lines(*shown.header).title->x(), 100);
}

void TestPageHeader::longTitleWrapsBesideTheActions() {
  PageHeader header(u"A title as long as some languages have it"_s);
  auto* action = new QPushButton(u"Select recommended"_s);
  header.addAction(action);
  header.resize(900, header.heightForWidth(900));
  header.show();
  const int line = header.height();
  header.resize(420, header.heightForWidth(420));
  QCoreApplication::processEvents();
  QVERIFY(header.height() > line);
  QVERIFY(action->width() >= action->sizeHint().width());
}

void TestPageHeader::toolbarPutsTheEyebrowBehindTheTitle() {
  Shown shown(u"Title"_s);
  const Lines lines(*shown.header);
  shown.header->setToolbar(true, 100);
  QCOMPARE(lines.title->text(), u"Title"_s);
  shown.header->setEyebrow(u"Tools & <more> %1"_s);
  QVERIFY(!lines.eyebrow->isVisible());
  QCOMPARE(
      lines.title->text(),
      u"Title&nbsp;&nbsp;<span style=\"color:%1; font-size:12px; font-weight:400;\">Tools &amp; &lt;more&gt; %1</span>"_s
          .replace(u"color:%1"_s, u"color:"_s + Theme::get().text3.name()));
  QCOMPARE(asPlainText(lines.title->text()), u"Title  Tools & <more> %1"_s);
  shown.header->setTitle(u"Other"_s);
  QCOMPARE(asPlainText(lines.title->text()), u"Other  Tools & <more> %1"_s);

  shown.header->setToolbar(false, 0);
  QVERIFY(lines.eyebrow->isVisible());
  QCOMPARE(lines.eyebrow->text(), u"Tools & <more> %1"_s);
  QCOMPARE(lines.title->text(), u"Other"_s);
}

void TestPageHeader::toolbarWithoutEyebrow() {
  PageHeader header(u"Title"_s);
  header.setEyebrow(u"Overview"_s);
  header.setToolbar(true, 0);
  header.setEyebrow({});
  QCOMPARE(Lines(header).title->text(), u"Title"_s);
}

void TestPageHeader::toolbarShowsSpecialCharacters_data() {
  QTest::addColumn<QString>("title");
  QTest::addColumn<QString>("seen");
  QTest::newRow("less than") << u"a < b"_s << u"a < b"_s;
  QTest::newRow("and") << u"This & that"_s << u"This & that"_s;
  QTest::newRow("quotes") << u"\"This\""_s << u"\"This\""_s;
  QTest::newRow("rich already") << u"<b>This</b>"_s << u"This"_s;
}

// The same text stands in a label that takes HTML as HTML, whether it looks like it or not.
void TestPageHeader::toolbarShowsSpecialCharacters() {
  QFETCH(QString, title);
  QFETCH(QString, seen);
  PageHeader header(title);
  header.setToolbar(true, 0);
  const QLabel* label = Lines(header).title;
  QCOMPARE(label->textFormat(), Qt::RichText);
  QCOMPARE(asPlainText(label->text()), seen);
}

void TestPageHeader::titleOutsideTheToolbarIsPlain() {
  PageHeader header(u"a < b & c"_s);
  QCOMPARE(Lines(header).title->text(), u"a < b & c"_s);
  header.setEyebrow(u"Overview"_s);
  QCOMPARE(Lines(header).title->text(), u"a < b & c"_s);
  header.setTitle(u"d"_s);
  QCOMPARE(Lines(header).title->text(), u"d"_s);
}

void TestPageHeader::titleFollowsTheLook() {
  PageHeader header(u"Title"_s);
  header.setEyebrow(u"Overview"_s);
  header.setToolbar(true, 0);
  for (const auto mode : {AppSettings::Dark, AppSettings::Light}) {
    AppSettings::instance().setThemeMode(mode);
    QVERIFY(Lines(header).title->text().contains(u"color:"_s + Theme::get().text3.name()));
  }
}

void TestPageHeader::leavingTheToolbarRestoresAll() {
  Theme::get().mac = false;
  PageHeader header(u"Title"_s);
  header.setToolbar(true, 90);
  header.setToolbar(false, 90);
  QVERIFY(!header.isToolbar());
  QCOMPARE(outer(header)->contentsMargins(), QMargins(32, 20, 32, 18));
  QCOMPARE(header.layout()->itemAt(1)->alignment(), Qt::AlignBottom);
  QCOMPARE(actions(header)->contentsMargins(), QMargins());
  QLabel* title = Lines(header).title;
  QVERIFY(title->styleSheet().isEmpty());
  QCOMPARE(title->minimumHeight(), 0);
  title->ensurePolished();
  Theme::get().mac = true;
  Theme::get().refresh();
  QCOMPARE(title->font().pixelSize(), 24);
}

// Neither form of the title may keep the mouse's moves to itself: by them the window is dragged.
void TestPageHeader::dragStartsOnTitleToo() {
  Shown shown(u"Title"_s);
  shown.header->setEyebrow(u"Overview"_s);
  QVERIFY(QTest::qWaitForWindowExposed(&shown.window));
  Counter counter;
  for (const bool toolbar : {false, true}) {
    shown.header->setToolbar(toolbar, 20);
    shown.settle();
    counter.moves = 0;
    QLabel* title = Lines(*shown.header).title;
    send(title, QEvent::MouseButtonPress, {5, 5}, Qt::LeftButton, Qt::LeftButton);
    shown.header->installEventFilter(&counter); // the last one sees events first
    send(title, QEvent::MouseMove, {60, 5}, Qt::NoButton, Qt::LeftButton);
    QCOMPARE(counter.moves, 1);
    send(title, QEvent::MouseButtonRelease, {60, 5}, Qt::LeftButton, Qt::NoButton);
  }
}

void TestPageHeader::doubleClickZooms_data() {
  QTest::addColumn<bool>("toolbar");
  QTest::newRow("page") << false;
  QTest::newRow("toolbar") << true;
}

void TestPageHeader::doubleClickZooms() {
  QFETCH(bool, toolbar);
  Shown shown(u"Title"_s);
  shown.header->setToolbar(toolbar, 20);
  QVERIFY(QTest::qWaitForWindowExposed(&shown.window));
  send(Lines(*shown.header).title, QEvent::MouseButtonDblClick, {5, 5}, Qt::LeftButton, Qt::LeftButton);
  QTRY_VERIFY(shown.window.isMaximized());
  send(shown.header, QEvent::MouseButtonDblClick, {5, 5}, Qt::LeftButton, Qt::LeftButton);
  QTRY_VERIFY(!shown.window.isMaximized());
}

void TestPageHeader::otherButtonsPass() {
  struct Parent : QWidget {
    int presses = 0;
    int doubles = 0;
    void mousePressEvent(QMouseEvent* /*event*/) override { ++presses; }
    void mouseDoubleClickEvent(QMouseEvent* /*event*/) override { ++doubles; }
  } window;
  PageHeader header(u"Title"_s, {}, &window);
  window.resize(400, 200);
  header.resize(400, 80);
  window.show();
  QVERIFY(QTest::qWaitForWindowExposed(&window));
  send(&header, QEvent::MouseButtonPress, {5, 5}, Qt::RightButton, Qt::RightButton);
  QCOMPARE(window.presses, 1);
  send(&header, QEvent::MouseButtonPress, {5, 5}, Qt::LeftButton, Qt::LeftButton);
  QCOMPARE(window.presses, 1); // the header's own
  send(&header, QEvent::MouseButtonDblClick, {5, 5}, Qt::RightButton, Qt::RightButton);
  QVERIFY(!window.isMaximized());
  QCOMPARE(window.doubles, 1);
}

int main(int argc, char** argv) { return uitest::run<TestPageHeader>(argc, argv); }

#include "tst_PageHeader.moc"
