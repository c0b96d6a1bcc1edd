/// A row of labels of which one is chosen.
#pragma once

#include "ui/accessible.h"

#include <QList>
#include <QRectF>
#include <QString>
#include <QWidget>

class QPainter;

namespace ui {

class KeyboardFocus;

/// The segments of labels of these widths, side by side from the left, in a control of this height.
[[nodiscard]] QList<QRectF> segmentLayout(const QList<int>& textWidths, int height,
                                          Qt::LayoutDirection direction = Qt::LeftToRight);

/// The left and right arrow keys, Home and End move the ring, Space and Enter choose the segment that has it.
class Segmented : public QWidget, public AccessibleItems {
  Q_OBJECT

 public:
  explicit Segmented(const QList<QString>& items, QWidget* parent = nullptr);

  [[nodiscard]] int current() const { return m_current; }
  /// Ignores the current index and those that are out of range; otherwise emits currentChanged().
  void setCurrent(int index);
  /// Ignores an index out of range; emits nothing.
  void setItemText(int index, const QString& text);
  /// In the control's coordinates.
  [[nodiscard]] QList<QRectF> segments() const;

  [[nodiscard]] QSize sizeHint() const override;

  [[nodiscard]] QAccessible::Role itemsRole() const override { return QAccessible::Grouping; }
  [[nodiscard]] QAccessible::Role itemRole() const override { return QAccessible::RadioButton; }
  [[nodiscard]] int itemCount() const override { return int(m_items.size()); }
  [[nodiscard]] Item itemAt(int index) const override;
  void activateItem(int index) override { setCurrent(index); }

 signals:
  void currentChanged(int index);

 protected:
  void mousePressEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  [[nodiscard]] QList<int> textWidths() const;
  void moveCursor(int index);
  void paintSegment(QPainter* painter, const QRectF& segment, int index) const;

  QList<QString> m_items;
  int m_current = 0;
  int m_cursor = 0; ///< the segment that the keyboard works
  KeyboardFocus* m_focus;
};

} // namespace ui
