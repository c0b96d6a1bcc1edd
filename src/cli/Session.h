/// What the verbs do as steps that one waits for, with progress and with Ctrl-C.
#pragma once

#include "app/AppState.h"
#include "cli/Progress.h"
#include "cli/commands.h"
#include "core/Interrupts.h"
#include "engines/LargeFileFinder.h"

#include <functional>

namespace cli {

class Session : public QObject {
  Q_OBJECT

 public:
  enum class Answer { Yes, No };

  explicit Session(const World& world = {}) : m_state(nullptr, world.cleaner, world.systemData) {}

  /// Returns when the scan is over; Ctrl-C cancels it.
  /// @return how long it took, in ms
  qint64 scan(const RunOptions& options);
  /// Cleans what is selected, and returns when the report is there. Ctrl-C lets it finish its item.
  void clean(const RunOptions& options);
  /// What a search for large files came to.
  struct LargeSearch {
    QList<LargeFile> files;
    LargeFileFinder::Summary summary;
  };
  /// Returns when the search for files above @p megabytes is over; Ctrl-C cancels it.
  /// @return the largest files; of a cancelled search what was found until then
  [[nodiscard]] LargeSearch searchLarge(int megabytes);
  /// Returns when System Data is measured; Ctrl-C cancels it.
  /// @return all rows; of a cancelled run with the figures so far
  [[nodiscard]] QList<SystemDataItem> measureSystemData();
  /// Shows @p question on the terminal at @p fd and waits for a line of standard input. Only "y" and "yes", and what is
  /// one in the language in force, are a yes; Ctrl-C and the end of the input are a no.
  [[nodiscard]] Answer ask(const QString& question, int fd);

  /// Whether the user has asked to stop.
  [[nodiscard]] bool interrupted() const { return m_interrupts.raised(); }
  [[nodiscard]] AppState& state() { return m_state; }

 private:
  void waitWhile(AppState::Phase phase, const QString& noteOfStopping, void (AppState::*stop)());
  /// Starts something, and runs until @p sender emits @p ended; @p stop is how the user's wish is passed on. Work on
  /// another thread must be started here: it may have ended before anybody else could listen.
  template <typename Sender, typename Signal>
  void waitFor(
      Sender* sender, Signal ended, const QString& noteOfStopping, const std::function<void()>& stop,
      const std::function<void()>& start = [] {});

  AppState m_state;
  Interrupts m_interrupts;
  Progress m_progress{m_state};
};

} // namespace cli
