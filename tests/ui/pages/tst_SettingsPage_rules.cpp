// The rules on the Settings page: how they are listed, added and removed, and what is asked once their store is
// damaged.
#include "SettingsTest.h"
#include "core/safety.h"
#include "support/pixels.h"
#include "ui/controls/Button.h"
#include "ui/controls/Card.h"
#include "ui/controls/ElidedLabel.h"
#include "ui/controls/Note.h"

#include <QDir>
#include <QFileDialog>
#include <QScrollArea>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTimer>

using namespace Qt::StringLiterals;
using namespace ui;

namespace {

/// Answers the next dialog for a folder.
void choose(const QString& folder) {
  QTimer::singleShot(0, qApp, [folder] {
    auto* dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
    if (!dialog) qFatal("nobody asks for a folder");
    if (folder.isEmpty()) return dialog->reject();
    dialog->selectFile(folder);
    static_cast<QDialog*>(dialog)->done(QDialog::Accepted);
  });
}

} // namespace

class TestSettingsPageRules : public SettingsTest {
  Q_OBJECT

 private slots:
  void initTestCase() { Theme::get().install(qApp); }
  void init() { make(); }
  void cleanup() { drop(); }

  void rulesAreListed();
  void rulesLookLikeThemselves();
  void removesARule();
  void removesARuleThatStandsTwice();
  void removesTheDefaultRule();
  void focusStaysAmongTheRules();
  void addsAFolder();
  void addedFolderIsCovered_data();
  void addedFolderIsCovered();
  void addsNothingTwice();
  void damagedStoreAsksToLook();
  void acceptedRulesAreKept();
  void failureToAcceptIsTold();
  void showsTheRulesOnDemand();

 private:
  [[nodiscard]] QList<Button*> removeButtons() const {
    QList<Button*> all;
    for (Button* one : m_page->findChildren<Button*>())
      if (one->toolTip() == u"Remove"_s && one->isVisibleTo(m_page.get())) all << one;
    return all;
  }
  [[nodiscard]] QStringList shownRules() const {
    QStringList all;
    for (const Button* one : removeButtons()) all << one->parentWidget()->findChild<ElidedLabel*>()->text();
    return all;
  }
  [[nodiscard]] Note* note() const { return m_page->findChild<Note*>(); }
};

void TestSettingsPageRules::rulesAreListed() {
  open();
  QCOMPARE(shownRules(), QStringList{u"**/.git"_s});
  settings().setExclusions({u"b"_s, u"a"_s, u"~/Dir, with comma"_s});
  open();
  QCOMPARE(shownRules(), (QStringList{u"b"_s, u"a"_s, u"~/Dir, with comma"_s}));
  settings().setExclusions({});
  open();
  QVERIFY(shownRules().isEmpty());
}

void TestSettingsPageRules::rulesLookLikeThemselves() {
  settings().setExclusions({u"<b>bold</b> & more"_s, u"/"_s + QString(400, u'x')});
  pixels::setLook(false);
  open();
  const Button* remove = removeButtons().first();
  auto* card = qobject_cast<Card*>(remove->parentWidget());
  QVERIFY(card && !card->bordered);
  QCOMPARE(card->fill, Theme::get().hover);
  const auto* text = card->findChild<ElidedLabel*>();
  QCOMPARE(text->textFormat(), Qt::PlainText);
  QCOMPARE(text->property("role").toString(), u"mono"_s);
  QCOMPARE(text->font().pixelSize(), 12);
  QCOMPARE(text->palette().color(text->foregroundRole()), Theme::get().text);
  QCOMPARE(remove->size(), QSize(24, 24));
  QCOMPARE(remove->property("kind").toString(), u"ghost"_s);
  pixels::setLook(true);
  QCOMPARE(card->fill, Theme::get().hover);
  QVERIFY(m_page->findChild<QScrollArea*>()->widget()->width() <= 944); // a long one gives way
}

