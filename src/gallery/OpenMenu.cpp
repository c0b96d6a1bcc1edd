#include "gallery/OpenMenu.h"

#include "ui/shell/TitleBar.h"

#include <QApplication>
#include <QEvent>
#include <QMenu>

namespace gallery {

namespace {

constexpr int kEdgeAt = 440; // x of the window's right edge on the screen, which leaves room for the menus; pixels

} // namespace

OpenMenu::OpenMenu(ui::MainWindow* window) : QObject(window), m_window(window) {
  window->installEventFilter(this);
  open();
}

void OpenMenu::open() {
  while (QWidget* popup = QApplication::activePopupWidget()) popup->close(); // the submenu, then the menu
  m_window->move(kEdgeAt - m_window->width(), 0);
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
