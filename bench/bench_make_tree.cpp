// Makes the tree that the other benchmarks walk: DIR ENTRIES [flat]. The same arguments make the same tree.
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <string>
#include <vector>

namespace {

constexpr int kEntriesPerFolder = 10;
constexpr int kBigFolderEvery = 50; ///< every 50th folder holds as much as 40 others
constexpr int kBigFolderFactor = 40;
constexpr size_t kMaxDepth = 14;

/// A small generator whose numbers are the same everywhere (xorshift64).
class Random {
 public:
  uint64_t below(uint64_t limit) {
    m_state ^= m_state << 13;
    m_state ^= m_state >> 7;
    m_state ^= m_state << 17;
    return m_state % limit;
  }

 private:
  uint64_t m_state = 0x2545f4914f6cdd1dU;
};

struct Folder {
  std::string path;
  size_t depth;
};

[[noreturn]] void fail(const std::string& path) {
  std::perror(path.c_str());
  std::exit(1);
}

std::string nameOf(Random* random, uint64_t number) {
  static constexpr const char* kWords[] = {"cache", "index", "Preview", "data_v2", "com.example.helper",
                                           "thumb", "log"};
  static constexpr const char* kEndings[] = {"", ".db", ".json", ".tmp", ".bin", ".sqlite-wal"};
  std::string name = kWords[random->below(std::size(kWords))];
  name += '-' + std::to_string(number);
  return name + kEndings[random->below(std::size(kEndings))];
}

void makeFile(const std::string& path, uint64_t bytes) {
  static const std::string content(16 * 1024, 'x');
  const int fd = ::open(path.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0644);
  if (fd < 0 || ::write(fd, content.data(), bytes) < 0) fail(path);
  ::close(fd);
}

/// A folder's entry: of 200, one is a link and one a hard link of the file before; of 8 files, one has contents.
void makeEntry(Random* random, const std::string& path, std::string* lastFile) {
  const uint64_t kind = random->below(200);
  if (kind == 0) {
    if (::symlink("nowhere", path.c_str()) != 0) fail(path);
  } else if (kind == 1 && !lastFile->empty()) {
    if (::link(lastFile->c_str(), path.c_str()) != 0) fail(path);
  } else {
    makeFile(path, kind % 8 == 2 ? 1 + random->below(16 * 1024) : 0);
    *lastFile = path;
  }
}

void makeTree(const std::string& root, uint64_t entries) {
  Random random;
  std::vector<Folder> folders = {{root, 0}};
  uint64_t made = 0;
  for (uint64_t turn = 0; made < entries; ++turn) {
    const Folder above = folders[random.below(folders.size())];
    if (above.depth >= kMaxDepth) continue;
    const Folder folder = {above.path + '/' + nameOf(&random, made), above.depth + 1};
    if (::mkdir(folder.path.c_str(), 0755) != 0) fail(folder.path);
    folders.push_back(folder);
    ++made;
    const uint64_t usual = random.below(kEntriesPerFolder + 1);
    const uint64_t count = turn % kBigFolderEvery == 0 ? kEntriesPerFolder * kBigFolderFactor : usual;
    std::string lastFile;
    for (uint64_t i = 0; i < count && made < entries; ++i, ++made)
      makeEntry(&random, folder.path + '/' + nameOf(&random, made), &lastFile);
  }
}

void makeFlat(const std::string& root, uint64_t entries) {
  Random random;
  for (uint64_t i = 0; i < entries; ++i) makeFile(root + '/' + nameOf(&random, i), 0);
}

} // namespace

int main(int argc, char** argv) {
  const uint64_t entries = argc >= 3 ? std::strtoull(argv[2], nullptr, 10) : 0;
  const bool flat = argc == 4 && std::strcmp(argv[3], "flat") == 0;
  if (entries == 0 || (argc == 4 && !flat) || argc > 4) {
    std::fprintf(stderr, "usage: %s DIR ENTRIES [flat]\n", argv[0]);
    return 2;
  }
  const std::string root = argv[1];
  std::filesystem::create_directories(root);
  if (!std::filesystem::is_empty(root)) {
    std::fprintf(stderr, "%s: %s isn't empty\n", argv[0], root.c_str());
    return 1;
  }
  flat ? makeFlat(root, entries) : makeTree(root, entries);
  std::printf("name=make-tree entries=%llu\n", static_cast<unsigned long long>(entries));
}
