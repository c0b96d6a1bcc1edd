#include "ui/pages/SettingsPage.h"

#include "app/AppState.h"
#include "app/identity.h"
#include "app/loginentry.h"
#include "core/appguard.h"
#include "core/deployment.h"
#include "core/login.h"
#include "core/platform.h"
#include "core/safety.h"
#include "engines/Cleaner.h"
#include "ui/Theme.h"
#include "ui/controls/Button.h"
#include "ui/controls/PageHeader.h"
#include "ui/controls/Select.h"
#include "ui/controls/Switch.h"
#include "ui/controls/factory.h"
#include "ui/i18n.h"
#include "ui/pages/SettingsRows.h"
#include "ui/pages/SettingsWords.h"

#include <QDesktopServices>
#include <QDir>
#include <QProcess>
#include <QScrollArea>
#include <QSignalBlocker>
#include <QUrl>
#include <QVBoxLayout>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace ui {

namespace {

// Lengths in pixels.
constexpr int kWidthMac = 820;
constexpr int kWidthWin = 824;
constexpr int kWideChoice = 200;
constexpr int kRulesSpacing = 6;
constexpr QMargins kRulesMargins(62, 0, 18, 14);

AppSettings& settings() { return AppSettings::instance(); }
bool isLinux() { return platform::host() == platform::Host::Linux; }

using Store = void (AppSettings::*)(bool);
QWidget* switchRow(const SettingsRowWords& words, bool present, Store store) {
  auto* control = new Switch;
  control->setChecked(present);
  QObject::connect(control, &Switch::toggled, &settings(), [store](bool on) { (settings().*store)(on); });
  return settingsRow(words, control);
}

/// Calls @p chosen with the value of each choice that is made.
template <typename Chosen>
Select* select(const QList<SettingsChoice>& choices, int present, int minWidth, Chosen chosen) {
  Select* control = settingsSelect(choices, present, minWidth);
  QObject::connect(control, &Select::currentIndexChanged, control,
                   [control, chosen](int index) { chosen(control->itemData(index).toInt()); });
  return control;
}

template <typename Chosen>
QWidget* choiceRow(const SettingsRowWords& words, const QList<SettingsChoice>& choices, int present, Chosen chosen) {
  return settingsRow(words, select(choices, present, kUsualChoiceWidth, chosen));
}

QWidget* lockedRow(const SettingsRowWords& words) {
  //: Beside a rule that can not be changed
  return settingsRow(words, settingsStatus(u"shield"_s, SettingsWords::tr("Locked")));
}

QWidget* buttonRow(const SettingsRowWords& words, const QString& text, void (*pressed)()) {
  auto* button = new Button(text);
  QObject::connect(button, &Button::clicked, button, pressed);
  return settingsRow(words, button);
}

QWidget* administratorRow() {
  const QString title = SettingsWords::tr("Administrator access");
  if (platform::isElevated())
    return settingsRow({u"lock"_s, title,
                        SettingsWords::tr("Tarnwick is running as administrator and can clean Windows Update files.")},
                       //: Beside a permission that Tarnwick has
                       settingsStatus(u"check"_s, SettingsWords::tr("Granted")));
  return buttonRow({u"lock"_s, title, SettingsWords::tr("Only needed to clean Windows Update leftovers.")},
                   SettingsWords::tr("Restart as admin"), [] {
                     if (platform::relaunchElevated()) QCoreApplication::quit();
                   });
}

QWidget* diskAccessRow() {
  return buttonRow({u"lock"_s, SettingsWords::tr("Full Disk Access"),
                    SettingsWords::tr("Needed to clean Safari's cache and the Trash.")},
                   SettingsWords::tr("Open Settings"), [] { platform::openFullDiskAccessSettings(); });
}

void openLogs() {
  const QString folder = Cleaner::logDir();
  QDir().mkpath(folder); // a user who never cleaned gets an empty folder rather than an error
  QDesktopServices::openUrl(QUrl::fromLocalFile(folder));
}

// The new process waits until this one has left, which it is doing when the other one asks.
void restart() {
  if (QProcess::startDetached(login::program(), {})) QCoreApplication::quit();
}

/// The languages by their own names; the first item follows the system and has no code.
Select* languageSelect() {
  auto* control = new Select;
  //: Of the languages: follow the system; %1: the language that this is now
  control->addItem(SettingsWords::tr("System default (%1)").arg(i18n::nativeName(i18n::systemLanguage())), QString());
  for (const i18n::Language& one : i18n::languages()) control->addItem(one.name, one.code);
  control->setCurrentIndex(std::max(0, control->findData(settings().language())));
  control->setMinimumWidth(kWideChoice);
  return control;
}

} // namespace

