/// Lists the keyboard shortcuts of the window, by the menus that the commands belong to.
#pragma once

#include "ui/shell/Overlay.h"
#include "ui/shell/commands.h"

class QGridLayout;
class QVBoxLayout;

namespace ui {

class CommandSet;

class ShortcutsOverlay : public Overlay {
  Q_OBJECT

 public:
  /// Shows what @p commands has keys for, as it is now.
  ShortcutsOverlay(const CommandSet& commands, QWidget* parent);

 private:
  [[nodiscard]] QVBoxLayout* column(const CommandSet& commands, std::initializer_list<commands::Menu> menus) const;
  [[nodiscard]] QGridLayout* group(const CommandSet& commands, commands::Menu menu) const;
  void addFooter(QVBoxLayout* body);
  void fitWidth();
};

} // namespace ui
