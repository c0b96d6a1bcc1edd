#include "ui/shell/CommandSet.h"

#include <QApplication>
#include <QMenuBar>
#include <QMetaObject>

#include <algorithm>

namespace ui {
namespace {

using commands::Entry;
using commands::Id;

struct Edit {
  Id id;
  const char* method;
  const char* signature;
};
constexpr Edit kEdits[] = {
    {Id::Undo, "undo", "undo()"}, {Id::Redo, "redo", "redo()"},    {Id::Cut, "cut", "cut()"},
    {Id::Copy, "copy", "copy()"}, {Id::Paste, "paste", "paste()"}, {Id::SelectAll, "selectAll", "selectAll()"},
};

bool knows(const QWidget* widget, const Edit& edit) {
  return widget && widget->metaObject()->indexOfMethod(edit.signature) >= 0;
}

} // namespace

CommandSet::CommandSet(QObject* parent) : QObject(parent) {
  for (const Entry& entry : commands::entries())
    if (entry.id != Id::Separator && commands::isOffered(entry)) addAction(entry);
  connect(qApp, &QApplication::focusChanged, this, [this](QWidget*, QWidget* now) { followFocus(now); });
  followFocus(QApplication::focusWidget());
}

void CommandSet::addAction(const Entry& entry) {
  auto* action = new QAction(commands::textOf(entry), this);
  action->setShortcuts(commands::keysOf(entry));
  action->setMenuRole(entry.role);
  connect(action, &QAction::triggered, this, [this, id = entry.id] { emit triggered(id); });
  m_actions.insert(entry.id, action);
}

void CommandSet::fill(QMenuBar* bar) {
  QHash<commands::Menu, QMenu*> menus;
  for (const Entry& entry : commands::entries()) {
    if (entry.where == commands::Where::WithoutMenuBar) continue;
    QMenu*& menu = menus[entry.menu];
    if (!menu) {
      menu = bar->addMenu(commands::titleOf(entry.menu));
      connect(menu, &QMenu::aboutToShow, this, &CommandSet::aboutToShow);
    }
    if (entry.id == Id::Separator)
      menu->addSeparator();
    else if (QAction* one = action(entry.id))
      menu->addAction(one);
  }
}

void CommandSet::addTo(QWidget* window) const {
  for (const Entry& entry : commands::entries())
    if (QAction* one = action(entry.id)) window->addAction(one);
}

void CommandSet::setSituation(const commands::Situation& situation) {
  for (const Id id : {Id::ToggleSidebar, Id::ToggleFullScreen})
    action(id)->setText(commands::textOf(*commands::entry(id), situation));
}

void CommandSet::followFocus(QWidget* focused) {
  for (const Edit& edit : kEdits) action(edit.id)->setEnabled(knows(focused, edit));
}

void CommandSet::edit(Id id) {
  QWidget* focused = QApplication::focusWidget();
  const auto* edit = std::ranges::find(kEdits, id, &Edit::id);
  if (edit != std::end(kEdits) && knows(focused, *edit)) QMetaObject::invokeMethod(focused, edit->method);
}

} // namespace ui
