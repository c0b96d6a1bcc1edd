/// The Cleanup page where the user decides what goes: the categories, the detail of one of them, and the sum of what is
/// ticked over the button that cleans.
#pragma once

#include <QString>
#include <QWidget>

class AppState;
class QLabel;
class QVBoxLayout;

namespace ui {

class Button;
class CleanupCategories;
class CleanupDetail;
class FooterBar;
class Note;
class PageHeader;
class StackBar;

class CleanupReviewView : public QWidget {
  Q_OBJECT

 public:
  explicit CleanupReviewView(AppState* state, QWidget* parent = nullptr);

  /// Shows the detail of this category; an empty id, or the one on show, changes nothing.
  void focusCategory(const QString& id);
  /// Shows new results. The category on show stays if there still is such a one.
  void refresh();
  /// Shows what is ticked. Does nothing unless the findings are on show.
  void refreshSelection();

 signals:
  /// The user wants to clean what is ticked.
  void confirmRequested();
  /// The user wants to see the rules on what to keep.
  void rulesRequested();

 private:
  [[nodiscard]] PageHeader* buildHeader();
  [[nodiscard]] FooterBar* buildFooter();
  void buildSettingsNote();
  void refreshTitle();
  void refreshFocus();
  void refreshFooter();
  void refreshSettingsNote();
  void placeInTabOrder();

  AppState* m_state;
  QString m_focusedId; ///< of the category in the detail; empty for none
  QVBoxLayout* m_root;
  PageHeader* m_reviewHeader;
  QWidget* m_settingsRow = nullptr; ///< in the layout only while there is something to say
  Note* m_settingsNote = nullptr;   ///< why nothing is cleaned with the settings as they are
  CleanupCategories* m_categories;
  CleanupDetail* m_detail;
  QLabel* m_selectionLabel;
  StackBar* m_stackBar;
  Button* m_cleanButton;
};

} // namespace ui
