#include "core/trashinfo.h"

#include "core/proctext.h"

#include <algorithm>
#include <array>
#include <optional>
#include <span>

namespace trashinfo {

namespace {

constexpr char kInfoSuffix[] = ".trashinfo";
/// What stands behind a last full stop and is longer than this is no extension.
constexpr qsizetype kLongestExtension = 16;

/// Length of @p text cut to at most @p length bytes, without cutting through a UTF-8 character.
qsizetype edgeBefore(const QByteArray& text, qsizetype length) {
  const auto continues = [&](qsizetype at) { return (static_cast<unsigned char>(text.at(at)) & 0xc0) == 0x80; };
  qsizetype edge = length;
  for (int back = 0; back < 3 && edge > 0 && edge < text.size() && continues(edge); ++back) --edge;
  return edge < text.size() && continues(edge) ? length : edge;
}

qsizetype extensionStart(const QByteArray& name) {
  const qsizetype dot = name.lastIndexOf('.');
  return dot <= 0 || name.size() - dot > kLongestExtension ? name.size() : dot;
}

} // namespace

QByteArray contents(const QByteArray& path, const QByteArray& deletedAt) {
  return "[Trash Info]\nPath=" + path.toPercentEncoding("/") + "\nDeletionDate=" + deletedAt + "\n";
}

QByteArray infoName(const QByteArray& name) { return name + kInfoSuffix; }

QByteArray candidate(const QByteArray& name, int number, qsizetype nameMax) {
  const qsizetype start = extensionStart(name);
  const QByteArray tail = (number > 1 ? '.' + QByteArray::number(number) : QByteArray()) + name.mid(start);
  const qsizetype room = nameMax - static_cast<qsizetype>(sizeof kInfoSuffix - 1) - tail.size();
  return name.left(start <= room ? start : edgeBefore(name, qMax(room, qsizetype(1)))) + tail;
}

QByteArray withoutSizes(const QByteArray& sizes, const QSet<QByteArray>& names) {
  QByteArray kept;
  kept.reserve(sizes.size());
  for (qsizetype begin = 0; begin < sizes.size();) {
    const qsizetype newline = sizes.indexOf('\n', begin);
    const qsizetype end = newline < 0 ? sizes.size() : newline + 1;
    const QByteArray line = sizes.mid(begin, end - begin);
    const QByteArray encoded = line.trimmed().split(' ').value(2);
    if (encoded.isEmpty() || !names.contains(QByteArray::fromPercentEncoding(encoded))) kept += line;
    begin = end;
  }
  return kept;
}

namespace {

/// File systems without a device file that are local all the same.
constexpr std::array<QByteArrayView, 4> kLocalTypes = {"bcachefs", "btrfs", "overlay", "zfs"};
/// What a mount may call its device, as it is free to, doesn't make these local disks.
constexpr std::array<QByteArrayView, 4> kNeverLocal = {"autofs", "devtmpfs", "ramfs", "tmpfs"};

bool isIn(std::span<const QByteArrayView> types, const QByteArray& type) {
  return std::find(types.begin(), types.end(), QByteArrayView(type)) != types.end();
}

struct Mount {
  QByteArray device; ///< "major:minor"
  QByteArray root;   ///< which part of the file system is mounted
  QByteArray point;
  QByteArrayList options;
  QByteArray type;
  QByteArray source;
  QByteArrayList superOptions;
};

std::optional<Mount> parseMount(const QByteArray& line) {
  const QByteArrayList fields = line.split(' ');
  const qsizetype dash = fields.indexOf("-", 6);
  if (dash < 0 || dash + 3 >= fields.size()) return std::nullopt;
  return Mount{.device = fields.at(2),
               .root = proctext::unescaped(fields.at(3)),
               .point = proctext::unescaped(fields.at(4)),
               .options = fields.at(5).split(','),
               .type = fields.at(dash + 1),
               .source = proctext::unescaped(fields.at(dash + 2)),
               .superOptions = fields.at(dash + 3).split(',')};
}

bool isLocal(const Mount& mount) {
  if (mount.type.startsWith("fuse") || isIn(kNeverLocal, mount.type)) return false;
  if (mount.source.startsWith("/dev/")) return !mount.source.startsWith("/dev/loop");
  return isIn(kLocalTypes, mount.type);
}

// A part of a file system that is mounted alone is a bind mount, unless it is the subvolume that was asked for.
bool isBind(const Mount& mount) {
  if (mount.root == "/") return false;
  return mount.type != "btrfs" || !mount.superOptions.contains("subvol=" + mount.root);
}

bool isWritable(const Mount& mount) { return !mount.options.contains("ro") && !mount.superOptions.contains("ro"); }

} // namespace

QByteArrayList localMountPoints(const QByteArray& mountinfo) {
  QByteArrayList points;
  QSet<QByteArray> seen;
  for (const QByteArray& line : mountinfo.split('\n')) {
    const std::optional<Mount> mount = parseMount(line);
    if (!mount || !isLocal(*mount) || isBind(*mount) || !isWritable(*mount)) continue;
    const QByteArray part = mount->device + ' ' + mount->root;
    if (seen.contains(part)) continue; // the whole of it, mounted a second time
    seen.insert(part);
    points.append(mount->point);
  }
  return points;
}

} // namespace trashinfo
