// ctest: LABELS journey
// ctest: TIMEOUT 300
// Through the Space Map: searched and broken off, narrowed down, sorted, ticked in the map and in the list, moved to
// the Trash, taken back, and moved again; by mouse and by keyboard, over real files.
#include "JourneyTest.h"

#include "engines/LargeFileFinder.h"
#include "support/Desktop.h"
#include "ui/controls/Segmented.h"
#include "ui/pages/LargeFilesModel.h"
#include "ui/pages/LargeFilesPage.h"
#include "ui/pages/LargeFilesTable.h"
#include "ui/shell/NavButton.h"
#include "ui/shell/Toast.h"
#include "ui/visuals/Treemap.h"

#include <QHeaderView>
#include <QLineEdit>

#include <sys/stat.h>

using namespace windowtest;

namespace {

constexpr qint64 kMb = 1'000'000;
constexpr qint64 kBlock = 512;

/// What a file holds on the disk, -1 if it isn't there.
qint64 onDisk(const std::string& path) {
  struct stat status {};
  return ::lstat(path.c_str(), &status) == 0 ? qint64{status.st_blocks} * kBlock : -1;
}

/// Every file below @p top that holds so much, but for those in hidden folders and in the folders of one tool.
std::set<std::string> largeBelow(const QString& top, qint64 bytes) {
  std::set<std::string> found;
  std::filesystem::recursive_directory_iterator walk(QFile::encodeName(top).toStdString());
  for (const auto& entry : walk) {
    const std::string name = entry.path().filename().string();
    if (entry.is_directory() && !entry.is_symlink() && (name.front() == '.' || name == "node_modules"))
      walk.disable_recursion_pending();
    if (entry.is_regular_file() && !entry.is_symlink() && onDisk(entry.path().string()) >= bytes)
      found.insert(entry.path().string());
  }
  return found;
}

} // namespace

class TestJourneySpaceMap : public JourneyTest {
  Q_OBJECT

 private slots:
  void initTestCase() { Theme::get().install(qApp); }
  void init() {
    AppSettings::instance().setLargeFileMB(1);
    AppSettings::instance().setOldMonths(6);
  }
  void cleanup() { close(); }

  void finds_data() { hosts(); }
  void finds();
  void brokenOffAndBegunAgain();
  void brokenOffKeepsTheList();
  void searchGoesOnBehindOtherPages();
  void narrowedDown();
  void sorted();
  void showsInTheFileManager();
  void movesAndTakesBack();
  void whatMustNotGoStays();
  void takingBackOverwritesNothing();
  void onlyTheLastMoveComesBack();
  void limitAndRulesOfTheSettings();
  void byKeyboard();

 private:
  [[nodiscard]] ui::LargeFilesPage* page() const { return m_window->findChild<ui::LargeFilesPage*>(); }
  [[nodiscard]] ui::LargeFilesModel* model() const { return page()->findChild<ui::LargeFilesModel*>(); }
  [[nodiscard]] ui::LargeFilesTable* table() const { return page()->findChild<ui::LargeFilesTable*>(); }
  [[nodiscard]] ui::Treemap* map() const { return page()->findChild<ui::Treemap*>(); }
  [[nodiscard]] QLineEdit* search() const { return page()->findChild<QLineEdit*>(); }
  [[nodiscard]] ui::Segmented* segments() const { return page()->findChild<ui::Segmented*>(); }
  [[nodiscard]] QStringList listed() const {
    QStringList names;
    for (const LargeFile& file : model()->files()) names << file.name;
    return names;
  }
  [[nodiscard]] QString message() const {
    const auto* toast = m_window->findChild<ui::Toast*>();
    return toast->isHidden() ? QString() : toast->accessibleName();
  }
  /// Of the tiles, by their names.
  [[nodiscard]] QStringList marked() const {
    QStringList names;
    for (int i = 0; i < map()->itemCount(); ++i)
      if (map()->itemAt(i).checked) names << map()->itemAt(i).name;
    return names;
  }
  [[nodiscard]] QString trashed(const QString& name) const {
    return m_home->path(u".local/share/Trash/files/"_s + name);
  }
  [[nodiscard]] QString trashInfo(const QString& name) const {
    return m_home->path(u".local/share/Trash/info/%1.trashinfo"_s.arg(name));
  }

