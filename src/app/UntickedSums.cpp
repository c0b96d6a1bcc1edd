#include "app/UntickedSums.h"

#include <algorithm>

bool UntickedSums::follows(const QList<CategoryResult>& results) const {
  return std::equal(results.cbegin(), results.cend(), m_followed.cbegin(), m_followed.cend(),
                    [](const CategoryResult& result, const QList<CleanItem>& followed) {
                      return result.items.constData() == followed.constData() && result.items.size() == followed.size();
                    });
}

void UntickedSums::follow(const QList<CategoryResult>& results, const QSet<QString>& unticked) {
  if (follows(results)) return;
  m_followed.clear();
  m_items.clear();
  m_unticked = QList<Sums>(results.size());
  for (qsizetype i = 0; i < results.size(); ++i) {
    m_followed << results.at(i).items;
    for (const CleanItem& item : results.at(i).items) m_items.insert(item.path, {i, item.bytes, item.files});
  }
  for (const QString& path : unticked) added(path);
}

bool UntickedSums::belongs(const QString& path, qsizetype category) const {
  const auto [first, last] = m_items.equal_range(path);
  if (first == last) return m_followed.at(category).isEmpty();
  return std::any_of(first, last, [=](const Item& item) { return item.category == category; });
}

void UntickedSums::count(const QString& path, int sign) {
  const auto [first, last] = m_items.equal_range(path);
  for (auto item = first; item != last; ++item) {
    Sums& sums = m_unticked[item->category];
    sums.bytes += sign * item->bytes;
    sums.files += sign * item->files;
    sums.items += sign;
  }
}
