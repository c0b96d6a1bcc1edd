/// What the round visuals share: a value between 0 and 1, and two lines of text in their middle.
#pragma once

#include <QColor>
#include <QFont>
#include <QRectF>
#include <QString>

class QPainter;

namespace ui::dial {

/// @p value, but not below 0 and not above 1; what is no number is 0.
[[nodiscard]] double fraction(double value);

/// Where the two lines stand.
struct TextBoxes {
  QRectF headline; ///< centred in it
  QRectF caption;  ///< centred at its top
};
struct Line {
  QString text;
  QFont font;
  QColor colour;
};
void paintText(QPainter* painter, const TextBoxes& boxes, const Line& headline, const Line& caption);

/// Both lines as one text, for those who hear it.
[[nodiscard]] QString spoken(const QString& headline, const QString& caption);

} // namespace ui::dial
