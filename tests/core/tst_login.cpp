// The entry that starts the program at login: its text for both systems, and where it stands.
#include "core/login.h"

#include "support/FixtureHome.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QProcess>
#include <QStandardPaths>
#include <QTest>
#include <QXmlStreamReader>

#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::StringLiterals;
using login::Outcome;

namespace {

/// What a desktop makes of the value of an Exec key: undoes the escapes of a text, takes the words apart by their
/// quotes, and undoes "%%".
QStringList wordsOf(const QByteArray& value) {
  QByteArray text;
  for (qsizetype i = 0; i < value.size(); ++i) text += value[i] == '\\' ? value[++i] : value[i];
  QStringList words;
  QByteArray word;
  bool quoted = false;
  for (qsizetype i = 0; i < text.size(); ++i) {
    const char c = text[i];
    if (c == '"') {
      quoted = !quoted;
    } else if (c == ' ' && !quoted) {
      words << QString::fromUtf8(word);
      word.clear();
    } else {
      word += quoted && c == '\\' ? text[++i] : c;
    }
  }
  words << QString::fromUtf8(word);
  for (QString& one : words) one.replace(u"%%"_s, u"%"_s);
  return words;
}

/// The values of a property list, in their order.
QStringList plistValues(const QByteArray& plist) {
  QStringList values;
  QXmlStreamReader reader(plist);
  while (!reader.atEnd())
    if (reader.readNext() == QXmlStreamReader::Characters && !reader.isWhitespace()) values << reader.text().toString();
  return reader.hasError() ? QStringList{reader.errorString()} : values;
}

const QString kProgram = u"/opt/tarnwick/bin/tarnwick"_s;

} // namespace

class tst_login : public QObject {
  Q_OBJECT

 private slots:
  void init();
  void cleanup();

  void textOfTheDesktopEntry();
  void execNamesTheProgram_data();
  void execNamesTheProgram();
  void whatNoEntryCanName_data();
  void whatNoEntryCanName();
  void desktopStartsIt_data();
  void desktopStartsIt();
  void bringsAnEntryUpToDate();
  void launchAgent();
  void placeFollowsTheEnvironment();
  void addsAndRemoves();
  void addBringsBackTheFirstForm();
  void keepLeavesWhatTheUserChanged();
  void keepWritesNothingNew();
  void keepPutsAMissingOneInPlace();
  void leavesWhatIsNotItsOwn_data();
  void leavesWhatIsNotItsOwn();
  void linkedFolderIsTheUsers();
  void failsWhereNothingCanBeWritten();
  void leavesTheHomeOfAnotherUser();
  void leavesTheFolderOfAnotherUser();
  void programIsTheImage();

 private:
  static QByteArray bytes(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
  }
  void put(const QByteArray& text) const {
    QDir().mkpath(QFileInfo(login::path()).path());
    QFile file(login::path());
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(text);
  }

  std::unique_ptr<FixtureHome> m_home;
};

void tst_login::init() {
  m_home.reset(); // it gives HOME back
  m_home = std::make_unique<FixtureHome>();
}

void tst_login::cleanup() {
  for (const char* name : {"XDG_CONFIG_HOME", "APPIMAGE", "APPDIR"}) qunsetenv(name);
}

void tst_login::textOfTheDesktopEntry() {
  QCOMPARE(login::desktopEntry(kProgram), QByteArray("[Desktop Entry]\n"
                                                     "Type=Application\n"
                                                     "Version=1.0\n"
                                                     "Name=Tarnwick\n"
                                                     "Exec=\"/opt/tarnwick/bin/tarnwick\" --background\n"
                                                     "Icon=tarnwick\n"
                                                     "Terminal=false\n"
                                                     "StartupNotify=false\n"
                                                     "X-GNOME-Autostart-enabled=true\n"
                                                     "X-Tarnwick-Login=true\n"));
  QVERIFY(login::isOwn(login::desktopEntry(kProgram)));
  QVERIFY(!login::isOwn("[Desktop Entry]\nExec=tarnwick\n"));
}

