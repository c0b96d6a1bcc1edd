/// The rows of the Space Map's list, and which files are ticked. User-interface thread only.
#pragma once

#include "app/records.h"

#include <QAbstractTableModel>
#include <QList>
#include <QSet>

namespace ui {

/// A tick belongs to a path, not to a row: it outlives every filter, sorting and search.
///
/// It has no texts to display, as LargeFileDelegate paints the rows from the files themselves; what a screen reader
/// says of a cell is its accessible text, and a file's tick is the check state of its first cell.
class LargeFilesModel : public QAbstractTableModel {
  Q_OBJECT

 public:
  enum Column { Check, Name, Kind, LastOpened, Size };
  static constexpr int kColumns = 5;
  enum Role {
    FileRole = Qt::UserRole + 1, ///< the whole LargeFile
    CheckedRole,                 ///< whether it is ticked
  };

  using QAbstractTableModel::QAbstractTableModel;

  int unusedMonths = 6; ///< from this age on, an age is painted as a warning

  [[nodiscard]] const QList<LargeFile>& files() const { return m_files; }
  /// The ticked paths, also of files that have no row now.
  [[nodiscard]] const QSet<QString>& selection() const { return m_selection; }
  [[nodiscard]] int sortColumn() const { return m_sortColumn; }
  [[nodiscard]] Qt::SortOrder sortOrder() const { return m_sortOrder; }
  /// -1 for a path that has no row.
  [[nodiscard]] int rowOf(const QString& path) const;

  /// The new rows, in any order: they are sorted as the last were.
  void setFiles(const QList<LargeFile>& files);
  /// Ticks or unticks; also a path that has no row.
  void toggle(const QString& path);
  /// Takes ticks away without telling: for what is about to go.
  void forget(const QList<QString>& paths);

  [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
  [[nodiscard]] int columnCount(const QModelIndex& parent = {}) const override;
  [[nodiscard]] QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
  [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation,
                                    int role = Qt::DisplayRole) const override;
  [[nodiscard]] Qt::ItemFlags flags(const QModelIndex& index) const override;
  /// By a column that can't be sorted by, the rows stay sorted by the last one, in the new order. Files that are equal
  /// keep their order.
  void sort(int column, Qt::SortOrder order = Qt::AscendingOrder) override;
  [[nodiscard]] static bool isSortable(int column);

 signals:
  /// Some path was ticked or unticked.
  void selectionChanged();

 private:
  void sortFiles();

  QList<LargeFile> m_files;
  QSet<QString> m_selection;
  int m_sortColumn = Size;
  Qt::SortOrder m_sortOrder = Qt::DescendingOrder;
};

} // namespace ui
