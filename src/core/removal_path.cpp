#include "core/removal_path.h"

#include "core/names.h"

#include <algorithm>

namespace removal {

namespace {

/// Where the names in a folder begin. What is longer than the folder's own text is one of its descendants', slash and
/// all.
template <typename Text, typename Char>
qsizetype childStart(Text* text, qsizetype folderLength, Char slash) {
  if (folderLength > 0 && text->at(folderLength - 1) == slash) return folderLength;
  if (text->size() == folderLength) text->append(slash);
  return folderLength + 1;
}

} // namespace

NodePath::NodePath(const QString& path, const QString& realPath, const QByteArray& raw)
    : m_node{path, realPath, raw, true, names::survives(raw)}, m_nameStart(raw.lastIndexOf('/') + 1) {}

NodePath::Mark NodePath::mark() const {
  return {m_node.path.size(), m_node.realPath.size(), m_node.realRaw.size(), m_node.isText};
}

void NodePath::toChild(const Mark& folder, const char* name, size_t length, bool isDir) {
  const QByteArrayView raw(name, static_cast<qsizetype>(length));
  m_nameStart = childStart(&m_node.realRaw, folder.raw, '/');
  m_node.realRaw.resize(m_nameStart + raw.size());
  std::copy(raw.begin(), raw.end(), m_node.realRaw.data() + m_nameStart);

  const qsizetype start = childStart(&m_node.path, folder.path, u'/');
  const bool survives = names::decodeAt(&m_node.path, start, raw);
  const QStringView text = QStringView(m_node.path).sliced(start);
  const qsizetype realStart = childStart(&m_node.realPath, folder.real, u'/');
  m_node.realPath.resize(realStart + text.size());
  std::copy(text.begin(), text.end(), m_node.realPath.data() + realStart);

  m_node.isText = survives && folder.isText;
  m_node.isDir = isDir;
}

void NodePath::backTo(const Mark& folder) {
  m_node.path.truncate(folder.path);
  m_node.realPath.truncate(folder.real);
  m_node.realRaw.truncate(folder.raw);
  m_node.isText = folder.isText;
  m_node.isDir = true;
  m_nameStart = m_node.realRaw.lastIndexOf('/') + 1;
}

} // namespace removal
