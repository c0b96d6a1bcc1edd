/// The desktop's service for icons of programs, as far as it tells whether anything shows them. User-interface thread
/// only.
#pragma once

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusServiceWatcher>
#include <QObject>

namespace ui {

/// Keeps what the service last told. Without a session bus there is none.
class StatusNotifier : public QObject {
  Q_OBJECT

 public:
  /// Made on first use, when the service is asked at once; goes with the application.
  static StatusNotifier& get();

  /// Whether something shows the icons.
  [[nodiscard]] bool hasHost() const { return m_hasHost; }

 signals:
  void changed();

 private slots:
  void readLater();

 private:
  explicit StatusNotifier(QObject* parent);
  void readAtOnce();
  void take(const QDBusMessage& reply);

  QDBusConnection m_bus;
  QDBusServiceWatcher m_service;
  bool m_hasHost = false;
};

} // namespace ui
