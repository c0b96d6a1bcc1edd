/// A download in a folder where others may have been first.
#include "support/ReleaseHost.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTest>

#include <csignal>
#include <fcntl.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

const QString kNotSaved = u"Could not save the update: "_s;

QByteArray raw(const QString& path) { return QFile::encodeName(path); }

mode_t modeOf(const QString& path) {
  struct stat status;
  return ::lstat(raw(path).constData(), &status) == 0 ? status.st_mode : 0;
}

QByteArray contentsOf(const QString& path) {
  QFile file(path);
  return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void write(const QString& path, const QByteArray& bytes) {
  QFile file(path);
  if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size()) qFatal("cannot write a fixture");
}

} // namespace

class TestUpdaterFiles : public QObject {
  Q_OBJECT

 private slots:
  void init() {
    m_host = std::make_unique<ReleaseHost>();
    m_folder = m_host->home.temp(u"downloads"_s);
  }
  void cleanup() { m_host.reset(); }

  void theFolderIsMadeForTheUserAlone() {
    const auto updater = m_host->updaterWithRelease();
    m_folder = updater->downloadDir = m_host->home.temp(u"a/b//c/"_s) + u'/';
    updater->install();
    QCOMPARE(modeOf(m_folder), mode_t(S_IFDIR | 0700));
    QCOMPARE(modeOf(m_host->home.temp(u"a/b/c/tarnwick.pkg.part"_s)), mode_t(S_IFREG | 0600));
    QVERIFY(ReleaseHost::hasEnded(*updater));
    QCOMPARE(m_host->launched, QStringList{m_host->home.temp(u"a/b/c/tarnwick.pkg"_s)});
    QCOMPARE(modeOf(m_host->launched.first()), mode_t(S_IFREG | 0600));
  }

  void aFolderThatIsNotTheUsersAloneIsRefused_data() {
    QTest::addColumn<QString>("kind");
    QTest::addColumn<QString>("why");
    QTest::newRow("mode 0755") << u"0755"_s << u"Permission denied"_s;
    QTest::newRow("mode 0777") << u"0777"_s << u"Permission denied"_s;
    QTest::newRow("mode 0750") << u"0750"_s << u"Permission denied"_s;
    QTest::newRow("mode 0701") << u"0701"_s << u"Permission denied"_s;
    QTest::newRow("mode 0600") << u"0600"_s << u"Permission denied"_s;
    QTest::newRow("a link to a good one") << u"link"_s << u"Not a directory"_s;
    QTest::newRow("a link to nothing") << u"dangling"_s << u"Not a directory"_s;
    QTest::newRow("a file") << u"file"_s << u"Not a directory"_s;
    QTest::newRow("another user's") << u"foreign"_s << u"Permission denied"_s;
    QTest::newRow("below a file") << u"below"_s << u"Not a directory"_s;
  }
  void aFolderThatIsNotTheUsersAloneIsRefused() {
    QFETCH(QString, kind);
    QFETCH(QString, why);
    const QString target = m_host->home.folder(u"target"_s);
    const auto updater = m_host->updaterWithRelease();
    QVERIFY(::chmod(raw(target).constData(), 0700) == 0);
    bool isOctal = false;
    const auto mode = static_cast<mode_t>(kind.toUInt(&isOctal, 8));
    if (isOctal) {
      QVERIFY(QDir().mkdir(m_folder) && ::chmod(raw(m_folder).constData(), mode) == 0);
    } else if (kind == u"link"_s || kind == u"dangling"_s) {
      m_host->home.link(m_folder, kind == u"link"_s ? target : target + u"/gone"_s);
    } else if (kind == u"file"_s) {
      write(m_folder, "kept");
    } else if (kind == u"below"_s) {
      write(m_folder, "kept");
      updater->downloadDir = m_folder + u"/below"_s;
    } else if (::geteuid() == 0) {
      QVERIFY(QDir().mkdir(m_folder) && ::chmod(raw(m_folder).constData(), 0700) == 0);
      QVERIFY(::chown(raw(m_folder).constData(), 65534, 65534) == 0);
    } else {
      updater->downloadDir = u"/lost+found"_s; // root's, 0700, where there is one
      if ((modeOf(updater->downloadDir) & 07777) != 0700) QSKIP("no folder of another user's here");
    }
    const mode_t before = modeOf(m_folder);
    updater->install();
    QCOMPARE(updater->error, kNotSaved + updater->downloadDir + u": "_s + why);
    QCOMPARE(updater->state, Updater::Available);
    QCOMPARE(modeOf(m_folder), before);
    QVERIFY(QDir(target).isEmpty());
    QCOMPARE(m_host->server.requests.size(), 1); // the feed's
  }

