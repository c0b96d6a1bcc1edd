/// The Space Map's findings: what to show of them, the map, the list, and what to do with those that are ticked.
#pragma once

#include <QList>
#include <QString>
#include <QWidget>

class AppState;
class QLabel;
class QLineEdit;
class QVBoxLayout;
struct LargeFile;

namespace ui {

class Button;
class Card;
class FooterBar;
class KeyboardFocus;
class LargeFilesModel;
class LargeFilesTable;
class Segmented;
class Treemap;

/// Keeps nothing of its own but the filter: the files come from the state, and the ticks are the model's.
class LargeFilesResultsView : public QWidget {
  Q_OBJECT

 public:
  /// @param state, model  not owned; outlive the view
  LargeFilesResultsView(AppState* state, LargeFilesModel* model, QWidget* parent = nullptr);

  /// Shows of the state's files what the filter lets through, by the settings as they are now.
  void applyFilter();
  /// Shows what is ticked: on the map, in the sum, and on the buttons.
  void refreshFooter();

 private:
  QWidget* buildBar();
  Card* buildMap();
  Card* buildList();
  FooterBar* buildFooter();
  void refreshLook();
  void showTiles(const QList<LargeFile>& files);
  void reveal();
  void moveToTrash();
  [[nodiscard]] QList<QString> tickedPaths() const;

  AppState* m_state;
  LargeFilesModel* m_model;
  Segmented* m_segments;
  QLineEdit* m_search;
  QAction* m_searchIcon;
  Treemap* m_map;
  Card* m_mapCard;
  LargeFilesTable* m_table;
  QLabel* m_sum;
  Button* m_reveal;
  Button* m_move;
  KeyboardFocus* m_moveFocus;
};

} // namespace ui
