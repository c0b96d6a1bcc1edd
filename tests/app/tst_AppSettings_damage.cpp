// A store that is damaged, or has lost what it held: it is told, nothing is written over it, and no rule gets lost.
#include "DamageTest.h"
#include "core/UniqueFd.h"
#include "support/child.h"

#include <QProcess>
#include <QRandomGenerator>
#include <QSignalSpy>
#include <QTest>

#include <sys/inotify.h>

#include <algorithm>
#include <cstdio>

using namespace Qt::StringLiterals;

class tst_AppSettings_damage : public DamageTest {
  Q_OBJECT

 private slots:
  void init() { make(); }
  void cleanup() { drop(); }

  void soundAtFirst();
  void damage_data();
  void damage();
  void cutAnywhere();
  void zeroedAnywhere();
  void bytesChangedAnywhere();
  void unreadableFile();
  void brokenWhileItRuns();
  void nothingIsWrittenOverIt();
  void setMeanwhileHoldsInTheProcess();
  void withoutTheMemory();
  void damagedMemory_data();
  void damagedMemory();
  void memoryOfAnEmptyList();
  void tellsWhenItChanges();
  void neverInDoubtInBetween();
  void fileForAllUsersIsDamaged();
  void anotherStart();
};

void tst_AppSettings_damage::soundAtFirst() {
  QVERIFY(settings().isReadable());
  QCOMPARE(settings().memoryPath(), QFileInfo(path()).path() + u"/Tarnwick-rules.json"_s);
  QVERIFY(QFile::exists(settings().memoryPath()));
  QVERIFY(settings().acceptExclusions());
  QCOMPARE(aside(), QStringList());
  settingsstore::forget();
  QVERIFY(settings().isReadable()); // one that never held anything
  QVERIFY(!QFile::exists(settings().memoryPath()));
}

void tst_AppSettings_damage::damage_data() {
  QTest::addColumn<QByteArray>("text");
  QTest::addColumn<int>("worth");
  const auto row = [](const char* name, const QByteArray& text, Store worth) {
    QTest::newRow(name) << text << int(worth);
  };
  row("empty", {}, Store::Lost);
  row("blank", "\n\n", Store::Lost);
  row("other keys only", "[ui]\nwindowGeometry=x\n", Store::Lost);
  row("the rules' key has gone", "[ui]\ntheme=1\n[large]\nthresholdMB=250\n", Store::Lost);
  row("a rule has gone", "[clean]\nexclusions=**/.git, *.iso\n", Store::Lost);
  row("a rule was cut", "[clean]\nexclusions=**/.git, \"~/Documents/Prüfung, alt\", *.is\n", Store::Lost);
  row("no list any more", "[clean]\nexclusions=@Invalid()\n", Store::Lost);
  row("an empty list", "[clean]\nexclusions=\n", Store::Lost);
  row("binary rules", "[clean]\nexclusions=@Variant(xx)\n", Store::Unreadable);
  row("a point for rules", "[clean]\nexclusions=@Point(1 2)\n", Store::Unreadable);
  row("zeros", QByteArray(512, '\0'), Store::Unreadable);
  row("rules, then zeros", "[clean]\nexclusions=**/.git, \"~/Documents/Prüfung, alt\", *.iso\n" + QByteArray(64, '\0'),
      Store::Unreadable);
  row("words", "The quick brown fox\n", Store::Unreadable);
  row("a picture", "\x89PNG\r\n\x1a\n", Store::Unreadable);
  row("a quote left open", "[clean]\nexclusions=\"**/.git\n[ui]\ntheme=1\n", Store::Unreadable);
  row("damage behind the rules", "[clean]\nexclusions=**/.git, \"~/Documents/Prüfung, alt\", *.iso\n[ui]\nthe\n",
      Store::Unreadable);
}

void tst_AppSettings_damage::damage() {
  QFETCH(QByteArray, text);
  QFETCH(int, worth);
  write(text);
  QCOMPARE(int(settings().look()), worth);
  QVERIFY(!settings().isReadable());
  QCOMPARE(int(settings().lastLook()), worth);
  QVERIFY(keepsAllRules());
  QCOMPARE(bytes(), text);

  QVERIFY(settings().acceptExclusions());
  QVERIFY(settings().isReadable());
  QVERIFY(keepsAllRules());
  QCOMPARE(aside(), QStringList{QFileInfo(path()).fileName() + u".damaged"_s});
  QCOMPARE(settingsstore::bytes(path() + u".damaged"_s), text);
  QCOMPARE(QSettings().value(u"clean/exclusions"_s).toStringList(), settings().exclusions());
}

void tst_AppSettings_damage::cutAnywhere() {
  const QByteArray whole = bytes();
  QVERIFY(whole.size() > 100);
  for (qsizetype length = 0; length < whole.size(); ++length) checkNoRuleIsLost(whole.first(length));
  const qsizetype rules = whole.indexOf("*.iso");
  QVERIFY(rules > 0);
  for (qsizetype length = 0; length < rules; ++length) {
    write(whole.first(length));
    QVERIFY(settings().look() != Store::Sound);
  }
}

