#include "RemovalRecorder.h"
#include "support/FixtureHome.h"

#include <QDir>
#include <QMap>
#include <QTest>

#include <atomic>
#include <fcntl.h>
#include <thread>

using namespace Qt::StringLiterals;
using removal::Remover;
using removal::Target;
using removal::Verdict;

namespace {

constexpr int kSwaps = 10'000;
constexpr int kRounds = 20;
constexpr int kFolders = 3;
constexpr int kFiles = 4;

QByteArray raw(const QString& path) { return QFile::encodeName(path); }

/// Exchanges two names at once: there is no moment at which either is missing.
bool exchange(const QByteArray& one, const QByteArray& other) {
  return ::renameat2(AT_FDCWD, one.constData(), AT_FDCWD, other.constData(), RENAME_EXCHANGE) == 0;
}

/// What every cleaner would be that goes by paths: it asks what a path is, and then removes by the path.
void removeByPath(const QByteArray& path, const std::function<void(const QByteArray&)>& pause) {
  struct stat status;
  if (::lstat(path.constData(), &status) != 0) return;
  const bool isDir = S_ISDIR(status.st_mode);
  if (pause) pause(path);
  if (!isDir) {
    ::unlink(path.constData());
    return;
  }
  for (const QString& name :
       QDir(QFile::decodeName(path)).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot))
    removeByPath(path + '/' + raw(name), pause);
  ::rmdir(path.constData());
}

/// A thread that exchanges pairs of names as fast as it can, between begin() and end().
class Attacker {
 public:
  QList<std::pair<QByteArray, QByteArray>> pairs; ///< set before the first begin()

  ~Attacker() {
    m_over = true;
    begin();
    m_thread.join();
  }
  void begin() {
    m_attacks = true;
    m_attacks.notify_all();
  }
  void end() {
    m_attacks = false;
    m_busy.wait(true);
  }
  [[nodiscard]] int swaps() const { return m_swaps; }

 private:
  void run() {
    while (!m_over) {
      m_busy = false;
      m_busy.notify_all();
      m_attacks.wait(false);
      m_busy = true;
      while (m_attacks && !m_over)
        for (const auto& [one, other] : std::as_const(pairs)) m_swaps += exchange(one, other) ? 1 : 0;
    }
  }

  std::atomic<bool> m_over{false};
  std::atomic<bool> m_attacks{false};
  std::atomic<bool> m_busy{false};
  std::atomic<int> m_swaps{0};
  std::thread m_thread{[this] { run(); }};
};

} // namespace

class TestRemovalAttack : public QObject {
  Q_OBJECT

 private slots:
  void cleanup();
  void aPathBasedRemoverLosesAFile();
  void noPauseLosesAFile_data();
  void noPauseLosesAFile();
  void noSwapLosesAFile_data();
  void noSwapLosesAFile();

 private:
  void build();
  [[nodiscard]] bool isOutsideWhole() const;
  [[nodiscard]] QByteArray tree(const QString& name) const { return raw(m_home.path(u"in/tree/"_s + name)); }
  [[nodiscard]] QByteArray bait(const QString& name) const { return raw(m_home.path(u"bait "_s + name)); }

  FixtureHome m_home;
};

void TestRemovalAttack::cleanup() { wipe(m_home.path()); }

/// A tree to remove, the same names outside with what must not be lost, and links to there in reserve.
void TestRemovalAttack::build() {
  for (int i = 0; i < kFolders; ++i) {
    const QString name = QString::number(i);
    for (const QString& top : {u"in/tree/"_s, u"outside/"_s}) {
      const QByteArray sub = raw(m_home.folder(top + name + u"/sub"_s));
      for (int k = 0; k < kFiles; ++k)
        ::close(::open((sub + '/' + QByteArray::number(k)).constData(), O_CREAT | O_WRONLY | O_CLOEXEC, 0600));
    }
    removeByPath(bait(name), {});
    m_home.link(u"bait "_s + name, m_home.path(u"outside/"_s + name));
  }
}

