/// The one model of the running program: owns the engines, keeps what they found, and is the only door to start work.
/// User-interface thread only.
#pragma once

#include "app/UntickedSums.h"
#include "app/records.h"
#include "core/appguard.h"
#include "core/platform.h"

#include <QElapsedTimer>
#include <QHash>
#include <QObject>
#include <QSet>

#include <optional>

class Cleaner;
struct CleanerWorld;
class LargeFileFinder;
class Scanner;
class SystemDataScanner;
struct SystemDataWorld;

/// What a run takes from its caller instead of from the stored settings. The defaults are what the window uses.
struct RunOptions {
  QStringList only;                ///< ids of the categories to scan; empty means all
  QStringList furtherExclusions;   ///< rules beside the stored ones
  std::optional<bool> moveToTrash; ///< instead of the stored choice
  bool recordLastScan = true;      ///< whether a complete scan counts for the schedule
  bool dryRun = false;             ///< clean: ask and report, touch nothing
};

class AppState : public QObject {
  Q_OBJECT

 public:
  enum Phase {
    Empty = 0,    ///< no findings, nothing running
    Scanning = 1, ///< a scan runs
    Review = 2,   ///< findings are on show
    Cleaning = 3, ///< a clean runs
    Done = 4,     ///< the report of a clean is on show
  };
  Q_ENUM(Phase)

  /// Makes the engines; reads the volume's figures and the time of the last scan.
  explicit AppState(QObject* parent = nullptr);
  /// The same over another outside world, for tests.
  AppState(QObject* parent, const CleanerWorld& world);
  AppState(QObject* parent, const CleanerWorld& world, const SystemDataWorld& systemDataWorld);
  /// Raises the flags of what runs and waits for it.
  ~AppState() override;

  // Read them; what changes them are the operations. (Pages and tests may put other `results` in place.)
  Phase phase = Empty;
  platform::Volume volume;           ///< with the user's home on it
  Scanner* scanner = nullptr;        ///< a child
  QList<CategoryDef> scanDefs;       ///< of the running or last scan
  QList<CategoryResult> scanResults; ///< one slot for each of scanDefs, default-built until that category is through
  int scanCategory = -1;             ///< index of the one being scanned; -1 before the first
  qint64 scanBytes = 0;              ///< found so far
  qint64 scanFiles = 0;              ///< visited so far
  QString scanPath;                  ///< the last that the scan told of
  QElapsedTimer scanTimer;           ///< runs since the scan began
  QDateTime lastScan;                ///< end of the last complete scan
  QList<CategoryResult> results;     ///< of the last complete scan, less what was cleaned since
  const QSet<QString>& selected = m_selected; ///< ids of ticked categories
  const QSet<QString>& unticked = m_unticked; ///< item paths taken out of ticked categories
  Cleaner* cleaner = nullptr;                 ///< a child
  QString cleanCategory;                      ///< title of the category at work; empty before and after
  qint64 cleanFiles = 0;                      ///< of the selected items that the clean has dealt with
  qint64 cleanFilesTotal = 0;                 ///< of all selected items
  CleanReport report;                         ///< of the last clean
  qint64 freeBeforeClean = 0;                 ///< bytes available when the last clean began
  LargeFileFinder* largeFinder = nullptr;     ///< a child
  QList<LargeFile> largeFiles;                ///< of the last complete search, less what was moved away; largest first
  bool largeScanned = false;                  ///< a search was completed at least once
  bool largeSearching = false;                ///< from the start of a search until its end has arrived here
  qint64 largeProgressCount = 0;              ///< files seen so far in the running search
  QList<TrashUndoEntry> trashUndo;            ///< what the last trashLargeFiles() moved
  SystemDataScanner* systemDataScanner = nullptr; ///< a child
  QList<SystemDataItem> systemData;               ///< of the last complete measuring
  bool systemDataReady = false;                   ///< a measuring was completed at least once
  bool systemDataBusy = false;                    ///< an action on System Data runs in the background

  /// Emits phaseChanged() if it is another one.
  void setPhase(Phase newPhase);
  /// Reads the volume's figures now.
  void refreshVolume();
  /// Starts a scan; nothing happens while a scan or a clean runs. Results and selection stay until it is complete.
  void startScan(const RunOptions& options = {});
  /// Asks the running scan to end; it changes nothing by itself.
  void cancelScan();
  /// Removes what is selected, without asking: the caller has asked the user. Nothing happens with an empty selection
  /// or while a scan or a clean runs. It ends in Done, with what was cleaned taken out of the results; but a dry run
  /// and a refused clean end in Review and leave results, selection and history alone. The words of a refusal come as
  /// toast(). It refuses at once, before this returns, for settingsRefusal().
  void clean(const RunOptions& options = {});
  /// Why nothing may be removed with the settings as they are now, in words; empty if it may. Reads the disk.
  [[nodiscard]] static QString settingsRefusal();
  /// Lets a running clean finish its item and report; for programs without a window.
  void stopClean();
  /// Leaves Done for Review or Empty.
  void acknowledgeDone();
  /// Bytes of one slot of scanResults; 0 beyond them.
  [[nodiscard]] qint64 sizeOfScanned(int index) const;
  /// Valid until results change; null if there is none.
  [[nodiscard]] const CategoryResult* result(const QString& id) const;
  /// Bytes over all results.
  [[nodiscard]] qint64 totalReclaimable() const;

  // The selection. A category's items are ticked by default; what is stored is the exception. A category is ticked only
  // while one of its items is, or it has none. Asking about a row, and ticking one, costs the same for any number of
  // rows.

