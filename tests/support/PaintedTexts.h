/// Reads what a widget paints: every run of text, where it lies and how much of it can be seen. A stand-in for a
/// reader's eye that needs no picture.
#pragma once

#include <QFont>
#include <QList>
#include <QRectF>
#include <QString>

class QWidget;

struct PaintedText {
  QString text;
  QRectF box;  ///< from ascent to descent, in the widget's coordinates
  QRectF clip; ///< what the painter lets through there; the whole widget where it holds nothing back
  QFont font;
  double baseline = 0;

  /// The letters' own rectangle, which is often smaller than the box.
  [[nodiscard]] QRectF ink() const;
};

/// What @p widget, without its children, paints now, in the order of painting. Runs that stand on one line and touch
/// are one text. What it paints into pictures of its own isn't seen.
[[nodiscard]] QList<PaintedText> paintedTexts(QWidget* widget);