void TestSettingsPageRules::removesARule() {
  settings().setExclusions({u"a"_s, u"b"_s, u"c"_s});
  open();
  settings().setExclusions({u"a"_s, u"b"_s, u"c"_s, u"d"_s}); // another one has come meanwhile
  QTest::mouseClick(removeButtons().at(1), Qt::LeftButton);
  settle();
  QCOMPARE(settings().exclusions(), (QStringList{u"a"_s, u"c"_s, u"d"_s}));
  QCOMPARE(shownRules(), (QStringList{u"a"_s, u"c"_s, u"d"_s}));
}

void TestSettingsPageRules::removesARuleThatStandsTwice() {
  settings().setExclusions({u"a"_s, u"b"_s, u"a"_s});
  open();
  QTest::mouseClick(removeButtons().first(), Qt::LeftButton);
  settle();
  QCOMPARE(settings().exclusions(), QStringList{u"b"_s});
}

void TestSettingsPageRules::removesTheDefaultRule() {
  open();
  QTest::mouseClick(removeButtons().first(), Qt::LeftButton);
  settle();
  QCOMPARE(settings().exclusions(), QStringList());
  QVERIFY(QSettings().contains(u"clean/exclusions"_s));
  open();
  QVERIFY(shownRules().isEmpty());
  QVERIFY(settings().isReadable());
}

void TestSettingsPageRules::focusStaysAmongTheRules() {
  settings().setExclusions({u"a"_s, u"b"_s, u"c"_s});
  open();
  for (const char* next : {"c", "a"}) {
    Button* one = removeButtons().at(1);
    one->setFocus();
    QTest::keyClick(one, Qt::Key_Space);
    settle();
    QVERIFY(QApplication::focusWidget());
    QCOMPARE(QApplication::focusWidget()->accessibleName(), u"Remove "_s + QString::fromLatin1(next));
  }
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Space);
  settle();
  QCOMPARE(QApplication::focusWidget(), button(u"Add folder"_s));
}

void TestSettingsPageRules::addsAFolder() {
  const QString folder = m_home->folder(u"Pictures, old"_s);
  open();
  choose(folder);
  QTest::mouseClick(button(u"Add folder"_s), Qt::LeftButton);
  settle();
  QCOMPARE(settings().exclusions(), (QStringList{u"**/.git"_s, folder}));
  QCOMPARE(shownRules(), (QStringList{u"**/.git"_s, folder}));
  choose({});
  QTest::mouseClick(button(u"Add folder"_s), Qt::LeftButton);
  QCOMPARE(settings().exclusions().size(), 2);
}

void TestSettingsPageRules::addedFolderIsCovered_data() {
  QTest::addColumn<QString>("folder"); // below the home folder; empty is the root of all
  QTest::newRow("usual") << u"Pictures"_s;
  QTest::newRow("blank at its end") << u"Pictures  "_s;
  QTest::newRow("signs of a rule") << u"Pictures [*?] (old)"_s;
  QTest::newRow("everything") << QString();
}

void TestSettingsPageRules::addedFolderIsCovered() {
  QFETCH(QString, folder);
  const QString path = folder.isEmpty() ? u"/"_s : m_home->folder(folder);
  const QString below = folder.isEmpty() ? u"/var/tmp/kept"_s : path + u"/kept"_s;
  open();
  choose(path);
  QTest::mouseClick(button(u"Add folder"_s), Qt::LeftButton);
  QCOMPARE(settings().exclusions().size(), 2);
  const QStringList added{settings().exclusions().last()};
  QVERIFY2(safety::isExcluded(path, added), qPrintable(added.first()));
  QVERIFY2(safety::isExcluded(below, added), qPrintable(added.first()));
}

void TestSettingsPageRules::addsNothingTwice() {
  const QString folder = m_home->folder(u"Pictures"_s);
  settings().setExclusions({folder, u"a"_s});
  open();
  QSignalSpy changed(&settings(), &AppSettings::changed);
  choose(folder);
  QTest::mouseClick(button(u"Add folder"_s), Qt::LeftButton);
  QCOMPARE(settings().exclusions(), (QStringList{folder, u"a"_s}));
  QCOMPARE(changed.count(), 0);
}

