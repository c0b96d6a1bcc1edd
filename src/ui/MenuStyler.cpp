#include "ui/MenuStyler.h"

#include "ui/Theme.h"
#include "ui/popup.h"

#include <QEvent>
#include <QMenu>
#include <QPainter>

namespace {

constexpr double kRadius = 8; // as in the style sheet

void makeTranslucent(QMenu* menu) {
  menu->setAttribute(Qt::WA_TranslucentBackground);
  menu->setWindowFlags(menu->windowFlags() | Qt::FramelessWindowHint | Qt::NoDropShadowWindowHint);
}

void trim(QMenu* menu) {
  const auto* own = dynamic_cast<const MenuWithCard*>(menu);
  const MenuWithCard::Card card = own ? own->card() : MenuWithCard::Card{menu->rect(), kRadius};
  ui::trimWithoutCompositor(menu, card.rect, card.radius);
}

// Where the corners are cut, the pixels on the cut lie half on nothing, which is black there.
void fillCorners(QMenu* menu) {
  if (!menu->mask().isEmpty()) QPainter(menu).fillRect(menu->rect(), Theme::get().surface);
}

} // namespace

bool MenuStyler::eventFilter(QObject* watched, QEvent* event) {
  // The kind of event first: it is the cheaper question, and this sees every event of the program.
  switch (event->type()) {
  case QEvent::Polish:
    if (auto* menu = qobject_cast<QMenu*>(watched)) makeTranslucent(menu);
    break;
  case QEvent::Show:
  case QEvent::Resize:
    if (auto* menu = qobject_cast<QMenu*>(watched)) trim(menu);
    break;
  case QEvent::Paint:
    if (auto* menu = qobject_cast<QMenu*>(watched)) fillCorners(menu);
    break;
  default:
    break;
  }
  return false;
}