  /// A home with four large files, largest first: film, disc, old, note.
  void openFilled() {
    open(Small::Empty);
    m_home->file(u"Films/film.mov"_s, 5 * kMb);
    m_home->file(u"Downloads/disc.iso"_s, 4 * kMb);
    FixtureHome::age(m_home->file(u"Backups/old.tar"_s, 3 * kMb), QDateTime::currentDateTime().addMonths(-13));
    m_home->file(u"Notes/note.pdf"_s, 2 * kMb);
    m_home->file(u"Notes/small.pdf"_s, kMb / 2);
  }
  /// Makes a search last until it is broken off: many folders, each of which is asked about a long list of rules.
  void slowDown() const {
    constexpr int kFolders = 300;
    for (int i = 0; i < kFolders; ++i) m_home->folder(u"Many/folder to be asked about %1"_s.arg(i));
    QStringList rules = AppSettings::instance().exclusions();
    for (const QString& option : slowRules()) rules << option.section(u'=', 1);
    AppSettings::instance().setExclusions(rules);
  }
  void speedUp() const { AppSettings::instance().setExclusions(FixtureHome::rulesForOutside()); }
  void goThere() {
    for (ui::NavButton* entry : m_window->findChildren<ui::NavButton*>())
      if (entry->text() == u"Space Map") QTest::mouseClick(entry, Qt::LeftButton);
    QCOMPARE(m_window->page(), int(ui::Sidebar::SpaceMap));
  }
  void waitForFiles() {
    QTRY_VERIFY_WITH_TIMEOUT(!m_state->largeSearching, kPatienceMs);
    settle();
  }
  void find() {
    goThere();
    waitForFiles();
    QVERIFY(m_state->largeScanned);
  }
  void clickRow(const QString& name) {
    const int row = int(listed().indexOf(name));
    QVERIFY2(row >= 0, qPrintable(name));
    table()->scrollTo(model()->index(row, 0));
    QTest::mouseClick(table()->viewport(), Qt::LeftButton, {}, table()->visualRect(model()->index(row, 1)).center());
    settle();
  }
  void clickTile(const QString& name) {
    for (int i = 0; i < map()->itemCount(); ++i) {
      if (map()->itemAt(i).name != name) continue;
      QTest::mouseClick(map(), Qt::LeftButton, {}, map()->rects().at(i).center().toPoint());
      settle();
      return;
    }
    QFAIL(qPrintable(name));
  }
  void clickHeading(int column) {
    QHeaderView* header = table()->horizontalHeader();
    const int x = header->sectionViewportPosition(column) + header->sectionSize(column) / 2;
    QTest::mouseClick(header->viewport(), Qt::LeftButton, {}, QPoint(x, header->height() / 2));
  }
  void move() {
    click(*page(), u"Move to Trash"_s);
    settle();
  }
  void undo() {
    click(*m_window->findChild<ui::Toast*>(), u"Undo"_s);
    waitForFiles();
  }
  void key(Qt::Key one) {
    press(*m_window, one);
    settle();
  }
  [[nodiscard]] bool sums(const QString& selected, const QString& files) const {
    const QString shown = plain(page()->findChild<QLabel*>(u"sum"_s)->text());
    return shown.startsWith(selected + u" selected of "_s) && shown.endsWith(u" · %1 files"_s.arg(files));
  }
};

// ---- searching

void TestJourneySpaceMap::finds() {
  QFETCH(const QString, host);
  openDemo(host);
  AppSettings::instance().setLargeFileMB(2);
  const Paths before = pathsBelow(m_demo->top());
  goThere();
  QVERIFY(shows(*page(), u"Largest so far"_s)); // it begins by itself
  QVERIFY(shows(*page(), u"Home folder · over 2 MB"_s));
  waitForFiles();

  // What it lists is on the disk, and all of that.
  std::set<std::string> found;
  qint64 total = 0;
  for (const LargeFile& file : model()->files()) {
    const std::string path = QFile::encodeName(file.path).toStdString();
    QCOMPARE(file.size, onDisk(path));
    found.insert(path);
    total += file.size;
  }
  QVERIFY(found.size() >= 2);
  QCOMPARE(found, largeBelow(DemoHome::path({}), 2 * kMb));
  QVERIFY(shows(*page(), u"0 KB selected of %1 · %2 files"_s.arg(fmt::bytes(total)).arg(found.size())));
  QCOMPARE(map()->itemCount(), int(std::min<size_t>(found.size(), 24)));
  QCOMPARE(map()->itemAt(0).name, listed().first());
  QCOMPARE(pathsBelow(m_demo->top()), before);
}

