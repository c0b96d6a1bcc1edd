/// Rounded tiles whose areas are in proportion to sizes, of which any number may be selected.
#pragma once

#include "ui/accessible.h"

#include <QColor>
#include <QList>
#include <QPixmap>
#include <QRectF>
#include <QRegion>
#include <QSet>
#include <QString>
#include <QWidget>

class QPainter;

namespace ui {

class KeyboardFocus;
struct TreemapTile;

/// Shows the 24 largest of its items; what is smaller has no tile. It keeps no selection of its own: a click tells the
/// key, and setSelected() brings the answer.
///
/// The arrow keys move a ring to the tile beside, Home and End to the largest and the smallest; Space does what a
/// click does, and Enter opens. What has no size has no tile, and the keyboard passes it by. The tile with the ring
/// tells its texts in a tool tip if it has no room for them.
class Treemap : public QWidget, public AccessibleItems {
  Q_OBJECT

 public:
  struct Item {
    QString key; ///< what toggled() tells and the selection holds
    QString label;
    QString detail; ///< such as a formatted size
    qint64 bytes = 0;
    QColor color;
  };

  explicit Treemap(QWidget* parent = nullptr);

  /// In any order. Selection, hover and the ring stay, the ring with its key if that is still shown.
  void setItems(const QList<Item>& items);
  /// Keys that aren't shown match nothing. While there are any at all, every other tile is dimmed.
  void setSelected(const QSet<QString>& keys);

  /// Of the shown tiles, largest first, in the map's coordinates, with the gaps that are left between them.
  [[nodiscard]] const QList<QRectF>& rects() const { return m_rects; }

  [[nodiscard]] QAccessible::Role itemsRole() const override { return QAccessible::List; }
  [[nodiscard]] QAccessible::Role itemRole() const override { return QAccessible::ListItem; }
  [[nodiscard]] int itemCount() const override { return int(m_items.size()); }
  [[nodiscard]] AccessibleItems::Item itemAt(int index) const override;
  /// Ignores an index out of range.
  void activateItem(int index) override;

 signals:
  /// The tile with this key was clicked, with any button, or Space was pressed on it.
  void toggled(const QString& key);
  /// Enter was pressed on the tile with this key.
  void opened(const QString& key);

 protected:
  void resizeEvent(QResizeEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void leaveEvent(QEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  void relayout();
  [[nodiscard]] bool isSelected(int index) const { return m_selected.contains(m_items[index].key); }
  [[nodiscard]] int lastTile() const;
  [[nodiscard]] QString tipOf(int index) const;
  void setHover(int index);
  void moveCursor(int index);
  void refresh();
  void paintPicture(double ratio);
  void paintTiles(QPainter* painter) const;
  void paintTile(QPainter* painter, int index) const;
  void paintText(QPainter* painter, const TreemapTile& tile, int index) const;

  QList<Item> m_items;
  QList<QRectF> m_rects;
  QSet<QString> m_selected;
  int m_hover = -1; ///< the tile under the pointer; may lie beyond the list until the next move
  int m_cursor = 0; ///< the tile that the keyboard works
  KeyboardFocus* m_focus;

  // Gradients and glows take their time, and most repaints change a tile or two, or none.
  QPixmap m_picture; ///< of all tiles, without the ring
  QRegion m_stale;   ///< what of it must be painted anew
};

} // namespace ui