  void onlyNamesThatADownloadHasAreTaken_data() {
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("name");
    const QString other = u"tarnwick-update"_s;
    QTest::newRow("plain") << u"/a/b/tarnwick-2.0.deb"_s << u"tarnwick-2.0.deb"_s;
    QTest::newRow("with blanks") << u"/a/Tarnwick%202.0.dmg"_s << u"Tarnwick 2.0.dmg"_s;
    QTest::newRow("not ASCII") << u"/%C3%A4.dmg"_s << u"\u00e4.dmg"_s;
    QTest::newRow("with a query") << u"/a.dmg?x=/../b"_s << u"a.dmg"_s;
    QTest::newRow("a slash at the end") << u"/a/"_s << other;
    QTest::newRow("no path") << QString() << other;
    QTest::newRow("root") << u"/"_s << other;
    QTest::newRow("dot") << u"/a/%2E"_s << other;
    QTest::newRow("two dots") << u"/a/%2e%2e"_s << other;
    QTest::newRow("two dots behind a slash") << u"/a%2F..%2F.."_s << other;
    QTest::newRow("a way up") << u"/..%2F..%2Fup.dmg"_s << u"up.dmg"_s;
    QTest::newRow("a zero character") << u"/a%00b.dmg"_s << other;
    QTest::newRow("a line break") << u"/a%0Ab.dmg"_s << other;
    QTest::newRow("a tabulator") << u"/a%09b.dmg"_s << other;
    QTest::newRow("an escape") << u"/a%1B%5B1m.dmg"_s << other;
    QTest::newRow("delete") << u"/a%7Fb.dmg"_s << other;
    QTest::newRow("a control character beyond ASCII") << u"/a%C2%85b.dmg"_s << other;
    QTest::newRow("a turn of direction") << u"/a%E2%80%AEgmd.exe"_s << other;
    QTest::newRow("a line separator") << u"/a%E2%80%A8b.dmg"_s << other;
    QTest::newRow("200 bytes") << u"/"_s + QString(200, u'a') << QString(200, u'a');
    QTest::newRow("201 bytes") << u"/"_s + QString(201, u'a') << other;
    QTest::newRow("200 bytes in 100 characters") << u"/"_s + u"%D0%B0"_s.repeated(100) << QString(100, QChar(0x0430));
    QTest::newRow("202 bytes in 101 characters") << u"/"_s + u"%D0%B0"_s.repeated(101) << other;
    QTest::newRow("hidden") << u"/.bashrc"_s << u".bashrc"_s;
    QTest::newRow("a suffix like ours") << u"/a.part"_s << u"a.part"_s;
  }
  void onlyNamesThatADownloadHasAreTaken() {
    QFETCH(QString, path);
    QFETCH(QString, name);
    const auto updater = m_host->updaterWithRelease();
    updater->release.url = QUrl(ReleaseHost::address(path), QUrl::StrictMode);
    QVERIFY(updater->release.url.isValid());
    updater->install();
    QCOMPARE(updater->error, QString());
    QCOMPARE(m_host->downloads(), QStringList{name + u".part"_s});
    QCOMPARE(QDir(m_host->home.temp()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot),
             QStringList{u"downloads"_s});
    updater->cancel();
    QVERIFY(m_host->downloads().isEmpty());
  }

  void whatIsLeftThereIsNotWrittenThrough_data() {
    QTest::addColumn<QString>("name");
    QTest::addColumn<bool>("isLink");
    QTest::newRow("a link in the file's place") << u"tarnwick.pkg"_s << true;
    QTest::newRow("a link in the part's place") << u"tarnwick.pkg.part"_s << true;
    QTest::newRow("a second name in the part's place") << u"tarnwick.pkg.part"_s << false;
    QTest::newRow("a second name in the file's place") << u"tarnwick.pkg"_s << false;
  }
  void whatIsLeftThereIsNotWrittenThrough() {
    QFETCH(QString, name);
    QFETCH(bool, isLink);
    const QString precious = m_host->home.temp(u"precious"_s);
    write(precious, "precious");
    makeFolder();
    const QString left = m_folder + u'/' + name;
    QCOMPARE(isLink ? ::symlink(raw(precious).constData(), raw(left).constData())
                    : ::link(raw(precious).constData(), raw(left).constData()),
             0);
    const auto updater = m_host->updaterWithRelease();
    updater->install();
    QVERIFY(ReleaseHost::hasEnded(*updater));
    QCOMPARE(updater->state, Updater::Installing);
    QCOMPARE(contentsOf(precious), QByteArray("precious"));
    QCOMPARE(modeOf(m_folder + u"/tarnwick.pkg"_s), mode_t(S_IFREG | 0600));
    QVERIFY(contentsOf(m_folder + u"/tarnwick.pkg"_s) == ReleaseHost::package());
  }