SettingsPage::SettingsPage(AppState* state, QWidget* parent)
    : QWidget(parent), m_state(state), m_exclusionsLayout(vbox(kRulesSpacing, kRulesMargins)) {
  QVBoxLayout* column = nullptr;
  m_scroll = scrollPage(&column);
  m_scroll->widget()->setMaximumWidth(Theme::get().mac ? kWidthMac : kWidthWin);
  QVBoxLayout* root = vbox();
  setLayout(root);
  root->addWidget(new PageHeader(SettingsWords::tr("Settings")));
  root->addWidget(m_scroll, 1);
  //: Heading of settings
  addSettingsSection(column, SettingsWords::tr("Cleaning"), cleaningRows());
  addSettingsSection(column, SettingsWords::tr("Automation"), automationRows());
  addSettingsSection(column, SettingsWords::tr("Appearance"), appearanceRows());
  //: Heading of settings: what is never cleaned
  addSettingsSection(column, SettingsWords::tr("Exclusions"), exclusionRows());
  //: Heading of settings: about Tarnwick
  addSettingsSection(column, isLinux() ? SettingsWords::tr("About") : SettingsWords::tr("Permissions & about"),
                     aboutRows());
  column->addStretch();
  connect(&settings(), &AppSettings::changed, this, &SettingsPage::refreshRulesNote);
  rebuildExclusions();
  refreshRulesNote();
  if (!deployment::updatesItself()) hideUpdates();
}

QList<QWidget*> SettingsPage::cleaningRows() {
  //: %1: the Trash
  QWidget* trash = switchRow({u"trash"_s, SettingsWords::tr("Move items to the %1").arg(platform::trashName()),
                              SettingsWords::tr("Recommended. Turn off to delete files permanently.")},
                             settings().moveToTrash(), &AppSettings::setMoveToTrash);
  QWidget* large = choiceRow({u"ruler"_s, SettingsWords::tr("Large file size"),
                              SettingsWords::tr("Files bigger than this appear in Large & Old Files.")},
                             {{SettingsWords::tr("100 MB"), 100},
                              {SettingsWords::tr("250 MB"), 250},
                              {SettingsWords::tr("500 MB"), 500},
                              {SettingsWords::tr("1 GB"), 1000}},
                             settings().largeFileMB(), [state = m_state](int megabytes) {
                               settings().setLargeFileMB(megabytes);
                               if (state->largeScanned) state->startLargeScan();
                             });
  QWidget* old = choiceRow({u"clock"_s, SettingsWords::tr("Consider files old after"),
                            //: “Unused” as on the page Space Map
                            SettingsWords::tr("Used by the “Unused” filter.")},
                           //: How long a file has not been opened
                           {{SettingsWords::tr("3 months"), 3},
                            {SettingsWords::tr("6 months"), 6},
                            {SettingsWords::tr("12 months"), 12},
                            {SettingsWords::tr("24 months"), 24}},
                           settings().oldMonths(), [](int months) { settings().setOldMonths(months); });
  return {trash, large, old};
}

QList<QWidget*> SettingsPage::automationRows() {
  QWidget* schedule = choiceRow(
      {u"calendar"_s, SettingsWords::tr("Scheduled scan"),
       SettingsWords::tr("Scans when Tarnwick starts if the last scan is older than this. Never cleans on its own.")},
      //: Of the scheduled scan: never
      {{SettingsWords::tr("Off"), AppSettings::Off},
       {SettingsWords::tr("Weekly"), AppSettings::Weekly},
       {SettingsWords::tr("Monthly"), AppSettings::Monthly}},
      settings().schedule(), [](int value) { settings().setSchedule(AppSettings::Schedule(value)); });
  QWidget* alerts = switchRow(
      {u"bell"_s, SettingsWords::tr("Low space alerts"), SettingsWords::tr("Warn when free space drops below 10%.")},
      settings().lowSpaceAlerts(), &AppSettings::setLowSpaceAlerts);
  const bool hasTrayRow = isLinux() || Theme::get().mac;
  return {schedule, alerts, loginRow(), hasTrayRow ? trayRow() : closeRow()};
}

QWidget* SettingsPage::loginRow() {
  auto* control = new Switch;
  control->setChecked(settings().startAtLogin());
  connect(control, &Switch::toggled, this, [this, control](bool on) { chooseLogin(control, on); });
  const bool plain = isLinux() || Theme::get().mac;
  return settingsRow({u"sparkle"_s,
                      plain ? SettingsWords::tr("Open at login") : SettingsWords::tr("Start with Windows"),
                      SettingsWords::tr("Starts Tarnwick in the background so scheduled scans can run.")},
                     control);
}

void SettingsPage::chooseLogin(Switch* control, bool on) {
  const QString trouble = loginentry::set(on);
  if (trouble.isEmpty()) return;
  const QSignalBlocker silently(control);
  control->setChecked(settings().startAtLogin());
  emit m_state->toast(trouble, false);
}

