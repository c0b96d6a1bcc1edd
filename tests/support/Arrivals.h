/// Watches a folder for files that are replaced in it.
#pragma once

#include "core/UniqueFd.h"

#include <QFile>
#include <QString>

#include <sys/inotify.h>
#include <unistd.h>

/// Counts what gets its name in a folder by a rename, from when it is made.
class Arrivals {
 public:
  explicit Arrivals(const QString& folder) : m_fd(::inotify_init1(IN_NONBLOCK | IN_CLOEXEC)) {
    if (::inotify_add_watch(m_fd.get(), QFile::encodeName(folder).constData(), IN_MOVED_TO) < 0) qFatal("cannot watch");
  }
  /// Since the last time.
  [[nodiscard]] int count(const char* name) const {
    alignas(inotify_event) char buffer[64 * 1024];
    int found = 0;
    for (ssize_t got = 0; (got = ::read(m_fd.get(), buffer, sizeof buffer)) > 0;)
      for (const char* at = buffer; at < buffer + got;) {
        const auto* event = reinterpret_cast<const inotify_event*>(at);
        if (event->len > 0 && qstrcmp(event->name, name) == 0) ++found;
        at += sizeof(inotify_event) + event->len;
      }
    return found;
  }

 private:
  UniqueFd m_fd;
};
