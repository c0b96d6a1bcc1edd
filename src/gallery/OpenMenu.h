/// Keeps the title bar's menu of a window open, with its submenu, at its place for every size of the window.
#pragma once

#include "ui/shell/MainWindow.h"

namespace gallery {

/// Goes with the window.
class OpenMenu : public QObject {
 public:
  explicit OpenMenu(ui::MainWindow* window);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void open();

  ui::MainWindow* m_window;
};

} // namespace gallery