// What a power cut leaves of a file that had its length already.
void tst_AppSettings_damage::zeroedAnywhere() {
  const QByteArray whole = bytes();
  for (qsizetype from = 0; from < whole.size(); ++from) {
    const QByteArray text = whole.first(from) + QByteArray(whole.size() - from, '\0');
    checkNoRuleIsLost(text);
    QCOMPARE(settings().look(), Store::Unreadable);
  }
}

void tst_AppSettings_damage::bytesChangedAnywhere() {
  const QByteArray whole = bytes();
  QRandomGenerator random(1);
  for (qsizetype at = 0; at < whole.size(); ++at)
    for (int i = 0; i < 8; ++i) {
      QByteArray text = whole;
      text[at] = char(random.bounded(256));
      checkNoRuleIsLost(text);
    }
}

void tst_AppSettings_damage::unreadableFile() {
  const QByteArray whole = bytes();
  QVERIFY(QFile::remove(path()));
  QCOMPARE(settings().look(), Store::Lost); // it had keys
  QVERIFY(keepsAllRules());

  QVERIFY(QDir().mkdir(path()));
  QCOMPARE(settings().look(), Store::Unreadable);
  QVERIFY(keepsAllRules());
  QVERIFY(QDir().rmdir(path()));

  for (const QString& goal : {u"nowhere"_s, path()}) {
    QVERIFY(QFile::link(goal, path()));
    QCOMPARE(settings().look(), Store::Unreadable);
    QVERIFY(keepsAllRules());
    QVERIFY(QFile::remove(path()));
  }

  write(whole);
  QCOMPARE(settings().look(), Store::Sound);
  QVERIFY(QFile::setPermissions(path(), {}));
  const int code = child::run("/", [] {
    if (!child::dropRights()) return 2;
    return settings().look() == Store::Unreadable && !settings().isReadable() ? 0 : 1;
  });
  QCOMPARE(code, 0);
}

// QSettings keeps what it has read, and writes it back some time; here nothing is kept back.
void tst_AppSettings_damage::brokenWhileItRuns() {
  settings().setOldMonths(3);
  write("broken");
  QCoreApplication::processEvents();
  settings().setOldMonths(12);
  QCoreApplication::processEvents();
  QSettings().sync();
  QCOMPARE(bytes(), QByteArray("broken"));
  QCOMPARE(settings().oldMonths(), 12);
}

void tst_AppSettings_damage::nothingIsWrittenOverIt() {
  const QByteArray memory = settingsstore::bytes(settings().memoryPath());
  for (const QByteArray& text : {QByteArray("broken"), QByteArray(), QByteArray("[ui]\ntheme=1\n")}) {
    write(text);
    settingsstore::setAll(QDateTime::currentDateTime());
    settings().addFreed(12);
    QCoreApplication::processEvents();
    QCOMPARE(bytes(), text);
    QCOMPARE(settingsstore::bytes(settings().memoryPath()), memory);
  }
}

void tst_AppSettings_damage::setMeanwhileHoldsInTheProcess() {
  write("broken");
  QSignalSpy changed(&settings(), &AppSettings::changed);
  settings().setThemeMode(AppSettings::Dark);
  QCOMPARE(changed.count(), 2); // the damage, and the setting
  settings().setThemeMode(AppSettings::Dark);
  QCOMPARE(changed.count(), 2);
  settings().addFreed(5);
  settings().addFreed(6);
  QCOMPARE(settings().themeMode(), AppSettings::Dark);
  QCOMPARE(settings().freedHistory(1), QList<qint64>{11});
  settings().setExclusions({u"only"_s});
  QCOMPARE(settings().exclusions(), QStringList{u"only"_s}); // the user's own word counts
  QVERIFY(settings().acceptExclusions());
  QCOMPARE(QSettings().value(u"ui/theme"_s).toInt(), 2);
  QCOMPARE(settings().freedHistory(1), QList<qint64>{11});
  QCOMPARE(settings().exclusions(), QStringList{u"only"_s});
}

// A store from before there was one, and a start from nothing on purpose.
void tst_AppSettings_damage::withoutTheMemory() {
  QVERIFY(QFile::remove(settings().memoryPath()));
  write("[clean]\nexclusions=a\n");
  QVERIFY(settings().isReadable());
  QCOMPARE(settings().exclusions(), QStringList{u"a"_s});
  QVERIFY(!QFile::exists(settings().memoryPath())); // looking writes nothing
  settings().setOldMonths(24);
  QVERIFY(QFile::exists(settings().memoryPath()));
  write({});
  QCOMPARE(settings().look(), Store::Lost);
  QCOMPARE(settings().exclusions(), QStringList{u"a"_s});
}

