/// The Space Map: searches the home folder for large files and shows them as a map over a list, from which the user
/// moves some to the Trash. User-interface thread only.
#pragma once

#include "app/records.h"

#include <QWidget>

class AppState;
class QStackedWidget;

namespace ui {

class Button;
class LargeFilesModel;
class LargeFilesResultsView;
class LargeFilesScanView;
class PageHeader;

/// The first visit starts a search by itself; nothing else ever does. Ticks outlive searches.
class LargeFilesPage : public QWidget {
  Q_OBJECT

 public:
  /// @param state  not owned; outlives the page
  explicit LargeFilesPage(AppState* state, QWidget* parent = nullptr);

 public slots:
  /// Shows what is ticked.
  void refreshFooter();
  /// Shows of the files found what the filter lets through, by the settings as they are now.
  void applyFilter();
  /// Shows the view that the state asks for: before the first search, while one runs, or its findings.
  void syncState();
  /// The list of the largest so far of a running search.
  void showLargest(const QList<LargeFile>& files);

 protected:
  void showEvent(QShowEvent* event) override;

 private:
  QWidget* buildStart();
  void showView(QWidget* view);

  AppState* m_state;
  LargeFilesModel* m_model;
  PageHeader* m_header;
  Button* m_rescan;
  QStackedWidget* m_views;
  QWidget* m_startView;
  LargeFilesScanView* m_scanView;
  LargeFilesResultsView* m_resultsView;
};

} // namespace ui
