/// The Cleanup page after a clean: what it freed, and what it left.
#pragma once

#include "app/records.h"

#include <QString>
#include <QWidget>

class AppState;
class QFontMetrics;
class QLabel;
class QVBoxLayout;

namespace ui {

class Button;
class GradientText;
class Note;

/// What the report says of files that stayed and of running apps, as rich text; empty if there is nothing to say.
/// @param metrics  of the font in which the example of a path is shortened
[[nodiscard]] QString heldBackText(const CleanReport& report, const QFontMetrics& metrics);

class CleanupDoneView : public QWidget {
  Q_OBJECT

 public:
  explicit CleanupDoneView(AppState* state, QWidget* parent = nullptr);

  /// Rewrites every text from the report.
  void refresh();
  /// What the keyboard works first.
  [[nodiscard]] QWidget* firstFocus() const;

 signals:
  /// The user has read it.
  void dismissed();

 private:
  [[nodiscard]] QVBoxLayout* buildColumn();
  void addResult(QVBoxLayout* column);
  void addCounters(QVBoxLayout* column);
  void addNotes(QVBoxLayout* column);
  void addButtons(QVBoxLayout* column);
  void openLog() const;

  AppState* m_state;
  GradientText* m_freedValue;
  QLabel* m_doneSummary;
  QLabel* m_beforeValue = nullptr;
  QLabel* m_nowValue = nullptr;
  Note* m_skippedNote = nullptr;
  Note* m_adminNote = nullptr;
  Button* m_done = nullptr;
};

} // namespace ui
