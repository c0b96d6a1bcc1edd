/// Moves single things to the Trash for the user, and asks at that moment whether each may go.
#pragma once

#include "app/records.h"
#include "core/appguard.h"

#include <QList>
#include <QString>

#include <memory>
#include <optional>

/// For a handful of things that the user pointed at. It holds the snapshot of one moment: make one for each wish. One
/// thread.
class Disposal {
 public:
  enum class Result {
    Moved,
    Refused, ///< open, excluded, protected, on a mount of its own, or not what was named; it stays as it was
    Failed,  ///< it isn't there any more, has no Trash, or the system refused; what is there stays as it was
  };
  struct Outcome {
    Result result = Result::Failed;
    TrashUndoEntry undo = {}; ///< filled where it was moved
  };

  /// Takes the snapshot of what is open, and the rules as they are now. Blocks for as long as that takes. Where the
  /// home folder is another user's, everything is refused.
  explicit Disposal(const QList<QString>& exclusions, const appguard::Sources& sources = {});
  ~Disposal();
  Disposal(const Disposal&) = delete;
  Disposal& operator=(const Disposal&) = delete;

  /// Moves a file, a link, or a folder with all in it to the Trash of its volume; never deletes, never follows a link
  /// at its end. A folder in which something must stay, or can't be looked at, stays whole.
  /// @param path  absolute; anything else is refused
  /// @param id    what the user saw there: another file that took its name is refused; empty takes any
  [[nodiscard]] Outcome move(const QString& path, const std::optional<FileId>& id = {});

 private:
  struct Data;
  std::unique_ptr<Data> d;
};
