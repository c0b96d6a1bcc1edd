#include "ui/linux/Portal.h"

#include "ui/linux/bus.h"

#include <QCoreApplication>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QPointer>

using namespace Qt::StringLiterals;

namespace desktop {

namespace {

constexpr auto kService = "org.freedesktop.portal.Desktop"_L1;
constexpr auto kPath = "/org/freedesktop/portal/desktop"_L1;
constexpr auto kInterface = "org.freedesktop.portal.Settings"_L1;

constexpr char kAppearance[] = "org.freedesktop.appearance";
constexpr char kScheme[] = "color-scheme";
constexpr char kLessMotion[] = "reduced-motion";
constexpr char kGnome[] = "org.gnome.desktop.interface";
constexpr char kAnimations[] = "enable-animations";

// A portal that is running answers within a few milliseconds; one that has yet to be started must not hold up ours.
constexpr int kFirstReadMs = 150;

// What the number under color-scheme means; any other is no preference.
constexpr uint kPrefersDark = 1;
constexpr uint kPrefersLight = 2;

QDBusMessage readCall(const char* group, const char* key) {
  QDBusMessage call = QDBusMessage::createMethodCall(kService, kPath, kInterface, u"Read"_s);
  call << QString::fromLatin1(group) << QString::fromLatin1(key);
  return call;
}

// Portals wrap the answer of Read in a variant, and older ones in two.
QVariant unwrapped(QVariant value) {
  while (value.userType() == qMetaTypeId<QDBusVariant>()) value = value.value<QDBusVariant>().variant();
  return value;
}

compat::Scheme schemeOf(const QVariant& value) {
  switch (value.toUInt()) {
  case kPrefersDark:
    return compat::Scheme::Dark;
  case kPrefersLight:
    return compat::Scheme::Light;
  default:
    return compat::Scheme::Unknown;
  }
}

bool isSlow(const QDBusMessage& reply) {
  const QDBusError::ErrorType error = QDBusError(reply).type();
  return error == QDBusError::NoReply || error == QDBusError::Timeout || error == QDBusError::TimedOut;
}

} // namespace

Portal& Portal::get() {
  static QPointer<Portal> portal;
  if (!portal) portal = new Portal(QCoreApplication::instance());
  return *portal;
}

Portal::Portal(QObject* parent) : QObject(parent), m_bus(u"none"_s) {
  if (!hasSessionBus()) return;
  m_bus = QDBusConnection::sessionBus();
  if (!m_bus.isConnected()) return;
  // The connection looks the slot's types up by their names, and refuses those that nobody has registered so far.
  qRegisterMetaType<QDBusVariant>();
  m_bus.connect(kService, kPath, kInterface, u"SettingChanged"_s, this,
                SLOT(settingChanged(QString, QString, QDBusVariant)));
  m_watcher.setConnection(m_bus);
  m_watcher.setWatchMode(QDBusServiceWatcher::WatchForRegistration);
  m_watcher.addWatchedService(kService);
  connect(&m_watcher, &QDBusServiceWatcher::serviceRegistered, this, &Portal::readAllLater);
  readAtOnce();
}

void Portal::readAtOnce() {
  const QDBusMessage reply = m_bus.call(readCall(kAppearance, kScheme), QDBus::Block, kFirstReadMs);
  if (reply.type() == QDBusMessage::ReplyMessage && !reply.arguments().isEmpty())
    m_scheme = schemeOf(unwrapped(reply.arguments().constFirst()));
  else if (isSlow(reply))
    readLater(kAppearance, kScheme);
  readLater(kAppearance, kLessMotion);
  readLater(kGnome, kAnimations);
}

void Portal::readAllLater() {
  readLater(kAppearance, kScheme);
  readLater(kAppearance, kLessMotion);
  readLater(kGnome, kAnimations);
}

void Portal::readLater(const char* group, const char* key) {
  auto* watcher = new QDBusPendingCallWatcher(m_bus.asyncCall(readCall(group, key)), this);
  connect(watcher, &QDBusPendingCallWatcher::finished, this, [this, group, key](QDBusPendingCallWatcher* done) {
    const QDBusPendingReply<QVariant> reply = *done;
    if (reply.isValid()) take(QString::fromLatin1(group), QString::fromLatin1(key), reply.value());
    done->deleteLater();
  });
}

void Portal::settingChanged(const QString& group, const QString& key, const QDBusVariant& value) {
  take(group, key, value.variant());
}

void Portal::take(const QString& group, const QString& key, const QVariant& wrapped) {
  const QVariant value = unwrapped(wrapped);
  const compat::Scheme schemeBefore = m_scheme;
  const bool reducedBefore = reducedMotion();
  if (group == QLatin1StringView(kAppearance) && key == QLatin1StringView(kScheme))
    m_scheme = schemeOf(value);
  else if (group == QLatin1StringView(kAppearance) && key == QLatin1StringView(kLessMotion))
    m_lessMotion = value.toUInt() != 0;
  else if (group == QLatin1StringView(kGnome) && key == QLatin1StringView(kAnimations))
    m_noAnimations = !value.toBool();
  if (m_scheme != schemeBefore) emit schemeChanged();
  if (reducedMotion() != reducedBefore) emit reducedMotionChanged();
}

} // namespace desktop
