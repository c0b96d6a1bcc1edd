/// The Cleanup page where the user decides what goes: the categories, the detail of one of them, and the sum of what is
/// ticked over the button that cleans.
#pragma once

#include <QString>
#include <QWidget>

class AppState;
class QLabel;

namespace ui {

class Button;
class CleanupCategories;
class CleanupDetail;
class FooterBar;
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

 private:
  [[nodiscard]] PageHeader* buildHeader();
  [[nodiscard]] FooterBar* buildFooter();
  void refreshTitle();
  void refreshFocus();
  void refreshFooter();
  void placeInTabOrder();

  AppState* m_state;
  QString m_focusedId; ///< of the category in the detail; empty for none
  PageHeader* m_reviewHeader;
  CleanupCategories* m_categories;
  CleanupDetail* m_detail;
  QLabel* m_selectionLabel;
  StackBar* m_stackBar;
  Button* m_cleanButton;
};

} // namespace ui
