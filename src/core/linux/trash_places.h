/// Where the user's Trash lies on each volume, by the freedesktop.org trash rules, version 1.0.
#pragma once

#include "core/UniqueFd.h"
#include "core/Volume.h"

#include <QByteArray>
#include <QByteArrayList>

#include <optional>

namespace trash {

/// A Trash folder that is there, or that could be made: what was found out without changing anything.
struct Plan {
  UniqueFd base;          ///< the deepest folder that is there
  QByteArrayList missing; ///< names to be made below it, one in the other
  QByteArray path;        ///< raw path of the Trash folder
  QByteArray topDir;      ///< top folder of the volume; empty for the home Trash
};

/// A Trash folder in use.
struct Place {
  UniqueFd info;
  UniqueFd files;
  QByteArray path;
  QByteArray topDir;
  qsizetype nameMax = 255; ///< longest name there, in bytes
};

/// The Trash for things in the open folder @p dirFd of @p volume: the home Trash if it is on that volume, else one at
/// the volume's top. Nothing where none can be used: the top isn't the user's to write, what is there is a link or
/// somebody else's, or the volume lives in memory (unless the home Trash does so too).
[[nodiscard]] std::optional<Plan> planFor(int dirFd, const Volume& volume);

/// Makes what is missing, with mode 0700, and opens it. Nothing, with errno set, where that fails.
[[nodiscard]] std::optional<Place> openPlace(const Plan& plan, const Volume& volume);

/// Raw path of the home Trash, whether it is there or not; empty where there is no home.
[[nodiscard]] QByteArray homeTrash();

/// Opens a Trash folder, or a folder in one, that is there: a real folder of the user's own, no link.
[[nodiscard]] UniqueFd openOwn(int dirFd, const QByteArray& name);

} // namespace trash