bool TestRemovalAttack::isOutsideWhole() const {
  for (int i = 0; i < kFolders; ++i)
    for (int k = 0; k < kFiles; ++k)
      if (!isThere(m_home.path(u"outside/%1/sub/%2"_s.arg(i).arg(k)))) return false;
  return true;
}

void TestRemovalAttack::aPathBasedRemoverLosesAFile() {
  build();
  removeByPath(raw(m_home.path(u"in/tree"_s)), [&](const QByteArray& path) {
    if (path == tree(u"0"_s)) exchange(tree(u"0"_s), bait(u"0"_s));
  });
  QVERIFY(!isOutsideWhole()); // so the attack works
}

void TestRemovalAttack::noPauseLosesAFile_data() {
  QTest::addColumn<bool>("toTrash");
  QTest::newRow("delete") << false;
  QTest::newRow("trash") << true;
}

// The same attack at every single moment between a question and its act, on the folder itself and on the one below.
void TestRemovalAttack::noPauseLosesAFile() {
  QFETCH(bool, toTrash);
  int pauses = 1;
  for (int moment = 0; moment < pauses; ++moment) {
    build();
    int count = 0;
    bool swapped = false;
    removal::setPauseHook([&](const removal::Node&) {
      if (count++ == moment) swapped = exchange(tree(u"0"_s), bait(u"0"_s));
    });
    RemovalRecorder seen;
    // One file of each folder must stay, so that the folders are opened in either mode.
    for (int i = 0; i < kFolders; ++i)
      seen.verdicts.insert(m_home.path(u"in/tree/%1/sub/0"_s.arg(i)), Verdict::KeepOpen);
    Remover({.toTrash = toTrash}, seen.handlers()).remove({m_home.path(u"in/tree"_s), m_home.path(u"in/tree"_s)});
    removal::setPauseHook({});
    QVERIFY2(isOutsideWhole(), qPrintable(u"moment %1"_s.arg(moment)));
    if (moment == 0) QVERIFY(swapped);
    pauses = qMax(pauses, count);
    removeByPath(raw(m_home.path(u"in"_s)), {});
  }
  QVERIFY(pauses > kFolders * kFiles / 2);
}

void TestRemovalAttack::noSwapLosesAFile_data() { noPauseLosesAFile_data(); }

void TestRemovalAttack::noSwapLosesAFile() {
  QFETCH(bool, toTrash);
  const Target target{m_home.path(u"in/tree"_s), m_home.path(u"in/tree"_s)};
  Attacker attacker;
  for (int i = 0; i < kFolders; ++i) attacker.pairs.append({tree(QString::number(i)), bait(QString::number(i))});
  int rounds = 0;
  qint64 removed = 0;
  QMap<QString, int> told;
  for (bool whole = true; rounds < kRounds || attacker.swaps() < kSwaps; ++rounds) {
    build();
    RemovalRecorder seen;
    if (rounds % 2 == 1) seen.verdicts.insert(m_home.path(u"in/tree/1/sub/1"_s), Verdict::KeepOpen);
    Remover remover({.toTrash = toTrash}, seen.handlers());
    attacker.begin();
    remover.remove(target);
    for (removal::Stay& stay : seen.busy) {
      ++told[QString::fromLocal8Bit(strerror(stay.error))];
      static_cast<void>(remover.retry(&stay));
    }
    attacker.end();
    removed += remover.removedNodes();
    whole = isOutsideWhole();
    QVERIFY2(whole, qPrintable(u"lost in round %1"_s.arg(rounds)));
  }
  QVERIFY(removed > 0);
  qInfo() << attacker.swaps() << "swaps in" << rounds << "rounds," << removed << "nodes went; told as busy:" << told;
}

QTEST_GUILESS_MAIN(TestRemovalAttack)
#include "tst_removal_attack.moc"
