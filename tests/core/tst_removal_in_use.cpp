// Folders that are themselves in use: they stay, and are emptied around what must stay in them.
#include "core/removal.h"

#include "RemovalRecorder.h"
#include "support/FixtureHome.h"

#include <QDir>
#include <QTest>

#include <cerrno>
#include <memory>

using namespace Qt::StringLiterals;
using removal::Kept;
using removal::Remover;
using removal::Verdict;

class TestRemovalInUse : public QObject {
  Q_OBJECT

 private slots:
  void init() { m_home = std::make_unique<FixtureHome>(); }
  void cleanup() { m_home.reset(); }

  void isEmptiedAndStays_data();
  void isEmptiedAndStays();
  void isEmptiedAroundWhatStays();
  void asATargetItself();
  void takesInWhatComesMeanwhile();
  void costsNothingInADryRun();
  void isNeverRemovedByARetry();
  void isNoReasonForItsContentsToStayInARetry();

 private:
  using Told = QList<std::pair<QString, Kept>>;

  [[nodiscard]] removal::Target at(const QString& relative) const {
    return {m_home->path(relative), m_home->path(relative)};
  }
  [[nodiscard]] QStringList trashed() const {
    return QDir(m_home->path(u".local/share/Trash/files"_s)).entryList(QDir::AllEntries | QDir::NoDotAndDotDot);
  }
  [[nodiscard]] removal::Stay stayOf(const QString& relative, const QString& top, bool isDir) const {
    const QString path = m_home->path(relative);
    return {{path, path, QFile::encodeName(path), isDir, true}, QFile::encodeName(m_home->path(top)), EBUSY};
  }

  std::unique_ptr<FixtureHome> m_home;
};

void TestRemovalInUse::isEmptiedAndStays_data() {
  QTest::addColumn<bool>("toTrash");
  QTest::newRow("delete") << false;
  QTest::newRow("trash") << true;
}

void TestRemovalInUse::isEmptiedAndStays() {
  QFETCH(bool, toTrash);
  m_home->file(u"in/tree/work/file"_s);
  m_home->file(u"in/tree/work/sub/file"_s);
  m_home->file(u"in/tree/other/file"_s);
  const QString work = m_home->path(u"in/tree/work"_s);
  RemovalRecorder seen;
  seen.verdicts.insert(work, Verdict::KeepFolder);
  Remover remover({.toTrash = toTrash}, seen.handlers());
  remover.remove(at(u"in/tree"_s));
  QVERIFY(QDir(work).isEmpty(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot));
  QCOMPARE(seen.kept, (Told{{work, Kept::Open}}));
  QVERIFY(seen.busy.isEmpty());
  QVERIFY(!isThere(m_home->path(u"in/tree/other"_s)));
  if (toTrash) QCOMPARE(trashed(), (QStringList{u"file"_s, u"other"_s, u"sub"_s}));
}

void TestRemovalInUse::isEmptiedAroundWhatStays() {
  m_home->file(u"in/tree/work/open"_s);
  m_home->file(u"in/tree/work/other"_s);
  const QString open = m_home->path(u"in/tree/work/open"_s);
  const QString work = m_home->path(u"in/tree/work"_s);
  RemovalRecorder seen;
  seen.verdicts = {{work, Verdict::KeepFolder}, {open, Verdict::KeepOpen}};
  Remover remover({}, seen.handlers());
  remover.remove(at(u"in/tree"_s));
  QVERIFY(isThere(open));
  QVERIFY(!isThere(m_home->path(u"in/tree/work/other"_s)));
  QCOMPARE(seen.kept, (Told{{open, Kept::Open}, {work, Kept::Open}}));
}

void TestRemovalInUse::asATargetItself() {
  for (const bool toTrash : {false, true}) {
    m_home->file(u"in/work/file"_s);
    RemovalRecorder seen;
    seen.verdicts.insert(m_home->path(u"in/work"_s), Verdict::KeepFolder);
    Remover remover({.toTrash = toTrash}, seen.handlers());
    remover.remove(at(u"in/work"_s));
    QVERIFY(isThere(m_home->path(u"in/work"_s)));
    QVERIFY(!isThere(m_home->path(u"in/work/file"_s)));
    QCOMPARE(seen.kept, (Told{{m_home->path(u"in/work"_s), Kept::Open}}));
  }
}

void TestRemovalInUse::takesInWhatComesMeanwhile() {
  m_home->file(u"in/work/file"_s);
  const QString late = m_home->path(u"in/work/late"_s);
  RemovalRecorder seen;
  seen.verdicts.insert(m_home->path(u"in/work"_s), Verdict::KeepFolder);
  bool came = false;
  removal::setPauseHook([&](const removal::Node& node) {
    if (!came && node.path.endsWith(u"/file"_s)) m_home->file(late);
    came = true;
  });
  Remover remover({}, seen.handlers());
  remover.removeChildren(at(u"in"_s));
  removal::setPauseHook({});
  QVERIFY(!isThere(late));
  QCOMPARE(seen.kept.size(), 1);
}

void TestRemovalInUse::costsNothingInADryRun() {
  m_home->file(u"in/work/file"_s, 8192);
  m_home->file(u"in/work/open"_s, 4096);
  RemovalRecorder seen;
  seen.verdicts = {{m_home->path(u"in/work"_s), Verdict::KeepFolder},
                   {m_home->path(u"in/work/open"_s), Verdict::KeepOpen}};
  Remover remover({.dryRun = true}, seen.handlers());
  remover.remove(at(u"in/work"_s));
  QVERIFY(isThere(m_home->path(u"in/work/file"_s)));
  QCOMPARE(remover.wouldStay().bytes, 4096);
  QCOMPARE(remover.wouldStay().files, 1);
  QCOMPARE(seen.keptPaths(), (QStringList{m_home->path(u"in/work"_s), m_home->path(u"in/work/open"_s)}));
}

void TestRemovalInUse::isNeverRemovedByARetry() {
  const QString work = m_home->folder(u"in/work"_s);
  RemovalRecorder seen;
  seen.verdicts.insert(work, Verdict::KeepFolder);
  Remover remover({}, seen.handlers());
  removal::Stay stay = stayOf(u"in/work"_s, u"in"_s, true);
  QVERIFY(remover.retry(&stay) == Remover::Retry::Kept);
  QVERIFY(isThere(work));
  QCOMPARE(seen.kept, (Told{{work, Kept::Open}}));
}

// Of the folders that are empty afterwards, those above it stay as well, and those below it go.
void TestRemovalInUse::isNoReasonForItsContentsToStayInARetry() {
  const QString file = m_home->file(u"in/a/work/b/file"_s);
  RemovalRecorder seen;
  seen.verdicts.insert(m_home->path(u"in/a/work"_s), Verdict::KeepFolder);
  Remover remover({}, seen.handlers());
  removal::Stay stay = stayOf(u"in/a/work/b/file"_s, u"in"_s, false);
  QVERIFY(remover.retry(&stay) == Remover::Retry::Gone);
  QVERIFY(!isThere(m_home->path(u"in/a/work/b"_s)));
  QVERIFY(isThere(m_home->path(u"in/a/work"_s)));
  QVERIFY(seen.kept.isEmpty());
}

QTEST_GUILESS_MAIN(TestRemovalInUse)
#include "tst_removal_in_use.moc"
