/// What tests of painted controls look at: a look, a picture of a widget, colours as a painter mixes them, repaints, a
/// program that goes from right to left.
#pragma once

#include "app/AppSettings.h"

#include <QColor>
#include <QEvent>
#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <QWidget>

namespace pixels {

/// The look of the installed theme, dark or light.
inline void setLook(bool dark) { AppSettings::instance().setThemeMode(dark ? AppSettings::Dark : AppSettings::Light); }

/// The widget on nothing, so that a pixel tells what was painted there and how opaque.
inline QImage rendered(QWidget& widget, double ratio = 1) {
  QImage image(widget.size() * ratio, QImage::Format_ARGB32_Premultiplied);
  image.setDevicePixelRatio(ratio);
  image.fill(Qt::transparent);
  widget.render(&image, {}, {}, {});
  return image.convertToFormat(QImage::Format_ARGB32);
}

/// One colour laid over another, as the painter does.
inline QColor over(const QColor& upper, const QColor& lower) {
  QImage image(1, 1, QImage::Format_ARGB32_Premultiplied);
  image.fill(lower);
  QPainter(&image).fillRect(0, 0, 1, 1, upper);
  return image.pixelColor(0, 0);
}

/// The colour of the pixel that holds a point.
inline QColor at(const QImage& image, const QPointF& point) { return image.pixelColor(int(point.x()), int(point.y())); }

/// What a gradient has at a point.
inline QColor brushAt(const QBrush& brush, const QPointF& point) {
  QImage image(int(point.x()) + 1, int(point.y()) + 1, QImage::Format_ARGB32_Premultiplied);
  image.fill(Qt::transparent);
  QPainter(&image).fillRect(image.rect(), brush);
  return at(image, point);
}

/// @p colour with another alpha, as a fraction.
inline QColor faded(QColor colour, double alpha) {
  colour.setAlphaF(float(alpha));
  return colour;
}

/// The same but for rounding, which weighs more the fainter a colour is.
inline bool isNear(const QColor& seen, const QColor& wanted) {
  const int slack = 3 + 255 / qMax(1, seen.alpha());
  return qAbs(seen.alpha() - wanted.alpha()) <= 3 && qAbs(seen.red() - wanted.red()) <= slack &&
         qAbs(seen.green() - wanted.green()) <= slack && qAbs(seen.blue() - wanted.blue()) <= slack;
}

/// Whether nothing is painted on it.
inline bool isBlank(const QImage& image) {
  for (int y = 0; y < image.height(); ++y)
    for (int x = 0; x < image.width(); ++x)
      if (image.pixelColor(x, y).alpha() != 0) return false;
  return true;
}

/// How many pixels of a part of a picture are near a colour.
inline int count(const QImage& image, const QRectF& part, const QColor& wanted) {
  const QRect rect = part.toRect() & image.rect();
  int found = 0;
  for (int y = rect.top(); y <= rect.bottom(); ++y)
    for (int x = rect.left(); x <= rect.right(); ++x)
      if (isNear(image.pixelColor(x, y), wanted)) ++found;
  return found;
}

/// Where two pictures of one size differ.
inline QRect difference(const QImage& one, const QImage& other) {
  QRect found;
  for (int y = 0; y < one.height(); ++y)
    for (int x = 0; x < one.width(); ++x)
      if (one.pixel(x, y) != other.pixel(x, y)) found |= QRect(x, y, 1, 1);
  return found;
}

/// While it lives, the program goes from right to left.
class Mirrored {
 public:
  Mirrored() { QGuiApplication::setLayoutDirection(Qt::RightToLeft); }
  ~Mirrored() { QGuiApplication::setLayoutDirection(Qt::LeftToRight); }
  Q_DISABLE_COPY_MOVE(Mirrored)
};

/// Counts the paint events of a widget.
class Repaints : public QObject {
 public:
  explicit Repaints(QWidget* widget) { widget->installEventFilter(this); }
  int count = 0;

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override {
    if (event->type() == QEvent::Paint) ++count;
    return QObject::eventFilter(watched, event);
  }
};

} // namespace pixels
