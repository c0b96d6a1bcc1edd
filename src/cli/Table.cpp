#include "cli/Table.h"

#include "cli/terminal.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numeric>

using namespace Qt::StringLiterals;

namespace cli {
namespace {

const QString kIndent = u"  "_s;
const QString kGap = u"  "_s;
constexpr int kEighths = 8;

/// SGR parameters, by Tone.
constexpr std::array kCodes = {"", "1", "2", "32", "33", "31"};

} // namespace

QString toned(const QString& text, Tone tone, bool colours) {
  if (!colours || tone == Tone::Plain || text.isEmpty()) return text;
  return u"\x1b[%1m%2\x1b[0m"_s.arg(QLatin1String(kCodes.at(static_cast<size_t>(tone))), text);
}

QString bar(double share, int cells) {
  const int eighths =
      std::clamp(static_cast<int>(std::lround(share * cells * kEighths)), share > 0 ? 1 : 0, cells * kEighths);
  QString text(eighths / kEighths, u'█');
  if (const int rest = eighths % kEighths; rest > 0) text += QChar(u'█' + (kEighths - rest)); // ▉ down to ▏
  return text;
}

QList<int> Table::widths(int limit) const {
  QList<int> widths(m_columns.size(), 0);
  for (const QList<Cell>& row : m_rows)
    for (qsizetype i = 0; i < row.size(); ++i) widths[i] = std::max(widths[i], terminal::columns(row.at(i).text));
  const auto gaps = kIndent.size() + kGap.size() * (widths.size() - 1);
  const int total = std::accumulate(widths.begin(), widths.end(), static_cast<int>(gaps));
  if (limit > 0 && total > limit) widths.last() = std::max(0, widths.last() - (total - limit));
  return widths;
}

QString Table::line(const QList<Cell>& row, const QList<int>& widths, bool colours) const {
  QString line;
  for (qsizetype i = 0; i < row.size(); ++i) {
    const QString text = i + 1 == widths.size() ? terminal::elided(row.at(i).text, widths.at(i)) : row.at(i).text;
    const QString padding(std::max(0, widths.at(i) - terminal::columns(text)), u' ');
    const QString shown = toned(text, row.at(i).tone, colours);
    line += (i == 0 ? kIndent : kGap) + (m_columns.at(i) == Side::Right ? padding + shown : shown + padding);
  }
  while (line.endsWith(u' ')) line.chop(1);
  return line + u'\n';
}

QString Table::text(int width, bool colours) const {
  const QList<int> columns = widths(width);
  const auto gaps = kGap.size() * (columns.size() - 1);
  const int inner = std::accumulate(columns.begin(), columns.end(), static_cast<int>(gaps));
  QString text;
  for (const QList<Cell>& row : m_rows) {
    if (row.isEmpty())
      text += kIndent + toned(QString(inner, u'─'), Tone::Faint, colours) + u'\n';
    else
      text += line(row, columns, colours);
  }
  return text;
}

} // namespace cli
