// Emptying a Trash of few folders and of ten times as many, whose sizes the Trash has all written down: what an item
// costs may not grow with their number. Works in home folders of its own below the given folder.
#include "cleaning.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <unistd.h>

#include <algorithm>
#include <vector>

namespace {

constexpr int kFew = 400;
constexpr int kMany = 4000;
constexpr int kRounds = 5;

void makeFile(const QString& path, const QByteArray& text) {
  QFile file(path);
  if (!file.open(QIODevice::WriteOnly) || file.write(text) != text.size()) {
    std::fprintf(stderr, "cannot write %s\n", qPrintable(path));
    std::exit(1);
  }
}

/// Fills the home Trash with folders of one file each, as a file manager leaves them.
QList<CleanItem> fillTrash(const QString& trash, int folders) {
  QDir().mkpath(trash + QStringLiteral("/files"));
  QDir().mkpath(trash + QStringLiteral("/info"));
  QList<CleanItem> items;
  QByteArray sizes;
  for (int i = 0; i < folders; ++i) {
    const QString name = QStringLiteral("thrown away %1").arg(i);
    const QString folder = trash + QStringLiteral("/files/") + name;
    QDir().mkpath(folder);
    makeFile(folder + QStringLiteral("/file"), "x");
    makeFile(trash + QStringLiteral("/info/%1.trashinfo").arg(name),
             "[Trash Info]\nPath=/home/me/x\nDeletionDate=2024-02-29T13:05:00\n");
    sizes += "4096 1700000000 " + name.toUtf8().toPercentEncoding() + '\n';
    items.append(bench::itemAt(folder));
  }
  makeFile(trash + QStringLiteral("/directorysizes"), sizes);
  return items;
}

/// Microseconds an item.
double emptyOne(const QString& home, int folders) {
  qputenv("HOME", QFile::encodeName(home));
  const QList<CleanItem> items = fillTrash(home + QStringLiteral("/.local/share/Trash"), folders);
  ::sync();
  const bench::Cleaned cleaned =
      bench::clean({bench::categoryOf(QStringLiteral("trash"), items)}, home + QStringLiteral("/lock"));
  const bool isEmpty = QDir(home + QStringLiteral("/.local/share/Trash/info")).isEmpty();
  if (!cleaned.isWhole() || !isEmpty) {
    std::fprintf(stderr, "not everything went\n");
    std::exit(1);
  }
  return cleaned.ms * 1000 / folders;
}

double median(std::vector<double> values) {
  std::sort(values.begin(), values.end());
  return values[values.size() / 2];
}

} // namespace

int main(int argc, char** argv) {
  const QString folder = QDir().absoluteFilePath(QString::fromLocal8Bit(bench::folderArgument(argc, argv)));
  const QTemporaryDir dir(folder + QStringLiteral("/bench-empty-trash-XXXXXX"));
  for (const char* name : {"XDG_CACHE_HOME", "XDG_CONFIG_HOME", "XDG_DATA_HOME"}) qunsetenv(name);
  const QCoreApplication app(argc, argv);
  std::vector<double> few;
  std::vector<double> many;
  for (int round = 0; round <= kRounds; ++round) {
    const double one = emptyOne(dir.filePath(QStringLiteral("few-%1").arg(round)), kFew);
    const double other = emptyOne(dir.filePath(QStringLiteral("many-%1").arg(round)), kMany);
    if (round == 0) continue; // it warms the disk's cache
    few.push_back(one);
    many.push_back(other);
  }
  std::printf("name=empty-trash ms=%.1f us_each=%.1f us_each_of_few=%.1f many_x_few=%.2f peak_kib=%ld\n",
              median(many) * kMany / 1000, median(many), median(few), median(many) / median(few), bench::peakKib());
}
