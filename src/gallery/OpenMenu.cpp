#include "gallery/OpenMenu.h"

#include "ui/shell/TitleBar.h"

#include <QApplication>
#include <QEvent>
#include <QMenu>
#include <QScreen>

namespace gallery {

namespace {

// How far the edge beside which the menus open lies from the other side of the screen, which leaves them room; pixels.
constexpr int kEdgeAt = 440;

} // namespace

OpenMenu::OpenMenu(ui::MainWindow* window) : QObject(window), m_window(window) {
  window->installEventFilter(this);
  open();
}

void OpenMenu::open() {
  while (QWidget* popup = QApplication::activePopupWidget()) popup->close(); // the submenu, then the menu
  const bool isMirrored = m_window->layoutDirection() == Qt::RightToLeft;
  m_window->move(isMirrored ? m_window->screen()->geometry().width() - kEdgeAt : kEdgeAt - m_window->width(), 0);
  m_window->findChild<ui::TitleBar*>()->requestMenu();
  auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
  for (QAction* action : menu->actions())
    if (action->menu()) menu->setActiveAction(action);
}

bool OpenMenu::eventFilter(QObject* /*watched*/, QEvent* event) {
  const auto again = [this] { open(); };
  if (event->type() == QEvent::Resize) QMetaObject::invokeMethod(this, again, Qt::QueuedConnection);
  return false;
}

} // namespace gallery