void TestJourneySpaceMap::brokenOffAndBegunAgain() {
  openFilled();
  slowDown();
  goThere();
  QVERIFY(shows(*page(), u"Looking for large files…"_s));
  m_state->largeFinder->cancel();
  QTRY_VERIFY_WITH_TIMEOUT(button(*page(), u"Find large files"_s), kPatienceMs);
  QVERIFY(!m_state->largeScanned);
  speedUp();
  click(*page(), u"Find large files"_s);
  QVERIFY(shows(*page(), u"Largest so far"_s));
  waitForFiles();
  QCOMPARE(listed(), (QStringList{u"film.mov"_s, u"disc.iso"_s, u"old.tar"_s, u"note.pdf"_s}));
}

void TestJourneySpaceMap::brokenOffKeepsTheList() {
  openFilled();
  find();
  clickRow(u"disc.iso"_s);
  m_home->file(u"Films/new.mov"_s, 6 * kMb);
  slowDown();
  click(*page(), u"Rescan"_s);
  QVERIFY(shows(*page(), u"Largest so far"_s));
  m_state->largeFinder->cancel();
  waitForFiles();
  QCOMPARE(listed().size(), 4);
  QCOMPARE(marked(), QStringList{u"disc.iso"_s});
  speedUp();
  click(*page(), u"Rescan"_s);
  waitForFiles();
  QCOMPARE(listed().first(), u"new.mov"_s);
  QCOMPARE(marked(), QStringList{u"disc.iso"_s});
}

void TestJourneySpaceMap::searchGoesOnBehindOtherPages() {
  openFilled();
  slowDown();
  goThere();
  m_window->go(ui::Sidebar::Overview);
  goThere();
  QVERIFY(shows(*page(), u"Largest so far"_s)); // the same
  m_window->go(ui::Sidebar::Overview);
  waitForFiles();
  QCOMPARE(m_window->page(), int(ui::Sidebar::Overview)); // its end moves nobody
  goThere();
  QCOMPARE(listed().size(), 4);
}

// ---- looking

void TestJourneySpaceMap::narrowedDown() {
  openFilled();
  find();
  QTest::mouseClick(search(), Qt::LeftButton);
  QTest::keyClicks(search(), u"NOTE"_s);
  QCOMPARE(listed(), QStringList{u"note.pdf"_s});
  QCOMPARE(map()->itemCount(), 1);
  search()->clear();
  const auto choose = [this](int segment) {
    QTest::mouseClick(segments(), Qt::LeftButton, {}, segments()->segments().at(segment).center().toPoint());
  };
  choose(1);
  QCOMPARE(listed(), QStringList{u"old.tar"_s});
  AppSettings::instance().setOldMonths(24);
  QVERIFY(listed().isEmpty());
  QVERIFY(!map()->isVisible());
  choose(2);
  QCOMPARE(listed(), QStringList{u"disc.iso"_s});
  clickRow(u"disc.iso"_s);
  QVERIFY(sums(u"4 MB"_s, u"1"_s));
  choose(0);
  clickTile(u"film.mov"_s);
  QVERIFY(sums(u"9 MB"_s, u"4"_s));
  choose(2);
  QVERIFY(sums(u"4 MB"_s, u"1"_s)); // what isn't on show doesn't count
  move();
  QVERIFY(there(u"Films/film.mov"_s)); // and doesn't go
  QVERIFY(!there(u"Downloads/disc.iso"_s));
}

void TestJourneySpaceMap::sorted() {
  openFilled();
  find();
  clickHeading(ui::LargeFilesModel::Name);
  QCOMPARE(listed(), (QStringList{u"disc.iso"_s, u"film.mov"_s, u"note.pdf"_s, u"old.tar"_s}));
  clickHeading(ui::LargeFilesModel::LastOpened);
  QCOMPARE(listed().first(), u"old.tar"_s);
  clickHeading(ui::LargeFilesModel::LastOpened);
  QCOMPARE(listed().last(), u"old.tar"_s);
  clickHeading(ui::LargeFilesModel::Size);
  QCOMPARE(listed(), (QStringList{u"note.pdf"_s, u"old.tar"_s, u"disc.iso"_s, u"film.mov"_s}));
  click(*page(), u"Rescan"_s);
  waitForFiles();
  QCOMPARE(listed().first(), u"note.pdf"_s); // as it was sorted
  QCOMPARE(map()->itemAt(0).name, u"film.mov"_s);
}