QWidget* SettingsPage::trayRow() {
  const QString title = isLinux() ? SettingsWords::tr("Show Tarnwick in the system tray")
                                  : SettingsWords::tr("Show Tarnwick in the menu bar");
  return switchRow({u"drive"_s, title,
                    SettingsWords::tr("Closing the window keeps Tarnwick running there, so scheduled scans and low "
                                      "space alerts keep working.")},
                   settings().showInTray(), &AppSettings::setShowInTray);
}

QWidget* SettingsPage::closeRow() {
  Select* control = select({{SettingsWords::tr("Ask every time"), AppSettings::Ask},
                            {SettingsWords::tr("Keep running in the tray"), AppSettings::KeepInTray},
                            {SettingsWords::tr("Quit Tarnwick"), AppSettings::Quit}},
                           settings().closeAction(), kWideChoice,
                           [](int value) { settings().setCloseAction(AppSettings::CloseAction(value)); });
  connect(&settings(), &AppSettings::changed, control, [control] {
    const int index = control->findData(int(settings().closeAction()));
    if (index < 0 || index == control->currentIndex()) return;
    const QSignalBlocker silently(control);
    control->setCurrentIndex(index);
  });
  return settingsRow(
      {u"drive"_s, SettingsWords::tr("When closing the window"),
       SettingsWords::tr("In the tray, Tarnwick keeps running so scheduled scans and low space alerts keep working.")},
      control);
}

QList<QWidget*> SettingsPage::appearanceRows() {
  QWidget* theme = choiceRow(
      //: Light or dark colours
      {u"image"_s, SettingsWords::tr("Theme"), SettingsWords::tr("Follow the system, or always use light or dark.")},
      //: Of the theme: as the system has it
      {{SettingsWords::tr("System"), AppSettings::System},
       //: Of the theme: light colours
       {SettingsWords::tr("Light"), AppSettings::Light},
       //: Of the theme: dark colours
       {SettingsWords::tr("Dark"), AppSettings::Dark}},
      settings().themeMode(), [](int value) { settings().setThemeMode(AppSettings::ThemeMode(value)); });
  return {theme, languageRow()};
}

// The language of a running window never changes; the button is there while another one is chosen.
QWidget* SettingsPage::languageRow() {
  Select* control = languageSelect();
  auto* restartNow = new Button(SettingsWords::tr("Restart now"), "primary");
  restartNow->hide();
  connect(restartNow, &Button::clicked, restartNow, &restart);
  const QString running = i18n::effectiveLanguage();
  connect(control, &Select::currentIndexChanged, restartNow, [control, restartNow, running](int index) {
    const QString code = control->itemData(index).toString();
    settings().setLanguage(code);
    restartNow->setVisible((code.isEmpty() ? i18n::systemLanguage() : code) != running);
  });
  return settingsRow(
      {u"globe"_s, SettingsWords::tr("Language"), SettingsWords::tr("Tarnwick restarts to switch languages.")}, control,
      restartNow);
}

QList<QWidget*> SettingsPage::exclusionRows() {
  return {rulesRow(),
          lockedRow({u"lock"_s, SettingsWords::tr("Protected system locations"),
                     //: Follows a list of folders
                     safety::protectedSummary() + SettingsWords::tr(" — always skipped.")}),
          lockedRow({u"shield"_s, SettingsWords::tr("Protected apps"),
                     appguard::protectedSummary() +
                         //: Follows a list of kinds of apps
                         SettingsWords::tr(" — their data is never cleaned. Caches of running apps and open files are "
                                           "skipped too.")})};
}

QList<QWidget*> SettingsPage::aboutRows() {
  if (isLinux()) return {programRow()};
  return {Theme::get().mac ? diskAccessRow() : administratorRow(), programRow()};
}

QWidget* SettingsPage::programRow() {
  auto* logs = new Button(SettingsWords::tr("Open logs"), nullptr, u"file"_s);
  connect(logs, &Button::clicked, logs, &openLogs);
  m_checkButton = new Button(SettingsWords::tr("Check for updates"), nullptr, u"refresh"_s);
  connect(m_checkButton, &Button::clicked, this, &SettingsPage::checkForUpdates);
  m_programRow = settingsRow(
      {u"info"_s, identity::kName + u' ' + identity::kVersion,
       SettingsWords::tr("Every cleanup writes a log you can review. Tarnwick checks for updates when it starts.")},
      logs, m_checkButton);
  return m_programRow;
}

void SettingsPage::hideUpdates() {
  const QString words = SettingsWords::tr("Every cleanup writes a log you can review.");
  m_checkButton->hide();
  m_programRow->setToolTip(words);
  for (Button* one : m_programRow->findChildren<Button*>()) one->setAccessibleDescription(words);
}

// What a screen shows is to be true, whoever has damaged the store meanwhile.
void SettingsPage::showEvent(QShowEvent* event) {
  QWidget::showEvent(event);
  settings().look();
}

} // namespace ui
