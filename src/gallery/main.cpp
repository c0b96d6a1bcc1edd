// tarnwick-gallery: shows every control in every state, or writes pictures of it. For developers; never installed.

#include "app/AppSettings.h"
#include "app/identity.h"
#include "app/records.h"
#include "gallery/GalleryWindow.h"
#include "gallery/shots.h"
#include "ui/Theme.h"
#include "ui/i18n.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QProcess>
#include <QProcessEnvironment>
#include <QSettings>
#include <QTemporaryDir>

#include <cstdio>
#include <cstring>

using namespace Qt::StringLiterals;

namespace {

constexpr int kFailed = 1;
constexpr int kWrongCall = 2;

// Asked before there is an application, as it decides on the application's platform.
bool wantsShots(int argc, char** argv) {
  for (int at = 1; at < argc; ++at)
    if (std::strncmp(argv[at], "--write", std::strlen("--write")) == 0) return true;
  return false;
}

// The user's own settings are neither read nor changed.
void useSettingsIn(const QTemporaryDir& folder) {
  QSettings::setDefaultFormat(QSettings::IniFormat);
  QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, folder.path());
  QSettings::setPath(QSettings::IniFormat, QSettings::SystemScope, folder.path());
}

void restart(bool mac, const QString& scale) {
  QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
  environment.insert(u"TARNWICK_LOOK"_s, mac ? u"mac"_s : u"win"_s);
  environment.insert(u"QT_SCALE_FACTOR"_s, scale);
  QProcess next;
  next.setProgram(QCoreApplication::applicationFilePath());
  next.setProcessEnvironment(environment);
  if (next.startDetached()) QCoreApplication::quit();
}

int showWindow() {
  AppSettings::instance().setThemeMode(Theme::get().dark ? AppSettings::Dark : AppSettings::Light);
  gallery::GalleryWindow window;
  QObject::connect(&window, &gallery::GalleryWindow::restartWanted, qApp, restart);
  window.showMaximized();
  return QApplication::exec();
}

int exitCode(const QString& wrong) {
  if (wrong.isEmpty()) return 0;
  std::fprintf(stderr, "tarnwick-gallery: %s\n", qPrintable(wrong));
  return kFailed;
}

} // namespace

int main(int argc, char** argv) {
  if (wantsShots(argc, argv)) qputenv("QT_QPA_PLATFORM", "offscreen");
  identity::apply();
  QApplication app(argc, argv);
  const QTemporaryDir settings;
  useSettingsIn(settings);
  QApplication::setStyle(u"Fusion"_s);
  records::registerMetaTypes();
  i18n::install(&app);
  Theme::get().install(&app);

  QCommandLineParser parser;
  parser.setApplicationDescription(u"Shows every control in every state. TARNWICK_LOOK (mac, win) and QT_SCALE_FACTOR "
                                   "decide on metrics and scale."_s);
  parser.addHelpOption();
  const QCommandLineOption sheet(u"write"_s, u"Writes pictures in both looks into DIR and ends."_s, u"DIR"_s);
  const QCommandLineOption views(u"write-views"_s, u"Writes pictures of the window's views into DIR and ends."_s,
                                 u"DIR"_s);
  const QCommandLineOption only(u"view"_s, u"Writes this view alone."_s, u"NAME"_s);
  parser.addOptions({sheet, views, only});
  if (!parser.parse(app.arguments()) || !parser.positionalArguments().isEmpty()) {
    std::fprintf(stderr, "%s\n", qPrintable(parser.helpText()));
    return kWrongCall;
  }
  if (parser.isSet(u"help"_s)) parser.showHelp();
  if (parser.isSet(views)) return exitCode(gallery::writeViews(parser.value(views), parser.value(only)));
  if (parser.isSet(sheet)) return exitCode(gallery::writeSheet(parser.value(sheet)));
  return showWindow();
}
