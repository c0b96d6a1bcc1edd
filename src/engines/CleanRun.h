/// One run of a clean, from its first question to the last line of its log.
#pragma once

#include "app/records.h"
#include "core/fs.h"
#include "core/removal.h"
#include "engines/CleanJudge.h"
#include "engines/CleanLog.h"
#include "engines/Cleaner.h"

#include <QByteArrayList>
#include <QElapsedTimer>
#include <QHash>

#include <atomic>
#include <deque>
#include <functional>
#include <optional>
#include <vector>

/// Lives on the worker thread, for one run() alone. Removes or moves files, unless it is dry.
class CleanRun {
 public:
  struct Order {
    QList<CategoryResult> results;
    bool moveToTrash = false;
    QList<QString> exclusions;
    Cleaner::Run kind = Cleaner::Run::ForReal;
  };
  /// What was dealt with so far, of what was selected.
  struct Step {
    QString category; ///< title of the one at work; empty at the end
    qint64 doneFiles = 0;
    qint64 totalFiles = 0;
    qint64 doneBytes = 0;
    qint64 totalBytes = 0;
    QString path; ///< in hand, in native separators
  };
  using Progress = std::function<void(const Step&)>;
  using FilesProgress = std::function<void(const QString& category, qint64 done, qint64 total)>;

  /// @param stopped        once raised, the item in hand is finished and nothing more is begun
  /// @param progress       called for each item, and at the end
  /// @param filesProgress  called within a large item, with how many of all files were dealt with; may be empty
  CleanRun(Order order, const CleanerWorld& world, const std::atomic<bool>& stopped, Progress progress,
           FilesProgress filesProgress = {});

  [[nodiscard]] CleanReport run();

 private:
  /// A node that stayed, waiting for another attempt.
  struct Retry {
    removal::Stay stay;
    const CleanWork* work = nullptr;
    qint64 error = 0; ///< code for the log; 0: none is told
  };
  /// An item that the run got to, for the measuring pass.
  struct Done {
    const CleanWork* work = nullptr;
    fs::Totals wouldStay; ///< of a dry run
  };

  [[nodiscard]] bool isDry() const { return m_order.kind == Cleaner::Run::Dry; }
  /// Why the run must not begin, in words; takes the lock that a run needs.
  [[nodiscard]] QString refusal(std::optional<RunLock>* lock) const;
  void openLog();
  void cleanCategory(const CategoryResult& result);
  void emptyRecycleBin(const CategoryResult& result);
  void cleanItem(const CategoryResult& result, const CleanItem& item);
  [[nodiscard]] bool mayBegin(const CleanWork& work);
  void carryOut(const CleanWork& work);
  void retry();
  void retryRound();
  void measure();
  void measureItem(const Done& done);
  [[nodiscard]] fs::Totals measureLeft(const CleanWork& work);
  void forgetGone();
  void end();

  [[nodiscard]] removal::Remover& removerFor(const CleanWork& work);
  void tell(const QString& category, const QString& path);
  void deal(qint64 bytes, qint64 files);
  void onAsked(const removal::Node& node);
  void onKept(const removal::Node& node, removal::Kept kept);
  void onBusy(const removal::Stay& stay);
  void skip(const QString& sample, const LoggedPath& path, SkipReason reason, qint64 error = 0);
  void sleep(std::chrono::milliseconds time) const;

  const Order m_order;
  const CleanerWorld& m_world;
  const std::atomic<bool>& m_stopped;
  const Progress m_progress;
  const FilesProgress m_filesProgress;
  CleanReport m_report;
  CleanLog m_log;
  std::optional<CleanJudge> m_judge;
  std::optional<removal::Remover> m_trasher;
  std::optional<removal::Remover> m_deleter;
  std::deque<CleanWork> m_works;     ///< stays where it is: retries and the measuring pass point into it
  const CleanWork* m_work = nullptr; ///< in hand
  bool m_itemRefused = false;        ///< the item in hand itself, as a whole
  std::vector<Retry> m_retries;
  std::vector<Done> m_done;
  QHash<QString, QByteArrayList> m_gone; ///< names that left a Trash, by the folder that they lay in
  Step m_step;
  qint64 m_askedFiles = 0; ///< of the item in hand; what is asked twice counts twice
  QElapsedTimer m_sinceTold;
};
