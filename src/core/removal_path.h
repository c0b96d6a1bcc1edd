/// The spellings of the node that a removal stands at, kept in buffers that grow and shrink with the walk.
#pragma once

#include "core/removal.h"

#include <cstddef>

namespace removal {

/// A folder, and the node in it that is being looked at. Setting the next node costs no allocation once the buffers
/// have grown, unless somebody kept a copy of the node before.
class NodePath {
 public:
  /// Where a folder's spellings end.
  struct Mark {
    qsizetype path = 0;
    qsizetype real = 0;
    qsizetype raw = 0;
    bool isText = true;
  };

  /// Begins with the folder @p path itself as the node.
  NodePath(const QString& path, const QString& realPath, const QByteArray& raw);

  [[nodiscard]] const Node& node() const { return m_node; }
  /// The node's own mark, to come back to it or to go to its children.
  [[nodiscard]] Mark mark() const;
  /// Last component of the node in the system's bytes, ending with a zero byte; valid until the node changes.
  [[nodiscard]] const char* name() const { return m_node.realRaw.constData() + m_nameStart; }
  /// Makes the child @p name of a folder above or of the node's own folder the node. @p name may not point into the
  /// node.
  void toChild(const Mark& folder, const char* name, size_t length, bool isDir);
  /// Makes a folder above, or the node itself, the node.
  void backTo(const Mark& folder);
  /// Corrects what the node is.
  void setDir(bool isDir) { m_node.isDir = isDir; }

 private:
  Node m_node;
  qsizetype m_nameStart = 0;
};

} // namespace removal
