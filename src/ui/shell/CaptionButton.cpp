#include "ui/shell/CaptionButton.h"

#include "ui/Theme.h"

#include <QFontDatabase>
#include <QPainter>

#include <cmath>

using namespace Qt::StringLiterals;

namespace ui {
namespace {

// Lengths in pixels.
constexpr QSize kSize(46, 40);
constexpr int kGlyphPx = 10;
constexpr double kHalf = 5; // of a drawn shape, but for the menu
constexpr double kMenuHalf = 6;
constexpr double kMenuStep = 4;
constexpr double kFrontSide = 8; // of the front square of two
constexpr double kFrontTop = -3;
constexpr double kBackLeft = -3;
constexpr double kBackEdge = 4; // where the lines of the hidden square end before its corner
constexpr double kBackBottom = 3;
constexpr double kRadius = 1.5;

const QColor kClose(0xc4, 0x2b, 0x1c);        // hue: close, under the mouse
const QColor kClosePressed(0xa6, 0x2a, 0x1d); // hue: close, pressed

/// The symbol font of the system, chosen once; empty if there is none.
QString glyphFamily() {
  static const QString family = [] {
    for (const QString& wanted : {u"Segoe Fluent Icons"_s, u"Segoe MDL2 Assets"_s})
      if (QFontDatabase::families().contains(wanted)) return wanted;
    return QString();
  }();
  return family;
}

QChar glyph(CaptionButton::Kind kind, bool maximized) {
  switch (kind) {
  case CaptionButton::Menu:
    return QChar(0xE700);
  case CaptionButton::Minimize:
    return QChar(0xE921);
  case CaptionButton::Maximize:
    return QChar(maximized ? 0xE923 : 0xE922);
  case CaptionButton::Close:
    return QChar(0xE8BB);
  }
  return {};
}

void line(QPainterPath* path, QPointF from, QPointF to) {
  path->moveTo(from);
  path->lineTo(to);
}

QPainterPath restoreShape() {
  QPainterPath path;
  path.addRoundedRect(QRectF(-kHalf, kFrontTop, kFrontSide, kFrontSide), kRadius, kRadius);
  line(&path, {kBackLeft, -kHalf}, {kBackEdge, -kHalf});
  line(&path, {kHalf, -kBackEdge}, {kHalf, kBackBottom});
  return path;
}

void paintGlyph(QPainter* painter, const QRect& rect, QChar symbol, const QColor& ink) {
  QFont font(glyphFamily());
  font.setPixelSize(kGlyphPx);
  QPainterPath path;
  path.addText(0, 0, font, symbol);
  const QPointF offset = QRectF(rect).center() - path.boundingRect().center();
  painter->translate(offset.toPoint()); // whole pixels, so that it stays crisp
  painter->fillPath(path, ink);
}

/// The middle of the pixel of the screen that holds @p point, so that a line of one pixel fills one row of them.
QPointF pixelMiddle(const QPainter& painter, const QPointF& point) {
  const QTransform toScreen = painter.deviceTransform();
  const QPointF there = toScreen.map(point);
  return toScreen.inverted().map(QPointF(std::ceil(there.x()) - 0.5, std::ceil(there.y()) - 0.5));
}

void paintShape(QPainter* painter, const QRect& rect, const QPainterPath& shape, const QColor& ink) {
  QPen pen(ink);
  pen.setCosmetic(true);
  painter->translate(pixelMiddle(*painter, QRectF(rect).center()));
  painter->setPen(pen);
  painter->setBrush(Qt::NoBrush);
  painter->drawPath(shape);
}

} // namespace

QPainterPath captionShape(CaptionButton::Kind kind, bool maximized) {
  QPainterPath path;
  switch (kind) {
  case CaptionButton::Menu:
    for (const double y : {-kMenuStep, 0.0, kMenuStep}) line(&path, {-kMenuHalf, y}, {kMenuHalf, y});
    break;
  case CaptionButton::Minimize:
    line(&path, {-kHalf, 0}, {kHalf, 0});
    break;
  case CaptionButton::Maximize:
    if (maximized) return restoreShape();
    path.addRoundedRect(QRectF(-kHalf, -kHalf, 2 * kHalf, 2 * kHalf), kRadius, kRadius);
    break;
  case CaptionButton::Close:
    line(&path, {-kHalf, -kHalf}, {kHalf, kHalf});
    line(&path, {kHalf, -kHalf}, {-kHalf, kHalf});
    break;
  }
  return path;
}

CaptionButton::CaptionButton(Kind kind, QWidget* parent) : PaintedButton(parent), m_kind(kind) {
  setFixedSize(kSize);
  setFocusPolicy(Qt::NoFocus);
}

bool CaptionButton::isMaximized() const { return window()->isMaximized(); }

void CaptionButton::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  const QColor ink = paintBody(&painter);
  painter.setRenderHint(QPainter::Antialiasing);
  if (glyphFamily().isEmpty())
    paintShape(&painter, rect(), captionShape(m_kind, isMaximized()), ink);
  else
    paintGlyph(&painter, rect(), glyph(m_kind, isMaximized()), ink);
}

// Gives the colour of what stands on it.
QColor CaptionButton::paintBody(QPainter* painter) const {
  const Theme& theme = Theme::get();
  if (!isHovered() && !isDown()) return theme.text2;
  if (m_kind == Close) {
    painter->fillRect(rect(), isDown() ? kClosePressed : kClose);
    return Qt::white;
  }
  painter->fillRect(rect(), isDown() ? theme.press : theme.hover);
  return theme.text;
}

} // namespace ui
