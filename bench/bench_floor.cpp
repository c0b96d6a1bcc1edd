// The least that a walk can cost: a bare loop of getdents64 with a 32 KiB buffer, fstatat, and openat from the parent's
// descriptor. No bounded descriptors, no hard links, no other devices, no paths: a yardstick, not a walker.
#include "figure.h"

#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

struct KernelName {
  ino64_t inode;
  off64_t offset;
  unsigned short recordBytes;
  unsigned char type;
  char name[1];
};

struct Sums {
  long long bytes = 0;
  long long files = 0;
};

bool isDots(const char* name) { return name[0] == '.' && (name[1] == '\0' || (name[1] == '.' && name[2] == '\0')); }

void walk(int fd, Sums* sums) {
  alignas(KernelName) char buffer[32 * 1024];
  struct stat status;
  for (;;) {
    const ssize_t got = ::getdents64(fd, buffer, sizeof buffer);
    if (got <= 0) return;
    for (ssize_t at = 0; at < got;) {
      const auto* record = reinterpret_cast<const KernelName*>(buffer + at);
      at += record->recordBytes;
      if (isDots(record->name)) continue;
      if (::fstatat(fd, record->name, &status, AT_SYMLINK_NOFOLLOW) != 0) continue;
      if (S_ISDIR(status.st_mode)) {
        const int child = ::openat(fd, record->name, O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC);
        if (child < 0) continue;
        walk(child, sums);
        ::close(child);
      } else {
        if (S_ISREG(status.st_mode)) sums->bytes += static_cast<long long>(status.st_blocks) * 512;
        ++sums->files;
      }
    }
  }
}

} // namespace

int main(int argc, char** argv) {
  Sums sums;
  const bench::Clock clock;
  const int top = ::open(bench::folderArgument(argc, argv), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
  if (top >= 0) walk(top, &sums);
  bench::report("floor", clock.ms(), sums.bytes, sums.files);
}
