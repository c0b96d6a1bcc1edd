#include "core/TreeWalk.h"

#include <algorithm>
#include <cerrno>

namespace fs {

TreeWalk::Step TreeWalk::next() {
  if (m_levels.empty()) {
    if (m_cancel) return Step::Cancelled;
    m_levels.push_back({0, 0});
    m_reader.startFresh(fd());
    return Step::Folder;
  }
  for (;;) {
    while (m_waiting.size() == m_levels.back().waiting) {
      if (!m_chain.leave()) {
        if (m_levels.size() > 1) ++m_unread; // the way back is lost, and what waits with it
        return Step::End;
      }
      m_names.truncate(m_levels.back().name);
      m_levels.pop_back();
    }
    if (m_cancel.load(std::memory_order_relaxed)) return Step::Cancelled;
    const size_t name = m_waiting.back();
    m_waiting.pop_back();
    if (m_chain.enter(m_names.data() + name)) {
      m_levels.push_back({name, m_waiting.size()});
      m_reader.startFresh(fd());
      return Step::Folder;
    }
    passOver(name, errno);
  }
}

// What isn't there any more, or is no folder now, holds nothing.
void TreeWalk::passOver(size_t name, int error) {
  m_names.truncate(name);
  if (error != ENOENT && error != ENOTDIR && error != ELOOP) ++m_unread;
}

void TreeWalk::Bytes::grow(size_t more) {
  const size_t capacity = std::max({m_size + more, m_capacity * 2, size_t{4096}});
  std::unique_ptr<char[]> data(new char[capacity]);
  if (m_size > 0) std::memcpy(data.get(), m_data.get(), m_size);
  m_data = std::move(data);
  m_capacity = capacity;
}

} // namespace fs
