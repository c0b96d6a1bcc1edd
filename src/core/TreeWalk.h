/// The order in which a tree is walked, without what is done there.
#pragma once

#include "core/DirChain.h"
#include "core/sys.h"

#include <QByteArrayView>

#include <atomic>
#include <cstddef>
#include <cstring>
#include <memory>
#include <vector>

namespace fs {

/// The folders of a tree, depth first, the one that was listed last first: an explicit stack of names that aren't
/// entered yet, below a chain of open folders. A folder that can't be entered is passed over and counted. Cancelling
/// is asked for once a folder, before it. One thread at a time.
class TreeWalk {
 public:
  enum class Step { Folder, End, Cancelled };

  /// Begins in @p top, an open folder that was never read. @p cancel must live as long as the walk.
  TreeWalk(UniqueFd top, const std::atomic<bool>& cancel) : m_chain(std::move(top)), m_cancel(cancel) {}

  /// Goes to the next folder, the top first. Ends early where the way back is lost, because a folder was moved.
  [[nodiscard]] Step next();

  /// Descriptor of the current folder; stays the walk's.
  [[nodiscard]] int fd() const { return m_chain.fd(); }
  /// Folders that were kept for later and that are there, but couldn't be entered or weren't reached.
  [[nodiscard]] qint64 unread() const { return m_unread; }
  /// How many folders the current one lies below the top.
  [[nodiscard]] size_t depth() const { return m_chain.depth(); }
  /// Name of the folder on the way from the top to the current one that lies @p depth folders below the top; at
  /// least 1.
  [[nodiscard]] QByteArrayView nameAt(size_t depth) const {
    return QByteArrayView(m_names.data() + m_levels[depth].name);
  }

  /// Lists the current folder, once.
  [[nodiscard]] sys::DirReader& reader() { return m_reader; }
  /// Keeps a folder of the current one for later.
  void push(const dirent& folder) {
    // All the room that the record gives to the name: what stands behind the zero byte does no harm.
    m_waiting.push_back(m_names.size());
    m_names.append(folder.d_name, folder.d_reclen - offsetof(dirent, d_name));
  }

 private:
  /// A stack of bytes. std::string does the same, at the price of a dozen instructions more for each folder.
  class Bytes {
   public:
    [[nodiscard]] const char* data() const { return m_data.get(); }
    [[nodiscard]] size_t size() const { return m_size; }
    void append(const char* from, size_t size) {
      if (m_size + size > m_capacity) grow(size);
      std::memcpy(m_data.get() + m_size, from, size);
      m_size += size;
    }
    void truncate(size_t size) { m_size = size; }

   private:
    void grow(size_t more);

    std::unique_ptr<char[]> m_data;
    size_t m_size = 0;
    size_t m_capacity = 0;
  };

  struct Level {
    size_t name;    ///< where its name begins in m_names
    size_t waiting; ///< the first in m_waiting that lies in it
  };

  [[gnu::cold, gnu::noinline]] void passOver(size_t name, int error);

  DirChain m_chain;
  const std::atomic<bool>& m_cancel;
  sys::DirReader m_reader;
  Bytes m_names;                 ///< of the folders that the walk is in or that wait, each with its zero byte
  std::vector<size_t> m_waiting; ///< where the names begin of those that wait
  std::vector<Level> m_levels;   ///< one for each folder of the chain; none before the top
  qint64 m_unread = 0;
};

} // namespace fs
