/// An on-off switch; its knob jumps.
#pragma once

#include <QAbstractButton>

namespace ui {

struct SwitchLayout {
  QRectF track;
  QRectF knob;
};
/// @param size  of the whole widget
[[nodiscard]] SwitchLayout switchLayout(const QSize& size, bool checked,
                                        Qt::LayoutDirection direction = Qt::LeftToRight);

/// The keyboard's focus ring lies around it (FocusRing). Space and Enter turn it over, Left turns it off and Right on.
class Switch : public QAbstractButton {
  Q_OBJECT

 public:
  explicit Switch(QWidget* parent = nullptr);

  [[nodiscard]] QSize sizeHint() const override;

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
};

} // namespace ui