void TestJourneySpaceMap::showsInTheFileManager() {
  const Desktop desktop;
  openFilled();
  find();
  clickRow(u"old.tar"_s);
  click(*page(), u"Show in Files"_s);
  QTRY_COMPARE(desktop.opened, QStringList{m_home->path(u"Backups"_s)});
  clickRow(u"film.mov"_s);
  QTest::mouseDClick(table()->viewport(), Qt::LeftButton, {}, table()->visualRect(model()->index(0, 1)).center());
  QTRY_COMPARE(desktop.opened.size(), 2);
  QCOMPARE(desktop.opened.last(), m_home->path(u"Films"_s));
}

// ---- moving

void TestJourneySpaceMap::movesAndTakesBack() {
  openFilled();
  find();
  QFile film(m_home->path(u"Films/film.mov"_s));
  QVERIFY(film.open(QIODevice::WriteOnly));
  QVERIFY(film.write(QByteArray(5 * kMb, 'f')) == 5 * kMb);
  film.close();
  for (int round = 0; round < 2; ++round) { // and again
    clickTile(u"film.mov"_s);
    clickRow(u"note.pdf"_s);
    QVERIFY(sums(u"7 MB"_s, u"4"_s));
    QCOMPARE(marked(), (QStringList{u"film.mov"_s, u"note.pdf"_s}));
    move();
    QCOMPARE(message(), u"2 files (7 MB) moved to the Trash"_s);
    for (const QString& name : {u"film.mov"_s, u"note.pdf"_s}) {
      QVERIFY2(QFile::exists(trashed(name)), qPrintable(name));
      QVERIFY2(QFile::exists(trashInfo(name)), qPrintable(name));
    }
    QVERIFY(!there(u"Films/film.mov"_s) && !there(u"Notes/note.pdf"_s));
    QCOMPARE(listed(), (QStringList{u"disc.iso"_s, u"old.tar"_s}));
    QVERIFY(sums(u"0 KB"_s, u"2"_s));
    undo();
    QVERIFY2(message().startsWith(u"Restored 2 file"_s), qPrintable(message()));
    QVERIFY(there(u"Films/film.mov"_s) && there(u"Notes/note.pdf"_s));
    QVERIFY(!QFile::exists(trashed(u"film.mov"_s)) && !QFile::exists(trashInfo(u"film.mov"_s)));
    QCOMPARE(listed().size(), 4); // it searched anew
    QVERIFY(marked().isEmpty());
  }
  QVERIFY(film.open(QIODevice::ReadOnly));
  QVERIFY(film.readAll() == QByteArray(5 * kMb, 'f'));
}

void TestJourneySpaceMap::whatMustNotGoStays() {
  openFilled();
  find();
  QFile held(m_home->path(u"Films/film.mov"_s));
  QVERIFY(held.open(QIODevice::ReadOnly));
  AppSettings::instance().setExclusions(AppSettings::instance().exclusions() << u"disc.iso"_s);
  const QString another = m_home->file(u"Backups/new.tar"_s, kMb / 4); // comes in the place of what was found
  std::filesystem::rename(another.toStdString(), m_home->path(u"Backups/old.tar"_s).toStdString());
  for (const QString& name : listed()) clickRow(name);
  QVERIFY(sums(u"14 MB"_s, u"4"_s));
  move();
  QCOMPARE(message(), u"1 file (2 MB) moved to the Trash · 3 in use, skipped"_s);
  for (const char* stays : {"Films/film.mov", "Downloads/disc.iso", "Backups/old.tar"})
    QVERIFY2(there(QString::fromLatin1(stays)), stays);
  QVERIFY(!there(u"Notes/note.pdf"_s));
  QCOMPARE(listed(), (QStringList{u"film.mov"_s, u"disc.iso"_s, u"old.tar"_s}));
  QVERIFY(sums(u"0 KB"_s, u"3"_s));
}

