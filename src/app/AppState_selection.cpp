// The selection: which categories are ticked, and which items were taken out of them.
#include "app/AppState.h"

#include <algorithm>

namespace {

bool isTickable(const CategoryResult& result) { return result.bytes >= 1; }

/// @p result without its unticked items.
CategoryResult without(const QSet<QString>& unticked, const CategoryResult& result) {
  CategoryResult rest = result;
  rest.items.clear();
  for (const CleanItem& item : result.items) {
    if (!unticked.contains(item.path)) {
      rest.items << item;
      continue;
    }
    rest.bytes -= item.bytes;
    rest.files -= item.files;
  }
  rest.bytes = qMax<qint64>(0, rest.bytes);
  rest.files = qMax<qint64>(0, rest.files);
  return rest;
}

} // namespace

void AppState::clearSelection() {
  m_selected.clear();
  m_unticked.clear();
  m_sums.clear();
}

template <typename Wanted>
void AppState::selectOnly(Wanted wanted) {
  clearSelection();
  for (const CategoryResult& one : std::as_const(results))
    if (isTickable(one) && wanted(one)) m_selected.insert(one.def.id);
  emit selectionChanged();
}

void AppState::selectRecommended() {
  selectOnly([](const CategoryResult& one) { return one.def.safety == Safe; });
}

void AppState::selectAll(bool on) {
  selectOnly([on](const CategoryResult&) { return on; });
}

void AppState::setSelected(const QString& id, bool on) {
  const int state = selectionState(id);
  if (on ? state == Qt::Checked : state == Qt::Unchecked) return;
  if (on)
    m_selected.insert(id);
  else
    m_selected.remove(id);
  clearUnticked(id);
  emit selectionChanged();
}

void AppState::setItemSelected(const QString& id, const QString& path, bool on) {
  const CategoryResult* category = result(id);
  if (!category || isItemSelected(id, path) == on) return;
  m_sums.follow(results, m_unticked);
  if (!m_sums.belongs(path, category - results.constData())) return;
  if (on)
    tickItem(*category, path);
  else
    untickItem(*category, path);
  emit selectionChanged();
}

void AppState::tickItem(const CategoryResult& category, const QString& path) {
  if (!m_selected.contains(category.def.id)) {
    m_selected.insert(category.def.id);
    for (const CleanItem& item : category.items) insertUnticked(item.path);
  }
  removeUnticked(path);
}

void AppState::untickItem(const CategoryResult& category, const QString& path) {
  insertUnticked(path);
  if (untickedOf(category).items == category.items.size()) {
    m_selected.remove(category.def.id);
    clearUnticked(category.def.id);
  }
}

void AppState::insertUnticked(const QString& path) {
  const qsizetype before = m_unticked.size();
  m_unticked.insert(path);
  if (m_unticked.size() > before) m_sums.added(path);
}

void AppState::removeUnticked(const QString& path) {
  if (m_unticked.remove(path)) m_sums.removed(path);
}

const UntickedSums::Sums& AppState::untickedOf(const CategoryResult& category) const {
  m_sums.follow(results, m_unticked);
  return m_sums.of(&category - results.constData());
}

void AppState::clearUnticked(const QString& id) {
  const CategoryResult* category = result(id);
  if (!category || m_unticked.isEmpty() || untickedOf(*category).items == 0) return;
  for (const CleanItem& item : category->items) removeUnticked(item.path);
}

int AppState::selectionState(const QString& id) const {
  if (!m_selected.contains(id)) return Qt::Unchecked;
  const CategoryResult* category = result(id);
  if (!category || m_unticked.isEmpty()) return Qt::Checked;
  return untickedOf(*category).items > 0 ? Qt::PartiallyChecked : Qt::Checked;
}

bool AppState::isItemSelected(const QString& id, const QString& path) const {
  return m_selected.contains(id) && !m_unticked.contains(path);
}

qint64 AppState::tickedBytes(const CategoryResult& category) const {
  if (!m_selected.contains(category.def.id)) return 0;
  const qint64 taken = m_unticked.isEmpty() ? 0 : untickedOf(category).bytes;
  return qMax<qint64>(0, category.bytes - taken);
}

QList<CategoryResult> AppState::selectedResults() const {
  QList<CategoryResult> chosen;
  for (const CategoryResult& one : results) {
    if (tickedBytes(one) < 1) continue;
    const bool whole = m_unticked.isEmpty() || untickedOf(one).items == 0;
    chosen << (whole ? one : without(m_unticked, one));
  }
  return chosen;
}

qint64 AppState::selectedBytes() const {
  qint64 sum = 0;
  for (const CategoryResult& one : results) sum += tickedBytes(one);
  return sum;
}

qint64 AppState::selectedBytesOf(const QString& id) const {
  const CategoryResult* category = result(id);
  return category ? tickedBytes(*category) : 0;
}

template <typename Test>
bool AppState::anySelected(Test test) const {
  return std::any_of(results.cbegin(), results.cend(),
                     [&](const CategoryResult& one) { return tickedBytes(one) >= 1 && test(one.def); });
}

bool AppState::selectionNeedsAdmin() const {
  return !platform::isElevated() && anySelected([](const CategoryDef& def) { return def.needsAdmin; });
}

bool AppState::selectionNeedsFullDiskAccess() const {
  return anySelected([](const CategoryDef& def) { return def.needsFullDiskAccess; });
}
