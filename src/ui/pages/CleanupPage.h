/// The page of the main journey: a scan is started, watched, reviewed, confirmed; the clean is watched and its result
/// read. It shows one view for each AppState::Phase and follows the phase; it holds no flow of its own.
#pragma once

#include <QString>
#include <QWidget>

class AppState;
class QStackedWidget;

namespace ui {

class CleanupDoneView;
class CleanupProgressView;
class CleanupReviewView;
class CleanupScanView;

class CleanupPage : public QWidget {
  Q_OBJECT

 public:
  /// @param state  not owned; outlives the page
  explicit CleanupPage(AppState* state, QWidget* parent = nullptr);

  /// Shows the detail of this category; an empty id, or the one on show, changes nothing.
  void focusCategory(const QString& id);

 signals:
  /// The user wants to clean what is ticked, and is to be asked.
  void confirmRequested();
  /// The user wants to see the rules on what to keep.
  void rulesRequested();
  /// The user has finished.
  void goHome();

 public slots:
  /// Shows the view of the phase, brought up to date.
  void syncPhase();
  void refreshScan();
  void refreshReview();
  void refreshSelection();
  void refreshDone();

 private:
  [[nodiscard]] QWidget* buildEmpty();
  [[nodiscard]] QWidget* buildScan();
  [[nodiscard]] QWidget* buildReview();
  [[nodiscard]] QWidget* buildCleaning();
  [[nodiscard]] QWidget* buildDone();
  void refreshLook();
  void finish();

  AppState* m_state;
  QStackedWidget* m_views; ///< a view's index is its phase
  CleanupScanView* m_scanView = nullptr;
  CleanupReviewView* m_reviewView = nullptr;
  CleanupProgressView* m_cleaningView = nullptr;
  CleanupDoneView* m_doneView = nullptr;
};

} // namespace ui
