/// The Space Map's list of files, each with a tick. User-interface thread only.
#pragma once

#include <QTableView>

namespace ui {

class KeyboardFocus;
class LargeFilesModel;

/// A click anywhere in a row ticks its file, a double click shows it in the file manager. The keyboard works the
/// current row, around which a ring lies while it is used: the arrow keys, Home, End and the page keys move it, Space
/// ticks, Enter shows. The current row stays with its file when rows are sorted, filtered or found anew, and where that
/// is gone, in its place.
class LargeFilesTable : public QTableView {
  Q_OBJECT

 public:
  /// @param model  outlives the list
  explicit LargeFilesTable(LargeFilesModel* model, QWidget* parent = nullptr);

 protected:
  void focusInEvent(QFocusEvent* event) override;
  QModelIndex moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) override;
  void keyPressEvent(QKeyEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  void buildHeader();
  [[nodiscard]] QString pathAt(const QModelIndex& index) const;
  void keepPlace();
  void findPlace();
  void tellTick(int row);

  LargeFilesModel* m_model;
  KeyboardFocus* m_focus;
  QString m_workedPath; ///< of the current row, while rows are replaced
  int m_workedRow = -1;
};

} // namespace ui