void tst_AppSettings_damage::damagedMemory_data() {
  QTest::addColumn<QByteArray>("text");
  QTest::newRow("empty") << QByteArray();
  QTest::newRow("words") << QByteArray("broken");
  QTest::newRow("zeros") << QByteArray(50, '\0');
  QTest::newRow("a folder") << QByteArray("/");
}

// The store itself is in order: nothing is in doubt but for what it may have held.
void tst_AppSettings_damage::damagedMemory() {
  QFETCH(QByteArray, text);
  const QByteArray whole = bytes();
  const QString memory = settings().memoryPath();
  QVERIFY(QFile::remove(memory));
  text == "/" ? static_cast<void>(QDir().mkdir(memory)) : settingsstore::write(memory, text);
  QVERIFY(settings().isReadable());
  QCOMPARE(settings().exclusions(), kRules);
  write({});
  QCOMPARE(settings().look(), Store::Lost);
  write(whole);
  settings().setOldMonths(24);
  QVERIFY(settings().isReadable());
  if (text != "/") QVERIFY(settingsstore::bytes(memory).contains("iso"));
}

void tst_AppSettings_damage::memoryOfAnEmptyList() {
  settings().setExclusions({});
  write("[ui]\ntheme=1\n");
  QCOMPARE(settings().look(), Store::Lost); // the default rule would be back, yet the key has gone
  write("[clean]\nexclusions=more\n");
  QVERIFY(settings().isReadable());
}

void tst_AppSettings_damage::tellsWhenItChanges() {
  const QByteArray whole = bytes();
  QSignalSpy changed(&settings(), &AppSettings::changed);
  settings().look();
  QCOMPARE(changed.count(), 0);
  write("broken");
  settings().look();
  settings().look();
  QCOMPARE(changed.count(), 1);
  write({});
  settings().look();
  QCOMPARE(changed.count(), 2);
  write(whole);
  settings().look();
  QCOMPARE(changed.count(), 3);
}

// The order of the two files: a rule is forgotten before it goes, and remembered after it came.
void tst_AppSettings_damage::neverInDoubtInBetween() {
  const QByteArray folder = QFile::encodeName(QFileInfo(path()).path());
  const UniqueFd watch(::inotify_init1(IN_NONBLOCK | IN_CLOEXEC));
  QVERIFY(::inotify_add_watch(watch.get(), folder.constData(), IN_MOVED_TO) >= 0);
  const auto arrived = [&watch] {
    alignas(inotify_event) char buffer[4096];
    QStringList names;
    const ssize_t got = ::read(watch.get(), buffer, sizeof buffer);
    for (const char* at = buffer; at < buffer + got;) {
      const auto* event = reinterpret_cast<const inotify_event*>(at);
      names << QString::fromUtf8(event->name);
      at += sizeof(inotify_event) + event->len;
    }
    return names;
  };
  const QString store = QFileInfo(path()).fileName();
  const QString memory = QFileInfo(settings().memoryPath()).fileName();
  settings().setExclusions(kRules.first(2));
  QCOMPARE(arrived(), (QStringList{memory, store}));
  settings().setExclusions(kRules);
  QCOMPARE(arrived(), (QStringList{store, memory}));
  settings().setExclusions({kRules.first(), u"other"_s});
  QCOMPARE(arrived(), (QStringList{memory, store, memory}));
}

// The user's own rules stand before those for all users.
void tst_AppSettings_damage::fileForAllUsersIsDamaged() {
  const QString ofAll = QFileInfo(path()).path() + u".ini"_s; // of the organisation
  settingsstore::write(ofAll, "[clean]\nexclusions\n");
  QVERIFY(settings().isReadable());
  settingsstore::forget();
  QCOMPARE(settings().look(), Store::Unreadable);
  QVERIFY(settings().acceptExclusions());
  QVERIFY(settings().isReadable());
  QVERIFY(QFile::remove(ofAll));
}

// Nothing of it depends on what this process has seen before.
void tst_AppSettings_damage::anotherStart() {
  write("[ui]\ntheme=1\n");
  QProcess other;
  other.start(QCoreApplication::applicationFilePath(), {u"--tell"_s, QFileInfo(QFileInfo(path()).path()).path()});
  QVERIFY(other.waitForFinished());
  QCOMPARE(other.readAllStandardOutput(), QByteArray("2 " + kRules.join(u'|').toUtf8() + "\n"));
  QCOMPARE(bytes(), QByteArray("[ui]\ntheme=1\n"));
}

int main(int argc, char** argv) {
  QCoreApplication app(argc, argv);
  if (const QStringList words = QCoreApplication::arguments(); words.value(1) == u"--tell"_s) {
    identity::apply();
    QSettings::setDefaultFormat(QSettings::IniFormat);
    QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, words.value(2));
    const AppSettings& settings = AppSettings::instance();
    std::printf("%d %s\n", int(settings.lastLook()), settings.exclusions().join(u'|').toUtf8().constData());
    return 0;
  }
  tst_AppSettings_damage test;
  return QTest::qExec(&test, argc, argv);
}
#include "tst_AppSettings_damage.moc"
