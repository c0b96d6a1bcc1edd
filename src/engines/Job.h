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
    wait();
  }

  /// Runs @p work on the global pool with the flag lowered. False, with nothing done, while a job runs.
  template <typename Work>
  bool start(Work&& work) {
    if (isRunning()) return false;
    m_cancelled = false;
    m_future = QtConcurrent::run([this, work = std::forward<Work>(work)]() mutable {
      work();
      m_ends.fetch_add(1, std::memory_order_release);
    });
    return true;
  }
  /// Raises the flag. Any thread; returns at once.
  void cancel() { m_cancelled = true; }
  [[nodiscard]] bool isRunning() const { return m_future.isRunning(); }
  /// The flag, for what the work calls.
  [[nodiscard]] const std::atomic<bool>& cancelled() const { return m_cancelled; }
  void wait() {
    m_future.waitForFinished();
    (void)m_ends.load(std::memory_order_acquire);
  }

 private:
  std::atomic<bool> m_cancelled = false;
  /// Jobs that ended. Who waits has seen all that the work did; QFuture sees to that too, but inside Qt, where a thread
  /// sanitizer doesn't look.
  std::atomic<int> m_ends = 0;
  QFuture<void> m_future;
};
