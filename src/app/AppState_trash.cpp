// How much of the selection can't be moved to a Trash, told before the user agrees.
#include "app/AppState.h"

#include "core/UniqueFd.h"
#include "core/names.h"
#include "core/trash.h"

#include <QFileInfo>
#include <QHash>

#include <fcntl.h>

namespace {

/// Asks each folder once.
class Trashes {
 public:
  /// Whether what lies in @p folder could be moved; true also where that can't be told.
  bool has(const QString& folder) {
    const auto known = m_known.constFind(folder);
    if (known != m_known.constEnd()) return *known;
    const UniqueFd fd(::open(names::encode(folder).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    return *m_known.insert(folder, !fd || m_session.hasTrash(fd.get()));
  }

 private:
  trash::Session m_session;
  QHash<QString, bool> m_known;
};

/// The folder that the item, or what is in it, is moved out of.
QString folderOf(const CleanItem& item) { return item.wholeRoot ? item.path : QFileInfo(item.path).path(); }

} // namespace

qint64 AppState::selectedBytesWithoutTrash() const {
  Trashes trashes;
  qint64 bytes = 0;
  for (const CategoryResult& one : selectedResults()) {
    if (one.def.safety == Permanent) continue;
    for (const CleanItem& item : one.items)
      if (!trashes.has(folderOf(item))) bytes += item.bytes;
  }
  return bytes;
}
