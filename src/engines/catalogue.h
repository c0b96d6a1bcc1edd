/// How the two catalogue tables are written, and the one loop that turns them into records. For the tables alone.
#pragma once

#include "app/records.h"
#include "core/fs.h"

#include <QList>
#include <QString>

#include <functional>
#include <span>

namespace catalogue {

/// What the rows of roots are relative to.
enum class Place { Home, Temp, MacLibrary, MacCaches, Cache, Config, Data, Downloads, VarCrash };

/// A source text of the context "Categories".
struct Text {
  constexpr Text(const char* english, const char* among = nullptr) : source(english), comment(among) {}

  const char* source;
  const char* comment; ///< tells it from the same English with another translation; null for most
};

/// A category's words on one host. The blurb is a source text too.
struct Words {
  Text title;
  const char* hint;
  const char* blurb;
};

struct CategoryRow {
  const char* id;
  const char* icon;
  const char* colour;
  Safety safety;
  Words mac;
  Words linux;
  bool macNeedsFullDiskAccess = false;
};

/// The eight categories in their order.
[[nodiscard]] std::span<const CategoryRow> categoryRows();

struct RootRow {
  const char* category;
  Place place;
  const char* relative;      ///< to the place
  const char* label = "";    ///< empty: the children are items. A source text of "Categories", or a product's name
  const char* patterns = ""; ///< wildcards with a blank between them
  const char* inEachFolder =
      ""; ///< not empty: one root for each sub-folder, this far below it, its name after the label
  bool ownOnly = false;
};

/// The folder of a place now; empty if there is none.
[[nodiscard]] QString folder(Place place);
/// A clean path of the two.
[[nodiscard]] QString under(const QString& base, const QString& relative);
/// The folders, and no links to folders, in @p dir that a text path reaches, in the system's order.
[[nodiscard]] QList<fs::Entry> subFolders(const QString& dir);
/// Adds @p root with its real path, if it is a folder now and no link leads it to where nothing may be cleaned.
void addRoot(QList<ScanRoot>* roots, ScanRoot root);
/// Adds the roots of one row. @p base stands for the row's place, @p suffix goes behind each label.
void addRow(QList<ScanRoot>* roots, const RootRow& row, const QString& base, const QString& suffix = {});

/// The catalogue of one host: its words, its table of roots, and behind those of "appcache", "browser" and "trash" what
/// @p further adds.
[[nodiscard]] QList<CategoryDef> build(bool mac, std::span<const RootRow> rows,
                                       const std::function<void(CategoryDef*)>& further);

/// Whether @p name matches one of @p patterns, each with one "*" at the most; case-sensitive.
[[nodiscard]] bool matchesAny(QStringView name, std::span<const char16_t* const> patterns);

} // namespace catalogue
