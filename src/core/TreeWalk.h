/// The order in which a tree is walked, without what is done there.
#pragma once

#include "core/DirChain.h"
#include "core/sys.h"

#include <QByteArrayView>

#include <atomic>
#include <optional>
#include <string>
#include <vector>

/// The folders of a tree, depth first, the one that was listed last first: an explicit stack of names that aren't
/// entered yet, below a chain of open folders. A folder that can't be entered is passed over without a word. Path,
/// which has enter(QByteArrayView) and leave(), is told where the walk goes. One thread at a time.
template <class Path>
class TreeWalk {
 public:
  enum class Step { Folder, End, Cancelled };

  /// @p path and @p cancel must live as long as the walk.
  TreeWalk(Path* path, const std::atomic<bool>& cancel) : m_path(path), m_cancel(cancel) {}

  /// Begins in @p top, an open folder.
  [[nodiscard]] Step begin(UniqueFd top) {
    m_chain.emplace(std::move(top));
    m_begins.push_back(0);
    return m_reader.start(fd()) ? Step::Folder : Step::End;
  }

  /// Goes to the next folder, asking the flag before each. Ends early where the way back is lost, as a folder was
  /// moved.
  [[nodiscard]] Step next() {
    for (;;) {
      while (m_waiting.size() == m_begins.back()) {
        if (!m_chain->leave()) return Step::End;
        m_begins.pop_back();
        m_path->leave();
      }
      if (m_cancel.load(std::memory_order_relaxed)) return Step::Cancelled;
      if (enterLast() && m_reader.start(fd())) return Step::Folder;
    }
  }

  /// Descriptor of the current folder; stays the walk's.
  [[nodiscard]] int fd() const { return m_chain->fd(); }
  /// The next name of the current folder; false at its end.
  [[nodiscard]] bool nextName(sys::RawName* name) { return m_reader.next(name); }
  /// Keeps a folder of the current one for later.
  void push(const sys::RawName& name) { m_waiting.append(name.name, name.length + 1); }

 private:
  bool enterLast() {
    const size_t begin = m_waiting.rfind('\0', m_waiting.size() - 2) + 1;
    const QByteArrayView name(m_waiting.data() + begin, static_cast<qsizetype>(m_waiting.size() - begin - 1));
    const bool entered = m_chain->enter(name.data());
    if (entered) m_path->enter(name);
    m_waiting.resize(begin);
    if (entered) m_begins.push_back(begin);
    return entered;
  }

  Path* m_path;
  const std::atomic<bool>& m_cancel;
  sys::DirReader m_reader;
  std::optional<DirChain> m_chain;
  std::string m_waiting;        ///< names, each with its zero byte
  std::vector<size_t> m_begins; ///< where the names of each level begin
};