void TestJourneySpaceMap::takingBackOverwritesNothing() {
  openFilled();
  find();
  clickRow(u"note.pdf"_s);
  clickRow(u"disc.iso"_s);
  move();
  QFile other(m_home->file(u"Notes/note.pdf"_s, 0));
  QVERIFY(other.open(QIODevice::WriteOnly) && other.write("another") > 0);
  other.close();
  undo();
  QVERIFY2(message().startsWith(u"Restored 1 file"_s), qPrintable(message()));
  QVERIFY(there(u"Downloads/disc.iso"_s));
  QVERIFY(other.open(QIODevice::ReadOnly));
  QCOMPARE(other.readAll(), QByteArray("another"));
  QVERIFY(QFile::exists(trashed(u"note.pdf"_s)) && QFile::exists(trashInfo(u"note.pdf"_s)));
}

void TestJourneySpaceMap::onlyTheLastMoveComesBack() {
  openFilled();
  find();
  clickRow(u"film.mov"_s);
  move();
  clickRow(u"disc.iso"_s);
  move();
  undo();
  QVERIFY(there(u"Downloads/disc.iso"_s));
  QVERIFY(!there(u"Films/film.mov"_s));
  QVERIFY(QFile::exists(trashed(u"film.mov"_s)));
}

void TestJourneySpaceMap::limitAndRulesOfTheSettings() {
  openFilled();
  AppSettings::instance().setLargeFileMB(3);
  AppSettings::instance().setExclusions(AppSettings::instance().exclusions() << u"Films"_s);
  find();
  QVERIFY(shows(*page(), u"Home folder · over 3 MB"_s));
  QCOMPARE(listed(), (QStringList{u"disc.iso"_s, u"old.tar"_s}));
}

// From the sidebar to the undo, without a mouse.
void TestJourneySpaceMap::byKeyboard() {
  openFilled();
  const Desktop desktop;
  tabTo(*m_window, u"Smart Scan"_s);
  key(Qt::Key_Down);
  key(Qt::Key_Down);
  QCOMPARE(m_window->page(), int(ui::Sidebar::SpaceMap));
  waitForFiles();

  QVERIFY(tabUntil(*m_window, [this](const QWidget* at) { return at == search(); }));
  QTest::keyClicks(search(), u"disc"_s);
  QCOMPARE(listed(), QStringList{u"disc.iso"_s});
  search()->clear();

  key(Qt::Key_Tab);
  QVERIFY(map()->hasFocus());
  key(Qt::Key_Home); // the largest
  key(Qt::Key_Space);
  QCOMPARE(marked(), QStringList{u"film.mov"_s});
  key(Qt::Key_Space);
  QVERIFY(marked().isEmpty());
  key(Qt::Key_End); // the smallest
  key(Qt::Key_Space);
  QCOMPARE(marked(), QStringList{u"note.pdf"_s});

  key(Qt::Key_Tab);
  key(Qt::Key_Return); // sorts by name
  QCOMPARE(listed().first(), u"disc.iso"_s);

  key(Qt::Key_Tab);
  QVERIFY(table()->hasFocus());
  key(Qt::Key_Space);
  QCOMPARE(marked(), (QStringList{u"disc.iso"_s, u"note.pdf"_s}));
  key(Qt::Key_Down);
  key(Qt::Key_Return);
  QTRY_COMPARE(desktop.opened, QStringList{m_home->path(u"Films"_s)});

  tabTo(*m_window, u"Move to Trash"_s);
  key(Qt::Key_Space);
  QCOMPARE(message(), u"2 files (6 MB) moved to the Trash"_s);
  QVERIFY(!there(u"Downloads/disc.iso"_s) && !there(u"Notes/note.pdf"_s));
  QVERIFY(table()->hasFocus()); // goes on in the list
  tabTo(*m_window, u"Undo"_s);
  key(Qt::Key_Space);
  waitForFiles();
  QVERIFY(there(u"Downloads/disc.iso"_s) && there(u"Notes/note.pdf"_s));
  QCOMPARE(listed().size(), 4);
}

int main(int argc, char** argv) { return uitest::run<TestJourneySpaceMap>(argc, argv); }

#include "tst_JourneySpaceMap.moc"
