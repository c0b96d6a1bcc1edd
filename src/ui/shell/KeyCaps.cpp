#include "ui/shell/KeyCaps.h"

#include "ui/Theme.h"
#include "ui/paint.h"

#include <QPainter>

namespace ui {
namespace {

// Lengths in pixels.
constexpr double kHeight = 22;
constexpr double kPadding = 7; // beside a text, at each side
constexpr double kGap = 4;
constexpr double kRadius = 6;
constexpr int kFontPx = 11;
constexpr int kFontWeight = 500;

QFont capFont() { return Theme::get().mono(kFontPx, kFontWeight); }

} // namespace

QStringList keyNames(const QKeySequence& keys) {
  const QString whole = keys.toString(QKeySequence::NativeText);
  QStringList names = whole.split(u'+', Qt::SkipEmptyParts);
  if (whole.endsWith(u'+')) names << QString(u'+'); // the key itself
  return names;
}

// A box is at least as wide as it is high. They stand from left to right in every layout, as keys are named.
QList<QRectF> keyCapsLayout(const QList<int>& textWidths) {
  QList<QRectF> boxes;
  double x = 0;
  for (const int text : textWidths) {
    boxes << QRectF(x, 0, qMax(kHeight, text + 2 * kPadding), kHeight);
    x = boxes.last().right() + kGap;
  }
  return boxes;
}

KeyCaps::KeyCaps(const QKeySequence& keys, QWidget* parent) : QWidget(parent), m_keys(keys), m_names(keyNames(keys)) {
  setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
  connect(&Theme::get(), &Theme::changed, this, qOverload<>(&QWidget::update));
}

QList<QRectF> KeyCaps::boxes() const {
  const QFontMetrics metrics(capFont());
  QList<int> widths;
  for (const QString& name : m_names) widths << metrics.horizontalAdvance(name);
  return keyCapsLayout(widths);
}

QSize KeyCaps::sizeHint() const {
  const QList<QRectF> all = boxes();
  return all.isEmpty() ? QSize() : QSize(qCeil(all.last().right()), qCeil(kHeight));
}

QString KeyCaps::shownText() const { return m_keys.toString(QKeySequence::NativeText); }

void KeyCaps::paintEvent(QPaintEvent* /*event*/) {
  const Theme& theme = Theme::get();
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setFont(capFont());
  const QList<QRectF> all = boxes();
  for (qsizetype i = 0; i < all.size(); ++i) {
    paint::roundedRect(&painter, paint::hairline(all[i]), kRadius, theme.surface2, paint::pen(theme.lineStrong));
    painter.setPen(theme.text2);
    paint::text(&painter, all[i], Qt::AlignCenter, m_names[i]);
  }
}

} // namespace ui
