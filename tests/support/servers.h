/// Servers of a desktop that a test starts for itself: a session bus, a screen of X11. They end with their objects.
#pragma once

#include "support/FixtureHome.h"
#include "support/child.h"

#include <QFile>
#include <QProcess>
#include <QProcessEnvironment>
#include <QStandardPaths>
#include <QString>

namespace servers {

/// A program that tells on a line of its own when, and where, it can be reached.
class Server {
 public:
  Server() = default;
  Server(const Server&) = delete;
  Server& operator=(const Server&) = delete;
  ~Server() {
    m_process.terminate();
    if (m_process.state() != QProcess::NotRunning && !m_process.waitForFinished(3000)) {
      m_process.kill();
      m_process.waitForFinished(3000);
    }
  }

  /// Starts @p program and waits for its first line. False if it isn't installed or says nothing in ten seconds.
  bool start(const QString& program, const QStringList& arguments) {
    if (QStandardPaths::findExecutable(program).isEmpty()) return false;
    m_process.setChildProcessModifier([] { child::dieWithParent(); });
    m_process.start(program, arguments);
    while (!m_process.canReadLine())
      if (!m_process.waitForReadyRead(10000)) return false;
    m_answer = QString::fromUtf8(m_process.readLine()).trimmed();
    return !m_answer.isEmpty();
  }

  /// What it said.
  [[nodiscard]] QString answer() const { return m_answer; }
  /// 0 while nothing runs.
  [[nodiscard]] qint64 processId() const { return m_process.processId(); }

 private:
  QProcess m_process;
  QString m_answer;
};

/// A message bus without services; its answer is its address.
inline bool startBus(Server* server) {
  return server->start(QStringLiteral("dbus-daemon"),
                       {QStringLiteral("--session"), QStringLiteral("--nofork"), QStringLiteral("--print-address=1")});
}

/// A message bus that starts nothing by itself, whatever is installed, and lets everybody in; its answer is its
/// address.
/// @param home  keeps its settings and its socket
inline bool startEmptyBus(Server* server, const FixtureHome& home) {
  QFile config(home.file(QStringLiteral("bus.conf"), 0));
  if (!config.open(QIODevice::WriteOnly)) return false;
  config.write("<busconfig><type>session</type><listen>unix:dir=" + home.folder(QStringLiteral("bus")).toUtf8() +
               "</listen><policy context='default'><allow send_destination='*'/><allow receive_sender='*'/>"
               "<allow own='*'/></policy></busconfig>");
  config.close();
  return server->start(QStringLiteral("dbus-daemon"),
                       {QStringLiteral("--config-file=") + config.fileName(), QStringLiteral("--nofork"),
                        QStringLiteral("--print-address=1")});
}

/// A screen that nobody sees, without a window manager and without a compositor; its answer is its number.
inline bool startScreen(Server* server) {
  return server->start(QStringLiteral("Xvfb"),
                       {QStringLiteral("-displayfd"), QStringLiteral("1"), QStringLiteral("-screen"),
                        QStringLiteral("0"), QStringLiteral("1280x1024x24"), QStringLiteral("-nolisten"),
                        QStringLiteral("tcp")});
}

/// The environment of a program on that screen.
inline QProcessEnvironment onScreen(const Server& screen) {
  QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
  environment.insert(QStringLiteral("DISPLAY"), QStringLiteral(":") + screen.answer());
  environment.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("xcb"));
  environment.remove(QStringLiteral("WAYLAND_DISPLAY"));
  return environment;
}

} // namespace servers
