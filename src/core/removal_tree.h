/// The walk that removal, survey and count share: a tree from one open folder down, on raw names.
#pragma once

#include "core/DirChain.h"
#include "core/Volume.h"
#include "core/removal_path.h"
#include "core/sys.h"

#include <QByteArray>
#include <QList>
#include <QSet>

#include <string>
#include <vector>

namespace removal {

/// Goes through a tree without recursion: first what is no folder, while the folder is being read, then its sub-folders
/// one by one. Holds a bounded number of descriptors, and of names only those of the sub-folders that wait.
class TreeWalk {
 public:
  /// @p top is the open folder that @p path stands for; @p volume is what the walk stays on.
  TreeWalk(sys::DirReader& reader, UniqueFd top, const NodePath& path, const Volume& volume);
  virtual ~TreeWalk() = default;
  TreeWalk(const TreeWalk&) = delete;
  TreeWalk& operator=(const TreeWalk&) = delete;

  /// Walks everything in the top folder.
  void walkAll();
  /// Walks one child of the top folder, with all in it.
  void walkChild(const QByteArray& name);

 protected:
  /// A folder that the walk has entered and not left.
  struct Level {
    NodePath::Mark mark;
    size_t pendingBegin = 0; ///< where its waiting sub-folders begin in m_pending
    ino_t inode = 0;
    int passes = 1;              ///< how often it was read
    int readError = 0;           ///< errno that ended a listing early
    bool holds = false;          ///< something in it stays
    bool isClean = false;        ///< a survey found that nothing in it must stay
    bool staysItself = false;    ///< whatever becomes of what lies in it
    QList<quint64> clean = {};   ///< inodes of its sub-folders of which a survey found that
    QSet<QByteArray> stays = {}; ///< names of what stays directly in it, where the walk keeps them
  };

  // What a walk does. node() is what it is about; fd() is the folder that the node lies in, and level() is that
  // folder's.
  virtual void file() = 0;
  /// A sub-folder's turn; true to enter it.
  [[nodiscard]] virtual bool folder() = 0;
  /// A sub-folder that folder() wanted couldn't be entered; EXDEV: it is on another volume.
  virtual void closed(int error) = 0;
  /// The name is there and can't be asked what it is.
  virtual void unknown(int error) = 0;
  /// All in the folder node() was visited; level() still is its own, fd() the folder above. The walk must popLevel() or
  /// go into it again.
  virtual void left() = 0;
  /// Something moved what the walk stood in: nothing but the top folder is in reach. node() is the child of the top in
  /// which the walk was.
  virtual void lost() = 0;
  /// All in the top folder was visited: true where reading it once more found something.
  [[nodiscard]] virtual bool topAgain() { return false; }
  /// The walk has entered the folder node(), which level() and fd() are of now, and will read it.
  virtual void entered() {}
  /// The walk is through; level() is the top folder's for the last time.
  virtual void finished() {}

  [[nodiscard]] const Node& node() const { return m_path.node(); }
  [[nodiscard]] NodePath& path() { return m_path; }
  [[nodiscard]] const char* name() const { return m_path.name(); }
  [[nodiscard]] int fd() const { return m_chain.fd(); }
  [[nodiscard]] Level& level() { return m_levels.back(); }
  [[nodiscard]] bool atTop() const { return m_levels.size() == 1; }
  [[nodiscard]] const Volume& volume() const { return m_volume; }
  [[nodiscard]] sys::DirReader& reader() { return m_reader; }

  /// Ends the walk as soon as control is back.
  void stop() { m_stopped = true; }
  [[nodiscard]] bool isStopped() const { return m_stopped; }
  void popLevel() { m_levels.pop_back(); }
  /// Reads the folder node(), which was just left, once more; names in level().stays are passed over. False where it
  /// isn't the same folder any more or held nothing else; the walk then stands where it stood.
  [[nodiscard]] bool readAgain();
  /// The same for the top folder, in which the walk stands.
  [[nodiscard]] bool readTopAgain();

 private:
  void run();
  void enter();
  void leave();
  bool nextPending();
  /// Whether a folder's descriptor is new, or may have been read from.
  enum class Descriptor { Fresh, Used };
  bool begin(Descriptor descriptor);
  size_t read(Descriptor descriptor);
  void visit(const char* name, size_t length, unsigned char type);
  int stepInto(ino_t* inode);

  sys::DirReader& m_reader;
  DirChain m_chain;
  NodePath m_path;
  Volume m_volume;
  std::vector<Level> m_levels;
  std::string m_pending; ///< names of the sub-folders that wait, each with its zero byte, the deepest level's last
  bool m_stopped = false;
};

} // namespace removal