  void whatACrashLeftIsNoHindrance() {
    makeFolder();
    write(m_folder + u"/tarnwick.pkg.part"_s, QByteArray(3'000'000, 'x'));
    write(m_folder + u"/tarnwick.pkg"_s, "old");
    const auto updater = m_host->updaterWithRelease();
    updater->install();
    QVERIFY(ReleaseHost::hasEnded(*updater));
    QCOMPARE(m_host->downloads(), QStringList{u"tarnwick.pkg"_s});
    QVERIFY(contentsOf(m_host->launched.value(0)) == ReleaseHost::package());
  }

  void aFolderInTheWayOfTheFile() {
    makeFolder();
    QVERIFY(QDir(m_folder).mkdir(u"tarnwick.pkg"_s));
    const auto updater = m_host->updaterWithRelease();
    updater->install();
    QVERIFY(ReleaseHost::hasEnded(*updater));
    QCOMPARE(updater->error, u"The update could not be downloaded: "_s + kNotSaved + m_folder + u"/tarnwick.pkg"_s);
    QCOMPARE(updater->state, Updater::Available);
    QCOMPARE(m_host->downloads(), QStringList{u"tarnwick.pkg"_s});
    QVERIFY(m_host->launched.isEmpty());
  }

  void aFolderInTheWayOfThePart() {
    makeFolder();
    QVERIFY(QDir(m_folder).mkdir(u"tarnwick.pkg.part"_s));
    const auto updater = m_host->updaterWithRelease();
    updater->install();
    QCOMPARE(updater->error, kNotSaved + u"File exists"_s);
    QCOMPARE(updater->state, Updater::Available);
    QVERIFY(QFileInfo(m_folder + u"/tarnwick.pkg.part"_s).isDir());
  }

  /// The name is given to another file while the download runs.
  void aFileThatWasExchangedIsNotOpened() {
    const auto updater = stuckInTheMiddle();
    const QString part = m_folder + u"/tarnwick.pkg.part"_s;
    QVERIFY(QFile::rename(part, m_folder + u"/aside"_s));
    write(part, ReleaseHost::package()); // even with the right contents
    finish();
    QVERIFY(ReleaseHost::hasEnded(*updater));
    QCOMPARE(updater->error, u"The update could not be downloaded: "_s + kNotSaved + m_folder + u"/tarnwick.pkg"_s);
    QVERIFY(m_host->launched.isEmpty());
    QVERIFY(!QFile::exists(m_folder + u"/tarnwick.pkg"_s));
    QVERIFY(!QFile::exists(part));
  }

  /// The whole folder is exchanged: what was opened goes on, and what the path leads to is never opened.
  void aFolderThatWasExchangedIsNotOpened() {
    const auto updater = stuckInTheMiddle();
    const QString aside = m_folder + u"-aside"_s;
    QVERIFY(QFile::rename(m_folder, aside));
    makeFolder();
    write(m_folder + u"/tarnwick.pkg"_s, ReleaseHost::package());
    finish();
    QVERIFY(ReleaseHost::hasEnded(*updater));
    QCOMPARE(updater->error, u"The update could not be downloaded: "_s + kNotSaved + m_folder + u"/tarnwick.pkg"_s);
    QCOMPARE(updater->state, Updater::Available);
    QVERIFY(m_host->launched.isEmpty());
    QVERIFY(!QFile::exists(aside + u"/tarnwick.pkg.part"_s));
  }

