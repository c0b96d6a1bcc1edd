#include "ui/shell/linux/StatusNotifier.h"

#include "ui/linux/bus.h"

#include <QCoreApplication>
#include <QDBusPendingCallWatcher>
#include <QDBusVariant>
#include <QPointer>

using namespace Qt::StringLiterals;

namespace ui {
namespace {

constexpr auto kService = "org.kde.StatusNotifierWatcher"_L1; // its interface has the same name
constexpr auto kPath = "/StatusNotifierWatcher"_L1;

// One that is running answers within a few milliseconds; another must not hold up the start.
constexpr int kFirstReadMs = 150;

QDBusMessage question() {
  QDBusMessage call = QDBusMessage::createMethodCall(kService, kPath, u"org.freedesktop.DBus.Properties"_s, u"Get"_s);
  call << QString(kService) << u"IsStatusNotifierHostRegistered"_s;
  return call;
}

} // namespace

StatusNotifier& StatusNotifier::get() {
  static QPointer<StatusNotifier> one;
  if (!one) one = new StatusNotifier(QCoreApplication::instance());
  return *one;
}

StatusNotifier::StatusNotifier(QObject* parent) : QObject(parent), m_bus(u"none"_s) {
  if (!desktop::hasSessionBus()) return;
  m_bus = QDBusConnection::sessionBus();
  if (!m_bus.isConnected()) return;
  for (const char* signal : {"StatusNotifierHostRegistered", "StatusNotifierHostUnregistered"})
    m_bus.connect(kService, kPath, kService, QString::fromLatin1(signal), this, SLOT(readLater()));
  m_service.setConnection(m_bus);
  m_service.setWatchMode(QDBusServiceWatcher::WatchForOwnerChange);
  m_service.addWatchedService(kService);
  connect(&m_service, &QDBusServiceWatcher::serviceOwnerChanged, this, &StatusNotifier::readLater);
  readAtOnce();
}

void StatusNotifier::readAtOnce() {
  const QDBusMessage reply = m_bus.call(question(), QDBus::Block, kFirstReadMs);
  const bool isSlow = QDBusError(reply).type() == QDBusError::NoReply;
  isSlow ? readLater() : take(reply);
}

void StatusNotifier::readLater() {
  auto* watcher = new QDBusPendingCallWatcher(m_bus.asyncCall(question()), this);
  connect(watcher, &QDBusPendingCallWatcher::finished, this, [this](QDBusPendingCallWatcher* done) {
    take(done->reply());
    done->deleteLater();
  });
}

// No service, or one that knows no such thing, shows nothing.
void StatusNotifier::take(const QDBusMessage& reply) {
  const bool isAnswer = reply.type() == QDBusMessage::ReplyMessage && !reply.arguments().isEmpty();
  const QVariant value = isAnswer ? reply.arguments().constFirst() : QVariant();
  const bool before = std::exchange(m_hasHost, value.value<QDBusVariant>().variant().toBool());
  if (m_hasHost != before) emit changed();
}

} // namespace ui
