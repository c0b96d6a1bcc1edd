/// What the unticked items of each category come to, kept with every tick instead of being summed anew.
#pragma once

#include "app/records.h"

#include <QMultiHash>
#include <QSet>

class UntickedSums {
 public:
  struct Sums {
    qint64 bytes = 0;
    qint64 files = 0;
    qsizetype items = 0;
  };

  /// Brings itself up to date where @p results are others than the last time. Cheap where they are the same: it holds
  /// on to a shared copy of each list, so another list, or a changed one, has another address.
  void follow(const QList<CategoryResult>& results, const QSet<QString>& unticked);
  /// A path was put into the set of unticked ones, or taken out. After follow().
  void added(const QString& path) { count(path, 1); }
  void removed(const QString& path) { count(path, -1); }
  /// The set was emptied.
  void clear() { m_unticked.fill({}); }

  /// The sums of one category, by its place in the results. After follow().
  [[nodiscard]] const Sums& of(qsizetype category) const { return m_unticked.at(category); }
  /// Whether a category has an item with this path; one without items has every path that no other has. After follow().
  [[nodiscard]] bool belongs(const QString& path, qsizetype category) const;

 private:
  struct Item {
    qsizetype category = 0;
    qint64 bytes = 0;
    qint64 files = 0;
  };

  [[nodiscard]] bool follows(const QList<CategoryResult>& results) const;
  void count(const QString& path, int sign);

  QList<QList<CleanItem>> m_followed; // shared with the results, one list a category
  QMultiHash<QString, Item> m_items;  // by path, which two categories may share
  QList<Sums> m_unticked;             // one for each category
};
