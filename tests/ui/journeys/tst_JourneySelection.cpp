// ctest: LABELS journey
// ctest: TIMEOUT 300
// What the user ticks, by mouse and by keyboard, in every way there is; and that exactly this goes.
#include "JourneyTest.h"

using namespace windowtest;

namespace {
const QStringList kSafe = {u"temp"_s, u"appcache"_s, u"browser"_s, u"logs"_s, u"thumbs"_s};
}

class TestJourneySelection : public JourneyTest {
  Q_OBJECT

 private slots:
  void initTestCase() { Theme::get().install(qApp); }
  void init() {
    open();
    addManyItems(*m_home, 80);
    scan();
  }
  void cleanup() { close(); }

  void recommendedAtFirst();
  void categoryBoxes();
  void allOfTheList();
  void allOfTheDetail();
  void items();
  void rowsShowWithoutTicking();
  void showMoreKeepsTheTicks();
  void theTrashToo();
  void exactlyWhatIsTickedGoes();
  void byKeyboard();

 private:
  /// Moves the keyboard to the row of a category, from wherever it is.
  void keyToRow(const QString& id) {
    const bool came = tabUntil(*m_window, [](const QWidget* at) { return qobject_cast<const ui::CategoryRow*>(at); });
    QVERIFY(came);
    press(*m_window, Qt::Key_Home);
    for (int i = 0; i < 8 && QApplication::focusWidget() != row(id); ++i) press(*m_window, Qt::Key_Down);
    QCOMPARE(QApplication::focusWidget(), row(id));
  }
  void key(Qt::Key one) {
    press(*m_window, one);
    settle();
  }
};

void TestJourneySelection::recommendedAtFirst() {
  checkSum(bytesOf(kSafe));
  for (const QString& id : kSafe) QCOMPARE(rowBox(id)->checkState(), Qt::Checked);
  for (const char* id : {"update", "dev", "trash"})
    QCOMPARE(rowBox(QString::fromLatin1(id))->checkState(), Qt::Unchecked);
  QCOMPARE(selectAllBox()->checkState(), Qt::PartiallyChecked);
  clickBox(rowBox(u"trash"_s));
  clickBox(rowBox(u"logs"_s));
  QVERIFY(m_state->selectedBytes() != bytesOf(kSafe));
  click(*m_window, u"Select recommended"_s);
  settle();
  checkSum(bytesOf(kSafe));
}

void TestJourneySelection::categoryBoxes() {
  clickBox(rowBox(u"logs"_s));
  checkSum(bytesOf(kSafe) - bytesOf({u"logs"_s}));
  QCOMPARE(rowBox(u"logs"_s)->checkState(), Qt::Unchecked);
  clickBox(rowBox(u"dev"_s));
  checkSum(bytesOf(kSafe) - bytesOf({u"logs"_s}) + bytesOf({u"dev"_s}));
  clickBox(rowBox(u"logs"_s));
  checkSum(bytesOf(kSafe) + bytesOf({u"dev"_s}));
}

void TestJourneySelection::allOfTheList() {
  clickBox(selectAllBox());
  checkSum(m_state->totalReclaimable());
  QCOMPARE(selectAllBox()->checkState(), Qt::Checked);
  clickBox(selectAllBox());
  checkSum(0);
  QCOMPARE(selectAllBox()->checkState(), Qt::Unchecked);
  clickBox(rowBox(u"dev"_s));
  QCOMPARE(selectAllBox()->checkState(), Qt::PartiallyChecked);
  clickBox(selectAllBox());
  checkSum(m_state->totalReclaimable());
}

void TestJourneySelection::allOfTheDetail() {
  showDetail(u"update"_s);
  QCOMPARE(detailBox()->checkState(), Qt::Unchecked);
  clickBox(detailBox());
  checkSum(bytesOf(kSafe) + bytesOf({u"update"_s})); // those that aren't on show too
  QCOMPARE(rowBox(u"update"_s)->checkState(), Qt::Checked);
  for (const QCheckBox* box : itemBoxes()) QVERIFY(box->isChecked());
  clickBox(detailBox());
  checkSum(bytesOf(kSafe));
  for (const QCheckBox* box : itemBoxes()) QVERIFY(!box->isChecked());
}

void TestJourneySelection::items() {
  showDetail(u"appcache"_s);
  const qint64 paint = m_state->result(u"appcache"_s)->items.last().bytes;
  QVERIFY(m_state->result(u"appcache"_s)->items.last().name == u"acme-paint"_s);
  clickBox(itemBox(u"acme-paint"_s));
  checkSum(bytesOf(kSafe) - paint);
  QCOMPARE(rowBox(u"appcache"_s)->checkState(), Qt::PartiallyChecked);
  QCOMPARE(detailBox()->checkState(), Qt::PartiallyChecked);
  clickBox(itemBox(u"acme-notes"_s)); // the last one
  checkSum(bytesOf(kSafe) - bytesOf({u"appcache"_s}));
  QCOMPARE(rowBox(u"appcache"_s)->checkState(), Qt::Unchecked);
  clickBox(itemBox(u"acme-paint"_s)); // the first of an unticked category is then the only one
  checkSum(bytesOf(kSafe) - bytesOf({u"appcache"_s}) + paint);
  QVERIFY(!itemBox(u"acme-notes"_s)->isChecked());
  clickBox(rowBox(u"appcache"_s)); // partly ticked becomes wholly ticked
  checkSum(bytesOf(kSafe));
  QVERIFY(itemBox(u"acme-notes"_s)->isChecked());
}

