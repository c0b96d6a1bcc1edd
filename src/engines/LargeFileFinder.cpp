#include "engines/LargeFileFinder.h"

#include "core/fs.h"
#include "core/places.h"
#include "core/rules.h"

#include <QDir>
#include <QFileInfo>

#include <algorithm>
#include <utility>
#include <vector>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

constexpr size_t kMostListed = 500;
constexpr qsizetype kMostOnTop = 8;
constexpr std::chrono::milliseconds kBetweenProgress = 81ms;
constexpr qint64 kFilesPerLook = 16; ///< files between two looks at the clock, which would cost more than all else

struct Kind {
  const char* label;
  const char* suffixes; ///< lower case, one blank between two
};

constexpr Kind kKinds[] = {
    //: Kind of a file, as the following
    {QT_TRANSLATE_NOOP("LargeFileFinder", "Disk image"),
     "iso img dmg vhd vhdx vmdk vdi qcow2 hdd wim esd vmem vmsn nvram"},
    //: Kind of a file: a download that has not ended
    {QT_TRANSLATE_NOOP("LargeFileFinder", "Partial download"), "part crdownload download partial tmp"},
    {QT_TRANSLATE_NOOP("LargeFileFinder", "Video"), "mp4 mov mkv avi wmv m4v webm mts m2ts flv"},
    {QT_TRANSLATE_NOOP("LargeFileFinder", "Archive"), "zip rar 7z tar gz tgz bz2 xz zst cab"},
    //: Kind of a file: it installs a program
    {QT_TRANSLATE_NOOP("LargeFileFinder", "Installer"), "exe msi msix appx pkg mpkg apk ipa"},
    {QT_TRANSLATE_NOOP("LargeFileFinder", "Audio"), "mp3 wav flac aac m4a aiff ogg"},
    //: Kind of a file: a picture
    {QT_TRANSLATE_NOOP("LargeFileFinder", "Image"), "psd psb tif tiff raw cr2 nef arw dng png jpg heic"},
    {QT_TRANSLATE_NOOP("LargeFileFinder", "Document"), "pdf csv json xlsx docx pptx txt log sql db sqlite parquet"},
    {QT_TRANSLATE_NOOP("LargeFileFinder", "Backup"), "bak backup tm"},
};

//: Kind of a file: any other
constexpr const char* kOther = QT_TRANSLATE_NOOP("LargeFileFinder", "File");

/// Folders that hold what is no file of this disk, or what a tool brings back by itself.
constexpr const char* kLeftOut[] = {"node_modules", "Mobile Documents", "$Recycle.Bin", "CloudStorage"};

QHash<QString, QString> labelsBySuffix() {
  QHash<QString, QString> labels;
  for (const Kind& kind : kKinds)
    for (const QString& suffix : QString::fromLatin1(kind.suffixes).split(u' '))
      labels.insert(suffix, QString::fromLatin1(kind.label));
  return labels;
}

/// The user's rules, asked on the way down a tree: of nothing that lies in a folder that a rule covers.
class Rules {
 public:
  Rules(const QList<QString>& list, const QString& root)
      : m_set(list), m_coversRoot(!m_set.isEmpty() && m_set.covers(rules::Subject(root))) {}

  [[nodiscard]] bool isEmpty() const { return m_set.isEmpty(); }
  [[nodiscard]] bool cover(const QString& path) const {
    const QStringView leaf = QStringView(path).sliced(path.lastIndexOf(u'/') + 1);
    return m_coversRoot || !leaf.isValidUtf16() || m_set.coversBelow(path, leaf);
  }

 private:
  rules::RuleSet m_set;
  bool m_coversRoot;
};

/// The largest of all files that it is given, in the room for those that are listed: a heap with the smallest on top.
class Largest {
 public:
  struct File {
    LargeFile file;
    FileId id;
  };

  [[nodiscard]] bool takes(qint64 size) const { return m_heap.size() < kMostListed || size > m_heap.front().file.size; }
  void add(File file) {
    if (m_heap.size() == kMostListed) {
      std::pop_heap(m_heap.begin(), m_heap.end(), isLarger);
      m_heap.pop_back();
    }
    m_heap.push_back(std::move(file));
    std::push_heap(m_heap.begin(), m_heap.end(), isLarger);
  }
  /// Takes all out, largest first; equal ones by their paths, so that a list looks the same each time.
  [[nodiscard]] std::vector<File> take() {
    std::sort(m_heap.begin(), m_heap.end(), [](const File& a, const File& b) {
      return a.file.size != b.file.size ? a.file.size > b.file.size : a.file.path < b.file.path;
    });
    return std::exchange(m_heap, {});
  }

 private:
  static bool isLarger(const File& a, const File& b) { return a.file.size > b.file.size; }

  std::vector<File> m_heap;
};

LargeFile describe(fs::VisitedFile& file) {
  const fs::Entry& entry = file.entry();
  return {.path = file.path(),
          .name = entry.name,
          .dir = QDir::toNativeSeparators(file.folder()),
          .kind = LargeFileFinder::kindFor(entry.name),
          .size = entry.allocated,
          .lastUsed = QDateTime::fromMSecsSinceEpoch(std::max(entry.accessedMs, entry.modifiedMs))};
}

/// One search, on its worker.
class Search {
 public:
  using Tell = std::function<void(const LargeFileFinder::Summary&, const QString& dir, const QList<LargeFile>& top)>;

