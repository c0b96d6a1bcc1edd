#include "ui/shell/program.h"

#include "app/AppSettings.h"
#include "app/AppState.h"
#include "app/identity.h"
#include "app/loginentry.h"
#include "app/records.h"
#include "core/Interrupts.h"
#include "engines/LargeFileFinder.h"
#include "ui/Theme.h"
#include "ui/i18n.h"
#include "ui/shell/Instance.h"
#include "ui/shell/MainWindow.h"

#include <QApplication>
#include <QTimer>

#include <chrono>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace ui {
namespace {

constexpr auto kAfterStart = 400ms; // the window has painted by then
constexpr qint64 kLowPart = 10;     // less than a tenth free is low

struct Words {
  Q_DECLARE_TR_FUNCTIONS(Main)
};

QString updateText() { return Words::tr("Tarnwick was updated to version %1.").arg(identity::kVersion); }

bool isLow(const platform::Volume& volume) {
  return volume.totalBytes >= 1 && volume.availableBytes < volume.totalBytes / kLowPart;
}

Instance::Wish wishOf(const StartOptions& options) {
  if (options.updated) return Instance::Wish::Updated;
  return options.background ? Instance::Wish::Nothing : Instance::Wish::Show;
}

void obey(MainWindow* window, Instance::Wish wish) {
  switch (wish) {
  case Instance::Wish::Show:
    window->showFromTray();
    break;
  case Instance::Wish::Updated:
    window->showFromTray();
    window->showToast(updateText(), false);
    break;
  case Instance::Wish::Nothing:
    break;
  }
}

} // namespace

StartOptions startOptions(const QStringList& arguments) {
  return {.background = arguments.contains(u"--background"_s), .updated = arguments.contains(u"--updated"_s)};
}

void showAtStart(MainWindow* window, const StartOptions& options) {
  options.background ? window->stayHidden() : window->show();
}

void afterStart(MainWindow* window, AppState* state, const StartOptions& options) {
  const AppSettings& settings = AppSettings::instance();
  if (settings.lowSpaceAlerts() && isLow(state->volume))
    //: %1: the disk, such as “System disk”
    window->notify(Words::tr("%1 is almost full. Run Smart Scan to free up space.").arg(state->volume.name));
  if (options.updated) window->showToast(updateText(), false);
  if (settings.scheduledScanDue()) state->startScan();
}

int runProgram(int argc, char** argv) {
  QGuiApplication::setHighDpiScaleFactorRoundingPolicy(Qt::HighDpiScaleFactorRoundingPolicy::PassThrough);
  QApplication app(argc, argv);
  identity::apply();
  QGuiApplication::setDesktopFileName(u"tarnwick"_s);
  QApplication::setStyle(u"Fusion"_s);
  const StartOptions options = startOptions(QCoreApplication::arguments());
  Instance instance;
  if (instance.start(wishOf(options)) == Instance::Outcome::Heard) return 0;

  loginentry::keep();
  records::registerMetaTypes();
  i18n::install(&app);
  Theme::get().install(&app);
  AppState state;
  MainWindow window(&state);
  window.restoreWindowState();
  QObject::connect(&app, &QCoreApplication::aboutToQuit, &window, &MainWindow::saveWindowState);
  QObject::connect(&app, &QCoreApplication::aboutToQuit, &instance, &Instance::leave);
  // What runs is to end while the window is taken down, not only after it.
  QObject::connect(&app, &QCoreApplication::aboutToQuit, &state, &AppState::cancelScan);
  QObject::connect(&app, &QCoreApplication::aboutToQuit, &state, &AppState::stopClean);
  QObject::connect(&app, &QCoreApplication::aboutToQuit, state.largeFinder, &LargeFileFinder::cancel);
  QObject::connect(&instance, &Instance::asked, &window, [&window](Instance::Wish wish) { obey(&window, wish); });
  const Interrupts interrupts;
  QObject::connect(&interrupts, &Interrupts::interrupted, &app, &QCoreApplication::quit);
  showAtStart(&window, options);
  QTimer::singleShot(kAfterStart, &window, [&] { afterStart(&window, &state, options); });
  return QApplication::exec();
}

} // namespace ui
