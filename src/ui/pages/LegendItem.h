/// One amount of a legend: a coloured square with its label, and the amount below.
#pragma once

#include "ui/accessible.h"

#include <QBrush>
#include <QWidget>

namespace ui {

class LegendItem : public QWidget, public AccessibleText {
  Q_OBJECT

 public:
  /// @param swatch  no brush shows the square of what is not filled
  LegendItem(const QString& label, const QString& amount, const QBrush& swatch = Qt::NoBrush,
             QWidget* parent = nullptr);

  /// "Available, 210 GB"
  [[nodiscard]] QString shownText() const override { return m_shown; }

 private:
  QString m_shown;
};

} // namespace ui
