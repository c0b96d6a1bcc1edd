#include "ui/shell/Tray.h"

#include "app/AppSettings.h"
#include "app/AppState.h"
#include "app/identity.h"
#include "core/fmt.h"
#include "ui/icons.h"
#include "ui/shell/MainWindow.h"
#include "ui/shell/macsupport.h"

#include <QCoreApplication>
#include <QMenu>
#include <QSystemTrayIcon>

using namespace Qt::StringLiterals;

namespace ui {
namespace {

using commands::Id;

constexpr int kMessageMs = 6000;

struct Words {
  Q_DECLARE_TR_FUNCTIONS(Tray)
};

/// Entries that bring the window to the front and then do something in it. A null text is a line between entries.
struct Entry {
  const char* text;
  Id command = Id::Separator;
};
constexpr Entry kWork[] = {
    {QT_TRANSLATE_NOOP("Tray", "Smart Scan"), Id::SmartScan},
    {QT_TRANSLATE_NOOP("Tray", "Find Large Files"), Id::FindLargeFiles},
};
constexpr Entry kProgram[] = {
    {QT_TRANSLATE_NOOP("Tray", "Settings"), Id::OpenSettings},
    {QT_TRANSLATE_NOOP("Tray", "Check for Updates"), Id::CheckForUpdates},
};

template <size_t count>
void add(QMenu* menu, MainWindow* window, const Entry (&entries)[count]) {
  for (const Entry& entry : entries) {
    if (!commands::isOffered(*commands::entry(entry.command))) continue;
    menu->addAction(Words::tr(entry.text), window, [window, command = entry.command] {
      window->showFromTray();
      window->perform(command);
    });
  }
  menu->addSeparator();
}

} // namespace

Tray::Tray(MainWindow* window, AppState* state, TrayDesktop desktop)
    : QObject(window), m_window(window), m_state(state), m_desktop(std::move(desktop)) {
  connect(&AppSettings::instance(), &AppSettings::changed, this, &Tray::sync);
  m_desktop.watch(this, [this] { sync(); });
  sync();
}

Tray::~Tray() = default;

bool Tray::isShown() const { return m_icon && m_icon->isVisible() && available(); }

bool Tray::mayAppear() const { return !isShown() && AppSettings::instance().showInTray() && m_desktop.mayComeLater(); }

void Tray::sync() {
  const bool wanted = AppSettings::instance().showInTray() && available();
  if (wanted == (m_icon != nullptr)) return;
  wanted ? makeIcon() : removeIcon();
  emit shownChanged();
}

void Tray::makeIcon() {
  m_icon = new QSystemTrayIcon(icons::trayIcon(), this);
  m_icon->setToolTip(identity::kName);
  buildMenu();
  if (m_menu) m_icon->setContextMenu(m_menu);
  connect(m_icon, &QSystemTrayIcon::activated, m_window, [window = m_window](QSystemTrayIcon::ActivationReason how) {
    if (how == QSystemTrayIcon::Trigger || how == QSystemTrayIcon::DoubleClick) window->showFromTray();
  });
  connect(m_icon, &QSystemTrayIcon::messageClicked, m_window, &MainWindow::showFromTray);
  m_icon->setVisible(true);
  (void)macsupport::guardStatusItemMenu(); // where it can't be guarded, the menu opens as the system has it
}

// The menu may be the one in which the user has just switched the icon off.
void Tray::removeIcon() {
  delete m_icon;
  m_icon = nullptr;
  if (m_menu) m_menu->deleteLater();
}

void Tray::buildMenu() {
  m_menu = new QMenu(m_window);
  m_menu->addAction(icons::appIcon(), Words::tr("Open Tarnwick"), m_window, &MainWindow::showFromTray)->setIcon({});
  m_menu->addSeparator();
  add(m_menu, m_window, kWork);
  m_status = m_menu->addAction(QString());
  m_status->setEnabled(false);
  m_menu->addSeparator();
  add(m_menu, m_window, kProgram);
  m_menu->addAction(Words::tr("Quit Tarnwick"), qApp, &QCoreApplication::quit);
  connect(m_menu, &QMenu::aboutToShow, this, &Tray::refreshStatus);
}

void Tray::refreshStatus() {
  m_state->refreshVolume();
  const platform::Volume& volume = m_state->volume;
  //: %1: the disk; %2: the size of its free space
  m_status->setText(Words::tr("%1 · %2 free").arg(volume.name, fmt::bytes(volume.availableBytes)));
}

void Tray::notify(const QString& title, const QString& text) {
  if (!m_icon) return;
  const trayhost::Message message{.title = title, .text = text, .shownMs = kMessageMs};
  m_desktop.show(
      this, message, [window = m_window] { window->showFromTray(); },
      [this, message] {
        if (m_icon) m_icon->showMessage(message.title, message.text, icons::appIcon(), message.shownMs);
      });
}

} // namespace ui
