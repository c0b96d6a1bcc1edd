/// How the two tables of System Data are written, and the one loop that turns them into rows. For the tables alone.
#pragma once

#include "engines/systemdata.h"

#include <span>

namespace systemdata {

/// What the places of rows are relative to.
enum class Base {
  Root, ///< of the disk
  Home,
  Cache,
  Config,
  Data,
};

/// One row in its words. Title and blurb are source texts of the context "SystemData".
struct Row {
  const char* id;
  const char* icon;
  const char* colour;
  bool actionable;
  SystemDataItem::Action action;
  const char* title;
  const char* blurb;
};

/// One place of a row.
struct Place {
  const char* row;
  Base base;
  const char* relative = "";
};

/// The rows with their places, in the order of both tables.
[[nodiscard]] QList<SystemDataItem> build(std::span<const Row> rows, std::span<const Place> places,
                                          const SystemDataWorld& world);
/// A clean absolute path; empty if there is no such base.
[[nodiscard]] QString pathOf(Base base, const QString& relative, const SystemDataWorld& world);
/// The row with this id, which is there.
[[nodiscard]] SystemDataItem& rowOf(QList<SystemDataItem>* rows, QLatin1String id);
/// The folders in the home folder that bear a dot before their name, and that a text path reaches, in the system's
/// order. No links, and not ".Trash".
[[nodiscard]] QList<QString> hiddenFolders();

[[nodiscard]] QList<SystemDataItem> forMac(const SystemDataWorld& world);
[[nodiscard]] QList<SystemDataItem> forLinux(const SystemDataWorld& world);

} // namespace systemdata