  /// Ticks what is Safe and not empty, and nothing else.
  void selectRecommended();
  /// Ticks all that is not empty, whatever its rating, or nothing.
  void selectAll(bool on);
  /// Ticks or unticks one category with all its items. Emits nothing where that changes nothing.
  void setSelected(const QString& id, bool on);
  /// Ticks or unticks one item. The first item ticked of an unticked category is then the only one; with the last item
  /// the category is unticked. Emits nothing where that changes nothing, nor does a path change anything that isn't of
  /// this category.
  void setItemSelected(const QString& id, const QString& path, bool on);
  /// Forgets the exceptions of one category; emits nothing.
  void clearUnticked(const QString& id);
  /// Values of Qt::CheckState.
  [[nodiscard]] int selectionState(const QString& id) const;
  [[nodiscard]] bool isItemSelected(const QString& id, const QString& path) const;
  /// What a clean gets: the ticked categories that hold something, less the unticked items, in the order of results.
  [[nodiscard]] QList<CategoryResult> selectedResults() const;
  [[nodiscard]] qint64 selectedBytes() const;
  /// What of it is in one category; 0 where the clean gets nothing of that. Costs the same for any number of items.
  [[nodiscard]] qint64 selectedBytesOf(const QString& id) const;
  /// What of it a clean to the Trash leaves where it is, because no Trash can be made on its volume. Categories that
  /// are always deleted don't count. Reads the disk, once a folder.
  [[nodiscard]] qint64 selectedBytesWithoutTrash() const;
  [[nodiscard]] bool selectionNeedsAdmin() const;
  [[nodiscard]] bool selectionNeedsFullDiskAccess() const;

  // Large files.

  /// Searches the home folder for files above the stored size; nothing happens while a search runs. A cancelled search
  /// leaves the last list.
  void startLargeScan();
  /// The same for files above @p megabytes, decimal ones, instead of the stored size.
  void startLargeScanOver(int megabytes);
  /// Moves files of the list to the Trash, and remembers that for undoLastTrash(); what was remembered before is
  /// forgotten. A file stays in the list, and counts as skipped in the message, where it is open, excluded, protected,
  /// another file than was listed, or can't be moved. Where the settings can't be read nothing is moved or forgotten,
  /// and toast() says so. Blocks for as long as the moves take.
  void trashLargeFiles(const QList<QString>& paths);
  /// Moves back what the last trashLargeFiles() moved, never over what stands there now, forgets it, and searches anew
  /// if anything came back.
  void undoLastTrash();

  // System Data.

  /// Measures; nothing happens while a measuring runs. A cancelled one leaves the last figures.
  void startSystemDataScan();
  /// Carries out the action of one row without asking: the caller has asked the user. Ignored while one runs, and for
  /// an unknown id. What takes time runs in the background and is followed by a new measuring; what there is to say
  /// comes as toast().
  void runSystemDataAction(const QString& id);

 signals:
  void phaseChanged();
  /// scanDefs, scanCategory, scanBytes, scanFiles or scanPath changed.
  void scanProgressChanged();
  /// results were replaced.
  void resultsChanged();
  void selectionChanged();
  /// In selected bytes; cleanCategory and the files are brought up to date before.
  void cleanProgress(qint64 done, qint64 total, QString path);
  void volumeChanged();
  /// largeFiles changed, or a search began or ended.
  void largeFilesChanged();
  /// The running search: files seen, the folder at work, how many large ones were found with how many bytes, and the
  /// largest of them, largest first.
  void largeProgress(qint64 filesSeen, QString dir, int found, qint64 bytesFound, QList<LargeFile> top);
  /// systemData or systemDataBusy changed, or a measuring began or ended.
  void systemDataChanged();
  /// The running measuring: at work on row @p index of @p total, at @p path, with @p bytes counted so far for that row.
  void systemDataProgress(int index, int total, QString path, qint64 bytes);
  /// Row @p index has its figure.
  void systemDataMeasured(int index, qint64 bytes, bool denied);
  /// A short message for the user; @p undoable offers to undo.
  void toast(QString text, bool undoable);

 private:
  void connectScanner();
  [[nodiscard]] bool isBusy() const;
  void onScanFinished(const QList<CategoryResult>& found, bool cancelled);
  void onCleanFinished(const CleanReport& cleaned);
  void refuse(const QString& why);
  void connectSystemData();
  void performInBackground(const SystemDataItem& item);
  void onSystemDataPerformed(const QString& text);

  struct LargeMoves;
  void connectLargeFinder();
  void onLargeFound(const QList<LargeFile>& files, bool cancelled);
  [[nodiscard]] LargeMoves moveLargeFiles(const QList<QString>& paths) const;

  void clearSelection();
  template <typename Wanted>
  void selectOnly(Wanted wanted);
  void tickItem(const CategoryResult& category, const QString& path);
  void untickItem(const CategoryResult& category, const QString& path);
  void insertUnticked(const QString& path);
  void removeUnticked(const QString& path);
  const UntickedSums::Sums& untickedOf(const CategoryResult& category) const;
  qint64 tickedBytes(const CategoryResult& category) const;
  template <typename Test>
  bool anySelected(Test test) const;

  RunOptions m_scanOptions; // of the running or last scan
  bool m_dryRun = false;    // the running or last clean touches nothing
  const appguard::Sources m_sources;
  QHash<QString, FileId> m_largeIds; // of largeFiles, by path
  QSet<QString> m_largeGone;         // moved away since the running search began
  bool m_largeSearchAgain = false;   // once the running search has ended
  QSet<QString> m_selected;
  QSet<QString> m_unticked;
  mutable UntickedSums m_sums; // follows results by itself
};
