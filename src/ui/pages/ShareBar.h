/// The thin bar of a row that tells its share of the largest.
#pragma once

#include "ui/accessible.h"

#include <QColor>
#include <QRectF>
#include <QWidget>

namespace ui {

/// The filled part of a bar of this size; a share above 0 is never too small to be seen.
[[nodiscard]] QRectF shareBarFill(const QSizeF& bar, double share);

/// It fills from the side where its layout begins.
class ShareBar : public QWidget, public AccessibleValue {
  Q_OBJECT

 public:
  using QWidget::QWidget;

  double share = 0; ///< from 0 to 1; call update() after a change
  QColor colour;    ///< call update() after a change

  [[nodiscard]] QString valueText() const override;
  [[nodiscard]] double valueFraction() const override { return share; }

 protected:
  void paintEvent(QPaintEvent* event) override;
};

} // namespace ui
