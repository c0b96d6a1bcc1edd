// The ways out of a damaged store: the user accepts what is left, or mends it by hand, and no rule gets lost on them.
#include "DamageTest.h"

#include <QTest>

using namespace Qt::StringLiterals;

class tst_AppSettings_mended : public DamageTest {
  Q_OBJECT

 private slots:
  void init() { make(); }
  void cleanup() { drop(); }

  void acceptedKeepsWhatCouldBeRead();
  void acceptedKeepsTheUsersList();
  void acceptedTwiceKeepsBothFiles();
  void acceptedAsItIs();
  void acceptingCanFail();
  void mendedByHand();
  void rulesAddedByHand();
  void rulesRemovedByHand();
};

void tst_AppSettings_mended::acceptedKeepsWhatCouldBeRead() {
  write("[ui]\ntheme=2\nlanguage=ja\n[clean]\nexclusions=**/.git, new\n[large]\noldMonths=@Variant(xx)\n");
  QCOMPARE(settings().look(), Store::Lost);
  QVERIFY(settings().exclusions().contains(u"new"_s));
  QVERIFY(settings().acceptExclusions());
  QCOMPARE(settings().themeMode(), AppSettings::Dark);
  QCOMPARE(settings().language(), u"ja"_s);
  QVERIFY(settings().exclusions().contains(u"new"_s));
  QVERIFY(keepsAllRules());
  QVERIFY(!bytes().contains("Variant"));
}

void tst_AppSettings_mended::acceptedKeepsTheUsersList() {
  write("broken");
  settings().setExclusions({u"**/.git"_s, u"~/Else"_s});
  QVERIFY(settings().acceptExclusions());
  QCOMPARE(settings().exclusions(), (QStringList{u"**/.git"_s, u"~/Else"_s}));
  QVERIFY(settings().isReadable());
  settings().setExclusions({});
  QVERIFY(settings().isReadable()); // nothing old is remembered
}

void tst_AppSettings_mended::acceptedTwiceKeepsBothFiles() {
  for (const char* text : {"first", "second"}) {
    write(text);
    QVERIFY(!settings().isReadable());
    QVERIFY(settings().acceptExclusions());
  }
  QCOMPARE(settingsstore::bytes(path() + u".damaged"_s), QByteArray("first"));
  QCOMPARE(settingsstore::bytes(path() + u".damaged-2"_s), QByteArray("second"));
}

// Whatever stands in the store's place moves as it is, a folder and a link too.
void tst_AppSettings_mended::acceptedAsItIs() {
  QVERIFY(QFile::remove(path()));
  QVERIFY(QDir().mkdir(path()));
  QVERIFY(!settings().isReadable());
  QVERIFY(settings().acceptExclusions());
  QVERIFY(QFileInfo(path() + u".damaged"_s).isDir());
  QVERIFY(QFileInfo(path()).isFile());
  QVERIFY(keepsAllRules());

  QVERIFY(QFile::remove(path()));
  QVERIFY(!settings().isReadable());
  QVERIFY(settings().acceptExclusions()); // there is nothing to keep
  QCOMPARE(aside().size(), 1);
  QVERIFY(settings().isReadable());
  QVERIFY(keepsAllRules());
}

void tst_AppSettings_mended::acceptingCanFail() {
  const QString folder = QFileInfo(path()).path();
  QVERIFY(QDir().rename(folder, folder + u".away"_s));
  settingsstore::write(folder, "in the way");
  QVERIFY(!settings().isReadable());
  settings().setThemeMode(AppSettings::Dark);
  settings().setExclusions(kRules);
  QVERIFY(!settings().acceptExclusions());
  QVERIFY(!settings().isReadable());
  QCOMPARE(settings().themeMode(), AppSettings::Dark);
  QVERIFY(keepsAllRules());
  QVERIFY(QFile::remove(folder));
  QVERIFY(QDir().rename(folder + u".away"_s, folder));
  QVERIFY(settings().isReadable());
}

void tst_AppSettings_mended::mendedByHand() {
  const QByteArray whole = bytes();
  write("broken");
  settings().setThemeMode(AppSettings::Dark);
  settings().setExclusions({kRules.first(), u"added"_s});
  write(whole);
  QVERIFY(settings().isReadable());
  // A list that was made without seeing all of them doesn't replace them; a rule that was added to it isn't lost.
  QCOMPARE(settings().exclusions(), kRules + QStringList{u"added"_s});
  QCOMPARE(settings().themeMode(), AppSettings::Dark);
  QCOMPARE(QSettings().value(u"ui/theme"_s).toInt(), 2);
  QCOMPARE(aside(), QStringList());
  write(whole); // without the rule that was added, which is remembered like the others
  QCOMPARE(settings().look(), Store::Lost);
  QVERIFY(settings().exclusions().contains(u"added"_s));
}

void tst_AppSettings_mended::rulesAddedByHand() {
  write("[clean]\nexclusions=first, **/.git, \"~/Documents/Prüfung, alt\", *.iso, last\n");
  QVERIFY(settings().isReadable());
  QCOMPARE(settings().exclusions().size(), 5);
  settings().setThemeMode(AppSettings::Dark); // and from now on they are remembered too
  write("[clean]\nexclusions=**/.git, \"~/Documents/Prüfung, alt\", *.iso, last\n");
  QCOMPARE(settings().look(), Store::Lost);
  QVERIFY(settings().exclusions().contains(u"first"_s));
}

// It can't be told from damage; the user is asked once.
void tst_AppSettings_mended::rulesRemovedByHand() {
  write("[clean]\nexclusions=**/.git\n");
  QCOMPARE(settings().look(), Store::Lost);
  settings().setExclusions({u"**/.git"_s});
  QVERIFY(settings().acceptExclusions());
  QCOMPARE(settings().exclusions(), QStringList{u"**/.git"_s});
  QVERIFY(settings().isReadable());
}

QTEST_GUILESS_MAIN(tst_AppSettings_mended)
#include "tst_AppSettings_mended.moc"
