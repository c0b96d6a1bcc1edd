// The selection: what ticking does, when it tells, and that its sums follow the results.
#include "app/AppState.h"
#include "app/identity.h"
#include "support/FixtureHome.h"

#include <QRandomGenerator>
#include <QSignalSpy>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

struct Sample {
  const char* name;
  qint64 bytes;
  qint64 files;
};

CategoryResult category(const QString& id, Safety safety, std::initializer_list<Sample> samples) {
  CategoryResult result;
  result.def.id = id;
  result.def.safety = safety;
  for (const Sample& sample : samples) {
    CleanItem item;
    item.name = QLatin1String(sample.name);
    item.path = u"/c/"_s + id + u'/' + item.name;
    item.bytes = sample.bytes;
    item.files = sample.files;
    result.items << item;
    result.bytes += item.bytes;
    result.files += item.files;
  }
  return result;
}

QString at(const char* id, const char* name) { return u"/c/"_s + QLatin1String(id) + u'/' + QLatin1String(name); }

const QString kTemp = u"temp"_s;
const QString kLogs = u"logs"_s;
const QString kDev = u"dev"_s;
const QString kTrash = u"trash"_s;
const QString kNone = u"none"_s;

/// What the selection comes to by its definition, summed anew.
QList<CategoryResult> definition(const AppState& state) {
  QList<CategoryResult> chosen;
  for (CategoryResult one : state.results) {
    if (!state.selected.contains(one.def.id) || one.bytes < 1) continue;
    QList<CleanItem> kept;
    for (const CleanItem& item : std::as_const(one.items)) {
      if (state.unticked.contains(item.path)) {
        one.bytes = one.bytes - item.bytes;
        one.files = one.files - item.files;
      } else {
        kept << item;
      }
    }
    one.bytes = qMax<qint64>(0, one.bytes);
    one.files = qMax<qint64>(0, one.files);
    one.items = kept;
    if (one.bytes >= 1) chosen << one;
  }
  return chosen;
}

bool sameResults(const QList<CategoryResult>& a, const QList<CategoryResult>& b) {
  const auto sameItem = [](const CleanItem& x, const CleanItem& y) { return x.path == y.path; };
  return std::equal(a.begin(), a.end(), b.begin(), b.end(), [&](const CategoryResult& x, const CategoryResult& y) {
    return x.def.id == y.def.id && x.bytes == y.bytes && x.files == y.files &&
           std::equal(x.items.begin(), x.items.end(), y.items.begin(), y.items.end(), sameItem);
  });
}

} // namespace

class tst_AppState_selection : public QObject {
  Q_OBJECT

 private slots:
  void initTestCase() { identity::apply(); }
  void init();
  void cleanup() { m_state.reset(); }

  void recommendedIsSafeAndNotEmpty();
  void recommendedForgetsExceptions();
  void selectAllTakesWhatHoldsSomething();
  void selectNoneClears();
  void setSelectedTellsOnlyChanges();
  void setSelectedCompletesAPartialCategory();
  void untickingACategoryForgetsItsExceptions();
  void setSelectedOfAnUnknownCategory();
  void untickOneItem();
  void untickAllOneByOne();
  void tickOneItemOfAnUntickedCategory();
  void tickTheOnlyItem();
  void tickBackAnItem();
  void itemsOfUnknownCategories();
  void unknownPaths();
  void itemsOfOtherCategories();
  void categoryWithoutItems();
  void clearUntickedTellsNobody();
  void selectedResultsKeepOrderAndRest();
  void remainderBelowOneByteIsLeftOut();
  void sumsAreHeldAtZero();
  void selectedResultsShareWholeCategories();
  void needs();
  void aPathInTwoCategories();
  void replacedResultsAreFollowed();
  void changedItemsAreFollowed();
  void anyHistoryGivesTheDefinition();
  void totalReclaimable();
  void resultById();

 private:
  FixtureHome m_home;
  std::unique_ptr<AppState> m_state;
};

void tst_AppState_selection::init() {
  m_state = std::make_unique<AppState>();
  m_state->results = {category(kTemp, Safe, {{"a", 100, 1}, {"b", 20, 2}, {"c", 3, 3}}),
                      category(kLogs, Safe, {{"only", 50, 5}}), category(kDev, Review, {{"x", 1000, 10}, {"y", 7, 1}}),
                      category(kTrash, Permanent, {{"t", 5, 1}}), category(kNone, Safe, {})};
}

