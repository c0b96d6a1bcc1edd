/// Paints the cells of the Space Map's list. User-interface thread only.
#pragma once

#include <QPolygonF>
#include <QRect>
#include <QStyledItemDelegate>

class QAbstractItemView;
struct LargeFile;

namespace ui {

class LargeFilesModel;

/// The pieces of a cell of this rectangle, in the same coordinates. Lengths in pixels.
struct FileCellLayout {
  QRect line;     ///< under every cell
  QRectF box;     ///< of the tick
  QRectF boxBody; ///< what is painted of it
  double boxRadius = 0;
  QPolygonF tick; ///< an open line
  QRectF tile;    ///< of the kind, before the name
  double tileRadius = 0;
  QRectF icon; ///< in the tile
  QRect name;  ///< the name at its top, the folder at its bottom
  QRect text;  ///< of the cells that hold one line
};
[[nodiscard]] FileCellLayout fileCellLayout(const QRect& cell, Qt::LayoutDirection direction = Qt::LeftToRight);

/// Every cell by hand: nothing is left to the style. It follows the pointer over the list, whose rows move under a
/// resting one when the list scrolls.
class LargeFileDelegate : public QStyledItemDelegate {
  Q_OBJECT

 public:
  static constexpr int kRowHeight = 54;

  /// @param view  shows @p model; owns the delegate
  LargeFileDelegate(LargeFilesModel* model, QAbstractItemView* view);

  /// The row under the pointer; -1 for none.
  [[nodiscard]] int hoverRow() const { return m_hoverRow; }

  bool eventFilter(QObject* watched, QEvent* event) override;
  void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override;
  [[nodiscard]] QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;

 private:
  void updateHover();
  void paintCell(QPainter* painter, const QRect& cell, const QModelIndex& index) const;

  LargeFilesModel* m_model;
  QAbstractItemView* m_view;
  int m_hoverRow = -1;
};

} // namespace ui
