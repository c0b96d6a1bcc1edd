/// What the tests of the flow share: a home with something in two categories, and a state to run over it.
#pragma once

#include "app/AppSettings.h"
#include "app/AppState.h"
#include "app/identity.h"
#include "engines/Cleaner.h"
#include "engines/Scanner.h"
#include "support/FixtureHome.h"

#include <QTest>

#include <memory>

inline const QString kThumbs = QStringLiteral("thumbs"); ///< rated Safe
inline const QString kUpdate = QStringLiteral("update"); ///< rated Review

inline constexpr int kPatienceMs = 60'000; ///< for what takes a moment on any machine

/// A category with one item.
inline CategoryResult found(const QString& id, qint64 bytes, Safety safety = Safe) {
  CategoryResult made;
  made.def.id = id;
  made.def.safety = safety;
  made.bytes = bytes;
  made.files = 1;
  CleanItem item;
  item.path = QStringLiteral("/c/") + id;
  item.bytes = bytes;
  item.files = 1;
  made.items << item;
  return made;
}

/// The phases that a state went through, in order.
class Phases : public QObject {
 public:
  explicit Phases(AppState* state) {
    connect(state, &AppState::phaseChanged, this, [this, state] { all << state->phase; });
  }
  QList<int> all;
};

class FlowTest : public QObject {
 protected:
  FlowTest() {
    identity::apply();
    records::registerMetaTypes();
    qputenv("TARNWICK_HOST", "linux");
    AppSettings::instance(); // lives as long as the process, so its store is not that of one test's home
  }
  ~FlowTest() override { QCoreApplication::processEvents(); } // writes the settings while their folder is there

  void fill() {
    m_home = std::make_unique<FixtureHome>();
    AppSettings& settings = AppSettings::instance();
    settings.setMoveToTrash(false);
    settings.setExclusions(FixtureHome::rulesForOutside());
    settings.setLastScan(QDateTime());
    settings.put("history/freed", QVariantMap());
    m_home->file(QStringLiteral(".cache/thumbnails/normal/1.png"), 20'000);
    m_home->file(QStringLiteral(".cache/thumbnails/normal/2.png"), 10'000);
    m_home->file(QStringLiteral("Downloads/a.deb"), 50'000);
    m_home->file(QStringLiteral("Downloads/b.deb"), 30'000);
    m_state = newState();
  }
  /// A state whose cleans have a lock of their own, so that no test waits for another one.
  [[nodiscard]] std::unique_ptr<AppState> newState() const {
    CleanerWorld world;
    world.lockPath = cleanLock();
    return std::make_unique<AppState>(nullptr, world);
  }
  [[nodiscard]] QString cleanLock() const { return m_home->outside(QStringLiteral("clean.lock")); }
  void empty() {
    m_state.reset();
    m_home.reset();
  }

  void scan(const RunOptions& options = {}) {
    m_state->startScan(options);
    QTRY_VERIFY_WITH_TIMEOUT(m_state->phase != AppState::Scanning, kPatienceMs);
    QTRY_VERIFY_WITH_TIMEOUT(!m_state->scanner->isRunning(), kPatienceMs);
  }
  void clean(const RunOptions& options = {}) {
    m_state->clean(options);
    QTRY_VERIFY_WITH_TIMEOUT(m_state->phase != AppState::Cleaning, kPatienceMs);
    QTRY_VERIFY_WITH_TIMEOUT(!m_state->cleaner->isRunning(), kPatienceMs);
  }

 private:
  FixtureHome m_ofTheSettings;

 protected:
  std::unique_ptr<FixtureHome> m_home;
  std::unique_ptr<AppState> m_state;
};
