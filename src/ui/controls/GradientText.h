/// A line of text in a gradient: the big numbers.
#pragma once

#include "ui/accessible.h"

#include <QColor>
#include <QFont>
#include <QLinearGradient>
#include <QList>
#include <QWidget>

namespace ui {

/// Where a text of this width stands: in the middle of the widget, over its whole height.
[[nodiscard]] QRectF gradientTextBox(const QSize& widget, int textWidth);

class GradientText : public QWidget, public AccessibleText {
  Q_OBJECT

 public:
  explicit GradientText(const QFont& font, QWidget* parent = nullptr);

  void setText(const QString& text);
  [[nodiscard]] QString text() const { return m_text; }

  /// The colours from the upper left to the lower right, evenly spread. Fewer than two: the brand gradient. Call
  /// update() after a change.
  QList<QColor> stops;

  [[nodiscard]] QSize sizeHint() const override;
  [[nodiscard]] QString shownText() const override { return m_text; }

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  [[nodiscard]] int textWidth() const;
  [[nodiscard]] QLinearGradient gradient(const QRectF& box) const;

  QFont m_font;
  QString m_text;
};

} // namespace ui
