#include "ui/shell/linux/Notifications.h"

#include "app/identity.h"
#include "ui/linux/bus.h"

#include <QCoreApplication>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QGuiApplication>

using namespace Qt::StringLiterals;

namespace ui {
namespace {

constexpr auto kService = "org.freedesktop.Notifications"_L1; // its interface has the same name
constexpr auto kPath = "/org/freedesktop/Notifications"_L1;
constexpr auto kDefaultAction = "default"_L1; // what a click on the message itself means

QDBusMessage call(const char* method) {
  return QDBusMessage::createMethodCall(kService, kPath, kService, QString::fromLatin1(method));
}

} // namespace

Notifications& Notifications::get() {
  static QPointer<Notifications> one;
  if (!one) one = new Notifications(QCoreApplication::instance());
  return *one;
}

Notifications::Notifications(QObject* parent) : QObject(parent), m_bus(u"none"_s) {
  if (!desktop::hasSessionBus()) return;
  m_bus = QDBusConnection::sessionBus();
  m_bus.connect(kService, kPath, kService, u"ActionInvoked"_s, this, SLOT(actionInvoked(uint, QString)));
}

void Notifications::show(QObject* context, const trayhost::Message& message, std::function<void()> clicked,
                         std::function<void()> failed) {
  if (!m_bus.isConnected()) return failed();
  m_context = context;
  m_clicked = std::move(clicked);
  const auto fail = [context = m_context, failed = std::move(failed)] {
    if (context) failed();
  };
  askForMarkup([this, message, fail](bool readsMarkup) { send(message, readsMarkup, fail); });
}

void Notifications::askForMarkup(const std::function<void(bool)>& answered) {
  auto* watcher = new QDBusPendingCallWatcher(m_bus.asyncCall(call("GetCapabilities")), this);
  connect(watcher, &QDBusPendingCallWatcher::finished, this, [answered](QDBusPendingCallWatcher* done) {
    const QDBusPendingReply<QStringList> reply = *done;
    answered(reply.isValid() && reply.value().contains("body-markup"_L1));
    done->deleteLater();
  });
}

void Notifications::send(const trayhost::Message& message, bool readsMarkup, const std::function<void()>& failed) {
  QDBusMessage notify = call("Notify");
  notify << QString(identity::kName) << m_last << QGuiApplication::desktopFileName() << message.title
         << (readsMarkup ? message.text.toHtmlEscaped() : message.text)
         << QStringList{kDefaultAction, QCoreApplication::translate("Tray", "Open Tarnwick")}
         << QVariantMap{{u"desktop-entry"_s, QGuiApplication::desktopFileName()}} << message.shownMs;
  auto* watcher = new QDBusPendingCallWatcher(m_bus.asyncCall(notify), this);
  connect(watcher, &QDBusPendingCallWatcher::finished, this, [this, failed](QDBusPendingCallWatcher* done) {
    const QDBusPendingReply<uint> reply = *done;
    reply.isValid() ? void(m_last = reply.value()) : failed();
    done->deleteLater();
  });
}

void Notifications::actionInvoked(uint id, const QString& key) {
  if (id == m_last && key == kDefaultAction && m_context && m_clicked) m_clicked();
}

} // namespace ui
