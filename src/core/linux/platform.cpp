/// The desktop's services: the file manager's own D-Bus interface (freedesktop.org, "File Manager D-Bus Interface").
#include "core/platform.h"

#include "core/names.h"

#include <QCoreApplication>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCall>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDesktopServices>
#include <QDir>
#include <QFileInfo>
#include <QThreadPool>
#include <QUrl>

using namespace Qt::StringLiterals;

namespace platform {

namespace {
/// A file manager that isn't there is told at once; one that has to start first may take a while.
constexpr int kAnswerLimitMs = 10000;

/// What the file manager is asked, the folder to open if it doesn't answer, and who is told of the outcome.
struct Wish {
  QString method;
  QString path;
  QString folder;
  std::function<void(bool)> done = {};
};

void tell(const Wish& wish, bool isShown) {
  if (wish.done) wish.done(isShown);
}

void openInDesktop(const Wish& wish) { tell(wish, QDesktopServices::openUrl(QUrl::fromLocalFile(wish.folder))); }

/// Whether a session bus is there to connect to. Without one the bus library may start one, and wait for that.
bool hasSessionBus() {
  const QByteArray address = qgetenv("DBUS_SESSION_BUS_ADDRESS");
  if (!address.isEmpty()) return !address.startsWith("autolaunch:");
  const QString runtime = qEnvironmentVariable("XDG_RUNTIME_DIR");
  return !runtime.isEmpty() && QFileInfo::exists(runtime + "/bus"_L1);
}

QString fileUri(const QString& path) {
  return "file://"_L1 + QString::fromLatin1(names::encode(path).toPercentEncoding("/"));
}

/// On the application's thread, where the answer arrives.
void ask(const QDBusConnection& bus, const Wish& wish) {
  QDBusMessage call =
      QDBusMessage::createMethodCall(u"org.freedesktop.FileManager1"_s, u"/org/freedesktop/FileManager1"_s,
                                     u"org.freedesktop.FileManager1"_s, wish.method);
  call.setArguments({QStringList{fileUri(wish.path)}, QString()});
  auto* answer = new QDBusPendingCallWatcher(bus.asyncCall(call, kAnswerLimitMs), QCoreApplication::instance());
  QObject::connect(answer, &QDBusPendingCallWatcher::finished, answer, [wish](QDBusPendingCallWatcher* done) {
    done->isError() ? openInDesktop(wish) : tell(wish, true);
    done->deleteLater();
  });
}

/// Threads for connecting: those of the global pool may all be at work on a scan. The application outlives their work.
QThreadPool& connectors() {
  static QThreadPool pool;
  static const bool waits = [] {
    qAddPostRoutine([] { pool.waitForDone(); });
    return true;
  }();
  Q_UNUSED(waits);
  return pool;
}

/// Connecting waits for the bus, and so it is left to a thread; the question is asked, and answered, on the
/// application's.
void send(const Wish& wish) {
  QCoreApplication* app = QCoreApplication::instance();
  if (app == nullptr) return;
  connectors().start([app, wish] {
    const auto proceed = [app](auto step) { QMetaObject::invokeMethod(app, step, Qt::QueuedConnection); };
    if (!hasSessionBus()) return static_cast<void>(proceed([wish] { openInDesktop(wish); }));
    const QDBusConnection bus = QDBusConnection::sessionBus();
    proceed([bus, wish] { bus.isConnected() ? ask(bus, wish) : openInDesktop(wish); });
  });
}
} // namespace

Host builtFor() { return Host::Linux; }

qint64 importantCapacity(const QString& /*rootPath*/) { return 0; }

void revealInFileManager(const QString& path, const std::function<void(bool)>& done) {
  const QString clean = QDir::cleanPath(path);
  send({u"ShowItems"_s, clean, QFileInfo(clean).path(), done});
}

void openFolder(const QString& path) {
  const QString clean = QDir::cleanPath(path);
  send({u"ShowFolders"_s, clean, clean});
}

void openFullDiskAccessSettings() {}

} // namespace platform
