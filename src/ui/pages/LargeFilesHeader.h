/// The heading of the Space Map's list, by which it is sorted. User-interface thread only.
#pragma once

#include "ui/accessible.h"

#include <QHeaderView>

namespace ui {

class KeyboardFocus;

/// A click sorts by a column, and turns the order around where that is the column already. So does the keyboard: Tab
/// comes here, the left and right arrow keys move the ring among the columns to sort by, Space and Enter sort.
class LargeFilesHeader : public QHeaderView, public AccessibleItems {
  Q_OBJECT

 public:
  explicit LargeFilesHeader(QWidget* parent = nullptr);

  /// The columns to sort by, from the left.
  [[nodiscard]] QList<int> stops() const;
  /// The column that the keyboard works; -1 where there is none to sort by.
  [[nodiscard]] int worked() const { return stops().value(m_stop, -1); }

  [[nodiscard]] QAccessible::Role itemsRole() const override { return QAccessible::Grouping; }
  [[nodiscard]] QAccessible::Role itemRole() const override { return QAccessible::ColumnHeader; }
  [[nodiscard]] int itemCount() const override { return int(stops().size()); }
  [[nodiscard]] Item itemAt(int index) const override;
  void activateItem(int index) override;

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  void moveTo(int stop);
  [[nodiscard]] QRect sectionRect(int column) const;

  int m_stop = 0; ///< among the stops
  KeyboardFocus* m_focus;
};

} // namespace ui