void tst_AppState_selection::recommendedIsSafeAndNotEmpty() {
  QSignalSpy told(m_state.get(), &AppState::selectionChanged);
  m_state->selectRecommended();
  QCOMPARE(told.count(), 1);
  QCOMPARE(m_state->selected, (QSet<QString>{kTemp, kLogs}));
  QVERIFY(m_state->unticked.isEmpty());
  m_state->selectRecommended();
  QCOMPARE(told.count(), 2);
}

void tst_AppState_selection::recommendedForgetsExceptions() {
  m_state->selectAll(true);
  m_state->setItemSelected(kTemp, at("temp", "a"), false);
  m_state->selectRecommended();
  QCOMPARE(m_state->selected, (QSet<QString>{kTemp, kLogs}));
  QVERIFY(m_state->unticked.isEmpty());
  QCOMPARE(m_state->selectedBytes(), 173);
}

void tst_AppState_selection::selectAllTakesWhatHoldsSomething() {
  QSignalSpy told(m_state.get(), &AppState::selectionChanged);
  m_state->selectAll(true);
  QCOMPARE(told.count(), 1);
  QCOMPARE(m_state->selected, (QSet<QString>{kTemp, kLogs, kDev, kTrash}));
  QCOMPARE(m_state->selectedBytes(), m_state->totalReclaimable());
}

void tst_AppState_selection::selectNoneClears() {
  m_state->selectAll(true);
  m_state->setItemSelected(kTemp, at("temp", "a"), false);
  QSignalSpy told(m_state.get(), &AppState::selectionChanged);
  m_state->selectAll(false);
  QCOMPARE(told.count(), 1);
  QVERIFY(m_state->selected.isEmpty());
  QVERIFY(m_state->unticked.isEmpty());
  QVERIFY(m_state->selectedResults().isEmpty());
  QCOMPARE(m_state->selectedBytes(), 0);
}

void tst_AppState_selection::setSelectedTellsOnlyChanges() {
  QSignalSpy told(m_state.get(), &AppState::selectionChanged);
  m_state->setSelected(kTemp, false);
  QCOMPARE(told.count(), 0);
  m_state->setSelected(kTemp, true);
  QCOMPARE(told.count(), 1);
  QCOMPARE(m_state->selectionState(kTemp), 2);
  m_state->setSelected(kTemp, true);
  QCOMPARE(told.count(), 1);
  m_state->setSelected(kTemp, false);
  QCOMPARE(told.count(), 2);
  QCOMPARE(m_state->selectionState(kTemp), 0);
}

void tst_AppState_selection::setSelectedCompletesAPartialCategory() {
  m_state->selectAll(true);
  m_state->setItemSelected(kTemp, at("temp", "a"), false);
  m_state->setItemSelected(kDev, at("dev", "y"), false);
  QCOMPARE(m_state->selectionState(kTemp), 1);
  QSignalSpy told(m_state.get(), &AppState::selectionChanged);
  m_state->setSelected(kTemp, true);
  QCOMPARE(told.count(), 1);
  QCOMPARE(m_state->selectionState(kTemp), 2);
  QCOMPARE(m_state->unticked, QSet<QString>{at("dev", "y")});
}

void tst_AppState_selection::untickingACategoryForgetsItsExceptions() {
  m_state->selectAll(true);
  m_state->setItemSelected(kTemp, at("temp", "a"), false);
  m_state->setSelected(kTemp, false);
  QVERIFY(m_state->unticked.isEmpty());
  QVERIFY(!m_state->isItemSelected(kTemp, at("temp", "b")));
  m_state->setSelected(kTemp, true);
  QCOMPARE(m_state->selectionState(kTemp), 2);
}

void tst_AppState_selection::setSelectedOfAnUnknownCategory() {
  QSignalSpy told(m_state.get(), &AppState::selectionChanged);
  m_state->setSelected(u"later"_s, true);
  QCOMPARE(told.count(), 1);
  QCOMPARE(m_state->selectionState(u"later"_s), 2);
  QVERIFY(m_state->selectedResults().isEmpty());
}

void tst_AppState_selection::untickOneItem() {
  m_state->selectRecommended();
  const qint64 before = m_state->selectedBytes();
  QSignalSpy told(m_state.get(), &AppState::selectionChanged);
  m_state->setItemSelected(kTemp, at("temp", "b"), false);
  QCOMPARE(told.count(), 1);
  QCOMPARE(m_state->selectionState(kTemp), 1);
  QVERIFY(!m_state->isItemSelected(kTemp, at("temp", "b")));
  QVERIFY(m_state->isItemSelected(kTemp, at("temp", "a")));
  QCOMPARE(m_state->selectedBytes(), before - 20);
  QCOMPARE(m_state->selectedResults().at(0).files, 4);
  m_state->setItemSelected(kTemp, at("temp", "b"), false);
  QCOMPARE(told.count(), 1);
}

