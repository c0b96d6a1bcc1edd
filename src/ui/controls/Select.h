/// The drop-down choice of the interface: a combo box that paints itself and opens a list of its own.
#pragma once

#include "ui/accessible.h"

#include <QComboBox>
#include <QPointer>

class QPainter;

namespace ui {

class KeyboardFocus;
class SelectPopup;

/// Where the pieces of the closed control lie.
struct SelectLayout {
  QRectF body;
  QRectF text;
  QRectF chip;     ///< mac metrics: under the arrows
  QPointF chevron; ///< other metrics: the middle of the arrow
};
[[nodiscard]] SelectLayout selectLayout(const QSize& size, bool open, Qt::LayoutDirection direction = Qt::LeftToRight);

/// Space, Enter and F4 open the list; the arrow keys choose without opening it. The wheel goes to what scrolls behind
/// it.
class Select : public QComboBox, public AccessibleDropDown {
  Q_OBJECT

 public:
  explicit Select(QWidget* parent = nullptr);

  [[nodiscard]] bool isOpen() const;

  [[nodiscard]] QSize sizeHint() const override;
  [[nodiscard]] QSize minimumSizeHint() const override;
  /// Without items nothing opens.
  void showPopup() override;
  void hidePopup() override;

  [[nodiscard]] QAccessible::Role itemsRole() const override { return QAccessible::ComboBox; }
  [[nodiscard]] QAccessible::Role itemRole() const override { return QAccessible::ListItem; }
  [[nodiscard]] int itemCount() const override { return count(); }
  /// Nowhere on the screen: the rows that one can see are those of the list.
  [[nodiscard]] Item itemAt(int index) const override;
  void activateItem(int index) override;
  [[nodiscard]] QString chosenText() const override { return currentText(); }
  [[nodiscard]] bool isExpanded() const override { return isOpen(); }
  void setExpanded(bool on) override { on ? showPopup() : hidePopup(); }

 protected:
  bool event(QEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  void paintBody(QPainter* painter, const SelectLayout& layout) const;
  void paintArrows(QPainter* painter, const SelectLayout& layout) const;
  void paintArrow(QPainter* painter, const SelectLayout& layout) const;

  QPointer<SelectPopup> m_popup;
  KeyboardFocus* m_focus;
};

} // namespace ui
