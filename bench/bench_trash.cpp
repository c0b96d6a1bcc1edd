// Moving to the Trash, an item at a time: ours beside Qt's in interleaved rounds, and many items of one name beside as
// many of different names. Works in home folders of its own below the given folder, and takes them away again.
#include "core/removal.h"
#include "figure.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <unistd.h>

#include <algorithm>
#include <optional>
#include <vector>

namespace {

constexpr int kItems = 2000;
constexpr int kRounds = 3;

enum class Names { Different, Same };

/// A home folder for each series of each round, all of which go at the end only: a file system may be slow to give out
/// what was freed a moment ago.
class Homes {
 public:
  explicit Homes(const QString& folder) : m_dir(folder + QStringLiteral("/bench-trash-XXXXXX")) {
    qunsetenv("XDG_DATA_HOME");
  }

  /// Empty files, each in a folder of its own, in a new home folder with an empty Trash.
  QStringList items(Names names) {
    const QString home = m_dir.path() + QStringLiteral("/home-%1").arg(++m_count);
    qputenv("HOME", QFile::encodeName(home));
    QDir().mkpath(home + QStringLiteral("/.local/share"));
    QStringList paths;
    for (int i = 0; i < kItems; ++i) {
      const QString folder = home + QStringLiteral("/cache/%1").arg(i);
      QDir().mkpath(folder);
      paths.append(folder +
                   (names == Names::Same ? QStringLiteral("/thumb.png") : QStringLiteral("/thumb-%1.png").arg(i)));
      QFile file(paths.last());
      if (!file.open(QIODevice::WriteOnly)) std::exit(1);
    }
    ::sync(); // so that nobody pays for writing them, nor for what the series before left
    return paths;
  }

 private:
  QTemporaryDir m_dir;
  int m_count = 0;
};

struct Times {
  explicit Times(const bench::Clock& clock) : ms(clock.ms()), cpuMs(clock.cpuMs()) {}
  double ms;
  double cpuMs;
};

struct Series {
  const char* name;
  std::vector<double> ms = {};
  std::vector<double> cpuMs = {};

  void add(const Times& times) {
    ms.push_back(times.ms);
    cpuMs.push_back(times.cpuMs);
  }
  static double median(std::vector<double> values) {
    std::sort(values.begin(), values.end());
    return values[values.size() / 2];
  }
  [[nodiscard]] double each() const { return median(ms) * 1000 / kItems; }
  [[nodiscard]] double cpuEach() const { return median(cpuMs) * 1000 / kItems; }
};

void fail(const char* what) {
  std::fprintf(stderr, "%s\n", what);
  std::exit(1);
}

/// The whole way of an item through the program: its folder opened, judged, moved. The sync at the end counts apart.
Times byRemover(const QStringList& paths, Series* syncs) {
  std::optional<removal::Remover> remover;
  const bench::Clock moving;
  remover.emplace(removal::Options{.toTrash = true},
                  removal::Handlers{.judge = [](const removal::Node&) { return removal::Verdict::Remove; }});
  for (const QString& path : paths) remover->remove({path, path});
  const Times times(moving);
  if (remover->removedNodes() != paths.size()) fail("not everything went");
  const bench::Clock syncing;
  remover.reset();
  if (syncs) syncs->add(Times(syncing));
  return times;
}

Times byQt(const QStringList& paths) {
  const bench::Clock watch;
  for (const QString& path : paths)
    if (!QFile::moveToTrash(path)) fail("Qt could not move");
  return Times(watch);
}

} // namespace

int main(int argc, char** argv) {
  Homes homes(QDir().absoluteFilePath(QString::fromLocal8Bit(bench::folderArgument(argc, argv))));
  Series own{"trash"};
  Series same{"trash_same_name"};
  Series qt{"trash_qt"};
  Series sync{"trash_sync"};
  for (int round = 0; round <= kRounds; ++round) {
    const bool counts = round > 0; // the first warms the disk's cache
    const Times different = byRemover(homes.items(Names::Different), counts ? &sync : nullptr);
    const Times equal = byRemover(homes.items(Names::Same), nullptr);
    const Times theirs = byQt(homes.items(Names::Different));
    if (!counts) continue;
    own.add(different);
    same.add(equal);
    qt.add(theirs);
  }
  for (const Series* one : {&qt, &sync, &same, &own})
    std::printf("name=%s us_each=%.1f cpu_us_each=%.1f\n", one->name, one->each(), one->cpuEach());
  std::printf("name=trash ms=%.1f x_qt=%.2f cpu_x_qt=%.2f same_name_x=%.2f cpu_same_name_x=%.2f peak_kib=%ld\n",
              Series::median(own.ms), own.each() / qt.each(), own.cpuEach() / qt.cpuEach(), same.each() / own.each(),
              same.cpuEach() / own.cpuEach(), bench::peakKib());
}
