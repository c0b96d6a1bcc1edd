#include "ui/shell/AppMenu.h"

#include "ui/Theme.h"
#include "ui/icons.h"
#include "ui/paint.h"

#include <QEvent>
#include <QGraphicsDropShadowEffect>
#include <QPainter>

using namespace Qt::StringLiterals;

namespace ui {
namespace {

constexpr char kTrailing[] = "appMenuTrailingText"; // property of an action

// Lengths in pixels.
constexpr int kMargin = 14; // around the card
constexpr double kRadius = 12;
constexpr int kFontPx = 13;
constexpr int kFontWeight = 400;
constexpr int kTrailingPx = 12;
constexpr int kIcon = 18;
constexpr int kRowRoom = 84;     // a row with a trailing text needs it beside its texts
constexpr int kSubmenuRoom = 16; // and its mark
constexpr int kFrameRoom = 42;   // margin, border and padding of the card, at both sides
constexpr double kEnd = 14;      // from a row's end to what stands there
constexpr double kEndBeforeMark = 30;
constexpr double kChevronWidth = 3.5;
constexpr double kChevronHalf = 4;
constexpr double kChevronPen = 1.4;
constexpr int kShadowLayers = 12;
constexpr double kShadowDrop = 2;
constexpr int kShadowLight = 5; // alpha, of 255
constexpr int kShadowDark = 12;

constexpr QStringView kSheet =
    u"QMenu { background: %1; color: %2; border: 1px solid %3; border-radius: 12px; padding: 6px; margin: %6px; }"
    "QMenu::item { padding: 8px 40px 8px 10px; border: 1px solid transparent; border-radius: 7px; background: "
    "transparent; }"
    "QMenu::item:selected { background: %4; color: %2; }"
    "QMenu::item:disabled { color: %5; }"
    "QMenu::separator { height: 1px; background: %3; margin: 4px 12px; }"
    "QMenu::icon { width: 18px; height: 18px; padding-left: 10px; }"
    "QMenu::right-arrow { image: none; width: 0; }";

QString named(const QColor& colour) { return colour.name(QColor::HexArgb); }

QString trailingText(const QAction* action) { return action->property(kTrailing).toString(); }

QFont trailingFont(QFont font) {
  font.setPixelSize(kTrailingPx);
  return font;
}

} // namespace

QRectF appMenuCard(const QSize& size) { return QRectF(QPointF(), size).adjusted(kMargin, kMargin, -kMargin, -kMargin); }

AppMenuRow appMenuRow(const QRect& row, bool hasSubmenu, Qt::LayoutDirection direction) {
  const QRectF whole(row);
  AppMenuRow result;
  const double end = hasSubmenu ? kEndBeforeMark : kEnd;
  const double y = whole.center().y() + 0.5;
  if (direction == Qt::RightToLeft) {
    const double x = whole.left() + kEnd;
    result.trailing = whole.adjusted(end, 0, 0, 0);
    result.chevron = {QPointF(x + kChevronWidth, y - kChevronHalf), {x, y}, {x + kChevronWidth, y + kChevronHalf}};
  } else {
    const double x = whole.right() - kEnd;
    result.trailing = whole.adjusted(0, 0, -end, 0);
    result.chevron = {QPointF(x - kChevronWidth, y - kChevronHalf), {x, y}, {x - kChevronWidth, y + kChevronHalf}};
  }
  return result;
}

AppMenu::AppMenu(QWidget* parent) : AppMenu(QString(), parent) {}

AppMenu::AppMenu(const QString& title, QWidget* parent) : QMenu(title, parent) {
  setWindowFlags(windowFlags() | Qt::FramelessWindowHint | Qt::NoDropShadowWindowHint);
  setAttribute(Qt::WA_TranslucentBackground);
  setFont(Theme::get().font(kFontPx, kFontWeight, false));
  dress();
  connect(&Theme::get(), &Theme::changed, this, &AppMenu::dress);
}

void AppMenu::dress() {
  const Theme& theme = Theme::get();
  setStyleSheet(kSheet.toString().arg(named(theme.surface), named(theme.text), named(theme.line), named(theme.hover),
                                      named(theme.text3), QString::number(kMargin)));
}

QIcon AppMenu::itemIcon(const QString& icon, const QColor& colour) {
  return icons::icon(icon, colour.isValid() ? colour : Theme::get().text2, kIcon);
}

QAction* AppMenu::addItem(const QString& icon, const QString& text, const QColor& colour) {
  QAction* action = addAction(itemIcon(icon, colour), text);
  connect(&Theme::get(), &Theme::changed, action, [action, icon, colour] { action->setIcon(itemIcon(icon, colour)); });
  return action;
}

AppMenu* AppMenu::addSubmenu(const QString& icon, const QString& text) {
  auto* submenu = new AppMenu(text, this);
  addItem(icon, text)->setMenu(submenu);
  return submenu;
}

void AppMenu::setTrailingText(QAction* action, const QString& text) {
  action->setProperty(kTrailing, text);
  updateMinimumWidth();
  update();
}

void AppMenu::updateMinimumWidth() {
  const QFontMetrics metrics(font());
  const QFontMetrics trailingMetrics(trailingFont(font()));
  int widest = 0;
  for (const QAction* action : actions()) {
    const QString trailing = trailingText(action);
    if (trailing.isEmpty()) continue;
    const int texts = metrics.horizontalAdvance(action->text()) + trailingMetrics.horizontalAdvance(trailing);
    widest = qMax(widest, texts + (action->menu() ? kSubmenuRoom : 0) + kRowRoom);
  }
  setMinimumWidth(widest < 1 ? 0 : widest + kFrameRoom);
}

MenuWithCard::Card AppMenu::card() const { return {.rect = appMenuCard(size()), .radius = kRadius}; }

// A style may give menus a shadow, and this one paints its own.
bool AppMenu::event(QEvent* event) {
  const bool result = QMenu::event(event);
  const bool isDressed = event->type() == QEvent::StyleChange || event->type() == QEvent::Polish;
  if (isDressed && qobject_cast<QGraphicsDropShadowEffect*>(graphicsEffect())) setGraphicsEffect(nullptr);
  return result;
}

// The cards of a menu and its submenu touch, in spite of the margins around them.
void AppMenu::showEvent(QShowEvent* event) {
  QMenu::showEvent(event);
  const auto* parentMenu = qobject_cast<AppMenu*>(parentWidget());
  if (!parentMenu || !parentMenu->isVisible()) return;
  move(x() < parentMenu->x() ? x() + kMargin : x() - kMargin, y());
}

void AppMenu::paintEvent(QPaintEvent* event) {
  {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    paintShadow(&painter);
  }
  QMenu::paintEvent(event);
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  paintRowEnds(&painter);
}

void AppMenu::paintShadow(QPainter* painter) const {
  paint::shadow(painter, appMenuCard(size()),
                {.layers = kShadowLayers,
                 .offsetY = kShadowDrop,
                 .radius = kRadius,
                 .peak = Theme::get().dark ? kShadowDark : kShadowLight,
                 .alpha = paint::Shadow::Alpha::Rounded});
}

void AppMenu::paintRowEnds(QPainter* painter) const {
  painter->setFont(trailingFont(font()));
  for (QAction* action : actions()) {
    if (!action->isVisible() || action->isSeparator()) continue;
    const bool hasSubmenu = action->menu() != nullptr;
    const AppMenuRow row = appMenuRow(actionGeometry(action), hasSubmenu, layoutDirection());
    painter->setPen(Theme::get().text3);
    paint::text(painter, row.trailing, Qt::AlignRight | Qt::AlignVCenter, trailingText(action));
    if (!hasSubmenu) continue;
    painter->setPen(paint::roundPen(Theme::get().text3, kChevronPen));
    painter->drawPolyline(row.chevron.data(), int(row.chevron.size()));
  }
}

} // namespace ui