void TestJourneySelection::rowsShowWithoutTicking() {
  for (const char* id : {"dev", "logs", "trash"}) {
    showDetail(QString::fromLatin1(id));
    QVERIFY(shows(*detail(), m_state->result(QString::fromLatin1(id))->def.title));
  }
  checkSum(bytesOf(kSafe));
}

void TestJourneySelection::showMoreKeepsTheTicks() {
  showDetail(u"update"_s);
  QCOMPARE(itemBoxes().size(), 15);
  QVERIFY(shows(*detail(), u"and 66 more items"_s));
  clickBox(itemBoxes().first());
  const qint64 first = m_state->result(u"update"_s)->items.first().bytes;
  click(*detail(), u"Show 50 more"_s);
  settle();
  QCOMPARE(itemBoxes().size(), 65);
  QVERIFY(itemBoxes().first()->isChecked());
  QVERIFY(!itemBoxes().last()->isChecked());
  checkSum(bytesOf(kSafe) + first);
  click(*detail(), u"Show 16 more"_s);
  settle();
  QCOMPARE(itemBoxes().size(), 81);
  clickBox(itemBoxes().last());
  checkSum(bytesOf(kSafe) + first + m_state->result(u"update"_s)->items.last().bytes);
}

void TestJourneySelection::theTrashToo() {
  showDetail(u"trash"_s);
  clickBox(itemBox(u"old-letter"_s));
  QCOMPARE(rowBox(u"trash"_s)->checkState(), Qt::Checked); // it holds nothing else
  checkSum(bytesOf(kSafe) + bytesOf({u"trash"_s}));
}

void TestJourneySelection::exactlyWhatIsTickedGoes() {
  clickBox(selectAllBox());
  clickBox(selectAllBox());
  clickBox(rowBox(u"logs"_s));
  showDetail(u"appcache"_s);
  clickBox(itemBox(u"acme-notes"_s));
  showDetail(u"update"_s);
  clickBox(itemBox(u"tool_1.0"_s));
  const qint64 selected = m_state->selectedBytes();
  clickClean();
  QVERIFY(shows(*question(), u"Clean %1?"_s.arg(fmt::bytes(selected))));
  click(*question(), u"Clean and delete"_s);
  waitFor(AppState::Done);
  QCOMPARE(m_state->report.freedBytes, selected);
  for (const char* gone : {".xsession-errors.old", ".cache/acme-notes/index", "Downloads/tool_1.0_amd64.deb"})
    QVERIFY2(!there(QString::fromLatin1(gone)), gone);
  for (const char* stayed :
       {".cache/acme-paint/brushes", "Downloads/many-0.deb", "Downloads/many-79.deb", ".cache/thumbnails/normal/1.png",
        ".cache/pip/http/1", "Documents/book.odt", ".local/share/Trash/files/old-letter.odt"})
    QVERIFY2(there(QString::fromLatin1(stayed)), stayed);
}

void TestJourneySelection::byKeyboard() {
  keyToRow(u"logs"_s);
  key(Qt::Key_Tab); // its box
  key(Qt::Key_Space);
  checkSum(bytesOf(kSafe) - bytesOf({u"logs"_s}));
  key(Qt::Key_Space); // and the focus stayed
  checkSum(bytesOf(kSafe));
  keyToRow(u"appcache"_s);
  key(Qt::Key_Return); // shows it
  QVERIFY(shows(*detail(), u"App caches"_s));
  QVERIFY(tabUntil(*m_window, [this](const QWidget* at) { return at == itemBox(u"acme-paint"_s); }));
  key(Qt::Key_Space);
  checkSum(bytesOf(kSafe) - m_state->result(u"appcache"_s)->items.last().bytes);
  QVERIFY(tabUntil(*m_window, [this](const QWidget* at) { return at == detailBox(); }));
  key(Qt::Key_Space);
  checkSum(bytesOf(kSafe));
  QVERIFY(tabUntil(*m_window, [this](const QWidget* at) { return at == selectAllBox(); }));
  key(Qt::Key_Space);
  checkSum(m_state->totalReclaimable());
  tabTo(*m_window, u"Select recommended"_s);
  key(Qt::Key_Space);
  checkSum(bytesOf(kSafe));
  keyToRow(u"update"_s);
  key(Qt::Key_Space);
  tabTo(*m_window, u"Show 50 more"_s);
  key(Qt::Key_Space);
  QCOMPARE(QApplication::focusWidget(), itemBoxes().at(15)); // goes on with the first that came
}

int main(int argc, char** argv) { return uitest::run<TestJourneySelection>(argc, argv); }

#include "tst_JourneySelection.moc"