  /// What the verified file holds is what was hashed: the open file, whatever its name leads to.
  void whatIsHashedIsTheOpenFile() {
    const auto updater = stuckInTheMiddle();
    const QString part = m_folder + u"/tarnwick.pkg.part"_s;
    {
      QFile file(part);
      QVERIFY(file.open(QIODevice::ReadWrite) && file.write("changed in its place") > 0);
    }
    finish();
    QVERIFY(ReleaseHost::hasEnded(*updater));
    QCOMPARE(updater->error,
             u"The update could not be downloaded: The update does not match the published checksum."_s);
    QVERIFY(m_host->downloads().isEmpty());
  }

  void aFullDiskIsSaid() {
    const auto updater = m_host->updaterWithRelease();
    struct rlimit old;
    QVERIFY(::getrlimit(RLIMIT_FSIZE, &old) == 0);
    const auto before = std::signal(SIGXFSZ, SIG_IGN);
    const rlimit small = {rlim_t{500'000}, old.rlim_max};
    QVERIFY(::setrlimit(RLIMIT_FSIZE, &small) == 0);
    updater->install();
    const bool hasEnded = ReleaseHost::hasEnded(*updater);
    QVERIFY(::setrlimit(RLIMIT_FSIZE, &old) == 0);
    std::signal(SIGXFSZ, before);
    QVERIFY(hasEnded);
    QCOMPARE(updater->error, u"The update could not be downloaded: "_s + kNotSaved + u"File too large"_s);
    QCOMPARE(updater->state, Updater::Available);
    QVERIFY(m_host->downloads().isEmpty());
  }

  void whatCannotBeReadIsSaid_data() {
    QTest::addColumn<QString>("kind");
    for (const char* kind : {"missing", "folder", "pipe", "link"}) QTest::newRow(kind) << QString::fromLatin1(kind);
  }
  void whatCannotBeReadIsSaid() {
    QFETCH(QString, kind);
    const QString good = m_host->home.path(u"good"_s);
    write(good, ReleaseHost::package());
    const QString sum = QString::fromLatin1(ReleaseHost::sha256(ReleaseHost::package()));
    QCOMPARE(Updater::verify(good, sum, {}), QString());
    const QString path = m_host->home.path(kind);
    if (kind == u"folder"_s) QVERIFY(QDir().mkdir(path));
    if (kind == u"pipe"_s) QCOMPARE(::mkfifo(raw(path).constData(), 0600), 0);
    if (kind == u"link"_s) m_host->home.link(kind, good);
    QCOMPARE(Updater::verify(path, sum, {}), u"Could not read the update."_s);
  }

  void aFileIsHeldToItsChecksumAndItsSigner() {
    const QString path = m_host->home.path(u"good"_s);
    write(path, ReleaseHost::package());
    const QString sum = QString::fromLatin1(ReleaseHost::sha256(ReleaseHost::package()));
    const QString mismatch = u"The update does not match the published checksum."_s;
    QCOMPARE(Updater::verify(path, sum.toUpper(), {}), QString());
    QCOMPARE(Updater::verify(path, {}, {}), mismatch);
    QCOMPARE(Updater::verify(path, QString(64, u'0'), {}), mismatch);
    QCOMPARE(Updater::verify(path, sum + u'\n', {}), mismatch);
    QCOMPARE(Updater::verify(path, QString(64, u'0'), u"Ada"_s), mismatch);
    QCOMPARE(Updater::verify(path, sum, u"Ada"_s), u"The update is not signed by Ada."_s);
    QCOMPARE(Updater::signer(path), QString());
  }

 private:
  void makeFolder() const {
    if (::mkdir(raw(m_folder).constData(), 0700) != 0) qFatal("cannot make the download folder");
  }

  /// A download of which all but the last byte is written.
  std::unique_ptr<Updater> stuckInTheMiddle() {
    const QByteArray& good = ReleaseHost::package();
    Answer answer = Answer::ok(good);
    answer.body.chop(1);
    auto updater = m_host->updaterWithRelease(u"/files/tarnwick.pkg"_s, answer.ending(Answer::End::Hang));
    updater->install();
    const QString part = m_folder + u"/tarnwick.pkg.part"_s;
    if (!QTest::qWaitFor([&] { return QFileInfo(part).size() == good.size() - 1; }, 30000)) qFatal("nothing came");
    return updater;
  }

  /// Sends what was kept back.
  void finish() { m_host->server.sendMore(ReleaseHost::package().right(1)); }

  std::unique_ptr<ReleaseHost> m_host;
  QString m_folder;
};

QTEST_GUILESS_MAIN(TestUpdaterFiles)
#include "tst_Updater_files.moc"
