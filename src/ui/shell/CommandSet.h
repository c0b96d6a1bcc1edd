/// The window's commands as actions. A menu bar shows them; where there is none, the window carries them, so that every
/// shortcut works without one on screen.
#pragma once

#include "ui/shell/commands.h"

#include <QHash>
#include <QObject>

class QMenuBar;
class QWidget;

namespace ui {

/// The editing commands are those of the widget that has the focus: they rest while it knows no such thing, and leave
/// the keys to it. None acts twice, as a text field takes its own keys before any shortcut.
class CommandSet : public QObject {
  Q_OBJECT

 public:
  explicit CommandSet(QObject* parent);

  /// Null where the host in force doesn't offer it.
  [[nodiscard]] QAction* action(commands::Id id) const { return m_actions.value(id); }
  /// Builds the five menus of @p bar. What is only offered without a menu bar isn't in them.
  void fill(QMenuBar* bar);
  /// Gives all actions to @p window, whose shortcuts they are then.
  void addTo(QWidget* window) const;
  /// Brings up to date the texts that follow the window.
  void setSituation(const commands::Situation& situation);
  /// Calls an editing command on the widget that has the focus, if that knows it.
  static void edit(commands::Id id);

 signals:
  void triggered(ui::commands::Id id);
  /// A menu of the bar is about to be shown.
  void aboutToShow();

 private:
  void addAction(const commands::Entry& entry);
  void followFocus(QWidget* focused);

  QHash<commands::Id, QAction*> m_actions;
};

} // namespace ui