void tst_AppState_selection::untickAllOneByOne() {
  m_state->selectAll(true);
  m_state->setItemSelected(kDev, at("dev", "x"), false);
  for (const char* name : {"a", "b", "c"}) m_state->setItemSelected(kTemp, at("temp", name), false);
  QCOMPARE(m_state->selectionState(kTemp), 0);
  QVERIFY(!m_state->selected.contains(kTemp));
  QCOMPARE(m_state->unticked, QSet<QString>{at("dev", "x")});
}

void tst_AppState_selection::tickOneItemOfAnUntickedCategory() {
  QSignalSpy told(m_state.get(), &AppState::selectionChanged);
  m_state->setItemSelected(kTemp, at("temp", "b"), true);
  QCOMPARE(told.count(), 1);
  QCOMPARE(m_state->selectionState(kTemp), 1);
  QVERIFY(m_state->isItemSelected(kTemp, at("temp", "b")));
  QVERIFY(!m_state->isItemSelected(kTemp, at("temp", "a")));
  QVERIFY(!m_state->isItemSelected(kTemp, at("temp", "c")));
  QCOMPARE(m_state->selectedBytes(), 20);
  QCOMPARE(m_state->unticked, (QSet<QString>{at("temp", "a"), at("temp", "c")}));
}

void tst_AppState_selection::tickTheOnlyItem() {
  m_state->setItemSelected(kLogs, at("logs", "only"), true);
  QCOMPARE(m_state->selectionState(kLogs), 2);
  QVERIFY(m_state->unticked.isEmpty());
}

void tst_AppState_selection::tickBackAnItem() {
  m_state->selectRecommended();
  m_state->setItemSelected(kTemp, at("temp", "b"), false);
  QSignalSpy told(m_state.get(), &AppState::selectionChanged);
  m_state->setItemSelected(kTemp, at("temp", "b"), true);
  QCOMPARE(told.count(), 1);
  QCOMPARE(m_state->selectionState(kTemp), 2);
  QVERIFY(m_state->unticked.isEmpty());
  QCOMPARE(m_state->selectedBytes(), 173);
}

void tst_AppState_selection::itemsOfUnknownCategories() {
  QSignalSpy told(m_state.get(), &AppState::selectionChanged);
  m_state->setItemSelected(u"later"_s, at("temp", "a"), true);
  m_state->setItemSelected(u"later"_s, at("temp", "a"), false);
  QCOMPARE(told.count(), 0);
  QVERIFY(m_state->selected.isEmpty());
  QCOMPARE(m_state->selectionState(u"later"_s), 0);
  QVERIFY(!m_state->isItemSelected(u"later"_s, at("temp", "a")));
}

void tst_AppState_selection::unknownPaths() {
  QSignalSpy told(m_state.get(), &AppState::selectionChanged);
  m_state->setItemSelected(kTemp, u"/c/temp/gone"_s, true);
  QCOMPARE(told.count(), 0);
  QCOMPARE(m_state->selectionState(kTemp), 0); // else it were ticked with nothing in it
  m_state->setSelected(kTemp, true);
  m_state->setItemSelected(kTemp, u"/c/temp/gone"_s, false);
  QCOMPARE(m_state->selectionState(kTemp), 2);
  QCOMPARE(m_state->selectedBytes(), 123);
}

void tst_AppState_selection::itemsOfOtherCategories() {
  m_state->setSelected(kTemp, true);
  m_state->setItemSelected(kTemp, at("temp", "a"), false);
  const QSet<QString> unticked = m_state->unticked;
  QSignalSpy told(m_state.get(), &AppState::selectionChanged);
  m_state->setItemSelected(kDev, at("temp", "a"), true); // would tick the item, and a category with nothing in it
  m_state->setItemSelected(kNone, at("temp", "a"), true);
  m_state->setItemSelected(kTemp, at("dev", "x"), false);
  QCOMPARE(told.count(), 0);
  QCOMPARE(m_state->selected, QSet<QString>{kTemp});
  QCOMPARE(m_state->unticked, unticked);
  QCOMPARE(m_state->selectedBytes(), 23);
}

