#include "ui/pages/LargeFilesModel.h"

#include "core/fmt.h"
#include "engines/LargeFileFinder.h"
#include "ui/TipStyler.h"
#include "ui/pages/LargeFilesWords.h"

#include <QDir>

#include <algorithm>
#include <numeric>

using namespace Qt::StringLiterals;

namespace ui {

namespace {

struct Header {
  QLatin1StringView text; // in every language
  bool sortable;
  Qt::Alignment alignment;
};
constexpr Qt::Alignment kLeft = Qt::AlignLeft | Qt::AlignVCenter;
constexpr Qt::Alignment kRight = Qt::AlignRight | Qt::AlignVCenter;
constexpr Header kHeaders[LargeFilesModel::kColumns] = {
    {""_L1, false, kLeft},     {"Name"_L1, true, kLeft}, {"Kind"_L1, false, kLeft}, {"Last opened"_L1, true, kRight},
    {"Size"_L1, true, kRight},
};

bool less(const LargeFile& one, const LargeFile& other, int column) {
  switch (column) {
  case LargeFilesModel::Name:
    return QString::compare(one.name, other.name, Qt::CaseInsensitive) < 0;
  case LargeFilesModel::LastOpened:
    return one.lastUsed < other.lastUsed;
  default:
    return one.size < other.size;
  }
}

/// What is said of a cell: in the first one of the file as a whole, since its tick is.
QString spoken(const LargeFile& file, int column) {
  switch (column) {
  case LargeFilesModel::Check:
    return fmt::list({file.name, fmt::bytes(file.size)});
  case LargeFilesModel::Name:
    return file.name;
  case LargeFilesModel::Kind:
    return LargeFileFinder::kindName(file.kind);
  case LargeFilesModel::LastOpened:
    return fmt::age(file.lastUsed);
  default:
    return fmt::bytes(file.size);
  }
}

QString spokenHeader(int column, bool sorted, Qt::SortOrder order) {
  //: Said by a screen reader of the column of ticks
  if (column == LargeFilesModel::Check) return LargeFilesWords::tr("Selected");
  const QString text = kHeaders[column].text;
  if (!sorted) return text;
  //: Said by a screen reader after a column: how it is sorted
  const QString way =
      order == Qt::AscendingOrder ? LargeFilesWords::tr("ascending") : LargeFilesWords::tr("descending");
  return fmt::list({text, way});
}

} // namespace

bool LargeFilesModel::isSortable(int column) { return column >= 0 && column < kColumns && kHeaders[column].sortable; }

int LargeFilesModel::rowOf(const QString& path) const {
  const auto found =
      std::find_if(m_files.cbegin(), m_files.cend(), [&](const LargeFile& one) { return one.path == path; });
  return found == m_files.cend() ? -1 : int(found - m_files.cbegin());
}

void LargeFilesModel::setFiles(const QList<LargeFile>& files) {
  beginResetModel();
  m_files = files;
  endResetModel();
  sort(m_sortColumn, m_sortOrder);
}

void LargeFilesModel::toggle(const QString& path) {
  if (!m_selection.remove(path)) m_selection.insert(path);
  if (const int row = rowOf(path); row >= 0) emit dataChanged(index(row, 0), index(row, kColumns - 1));
  emit selectionChanged();
}

void LargeFilesModel::forget(const QList<QString>& paths) {
  for (const QString& path : paths) m_selection.remove(path);
}

int LargeFilesModel::rowCount(const QModelIndex& parent) const { return parent.isValid() ? 0 : int(m_files.size()); }

int LargeFilesModel::columnCount(const QModelIndex& parent) const { return parent.isValid() ? 0 : kColumns; }

QVariant LargeFilesModel::data(const QModelIndex& index, int role) const {
  if (!index.isValid() || index.row() >= m_files.size()) return {};
  const LargeFile& file = m_files.at(index.row());
  switch (role) {
  case Qt::ToolTipRole:
    return plainTip(QDir::toNativeSeparators(file.path));
  case FileRole:
    return QVariant::fromValue(file);
  case CheckedRole:
    return m_selection.contains(file.path);
  case Qt::CheckStateRole:
    if (index.column() != Check) return {};
    return int(m_selection.contains(file.path) ? Qt::Checked : Qt::Unchecked);
  case Qt::AccessibleTextRole:
    return spoken(file, index.column());
  case Qt::AccessibleDescriptionRole:
    return index.column() == Name ? QVariant(fmt::shortPath(file.dir)) : QVariant();
  default:
    return {};
  }
}

QVariant LargeFilesModel::headerData(int section, Qt::Orientation orientation, int role) const {
  if (orientation != Qt::Horizontal || section < 0 || section >= kColumns) return {};
  const Header& header = kHeaders[section];
  const bool sorted = header.sortable && section == m_sortColumn;
  switch (role) {
  case Qt::TextAlignmentRole:
    return int(header.alignment);
  case Qt::DisplayRole:
    return QString(header.text).toUpper() +
           (!sorted ? QString() : (m_sortOrder == Qt::DescendingOrder ? u"  ↓"_s : u"  ↑"_s));
  case Qt::AccessibleTextRole:
    return spokenHeader(section, sorted, m_sortOrder);
  default:
    return {};
  }
}

Qt::ItemFlags LargeFilesModel::flags(const QModelIndex& index) const {
  const Qt::ItemFlags usual = QAbstractTableModel::flags(index);
  return index.isValid() && index.column() == Check ? usual | Qt::ItemIsUserCheckable : usual;
}

void LargeFilesModel::sort(int column, Qt::SortOrder order) {
  if (isSortable(column)) m_sortColumn = column;
  m_sortOrder = order;
  emit layoutAboutToBeChanged({}, VerticalSortHint);
  sortFiles();
  emit layoutChanged({}, VerticalSortHint);
  emit headerDataChanged(Qt::Horizontal, 0, kColumns - 1);
}

// The rows' new places are found first, so that what holds an index, such as the keyboard's place, moves with its file.
void LargeFilesModel::sortFiles() {
  QList<int> places(m_files.size());
  std::iota(places.begin(), places.end(), 0);
  std::stable_sort(places.begin(), places.end(), [this](int one, int other) {
    if (m_sortOrder == Qt::DescendingOrder) std::swap(one, other);
    return less(m_files.at(one), m_files.at(other), m_sortColumn);
  });
  QList<LargeFile> sorted;
  sorted.reserve(m_files.size());
  QList<int> rowAfter(m_files.size());
  for (const int place : std::as_const(places)) {
    rowAfter[place] = int(sorted.size());
    sorted << m_files.at(place);
  }
  m_files = sorted;
  const QModelIndexList held = persistentIndexList();
  QModelIndexList moved;
  for (const QModelIndex& one : held) moved << index(rowAfter.value(one.row(), one.row()), one.column());
  changePersistentIndexList(held, moved);
}

} // namespace ui
