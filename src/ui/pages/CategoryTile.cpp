#include "ui/pages/CategoryTile.h"

#include "app/records.h"
#include "core/fmt.h"
#include "ui/Theme.h"
#include "ui/controls/ElidedLabel.h"
#include "ui/controls/IconTile.h"
#include "ui/controls/KeyboardFocus.h"
#include "ui/controls/factory.h"
#include "ui/paint.h"

#include <QKeyEvent>
#include <QLabel>
#include <QMouseEvent>
#include <QPainter>
#include <QVBoxLayout>

namespace ui {

namespace {
// Lengths in pixels.
constexpr int kLeastHeight = 98;
constexpr int kSpacing = 10;
constexpr QMargins kMargins(14, 14, 14, 13);
constexpr int kLineSpacing = 2;
constexpr int kIconSize = 30;
constexpr double kRadius = 14;
constexpr double kRingInset = 4; // the ring lies inside, as there is no room around the tile

constexpr QStringView kDash = u"—";
} // namespace

CategoryTile::CategoryTile(const CategoryDef& category, const QString& amount, std::function<void()> onClick,
                           QWidget* parent)
    : QWidget(parent),
      m_id(category.id),
      m_shown(amount.isEmpty() ? category.title : fmt::list({category.title, amount})),
      m_onClick(std::move(onClick)),
      m_focus(new KeyboardFocus(this)) {
  QVBoxLayout* lines = vbox(kLineSpacing);
  lines->addWidget(new ElidedLabel(category.title, "strong"));
  lines->addWidget(label(amount.isEmpty() ? kDash.toString() : amount, "mono"));
  QVBoxLayout* column = vbox(kSpacing, kMargins);
  column->addWidget(new IconTile(category.icon, category.colour, kIconSize));
  column->addStretch();
  column->addLayout(lines);
  setLayout(column);
  setMinimumHeight(kLeastHeight);
  setToolTip(category.blurb);
  setAttribute(Qt::WA_Hover);
  setFocusPolicy(m_onClick ? Qt::StrongFocus : Qt::NoFocus);
  connect(&Theme::get(), &Theme::changed, this, qOverload<>(&QWidget::update));
}

bool CategoryTile::showsFocus() const { return m_focus->isVisible(); }

void CategoryTile::press() {
  if (m_onClick) m_onClick();
}

bool CategoryTile::event(QEvent* event) {
  if (event->type() == QEvent::HoverEnter || event->type() == QEvent::HoverLeave) update();
  return QWidget::event(event);
}

void CategoryTile::keyPressEvent(QKeyEvent* event) {
  if (!pressFrom(this, event)) QWidget::keyPressEvent(event);
}

/// Taken, so that nothing below the tile takes the click for its own.
void CategoryTile::mousePressEvent(QMouseEvent* event) { event->setAccepted(bool(m_onClick)); }

void CategoryTile::mouseReleaseEvent(QMouseEvent* event) {
  if (event->button() == Qt::LeftButton && rect().contains(event->position().toPoint())) press();
}

void CategoryTile::paintEvent(QPaintEvent* /*event*/) {
  const Theme& theme = Theme::get();
  const bool hot = m_onClick && underMouse();
  const QRectF body = paint::hairline(rect());
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  paint::roundedRect(&painter, body, kRadius, hot ? theme.cardHover : theme.card,
                     paint::pen(hot ? theme.lineStrong : theme.line));
  m_focus->paintRing(&painter, body.adjusted(kRingInset, kRingInset, -kRingInset, -kRingInset), kRadius - kRingInset);
}

} // namespace ui
