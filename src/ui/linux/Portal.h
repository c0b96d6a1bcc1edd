/// The part of the desktop portal that speaks of the look, over the session bus. User-interface thread only.
#pragma once

#include "ui/compat.h"

#include <QDBusConnection>
#include <QDBusServiceWatcher>
#include <QDBusVariant>
#include <QObject>

namespace desktop {

/// Keeps what the portal last told. Without a session bus, or without a portal on it, everything stays at its default.
class Portal : public QObject {
  Q_OBJECT

 public:
  /// Made on first use, when the scheme is asked for at once and the rest in the background; goes with the
  /// application.
  static Portal& get();

  [[nodiscard]] compat::Scheme scheme() const { return m_scheme; }
  [[nodiscard]] bool reducedMotion() const { return m_lessMotion || m_noAnimations; }

 signals:
  void schemeChanged();
  void reducedMotionChanged();

 private slots:
  void settingChanged(const QString& group, const QString& key, const QDBusVariant& value);

 private:
  explicit Portal(QObject* parent);
  void readAtOnce();
  void readLater(const char* group, const char* key);
  void readAllLater();
  void take(const QString& group, const QString& key, const QVariant& value);

  QDBusConnection m_bus;
  QDBusServiceWatcher m_watcher;
  compat::Scheme m_scheme = compat::Scheme::Unknown;
  bool m_lessMotion = false;
  bool m_noAnimations = false;
};

} // namespace desktop
