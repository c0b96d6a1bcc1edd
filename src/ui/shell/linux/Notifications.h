/// The desktop's service for messages to the user. User-interface thread only.
#pragma once

#include "ui/shell/trayhost.h"

#include <QDBusConnection>
#include <QObject>
#include <QPointer>

namespace ui {

class Notifications : public QObject {
  Q_OBJECT

 public:
  /// Made on first use; goes with the application.
  static Notifications& get();

  /// As trayhost::show.
  void show(QObject* context, const trayhost::Message& message, std::function<void()> clicked,
            std::function<void()> failed);

 private slots:
  void actionInvoked(uint id, const QString& key);

 private:
  explicit Notifications(QObject* parent);
  /// Whether markup is read in a message's text.
  void askForMarkup(const std::function<void(bool readsMarkup)>& answered);
  void send(const trayhost::Message& message, bool readsMarkup, const std::function<void()>& failed);

  QDBusConnection m_bus;
  uint m_last = 0; ///< the service's number for what was sent last
  QPointer<QObject> m_context;
  std::function<void()> m_clicked;
};

} // namespace ui
