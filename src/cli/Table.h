/// Columns of text, padded by what they take on a terminal.
#pragma once

#include <QList>
#include <QString>

namespace cli {

enum class Tone { Plain, Strong, Faint, Good, Careful, Grave };

struct Cell {
  QString text;
  Tone tone = Tone::Plain;
};

class Table {
 public:
  enum class Side { Left, Right };

  explicit Table(const QList<Side>& columns) : m_columns(columns) {}

  /// As many cells as there are columns, or fewer.
  void add(const QList<Cell>& row) { m_rows << row; }
  /// A line as wide as the columns.
  void addRule() { m_rows << QList<Cell>(); }

  /// Every row on a line of its own, moved in by two blanks. The last column gives way where the lines would be wider
  /// than @p width; 0 or less is no limit.
  [[nodiscard]] QString text(int width, bool colours) const;

 private:
  [[nodiscard]] QList<int> widths(int limit) const;
  [[nodiscard]] QString line(const QList<Cell>& row, const QList<int>& widths, bool colours) const;

  QList<Side> m_columns;
  QList<QList<Cell>> m_rows;
};

/// @p text in a tone, or as it is.
[[nodiscard]] QString toned(const QString& text, Tone tone, bool colours);
/// A bar of at most @p cells columns for a share of 0 to 1, in eighths of a column. Never empty for a share above 0.
[[nodiscard]] QString bar(double share, int cells);

} // namespace cli