void tst_AppState_selection::categoryWithoutItems() {
  m_state->setSelected(kNone, true);
  QCOMPARE(m_state->selectionState(kNone), 2);
  m_state->setItemSelected(kTemp, at("temp", "a"), true);
  QCOMPARE(m_state->selectionState(kNone), 2);
  QVERIFY(sameResults(m_state->selectedResults(), definition(*m_state)));
  m_state->setItemSelected(kNone, u"/c/none/x"_s, false);
  QCOMPARE(m_state->selectionState(kNone), 0);
  m_state->setItemSelected(kNone, u"/c/none/x"_s, true);
  QCOMPARE(m_state->selectionState(kNone), 2);
}

void tst_AppState_selection::clearUntickedTellsNobody() {
  m_state->selectAll(true);
  m_state->setItemSelected(kTemp, at("temp", "a"), false);
  m_state->setItemSelected(kDev, at("dev", "x"), false);
  QSignalSpy told(m_state.get(), &AppState::selectionChanged);
  m_state->clearUnticked(kTemp);
  m_state->clearUnticked(u"later"_s);
  QCOMPARE(told.count(), 0);
  QCOMPARE(m_state->unticked, QSet<QString>{at("dev", "x")});
  QCOMPARE(m_state->selectionState(kTemp), 2);
  QCOMPARE(m_state->selectedBytes(), 123 + 50 + 7 + 5);
}

void tst_AppState_selection::selectedResultsKeepOrderAndRest() {
  m_state->setSelected(kTrash, true);
  m_state->setSelected(kDev, true);
  m_state->setSelected(kTemp, true);
  m_state->setItemSelected(kTemp, at("temp", "b"), false);
  const QList<CategoryResult> chosen = m_state->selectedResults();
  QCOMPARE(chosen.size(), 3);
  QCOMPARE(chosen.at(0).def.id, kTemp);
  QCOMPARE(chosen.at(1).def.id, kDev);
  QCOMPARE(chosen.at(2).def.id, kTrash);
  QCOMPARE(chosen.at(0).bytes, 103);
  QCOMPARE(chosen.at(0).files, 4);
  QCOMPARE(chosen.at(0).items.size(), 2);
  QCOMPARE(chosen.at(0).items.at(1).path, at("temp", "c"));
  QCOMPARE(chosen.at(1).bytes, 1007);
}

void tst_AppState_selection::remainderBelowOneByteIsLeftOut() {
  m_state->results = {category(kTemp, Safe, {{"a", 10, 1}, {"b", 0, 1}})};
  m_state->selectRecommended();
  m_state->setItemSelected(kTemp, at("temp", "a"), false);
  QCOMPARE(m_state->selectionState(kTemp), 1);
  QVERIFY(m_state->selectedResults().isEmpty());
  QCOMPARE(m_state->selectedBytes(), 0);
}

void tst_AppState_selection::sumsAreHeldAtZero() {
  m_state->results = {category(kTemp, Safe, {{"a", 10, 5}, {"b", 20, 5}})};
  m_state->results[0].bytes = 12; // less than its items, as a category that lies
  m_state->results[0].files = 3;
  m_state->selectRecommended();
  m_state->setItemSelected(kTemp, at("temp", "a"), false);
  QCOMPARE(m_state->selectedResults().at(0).bytes, 2);
  QCOMPARE(m_state->selectedResults().at(0).files, 0);
  m_state->selectRecommended();
  m_state->setItemSelected(kTemp, at("temp", "b"), false);
  QVERIFY(m_state->selectedResults().isEmpty());
  QCOMPARE(m_state->selectedBytes(), 0);
}

void tst_AppState_selection::selectedResultsShareWholeCategories() {
  m_state->selectAll(true);
  m_state->setItemSelected(kTemp, at("temp", "a"), false);
  const QList<CategoryResult> chosen = m_state->selectedResults();
  QCOMPARE(chosen.at(2).items.constData(), m_state->result(kDev)->items.constData());
}

void tst_AppState_selection::needs() {
  m_state->results[2].def.needsAdmin = true;
  m_state->results[0].def.needsFullDiskAccess = true;
  m_state->selectAll(false);
  QVERIFY(!m_state->selectionNeedsAdmin());
  QVERIFY(!m_state->selectionNeedsFullDiskAccess());
  m_state->setSelected(kDev, true);
  QVERIFY(m_state->selectionNeedsAdmin());
  QVERIFY(!m_state->selectionNeedsFullDiskAccess());
  m_state->setSelected(kTemp, true);
  QVERIFY(m_state->selectionNeedsFullDiskAccess());
  m_state->results[0].bytes = 0;
  QVERIFY(!m_state->selectionNeedsFullDiskAccess());
}

