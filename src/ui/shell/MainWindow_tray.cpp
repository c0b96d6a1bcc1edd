// The window between the screen and the tray: closed, hidden, brought back; and where a message goes meanwhile.
#include "ui/shell/MainWindow.h"

#include "app/identity.h"
#include "core/platform.h"
#include "ui/shell/Toast.h"
#include "ui/shell/Tray.h"
#include "ui/shell/macsupport.h"

#include <QCloseEvent>
#include <QCoreApplication>
#include <QMenuBar>
#include <QPointer>

#include <utility>

namespace ui {

void MainWindow::buildTray(const TrayDesktop& desktop) {
  m_trayWait.setSingleShot(true);
  m_trayWait.setInterval(desktop.patience);
  connect(&m_trayWait, &QTimer::timeout, this, [this] {
    if (isHidden()) showMinimized();
    endWaiting();
  });
  m_tray = new Tray(this, m_state, desktop);
  connect(m_tray, &Tray::shownChanged, this, &MainWindow::followTray);
  macsupport::onDockReopen([window = QPointer(this)] {
    if (window && (window->isHidden() || window->isMinimized())) window->showFromTray();
  });
}

// A hidden window that nothing can bring back is no help. A tray that goes may come again, as when a panel restarts.
void MainWindow::followTray() {
  if (m_tray->isShown()) return endWaiting();
  if (isHidden() && !m_quitting) stayHidden();
}

void MainWindow::stayHidden() {
  if (m_tray->isShown()) return;
  m_tray->mayAppear() ? m_trayWait.start() : showMinimized();
}

void MainWindow::endWaiting() {
  m_trayWait.stop();
  const QString message = std::exchange(m_waitingMessage, {});
  if (!message.isEmpty()) notify(message);
}

void MainWindow::notify(const QString& text) {
  const bool canBeSeen = isVisible() && !isMinimized();
  if (!canBeSeen && m_trayWait.isActive())
    m_waitingMessage = text;
  else if (!canBeSeen && m_tray->isShown())
    m_tray->notify(identity::kName, text);
  else
    m_toast->show(text, false);
}

void MainWindow::showFromTray() {
  isMinimized() ? showNormal() : show();
  raise();
  activateWindow();
  endWaiting();
}

void MainWindow::hideToTray() { hide(); }

// Where no tray shows that the program lives on, a click in the dock brings the window back, if there is a dock.
void MainWindow::closeEvent(QCloseEvent* event) {
  saveWindowState();
  if (!m_quitting && m_tray->isShown()) {
    event->ignore();
    return hideToTray();
  }
  QWidget::closeEvent(event);
  if (!m_quitting && platform::builtFor() == platform::Host::Linux) QCoreApplication::quit();
}

} // namespace ui
