/// What shows the icons of programs on this desktop, and the service that shows their messages. One implementation a
/// system. User-interface thread only.
#pragma once

#include <QString>

#include <functional>

class QObject;

namespace ui::trayhost {

/// Whether there is something that shows icons now. The first call may wait up to 150 ms for the desktop's answer.
[[nodiscard]] bool available();
/// Calls @p changed whenever that may have changed, for as long as @p context lives.
void watch(QObject* context, std::function<void()> changed);
/// Whether it may come some time after the program, as it does when both start at login.
[[nodiscard]] bool mayComeLater();

struct Message {
  QString title;
  QString text;
  int shownMs = 0;
};
/// Shows a message by the desktop's own service, which replaces the one before.
/// @param context  the calls below happen while it lives
/// @param clicked  called when the user clicks it
/// @param failed   called, perhaps at once, where no such service takes it
void show(QObject* context, const Message& message, std::function<void()> clicked, std::function<void()> failed);

} // namespace ui::trayhost
