/// The small button that collapses the sidebar and brings it back.
#pragma once

#include "ui/controls/PaintedButton.h"

#include <QLineF>
#include <QRectF>

namespace ui {

struct SidebarToggleLayout {
  QRectF panel;
  QLineF divider;
};
[[nodiscard]] SidebarToggleLayout sidebarToggleLayout(const QSize& size,
                                                      Qt::LayoutDirection direction = Qt::LeftToRight);

/// A click of the mouse doesn't give it the focus, Tab does.
class SidebarToggle : public PaintedButton {
  Q_OBJECT

 public:
  explicit SidebarToggle(QWidget* parent = nullptr);

  [[nodiscard]] QSize sizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;
};

} // namespace ui