void tst_AppState_selection::aPathInTwoCategories() {
  m_state->results = {category(kTemp, Safe, {{"a", 10, 1}, {"b", 20, 1}}), category(kLogs, Safe, {{"l", 5, 1}})};
  CleanItem shared = m_state->results.at(0).items.at(0);
  shared.bytes = 11;
  m_state->results[1].items << shared;
  m_state->results[1].bytes += 11;
  m_state->selectRecommended();
  m_state->setItemSelected(kTemp, at("temp", "a"), false);
  QCOMPARE(m_state->selectionState(kLogs), 1);
  QCOMPARE(m_state->selectedBytes(), 20 + 5);
  m_state->setItemSelected(kLogs, at("temp", "a"), true);
  QCOMPARE(m_state->selectionState(kTemp), 2);
  QCOMPARE(m_state->selectedBytes(), 30 + 16);
}

void tst_AppState_selection::replacedResultsAreFollowed() {
  m_state->selectAll(true);
  m_state->setItemSelected(kTemp, at("temp", "a"), false);
  QCOMPARE(m_state->selectedBytes(), 1185 - 100);
  m_state->results = {category(kDev, Review, {{"x", 1, 1}}), category(kTemp, Safe, {{"z", 9, 1}, {"a", 4, 1}})};
  QCOMPARE(m_state->selectionState(kTemp), 1);
  QCOMPARE(m_state->selectionState(kDev), 2);
  QCOMPARE(m_state->selectedBytes(), 10);
  QVERIFY(sameResults(m_state->selectedResults(), definition(*m_state)));
}

void tst_AppState_selection::changedItemsAreFollowed() {
  m_state->selectAll(true);
  m_state->setItemSelected(kTemp, at("temp", "a"), false);
  QCOMPARE(m_state->selectedBytes(), 1185 - 100);
  m_state->results[0].items[0].bytes = 60; // the very list that the sums were made from
  QCOMPARE(m_state->selectedBytes(), 1185 - 60);
  m_state->results[0].items.removeFirst();
  QCOMPARE(m_state->selectionState(kTemp), 2);
}

void tst_AppState_selection::anyHistoryGivesTheDefinition() {
  QRandomGenerator random(7);
  const QStringList ids{kTemp, kLogs, kDev, kTrash, kNone, u"later"_s};
  for (int step = 0; step < 5000; ++step) {
    const QString id = ids.at(random.bounded(ids.size()));
    const CategoryResult* chosen = m_state->result(id);
    const QString path = chosen && !chosen->items.isEmpty()
                             ? chosen->items.at(random.bounded(chosen->items.size())).path
                             : u"/c/none/x"_s;
    const bool on = random.bounded(2) == 1;
    const quint32 operation = random.bounded(40U);
    if (operation < 28)
      m_state->setItemSelected(id, path, on);
    else if (operation < 35)
      m_state->setSelected(id, on);
    else if (operation == 35)
      m_state->clearUnticked(id);
    else if (operation == 36)
      m_state->selectAll(on);
    else if (operation == 37)
      m_state->selectRecommended();
    else if (operation == 38)
      m_state->results[2].items[0].bytes = random.bounded(2000); // dev, in either order
    else
      m_state->results = QList<CategoryResult>(m_state->results.rbegin(), m_state->results.rend());

    const QList<CategoryResult> expected = definition(*m_state);
    QVERIFY(sameResults(m_state->selectedResults(), expected));
    qint64 bytes = 0;
    for (const CategoryResult& one : expected) bytes += one.bytes;
    QCOMPARE(m_state->selectedBytes(), bytes);
    for (const CategoryResult& one : std::as_const(m_state->results)) {
      if (!m_state->selected.contains(one.def.id)) continue;
      const auto out = std::count_if(one.items.begin(), one.items.end(),
                                     [&](const CleanItem& item) { return m_state->unticked.contains(item.path); });
      QCOMPARE(m_state->selectionState(one.def.id), out > 0 ? 1 : 2);
      QVERIFY(one.items.isEmpty() || out < one.items.size());
    }
  }
}

void tst_AppState_selection::totalReclaimable() {
  QCOMPARE(m_state->totalReclaimable(), 1185);
  m_state->results.clear();
  QCOMPARE(m_state->totalReclaimable(), 0);
}

void tst_AppState_selection::resultById() {
  QCOMPARE(m_state->result(kDev), &m_state->results.at(2));
  QCOMPARE(m_state->result(u"later"_s), nullptr);
}

QTEST_GUILESS_MAIN(tst_AppState_selection)
#include "tst_AppState_selection.moc"
