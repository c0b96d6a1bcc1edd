#include "engines/Disposal.h"

#include "core/Guard.h"
#include "core/fs.h"
#include "core/places.h"
#include "core/removal.h"
#include "core/trash.h"
#include "engines/Spelled.h"

#include <QDir>

#include <utility>

using removal::Verdict;

namespace {

std::optional<FileId> idAt(const QString& path) {
  fs::Entry entry;
  if (!fs::stat(path, &entry)) return std::nullopt;
  return FileId{entry.device, entry.inode};
}

/// The path with no link in the folders above it. Where those can't be resolved it stands as it is, and a link in it
/// will be met and refused.
QString realPathOf(const QString& path) {
  const qsizetype slash = path.lastIndexOf(u'/');
  const QString folder = fs::resolved(path.left(qMax(slash, qsizetype(1))));
  return folder.isEmpty() ? path : fs::join(folder, path.sliced(slash + 1));
}

Verdict verdictOf(Guard::Verdict verdict) {
  switch (verdict) {
  case Guard::Verdict::Free:
    return Verdict::Remove;
  case Guard::Verdict::Excluded:
    return Verdict::KeepExcluded;
  case Guard::Verdict::ProtectedData:
    return Verdict::KeepProtectedData;
  case Guard::Verdict::ProtectedLocation:
    break;
  }
  return Verdict::KeepProtectedLocation;
}

} // namespace

struct Disposal::Data {
  Data(const QList<QString>& exclusions, const appguard::Sources& from)
      : sources(from),
        guard(exclusions),
        open(appguard::openFiles(from)),
        isOwnHome(places::homeIsOwn()),
        remover({.toTrash = true, .wholeOnly = true}, handlers()) {}

  [[nodiscard]] removal::Handlers handlers();
  [[nodiscard]] Verdict judge(const removal::Node& node);
  [[nodiscard]] Verdict judgeTarget(const removal::Node& node) const;
  [[nodiscard]] Verdict judgeOpen(const removal::Node& node) const;
  [[nodiscard]] bool isOpenElsewhere(const removal::Node& node) const;
  [[nodiscard]] bool liesInARoot(const QString& realPath) const;
  [[nodiscard]] bool isWhatWasNamed(const QString& realPath) const { return !id || idAt(realPath) == id; }
  void takeBackAnother();

  const appguard::Sources sources;
  const Guard guard;
  const appguard::OpenFiles open;
  const bool isOwnHome;
  removal::Remover remover;

  // Of the thing in hand:
  std::optional<FileId> id;
  bool isTarget = false; // the next question is about the thing itself
  Outcome outcome;
};

removal::Handlers Disposal::Data::handlers() {
  return {
      .judge = [this](const removal::Node& node) { return judge(node); },
      .kept =
          [this](const removal::Node&, removal::Kept why) {
            outcome.result = why == removal::Kept::NoTrash ? Result::Failed : Result::Refused;
          },
      .moved =
          [this](const removal::Node& node, const trash::Outcome& where) {
            outcome = {Result::Moved, {node.path, where.trashedPath, where.infoPath}};
          },
  };
}

Verdict Disposal::Data::judge(const removal::Node& node) {
  if (std::exchange(isTarget, false)) return judgeTarget(node);
  const Verdict verdict = verdictOf(Spelled{node.path, node.realPath}.askBelow(guard, Guard::Exclusions::Ask));
  return verdict == Verdict::Remove ? judgeOpen(node) : verdict;
}

Verdict Disposal::Data::judgeTarget(const removal::Node& node) const {
  const Verdict verdict = verdictOf(Spelled{node.path, node.realPath}.ask(guard));
  if (verdict != Verdict::Remove) return verdict;
  if (!isWhatWasNamed(node.realPath)) return Verdict::KeepExcluded; // nobody asked for this one to go
  return liesInARoot(node.realPath) || isOpenElsewhere(node) ? Verdict::KeepOpen : judgeOpen(node);
}

Verdict Disposal::Data::judgeOpen(const removal::Node& node) const {
  const auto in = [&](const QSet<QString>& set) { return set.contains(node.path) || set.contains(node.realPath); };
  if (in(open.files)) return Verdict::KeepOpen;
  return node.isDir && in(open.parents) ? Verdict::NotWhole : Verdict::Remove;
}

/// A file with several names may be open under one that the snapshot knows and nobody here does.
bool Disposal::Data::isOpenElsewhere(const removal::Node& node) const {
  fs::Entry entry;
  return !node.isDir && fs::stat(node.realPath, &entry) && entry.links > 1 &&
         appguard::isFileInUse(node.realPath, sources);
}

/// All that a process can ever open lies below its root.
bool Disposal::Data::liesInARoot(const QString& realPath) const {
  if (open.roots.isEmpty()) return false;
  for (qsizetype slash = realPath.lastIndexOf(u'/'); slash > 0; slash = realPath.lastIndexOf(u'/', slash - 1))
    if (open.roots.contains(realPath.left(slash))) return true;
  return false;
}

/// What took the thing's place between the question and the move goes back to where it stood.
void Disposal::Data::takeBackAnother() {
  const TrashUndoEntry& undo = outcome.undo;
  if (outcome.result != Result::Moved || undo.trashedPath.isEmpty() || isWhatWasNamed(undo.trashedPath)) return;
  if (trash::restore(undo.trashedPath, undo.infoPath, undo.originalPath) == 0) outcome = {Result::Refused, {}};
}

Disposal::Disposal(const QList<QString>& exclusions, const appguard::Sources& sources)
    : d(std::make_unique<Data>(exclusions, sources)) {}

Disposal::~Disposal() = default;

Disposal::Outcome Disposal::move(const QString& path, const std::optional<FileId>& id) {
  const QString clean = QDir::cleanPath(path);
  const Outcome refused{Result::Refused, {}};
  // Asked again of the thing itself, with its links resolved; here so that no answer depends on its being there.
  if (!d->isOwnHome || !clean.startsWith(u'/') || d->guard.ask(clean) != Guard::Verdict::Free) return refused;
  d->id = id;
  d->isTarget = true;
  d->outcome = {};
  d->remover.remove({.path = clean, .realPath = realPathOf(clean)});
  d->takeBackAnother();
  return std::exchange(d->outcome, {});
}