  Search(qint64 minBytes, const QList<QString>& exclusions, const LargeFileFinder::Clock& clock, Tell tell)
      : m_root(places::home()),
        m_rules(exclusions, m_root),
        m_minBytes(minBytes),
        m_clock(clock),
        m_tell(std::move(tell)),
        m_toldAt(now()) {}

  /// @return false if @p cancel ended it
  [[nodiscard]] bool run(const std::atomic<bool>& cancel) {
    return fs::visitFilesLazily(
        m_root, cancel, [this](const QString& parent, const QString& name) { return isLeftOut(parent, name); },
        [this](fs::VisitedFile& file) { see(file); });
  }
  /// Takes the list out and fills what is told beside it.
  [[nodiscard]] QList<LargeFile> takeList(LargeFileFinder::Summary* summary);

 private:
  [[nodiscard]] std::chrono::milliseconds now() const {
    if (m_clock) return m_clock();
    return std::chrono::duration_cast<std::chrono::milliseconds>(std::chrono::steady_clock::now().time_since_epoch());
  }
  [[nodiscard]] bool isLeftOut(const QString& parent, const QString& name) const;
  void see(fs::VisitedFile& file);
  void tellWhenDue(const QString& dir);
  void keep(fs::VisitedFile& file);
  void keepOnTop(const LargeFile& file);

  const QString m_root;
  const Rules m_rules;
  const qint64 m_minBytes;
  const LargeFileFinder::Clock& m_clock;
  const Tell m_tell;
  std::chrono::milliseconds m_toldAt;
  LargeFileFinder::Summary m_summary;
  Largest m_largest;
  QList<LargeFile> m_top;
};

bool Search::isLeftOut(const QString& parent, const QString& name) const {
  if (name.startsWith(u'.')) return true;
  const auto isName = [&](const char* one) { return name == QLatin1String(one); };
  if (std::any_of(std::begin(kLeftOut), std::end(kLeftOut), isName)) return true;
  return !m_rules.isEmpty() && m_rules.cover(fs::join(parent, name));
}

void Search::see(fs::VisitedFile& file) {
  if (++m_summary.filesSeen % kFilesPerLook == 0) tellWhenDue(file.folder());
  if (file.allocated() < m_minBytes) return;
  if (!m_rules.isEmpty() && m_rules.cover(file.path())) return;
  if (!file.entry().reachable) return; // nobody could do anything about it
  ++m_summary.found;
  m_summary.bytesFound += file.allocated();
  if (m_largest.takes(file.allocated())) keep(file);
}

void Search::tellWhenDue(const QString& dir) {
  const std::chrono::milliseconds time = now();
  if (time - m_toldAt < kBetweenProgress) return;
  m_toldAt = time;
  m_tell(m_summary, dir, m_top);
}

void Search::keep(fs::VisitedFile& file) {
  const LargeFile large = describe(file);
  keepOnTop(large);
  m_largest.add({large, {file.entry().device, file.entry().inode}});
}

/// Of equal ones the first that was found stays ahead.
void Search::keepOnTop(const LargeFile& file) {
  if (m_top.size() >= kMostOnTop && file.size <= m_top.last().size) return;
  const auto smaller =
      std::find_if(m_top.cbegin(), m_top.cend(), [&](const LargeFile& one) { return one.size < file.size; });
  m_top.insert(smaller, file);
  if (m_top.size() > kMostOnTop) m_top.removeLast();
}

QList<LargeFile> Search::takeList(LargeFileFinder::Summary* summary) {
  QList<LargeFile> list;
  for (Largest::File& one : m_largest.take()) {
    m_summary.ids.insert(one.file.path, one.id);
    list << std::move(one.file);
  }
  *summary = std::move(m_summary);
  return list;
}

} // namespace

LargeFileFinder::LargeFileFinder(QObject* parent, Clock clock) : QObject(parent), m_clock(std::move(clock)) {}

LargeFileFinder::~LargeFileFinder() = default;

void LargeFileFinder::start(qint64 minBytes, const QList<QString>& exclusions) {
  if (isRunning()) return;
  m_job.wait(); // for the last steps of a worker that has told its end
  m_isRunning = true;
  m_job.start([this, minBytes, exclusions] { run(minBytes, exclusions); });
}

void LargeFileFinder::cancel() { m_job.cancel(); }

bool LargeFileFinder::isRunning() const { return m_isRunning; }

LargeFileFinder::Summary LargeFileFinder::summary() const {
  const QMutexLocker lock(&m_summaryLock);
  return m_summary;
}

void LargeFileFinder::run(qint64 minBytes, const QList<QString>& exclusions) {
  Search search(minBytes, exclusions, m_clock,
                [this](const Summary& sums, const QString& dir, const QList<LargeFile>& top) {
                  emit progress(sums.filesSeen, QDir::toNativeSeparators(dir), sums.found, sums.bytesFound, top);
                });
  const bool complete = search.run(m_job.cancelled());
  Summary summary;
  const QList<LargeFile> files = search.takeList(&summary);
  {
    const QMutexLocker lock(&m_summaryLock);
    m_summary = std::move(summary);
  }
  m_isRunning = false;
  emit finished(files, !complete);
}

QString LargeFileFinder::kindFor(const QString& name) {
  static const QHash<QString, QString> labels = labelsBySuffix();
  return labels.value(QFileInfo(name).suffix().toLower(), QString::fromLatin1(kOther));
}

QString LargeFileFinder::kindName(const QString& kind) { return tr(kind.toLatin1().constData()); }

#include "moc_LargeFileFinder.cpp"
