/// What all engines share: one job at a time on the pool, an atomic cancel flag, and an orderly end.
#pragma once

#include <QFuture>
#include <QtConcurrentRun>

#include <atomic>
#include <utility>

/// Make it the last member of an engine: its destructor raises the flag and waits, while all that the work uses is
/// still there.
class Job {
 public:
  Job() = default;
  Job(const Job&) = delete;
  Job& operator=(const Job&) = delete;
  ~Job() {
    cancel();
    m_future.waitForFinished();
  }

  /// Runs @p work on the global pool with the flag lowered. False, with nothing done, while a job runs.
  template <typename Work>
  bool start(Work&& work) {
    if (isRunning()) return false;
    m_cancelled = false;
    m_future = QtConcurrent::run(std::forward<Work>(work));
    return true;
  }
  /// Raises the flag. Any thread; returns at once.
  void cancel() { m_cancelled = true; }
  [[nodiscard]] bool isRunning() const { return m_future.isRunning(); }
  /// The flag, for what the work calls.
  [[nodiscard]] const std::atomic<bool>& cancelled() const { return m_cancelled; }
  void wait() { m_future.waitForFinished(); }

 private:
  std::atomic<bool> m_cancelled = false;
  QFuture<void> m_future;
};
