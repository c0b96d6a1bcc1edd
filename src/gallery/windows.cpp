#include "gallery/windows.h"

#include "app/AppState.h"
#include "ui/pages/CleanupPage.h"
#include "ui/shell/MainWindow.h"
#include "ui/shell/Sidebar.h"

#include <QEventLoop>

#include <memory>

using namespace Qt::StringLiterals;

namespace gallery {

namespace {

/// A base that comes before the window, as its state must outlive it.
struct OwnState {
  const std::unique_ptr<AppState> state = std::make_unique<AppState>();
};

class Window : private OwnState, public ui::MainWindow {
 public:
  explicit Window(int page) : MainWindow(OwnState::state.get()) { go(page); }

  void scan() {
    QEventLoop loop;
    connect(state.get(), &AppState::phaseChanged, &loop, [&] {
      if (state->phase != AppState::Scanning) loop.quit();
    });
    state->startScan();
    if (state->phase == AppState::Scanning) loop.exec();
  }
};

Window* afterScan(int page) {
  auto* window = new Window(page);
  window->scan();
  window->go(page); // a scan brings its own page to the front
  return window;
}

} // namespace

QWidget* overviewAtStart() { return new Window(ui::Sidebar::Overview); }
QWidget* cleanupAtStart() { return new Window(ui::Sidebar::Cleanup); }

QWidget* overviewAfterScan() { return afterScan(ui::Sidebar::Overview); }
QWidget* cleanupAfterScan() { return afterScan(ui::Sidebar::Cleanup); }

QWidget* cleanQuestion() {
  Window* window = afterScan(ui::Sidebar::Cleanup);
  window->show();
  emit window->findChild<ui::CleanupPage*>()->confirmRequested();
  return window;
}

QWidget* aboutDialog() {
  auto* window = new Window(ui::Sidebar::Overview);
  window->show();
  window->showAbout();
  return window;
}

QWidget* toast() {
  Window* window = afterScan(ui::Sidebar::Cleanup);
  window->show();
  window->showToast(u"Moved 12 items to the Trash"_s, true);
  return window;
}

} // namespace gallery
