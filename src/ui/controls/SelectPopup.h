/// The list that ui::Select opens: over the control, with the current row on top of it.
#pragma once

#include "ui/accessible.h"

#include <QElapsedTimer>
#include <QPointer>
#include <QWidget>

class QComboBox;
class QPainter;

namespace ui {

/// Where the popup and its rows lie. All lengths in pixels; the shadow's margin on every side belongs to the popup.
struct SelectPopupLayout {
  static constexpr int kMargin = 14; ///< for the shadow

  /// @param mac  which of the two metric sets
  explicit SelectPopupLayout(bool mac);

  [[nodiscard]] QSize popupSize(int widestText, int selectWidth, int rows) const;
  /// @param select     of the control, in global coordinates
  /// @param row        the one that is to lie over the control; negative stands for the first
  /// @param available  of the screen; the shadow may pass beyond its edges
  [[nodiscard]] QPoint popupPlace(const QRect& select, int row, const QSize& popup, const QRect& available,
                                  Qt::LayoutDirection direction = Qt::LeftToRight) const;
  [[nodiscard]] QRectF rowRect(int row, int popupWidth) const;
  /// The first row that holds @p point, or -1.
  [[nodiscard]] int rowAt(const QPointF& point, int rows, int popupWidth) const;
  [[nodiscard]] static QRectF body(const QSize& popup);

  int rowHeight;
  int inset;      ///< of the text from the row's leading edge
  int overhang;   ///< how far rows reach beyond the control's leading edge
  int extraWidth; ///< beyond the control's width
  int extraHeight;
};

/// One opening: made to be shown, deletes itself when closed.
class SelectPopup : public QWidget, public AccessibleItems {
  Q_OBJECT

 public:
  /// How long after the opening the release of the click that opened it may come.
  static constexpr int kReleaseGraceMs = 300;

  explicit SelectPopup(QComboBox* select);
  /// Places, shows and fades in the popup.
  void open();
  /// The highlighted row; -1 for none.
  [[nodiscard]] int hovered() const { return m_hovered; }

  [[nodiscard]] QAccessible::Role itemsRole() const override { return QAccessible::List; }
  [[nodiscard]] QAccessible::Role itemRole() const override { return QAccessible::ListItem; }
  [[nodiscard]] int itemCount() const override { return rows(); }
  [[nodiscard]] Item itemAt(int index) const override;
  void activateItem(int index) override { choose(index); }

 protected:
  void mouseReleaseEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void closeEvent(QCloseEvent* event) override;
  void hideEvent(QHideEvent* event) override;

 private:
  [[nodiscard]] int rows() const;
  [[nodiscard]] int current() const;
  void setHovered(int row);
  void choose(int row);
  void fadeIn();
  void paintBody(QPainter* painter) const;
  void paintRow(QPainter* painter, int row) const;
  [[nodiscard]] QColor markMac(QPainter* painter, const QRectF& rect, int row) const;
  [[nodiscard]] QColor markWin(QPainter* painter, const QRectF& rect, int row) const;

  QPointer<QComboBox> m_select;
  SelectPopupLayout m_layout;
  int m_hovered;
  QElapsedTimer m_sinceOpening;
};

} // namespace ui
