#include "engines/systemdata.h"

#include "core/fs.h"
#include "core/places.h"
#include "core/platform.h"
#include "engines/systemdata_table.h"

#include <QCoreApplication>
#include <QDir>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace systemdata {
namespace {

QString folderOf(Base base, const SystemDataWorld& world) {
  switch (base) {
  case Base::Root:
    return world.root;
  case Base::Home:
    return places::home();
  case Base::Cache:
    return places::cache();
  case Base::Config:
    return places::config();
  case Base::Data:
    return places::data();
  }
  return {};
}

SystemDataItem itemOf(const Row& row) {
  SystemDataItem item;
  item.id = QLatin1String(row.id);
  item.title = QCoreApplication::translate("SystemData", row.title);
  item.blurb = QCoreApplication::translate("SystemData", row.blurb);
  item.icon = QLatin1String(row.icon);
  item.color = QColor(QLatin1String(row.colour));
  item.actionable = row.actionable;
  item.action = row.action;
  return item;
}

} // namespace

QString pathOf(Base base, const QString& relative, const SystemDataWorld& world) {
  const QString folder = folderOf(base, world);
  return folder.isEmpty() ? folder : QDir::cleanPath(fs::join(folder, relative));
}

QList<SystemDataItem> build(std::span<const Row> rows, std::span<const Place> places, const SystemDataWorld& world) {
  QList<SystemDataItem> items;
  for (const Row& row : rows) {
    SystemDataItem item = itemOf(row);
    for (const Place& place : places) {
      if (item.id != QLatin1String(place.row)) continue;
      const QString path = pathOf(place.base, QLatin1String(place.relative), world);
      if (!path.isEmpty()) item.paths << path;
    }
    items << item;
  }
  return items;
}

SystemDataItem& rowOf(QList<SystemDataItem>* rows, QLatin1String id) {
  return *std::find_if(rows->begin(), rows->end(), [&](const SystemDataItem& item) { return item.id == id; });
}

QList<QString> hiddenFolders() {
  QList<QString> paths;
  const QString home = places::home();
  if (home.isEmpty()) return paths;
  for (const fs::Entry& entry : fs::list(home)) {
    const bool isFolder = entry.isDir && !entry.isSymlink && entry.reachable;
    if (isFolder && entry.name.startsWith(u'.') && entry.name != u".Trash") paths << fs::join(home, entry.name);
  }
  return paths;
}

QList<SystemDataItem> definitions(const SystemDataWorld& world) {
  return platform::host() == platform::Host::Mac ? forMac(world) : forLinux(world);
}

bool supported() { return true; } // on both hosts

} // namespace systemdata
