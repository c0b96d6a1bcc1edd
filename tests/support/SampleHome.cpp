#include "support/SampleHome.h"

#include <QFile>

#include <array>
#include <functional>

#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

constexpr int kOldDays = 3; // older than what may still be in use

void walk(const QByteArray& path, const std::function<void(const QByteArray&, const struct stat&)>& visit) {
  struct stat status {};
  if (::lstat(path.constData(), &status) != 0) return;
  visit(path, status);
  if (!S_ISDIR(status.st_mode)) return;
  DIR* dir = ::opendir(path.constData());
  while (const dirent* entry = dir ? ::readdir(dir) : nullptr) {
    const QByteArray name = entry->d_name;
    if (name != "." && name != "..") walk(path + '/' + name, visit);
  }
  if (dir) ::closedir(dir);
}

QByteArray contents(const QByteArray& path, const struct stat& status) {
  if (S_ISLNK(status.st_mode)) {
    std::array<char, 4096> target{};
    const ssize_t size = ::readlink(path.constData(), target.data(), target.size());
    return QByteArray(target.data(), size);
  }
  if (!S_ISREG(status.st_mode)) return {};
  QFile file;
  const int fd = ::open(path.constData(), O_RDONLY | O_CLOEXEC); // by its bytes, which need not be text
  const bool opened = file.open(fd, QIODevice::ReadOnly, QFileDevice::AutoCloseHandle);
  return opened ? file.readAll() : "unreadable";
}

} // namespace

void fillSampleHome(const FixtureHome& home) {
  home.file(home.temp(u"old-scratch/a"_s), 30'000);
  home.file(home.temp(u"young-scratch"_s), 10'000);
  FixtureHome::age(home.temp(u"old-scratch"_s), QDateTime::currentDateTime().addDays(-kOldDays));
  home.file(u".cache/acme-notes/index"_s, 50'000);
  home.file(u".cache/acme-notes/pages/1"_s, 20'000);
  home.file(u".cache/acme-paint/brushes"_s, 8'000);
  home.file(u".cache/mozilla/firefox/ab12.default/cache2/entries/1"_s, 40'000);
  home.file(u".cache/thumbnails/normal/1.png"_s, 12'000);
  home.file(u".cache/pip/http/1"_s, 70'000);
  home.file(u".xsession-errors.old"_s, 9'000);
  home.file(u"Downloads/tool_1.0_amd64.deb"_s, 90'000);
  home.file(u"Downloads/letter.pdf"_s, 5'000);
  home.file(u".local/share/Trash/files/old-letter.odt"_s, 15'000);
  home.file(u".local/share/Trash/info/old-letter.odt.trashinfo"_s, 100);
  home.file(u"Documents/book.odt"_s, 25'000);
}

QMap<QByteArray, QByteArray> wholeTree(const FixtureHome& home) {
  QMap<QByteArray, QByteArray> tree;
  const QByteArray root = QFile::encodeName(home.outside());
  const QByteArray settings = QFile::encodeName(home.outside(u"settings"_s));
  walk(root, [&](const QByteArray& path, const struct stat& status) {
    if (path.startsWith(settings)) return;
    tree[path.mid(root.size())] = QByteArray::number(status.st_mode) + ' ' +
                                  QByteArray::number(qint64(status.st_size)) + ' ' +
                                  QByteArray::number(qint64(status.st_mtim.tv_sec)) + '.' +
                                  QByteArray::number(qint64(status.st_mtim.tv_nsec)) + ' ' + contents(path, status);
  });
  return tree;
}

void addManyItems(const FixtureHome& home, int count) {
  for (int i = 0; i < count; ++i) home.file(u"Downloads/many-%1.deb"_s.arg(i), 100);
}

QStringList slowRules() {
  constexpr int kRules = 3'000;
  QStringList options;
  for (int i = 0; i < kRules; ++i) options << u"--exclude=/*a*e*o*%1*"_s.arg(kRules + i);
  return options;
}
