/// The one model of the running program: owns the engines, keeps what they found, and is the only door to start work.
/// User-interface thread only.
#pragma once

#include "app/records.h"
#include "core/platform.h"

#include <QElapsedTimer>
#include <QObject>
#include <QSet>

#include <optional>

class Cleaner;
class Scanner;

/// What a run takes from its caller instead of from the stored settings. The defaults are what the window uses.
struct RunOptions {
  QStringList only;                 ///< ids of the categories to scan; empty means all
  QStringList furtherExclusions;    ///< rules beside the stored ones
  std::optional<bool> moveToTrash;  ///< instead of the stored choice
  bool recordLastScan = true;       ///< whether a complete scan counts for the schedule
  bool dryRun = false;              ///< clean: ask and report, touch nothing
};

class AppState : public QObject {
  Q_OBJECT

 public:
  enum Phase { Empty = 0, Scanning = 1, Review = 2, Cleaning = 3, Done = 4 };
  Q_ENUM(Phase)

  explicit AppState(QObject* parent = nullptr);
  ~AppState() override;

  Phase phase = Empty;
  platform::Volume volume;
  Scanner* scanner = nullptr;
  QList<CategoryDef> scanDefs;         ///< of the running or last scan
  QList<CategoryResult> scanResults;   ///< one slot for each of scanDefs
  int scanCategory = -1;               ///< being scanned; -1 before the first
  qint64 scanBytes = 0;
  qint64 scanFiles = 0;
  QString scanPath;
  QElapsedTimer scanTimer;
  QDateTime lastScan;
  QList<CategoryResult> results;       ///< of the last complete scan, less what was cleaned since
  QSet<QString> selected;              ///< ids of ticked categories
  QSet<QString> unticked;              ///< item paths taken out of ticked categories
  Cleaner* cleaner = nullptr;
  CleanReport report;
  qint64 freeBeforeClean = 0;          ///< bytes

  void setPhase(Phase phase);
  /// Reads the volume's figures now.
  void refreshVolume();
  /// Starts a scan; nothing happens while a scan or a clean runs.
  void startScan(const RunOptions& options = {});
  void cancelScan();
  /// Removes what is selected, without asking: the caller has asked the user. Nothing happens with an empty selection
  /// or while a clean runs. A refused clean leaves results and selection alone.
  void clean(const RunOptions& options = {});
  /// Leaves Done for Review or Empty.
  void acknowledgeDone();
  [[nodiscard]] qint64 sizeOfScanned(int index) const;
  /// Valid until results change; null if there is none.
  [[nodiscard]] const CategoryResult* result(const QString& id) const;
  [[nodiscard]] qint64 totalReclaimable() const;

  // The selection. A category's items are ticked by default; what is stored is the exception.
  void selectRecommended();
  void selectAll(bool on);
  void setSelected(const QString& id, bool on);
  void setItemSelected(const QString& id, const QString& path, bool on);
  /// Forgets the exceptions of one category; emits nothing.
  void clearUnticked(const QString& id);
  /// Values of Qt::CheckState.
  [[nodiscard]] int selectionState(const QString& id) const;
  [[nodiscard]] bool isItemSelected(const QString& id, const QString& path) const;
  [[nodiscard]] QList<CategoryResult> selectedResults() const;
  [[nodiscard]] qint64 selectedBytes() const;
  [[nodiscard]] bool selectionNeedsAdmin() const;
  [[nodiscard]] bool selectionNeedsFullDiskAccess() const;

 signals:
  void phaseChanged();
  void scanProgressChanged();
  void resultsChanged();
  void selectionChanged();
  /// In selected bytes.
  void cleanProgress(qint64 done, qint64 total, QString path);
  void volumeChanged();
  /// A short message for the user; @p undoable offers to undo.
  void toast(QString text, bool undoable);
};