void TestSettingsPageRules::damagedStoreAsksToLook() {
  settings().setExclusions({u"mine"_s, u"yours"_s});
  open();
  QVERIFY(!note()->isVisible());
  settingsstore::write(settings().path(), "[clean]\nexclusions=new\n");
  settings().look();
  QVERIFY(note()->isVisible());
  QVERIFY(note()->accessibleName().startsWith(u"Rules have gone from the settings."_s));
  settle();
  QCOMPARE(shownRules(), (QStringList{u"new"_s, u"mine"_s, u"yours"_s}));
  settingsstore::write(settings().path(), "broken");
  m_page->hide();
  m_page->show(); // looks by itself
  QVERIFY(note()->accessibleName().startsWith(u"The settings can't be read."_s));
  m_page.reset();
  open();
  QVERIFY(note()->isVisible());
}

void TestSettingsPageRules::acceptedRulesAreKept() {
  settings().setExclusions({u"mine"_s, u"yours"_s});
  settingsstore::write(settings().path(), "broken");
  settings().look();
  open();
  QTest::mouseClick(removeButtons().first(), Qt::LeftButton); // it may be edited before
  settle();
  QCOMPARE(shownRules(), QStringList{u"yours"_s});
  QCOMPARE(settingsstore::bytes(settings().path()), QByteArray("broken"));
  QSignalSpy toasts(m_state.get(), &AppState::toast);
  QPushButton* accept = button(u"These are my rules"_s);
  accept->setFocus();
  QTest::keyClick(accept, Qt::Key_Space);
  settle();
  QVERIFY(!note()->isVisible());
  QCOMPARE(QApplication::focusWidget(), button(u"Add folder"_s));
  QVERIFY(settings().isReadable());
  QCOMPARE(QSettings().value(u"clean/exclusions"_s).toStringList(), QStringList{u"yours"_s});
  QCOMPARE(shownRules(), QStringList{u"yours"_s});
  QCOMPARE(settingsstore::bytes(settings().path() + u".damaged"_s), QByteArray("broken"));
  QCOMPARE(toasts.count(), 1);
  QCOMPARE(toasts[0][0].toString(), u"The rules are kept. The damaged settings file stays beside the new one."_s);
  QVERIFY(QFile::remove(settings().path() + u".damaged"_s));
}

void TestSettingsPageRules::failureToAcceptIsTold() {
  const QString folder = QFileInfo(settings().path()).path();
  settings().setExclusions({u"mine"_s});
  QVERIFY(QDir().rename(folder, folder + u".away"_s));
  settingsstore::write(folder, "in the way");
  settings().look();
  open();
  QSignalSpy toasts(m_state.get(), &AppState::toast);
  QTest::mouseClick(button(u"These are my rules"_s), Qt::LeftButton);
  QVERIFY(note()->isVisible());
  QCOMPARE(toasts.count(), 1);
  QCOMPARE(toasts[0][0].toString(), u"The settings can't be written, so they stay as they are."_s);
  QVERIFY(QFile::remove(folder));
  QVERIFY(QDir().rename(folder + u".away"_s, folder));
}

void TestSettingsPageRules::showsTheRulesOnDemand() {
  QStringList many;
  for (int i = 0; i < 30; ++i) many << QString::number(i);
  settings().setExclusions(many);
  open();
  m_page->resize(944, 400);
  const auto* area = m_page->findChild<QScrollArea*>();
  QCOMPARE(area->verticalScrollBar()->value(), 0);
  m_page->showExclusions();
  const QPushButton* add = button(u"Add folder"_s);
  QCOMPARE(QApplication::focusWidget(), add);
  const auto isSeen = [&](const QWidget* one) {
    return area->viewport()->rect().contains(QRect(one->mapTo(area->viewport(), QPoint()), one->size()));
  };
  QTRY_VERIFY(isSeen(add));
  settingsstore::write(settings().path(), "broken");
  settings().look();
  area->verticalScrollBar()->setValue(0);
  m_page->showExclusions();
  QCOMPARE(QApplication::focusWidget(), button(u"These are my rules"_s));
  QTRY_VERIFY(isSeen(button(u"These are my rules"_s)));
}

int main(int argc, char** argv) { return uitest::run<TestSettingsPageRules>(argc, argv); }

#include "tst_SettingsPage_rules.moc"
