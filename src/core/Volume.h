/// What a walk, or a move, must not leave: one device and, where the system tells, one mount of it.
#pragma once

#include "core/sys.h"

#include <optional>

struct Volume {
  dev_t device = 0;
  std::optional<quint64> mount; ///< tells bind mounts of one device apart; empty: the device alone counts

  bool operator==(const Volume&) const = default;

  /// The volume of an open folder; nothing, with errno set, where that can't be told.
  [[nodiscard]] static std::optional<Volume> of(int fd) {
    struct stat status;
    if (::fstat(fd, &status) != 0) return std::nullopt;
    return Volume{status.st_dev, sys::mountId(fd)};
  }

  /// Whether another mount begins at @p name in an open folder of this volume. Opens nothing, so that no automount is
  /// set off.
  [[nodiscard]] bool endsAt(int dirFd, const char* name) const {
    if (!mount) return false;
    const std::optional<quint64> there = sys::mountIdAt(dirFd, name);
    return there && *there != *mount;
  }
};