void tst_login::execNamesTheProgram_data() {
  QTest::addColumn<QString>("program");
  QTest::addColumn<QByteArray>("value");
  const auto row = [](const QString& program, const QByteArray& value) {
    QTest::addRow("%s", qPrintable(program)) << program << QByteArray(value + " --background");
  };
  row(u"/usr/bin/tarnwick"_s, "\"/usr/bin/tarnwick\"");
  row(u"/My Apps/tarnwick (2)"_s, "\"/My Apps/tarnwick (2)\"");
  row(u"/it's/~a;b&c|d<e>f*g?h#i"_s, "\"/it's/~a;b&c|d<e>f*g?h#i\"");
  row(u"/a\"b"_s, R"("/a\\"b")");
  row(u"/a`b"_s, R"("/a\\`b")");
  row(u"/a$HOME"_s, R"("/a\\$HOME")");
  row(u"/a\\b"_s, R"("/a\\\\b")");
  row(u"/100%/%f %u"_s, R"(/bin/sh -c "exec \\"\\$0\\" \\"\\$@\\"" "/100%%/%%f %%u")");
  row(u"/a=b/tarnwick"_s, R"(/bin/sh -c "exec \\"\\$0\\" \\"\\$@\\"" "/a=b/tarnwick")");
  row(u"/Prüfung/清理"_s, "\"/Prüfung/清理\"");
}

void tst_login::execNamesTheProgram() {
  QFETCH(QString, program);
  QFETCH(QByteArray, value);
  const auto made = login::execValue(program);
  QVERIFY(made);
  QCOMPARE(*made, value);
  QStringList words = wordsOf(*made);
  if (words.first() == u"/bin/sh"_s) {
    QCOMPARE(words.mid(1, 2), (QStringList{u"-c"_s, u"exec \"$0\" \"$@\""_s}));
    words = words.mid(3);
  }
  QCOMPARE(words, (QStringList{program, u"--background"_s}));
}

void tst_login::whatNoEntryCanName_data() {
  QTest::addColumn<QString>("program");
  const auto row = [](const char* name, const QString& program) { QTest::newRow(name) << program; };
  row("nothing", {});
  row("relative", u"tarnwick"_s);
  row("a line break", u"/a\nb"_s);
  row("a tab", u"/a\tb"_s);
  row("an escape", u"/a\x1b"
                   "b"_s);
  row("half a pair", u"/a"_s + QChar(0xd800));
  row("bytes that were no text", u"/a"_s + QChar(0xfffd));
}

void tst_login::whatNoEntryCanName() {
  QFETCH(QString, program);
  QVERIFY(!login::execValue(program));
  QCOMPARE(login::desktopEntry(program), QByteArray());
  QCOMPARE(login::desktopEntry(login::desktopEntry(kProgram), program), QByteArray());
  QCOMPARE(login::launchAgent(program), QByteArray());
  QCOMPARE(login::add(program), Outcome::Failed);
  QCOMPARE(login::keep(program), Outcome::Failed);
  QVERIFY(!QFileInfo::exists(QFileInfo(login::path()).path()));
}

void tst_login::desktopStartsIt_data() {
  QTest::addColumn<QString>("folder");
  for (const char* folder : {"plain", "with spaces", "100%", "a=b", "q\"u'o`t\\e$HOME", "(*?#;&|<>~)", "Prüfung 清理"})
    QTest::newRow(folder) << QString::fromUtf8(folder);
}

// By one of the launchers that desktops use, where it is installed.
void tst_login::desktopStartsIt() {
  QFETCH(QString, folder);
  const QString launcher = QStandardPaths::findExecutable(u"gio"_s);
  if (launcher.isEmpty()) QSKIP("needs gio");
  const QString program = m_home->file(folder + u"/tarnwick"_s, 0);
  const QString told = m_home->path(u"told"_s);
  QFile script(program);
  QVERIFY(script.open(QIODevice::WriteOnly));
  script.write("#!/bin/sh\nprintf '%s|' \"$0\" \"$@\" >" + told.toUtf8() + ".part\nmv " + told.toUtf8() + ".part " +
               told.toUtf8() + "\n");
  script.close();
  QVERIFY(script.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner));
  QCOMPARE(login::add(program), Outcome::Done);
  QProcess launch;
  launch.start(launcher, {u"launch"_s, login::path()});
  QVERIFY(launch.waitForFinished());
  if (launch.readAllStandardError().contains("Unknown command")) QSKIP("needs a newer gio");
  QTRY_VERIFY(QFile::exists(told));
  QCOMPARE(QString::fromUtf8(bytes(told)), program + u"|--background|"_s);
}

void tst_login::bringsAnEntryUpToDate() {
  const QByteArray changed = "[Desktop Entry]\nHidden=true\nExec=\"/old\" --background\nName[de]=Tarnwick\n"
                             "X-Tarnwick-Login=true";
  QCOMPARE(login::desktopEntry(changed, kProgram),
           QByteArray("[Desktop Entry]\nHidden=true\nExec=\"/opt/tarnwick/bin/tarnwick\" --background\n"
                      "Name[de]=Tarnwick\nX-Tarnwick-Login=true"));
  QCOMPARE(login::desktopEntry("[Desktop Entry]\nX-Tarnwick-Login=true\n", kProgram), login::desktopEntry(kProgram));
}

void tst_login::launchAgent() {
  const QString program = u"/Applications/A & B <\"1\">.app/Contents/MacOS/tarnwick"_s;
  const QByteArray plist = login::launchAgent(program);
  QCOMPARE(plistValues(plist),
           (QStringList{u"Label"_s, u"tarnwick.login"_s, u"ProgramArguments"_s, program, u"--background"_s,
                        u"RunAtLoad"_s, u"LimitLoadToSessionType"_s, u"Aqua"_s}));
  QVERIFY(login::isOwn(plist));
}

void tst_login::placeFollowsTheEnvironment() {
  QCOMPARE(login::path(), m_home->path(u".config/autostart/tarnwick.desktop"_s));
  qputenv("XDG_CONFIG_HOME", QFile::encodeName(m_home->path(u"conf"_s)));
  QCOMPARE(login::path(), m_home->path(u"conf/autostart/tarnwick.desktop"_s));
  qputenv("XDG_CONFIG_HOME", "relative");
  QCOMPARE(login::path(), m_home->path(u".config/autostart/tarnwick.desktop"_s));
}

void tst_login::addsAndRemoves() {
  QCOMPARE(login::remove(), Outcome::Done);
  QVERIFY(!QFileInfo::exists(m_home->path(u".config"_s)));
  QCOMPARE(login::add(kProgram), Outcome::Done);
  QCOMPARE(bytes(login::path()), login::desktopEntry(kProgram));
  QCOMPARE(QDir(m_home->path(u".config/autostart"_s)).entryList(QDir::Files | QDir::Hidden),
           QStringList{u"tarnwick.desktop"_s});
  QCOMPARE(login::remove(), Outcome::Done);
  QVERIFY(!QFileInfo::exists(login::path()));
}

void tst_login::addBringsBackTheFirstForm() {
  put("[Desktop Entry]\nHidden=true\nX-GNOME-Autostart-enabled=false\nX-Tarnwick-Login=true\n");
  QCOMPARE(login::add(kProgram), Outcome::Done);
  QCOMPARE(bytes(login::path()), login::desktopEntry(kProgram));
}

// A desktop switches an entry off by a line in it; only that the user takes back.
void tst_login::keepLeavesWhatTheUserChanged() {
  QByteArray changed = login::desktopEntry(u"/old/tarnwick"_s);
  changed.replace("enabled=true", "enabled=false");
  put(changed);
  QCOMPARE(login::keep(kProgram), Outcome::Done);
  const QByteArray kept = bytes(login::path());
  QVERIFY(kept.contains("X-GNOME-Autostart-enabled=false\n"));
  QVERIFY(kept.contains("Exec=\"/opt/tarnwick/bin/tarnwick\" --background\n"));
  QVERIFY(!kept.contains("/old/"));
}

void tst_login::keepWritesNothingNew() {
  QCOMPARE(login::add(kProgram), Outcome::Done);
  const QDateTime before = QDateTime::currentDateTime().addYears(-1);
  FixtureHome::age(login::path(), before);
  struct stat first {};
  struct stat second {};
  QCOMPARE(::stat(QFile::encodeName(login::path()).constData(), &first), 0);
  QCOMPARE(login::keep(kProgram), Outcome::Done);
  QCOMPARE(::stat(QFile::encodeName(login::path()).constData(), &second), 0);
  QCOMPARE(second.st_ino, first.st_ino);
  QCOMPARE(second.st_mtime, first.st_mtime);
}

void tst_login::keepPutsAMissingOneInPlace() {
  QCOMPARE(login::keep(kProgram), Outcome::Done);
  QCOMPARE(bytes(login::path()), login::desktopEntry(kProgram));
}

void tst_login::leavesWhatIsNotItsOwn_data() {
  QTest::addColumn<QString>("what");
  for (const char* what : {"file", "empty file", "link", "dangling link", "link to its own", "folder"})
    QTest::newRow(what) << QString::fromLatin1(what);
}

void tst_login::leavesWhatIsNotItsOwn() {
  QFETCH(QString, what);
  const QString goal = m_home->file(u"goal"_s, 4);
  const QString own = m_home->file(u"own"_s, 0);
  {
    QFile file(own);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(login::desktopEntry(u"/old"_s));
  }
  if (what == u"file"_s) put("[Desktop Entry]\nType=Application\nExec=tarnwick\n");
  if (what == u"empty file"_s) put({});
  if (what == u"link"_s) m_home->link(login::path(), goal);
  if (what == u"dangling link"_s) m_home->link(login::path(), m_home->path(u"nowhere"_s));
  if (what == u"link to its own"_s) m_home->link(login::path(), own);
  if (what == u"folder"_s) m_home->folder(login::path());
  const QByteArray before = bytes(login::path());
  const bool wasLink = QFileInfo(login::path()).isSymLink();
  QCOMPARE(login::add(kProgram), Outcome::Taken);
  QCOMPARE(login::keep(kProgram), Outcome::Taken);
  QCOMPARE(login::remove(), Outcome::Done);
  QCOMPARE(bytes(login::path()), before);
  QCOMPARE(QFileInfo(login::path()).isSymLink(), wasLink);
  QCOMPARE(bytes(goal), QByteArray("xxxx"));
  QCOMPARE(bytes(own), login::desktopEntry(u"/old"_s));
  QVERIFY(!QFileInfo::exists(m_home->path(u"nowhere"_s)));
  QCOMPARE(QFileInfo(login::path()).isDir(), what == u"folder"_s);
}

void tst_login::linkedFolderIsTheUsers() {
  m_home->folder(u"dotfiles/autostart"_s);
  m_home->link(u".config/autostart"_s, m_home->path(u"dotfiles/autostart"_s));
  QCOMPARE(login::add(kProgram), Outcome::Done);
  QCOMPARE(bytes(m_home->path(u"dotfiles/autostart/tarnwick.desktop"_s)), login::desktopEntry(kProgram));
  QCOMPARE(login::remove(), Outcome::Done);
  QVERIFY(!QFileInfo::exists(login::path()));
}

void tst_login::failsWhereNothingCanBeWritten() {
  m_home->link(u".config/autostart"_s, u"/proc/self"_s); // nobody makes files there
  QCOMPARE(login::add(kProgram), Outcome::Failed);
}

// A root shell that kept the user's HOME would leave a file there that the user can't change.
void tst_login::leavesTheHomeOfAnotherUser() {
  qputenv("HOME", "/proc/1"); // never a place to write, and of this user only if that is root
  const bool own = QFileInfo(u"/proc/1"_s).ownerId() == ::geteuid();
  if (own) {
    const QString foreign = m_home->folder(u"foreign"_s);
    QCOMPARE(::chown(QFile::encodeName(foreign).constData(), 65534, 65534), 0);
    qputenv("HOME", QFile::encodeName(foreign));
  }
  QCOMPARE(login::add(kProgram), Outcome::Failed);
  QCOMPARE(login::remove(), Outcome::Failed);
  QVERIFY(!QFileInfo::exists(login::path()));
  qputenv("HOME", QFile::encodeName(m_home->path()));
}

// A shell of another user that kept the variable.
void tst_login::leavesTheFolderOfAnotherUser() {
  if (::geteuid() != 0) QSKIP("only root can give a folder away");
  const QString foreign = m_home->folder(u"foreign"_s);
  qputenv("XDG_CONFIG_HOME", QFile::encodeName(foreign));
  QCOMPARE(login::add(kProgram), Outcome::Done);
  QCOMPARE(::chown(QFile::encodeName(foreign + u"/autostart"_s).constData(), 65534, 65534), 0);
  QCOMPARE(login::remove(), Outcome::Failed);
  QCOMPARE(login::keep(u"/elsewhere/tarnwick"_s), Outcome::Failed);
  QCOMPARE(bytes(login::path()), login::desktopEntry(kProgram));
  QVERIFY(QFile::remove(login::path()));
  QCOMPARE(login::remove(), Outcome::Done); // there is none
  QVERIFY(QDir().rmdir(foreign + u"/autostart"_s));
  QCOMPARE(::chown(QFile::encodeName(foreign).constData(), 65534, 65534), 0);
  QCOMPARE(login::add(kProgram), Outcome::Failed);
  QVERIFY(!QFileInfo::exists(foreign + u"/autostart"_s));
}

void tst_login::programIsTheImage() {
  QCOMPARE(login::program(), QCoreApplication::applicationFilePath());
  const QString image = m_home->file(u"Tarnwick.AppImage"_s, 4);
  qputenv("APPIMAGE", QFile::encodeName(image));
  QCOMPARE(login::program(), QCoreApplication::applicationFilePath()); // nothing that can be started
  QVERIFY(QFile::setPermissions(image, QFile::ReadOwner | QFile::ExeOwner));
  QCOMPARE(login::program(), QCoreApplication::applicationFilePath()); // of a program that has started this one
  qputenv("APPDIR", QFile::encodeName(m_home->path()));
  QCOMPARE(login::program(), QCoreApplication::applicationFilePath());
  qputenv("APPDIR", QFile::encodeName(QCoreApplication::applicationDirPath()));
  QCOMPARE(login::program(), image);
  for (const char* other : {"Tarnwick.AppImage", "/nowhere/Tarnwick.AppImage", "/tmp", ""}) {
    qputenv("APPIMAGE", other);
    QCOMPARE(login::program(), QCoreApplication::applicationFilePath());
  }
}

QTEST_GUILESS_MAIN(tst_login)
#include "tst_login.moc"
