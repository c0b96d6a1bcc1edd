/// Explains what fills the system's own, otherwise unexplained share of the disk: measures it, shows it, and offers
/// what can be done about it. User-interface thread only.
#pragma once

#include "app/records.h"

#include <QWidget>

class AppState;
class QStackedWidget;

namespace ui {

class SystemDataResults;
class SystemDataScanView;

/// What it shows comes from the state. The first measuring is watched step by step; a later one only brings the figures
/// up to date. Asks for nothing to be cleaned: what can't be undone is left to confirmAction().
class SystemDataPage : public QWidget {
  Q_OBJECT

 public:
  /// @param state  not owned; outlives the page
  explicit SystemDataPage(AppState* state, QWidget* parent = nullptr);

 public slots:
  /// Shows the view that fits the state, brought up to date.
  void sync();
  /// Shows a measuring that begins now.
  void startScanView();
  /// The measuring is at item @p index, with @p bytes counted so far for it; a negative number only moves the clocks.
  void showScanProgress(int index, qint64 bytes);
  /// Shows the figures that the state has now.
  void rebuildResults();

 signals:
  /// The user wants the action of item @p id, and is to be asked with these words first.
  void confirmAction(const QString& title, const QString& body, const QString& confirm, const QString& id);
  /// The user wants the Cleanup page.
  void openCleanup();

 protected:
  /// Starts the first measuring.
  void showEvent(QShowEvent* event) override;

 private:
  [[nodiscard]] QWidget* buildHeader();
  [[nodiscard]] QWidget* buildStart();
  void act(const QString& id);
  void refreshLook();

  AppState* m_state;
  QWidget* m_rescanButton = nullptr;
  QStackedWidget* m_views;
  QWidget* m_startView = nullptr;
  SystemDataScanView* m_scanView;
  SystemDataResults* m_resultsView;
};

} // namespace ui
