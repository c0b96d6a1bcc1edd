#include "core/removal_path.h"

#include "core/names.h"

namespace removal {

namespace {

template <typename Text, typename Char>
void startComponent(Text* text, qsizetype folderLength, Char slash) {
  text->truncate(folderLength);
  if (!text->endsWith(slash)) text->append(slash);
}

} // namespace

NodePath::NodePath(const QString& path, const QString& realPath, const QByteArray& raw)
    : m_node{path, realPath, raw, true, names::survives(raw)} {}

NodePath::Mark NodePath::mark() const {
  return {m_node.path.size(), m_node.realPath.size(), m_node.realRaw.size(), m_node.isText};
}

const char* NodePath::name() const { return m_node.realRaw.constData() + m_node.realRaw.lastIndexOf('/') + 1; }

void NodePath::toChild(const Mark& folder, const char* name, size_t length, bool isDir) {
  const auto bytes = static_cast<qsizetype>(length);
  startComponent(&m_node.path, folder.path, QLatin1Char('/'));
  startComponent(&m_node.realPath, folder.real, QLatin1Char('/'));
  startComponent(&m_node.realRaw, folder.raw, '/');
  m_node.realRaw.append(name, bytes);
  m_node.isDir = isDir;
  const QByteArrayView view(name, bytes);
  names::append(&m_node.path, view);
  m_node.isText = names::append(&m_node.realPath, view) && folder.isText;
}

void NodePath::backTo(const Mark& folder) {
  m_node.path.truncate(folder.path);
  m_node.realPath.truncate(folder.real);
  m_node.realRaw.truncate(folder.raw);
  m_node.isText = folder.isText;
  m_node.isDir = true;
}

} // namespace removal
