/// The first page: how full the disk is, and what a scan would look at or has found. User-interface thread only.
#pragma once

#include "app/records.h"

#include <QWidget>

class AppState;
class QGridLayout;
class QHBoxLayout;
class QLabel;
class QVBoxLayout;

namespace ui {

class Button;
class CategoryTile;
class ChipRow;
class DiskOrb;
class ElidedLabel;
class Headline;
class Sparkline;
class StatCard;

/// Keeps nothing of its own: all that it shows comes from the state and the settings, and is shown anew when they
/// change. While another page is in its place it waits with that until it is shown again.
class OverviewPage : public QWidget {
  Q_OBJECT

 public:
  /// @param state  not owned; outlives the page
  explicit OverviewPage(AppState* state, QWidget* parent = nullptr);

 public slots:
  /// Shows what state and settings hold now. Builds legend and tiles anew; a tile that had the focus has it again.
  void refresh();
  /// What a click on the orb does: a scan, if there are no results yet, and the Cleanup page.
  void primaryAction();

 signals:
  /// The user wants the Cleanup page, with the category @p id in view; empty leaves it as it is.
  void openCleanup(const QString& id);

 protected:
  void showEvent(QShowEvent* event) override;
  void hideEvent(QHideEvent* event) override;

 private:
  void refreshIfSeen();
  QWidget* buildHeader();
  QWidget* buildHero();
  QVBoxLayout* buildHeroText();
  ChipRow* buildChips();
  QWidget* buildStats();
  QHBoxLayout* buildTilesHead();

  void showDisk();
  void showDiskLine();
  void showLegend();
  void showLastScan();
  void showFreed();
  void showTiles();
  [[nodiscard]] bool hasResults() const;
  [[nodiscard]] QList<CategoryResult> tilesToShow() const;
  CategoryTile* makeTile(const CategoryResult& category);
  [[nodiscard]] CategoryTile* focusedTile() const;
  void putInTabOrder(const QList<CategoryTile*>& tiles);

  AppState* m_state;
  bool m_away = false;  ///< it was shown, and is no more
  bool m_stale = false; ///< something changed meanwhile
  DiskOrb* m_orb = nullptr;
  Headline* m_headline = nullptr;
  QLabel* m_diskLine = nullptr;
  ElidedLabel* m_scanChipText = nullptr;
  QHBoxLayout* m_legend = nullptr;
  Button* m_rescanButton = nullptr;
  StatCard* m_freed = nullptr;
  StatCard* m_lastScan = nullptr;
  StatCard* m_schedule = nullptr;
  Sparkline* m_sparkline = nullptr;
  QLabel* m_tilesHeading = nullptr;
  Button* m_seeAllButton = nullptr;
  QGridLayout* m_tiles = nullptr;
};

} // namespace ui
