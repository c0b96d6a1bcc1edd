#include "core/trashinfo.h"

#include <QTest>

class TestTrashInfo : public QObject {
  Q_OBJECT

 private slots:
  void encodesThePath_data();
  void encodesThePath();
  void numbersNames_data();
  void numbersNames();
  void shortensAtACharacter();
  void forgetsSizes();
  void findsLocalMounts_data();
  void findsLocalMounts();
  void countsAVolumeOnce();
};

void TestTrashInfo::encodesThePath_data() {
  QTest::addColumn<QByteArray>("path");
  QTest::addColumn<QByteArray>("encoded");
  QTest::newRow("plain") << QByteArray("/home/me/A-b_c.d~e/0") << QByteArray("/home/me/A-b_c.d~e/0");
  QTest::newRow("blank") << QByteArray("/a b") << QByteArray("/a%20b");
  QTest::newRow("percent") << QByteArray("/100%/%41") << QByteArray("/100%25/%2541");
  QTest::newRow("newline") << QByteArray("/a\nPath=/b") << QByteArray("/a%0APath%3D/b");
  QTest::newRow("umlaut") << QByteArray("/\xc3\xbc") << QByteArray("/%C3%BC");
  QTest::newRow("decomposed") << QByteArray("/u\xcc\x88") << QByteArray("/u%CC%88");
  QTest::newRow("no text") << QByteArray("/\xff\xfe") << QByteArray("/%FF%FE");
  QTest::newRow("marks") << QByteArray("/[]#?&+;:@!$'()*,\\\"<>`{|}^")
                         << QByteArray("/%5B%5D%23%3F%26%2B%3B%3A%40%21%24%27%28%29%2A%2C%5C%22%3C%3E%60%7B%7C%7D%5E");
  QTest::newRow("relative") << QByteArray("Photos/a b") << QByteArray("Photos/a%20b");
}

void TestTrashInfo::encodesThePath() {
  QFETCH(QByteArray, path);
  QFETCH(QByteArray, encoded);
  QCOMPARE(trashinfo::contents(path, "2024-02-29T13:05:00"),
           "[Trash Info]\nPath=" + encoded + "\nDeletionDate=2024-02-29T13:05:00\n");
  QCOMPARE(QByteArray::fromPercentEncoding(encoded), path);
}

void TestTrashInfo::numbersNames_data() {
  QTest::addColumn<QByteArray>("name");
  QTest::addColumn<int>("number");
  QTest::addColumn<QByteArray>("candidate");
  QTest::newRow("first") << QByteArray("a.txt") << 1 << QByteArray("a.txt");
  QTest::newRow("second") << QByteArray("a.txt") << 2 << QByteArray("a.2.txt");
  QTest::newRow("no extension") << QByteArray("folder") << 31 << QByteArray("folder.31");
  QTest::newRow("hidden") << QByteArray(".bashrc") << 2 << QByteArray(".bashrc.2");
  QTest::newRow("two stops") << QByteArray("a.tar.gz") << 2 << QByteArray("a.tar.2.gz");
  QTest::newRow("long tail") << QByteArray("version 1.0 of the whole thing") << 2
                             << QByteArray("version 1.0 of the whole thing.2");
  QTest::newRow("no text") << QByteArray("\xff.\xfe") << 3 << QByteArray("\xff.3.\xfe");
}

void TestTrashInfo::numbersNames() {
  QFETCH(QByteArray, name);
  QFETCH(int, number);
  QTEST(trashinfo::candidate(name, number, 255), "candidate");
}

void TestTrashInfo::shortensAtACharacter() {
  const auto fits = [](const QByteArray& name, int number, qsizetype most) {
    const QByteArray made = trashinfo::candidate(name, number, most);
    return trashinfo::infoName(made).size() <= most && !made.isEmpty();
  };
  const QByteArray exact(245, 'a');
  QCOMPARE(trashinfo::candidate(exact, 1, 255), exact);
  QCOMPARE(trashinfo::candidate(exact, 2, 255), QByteArray(243, 'a') + ".2");
  QCOMPARE(trashinfo::candidate(QByteArray(251, 'a') + ".txt", 1, 255), QByteArray(241, 'a') + ".txt");
  QCOMPARE(trashinfo::candidate(QByteArray(251, 'a') + ".txt", 12, 255), QByteArray(238, 'a') + ".12.txt");
  for (int bytes = 240; bytes <= 255; ++bytes) {
    for (const QByteArray& character :
         {QByteArray("\xc3\xbc"), QByteArray("\xe6\xbc\xa2"), QByteArray("\xf0\x9f\x98\x80")}) {
      QByteArray name(bytes % character.size(), 'x');
      while (name.size() + character.size() <= bytes) name += character;
      QVERIFY(fits(name, 1, 255) && fits(name, 2000, 255) && fits(name, 2, 143));
      QVERIFY(trashinfo::candidate(name, 7, 255).isValidUtf8());
    }
  }
  // Bytes that are no characters are cut anywhere.
  QVERIFY(fits(QByteArray(255, '\x80'), 1, 255));
  QCOMPARE(trashinfo::candidate(QByteArray(255, '\x80'), 1, 255).size(), 245);
}

void TestTrashInfo::forgetsSizes() {
  const QByteArray sizes = "4096 1700000000 one\n8192 1700000001 two%20words\n12 1700000002 %FF\n1 1 one.2\n";
  QCOMPARE(trashinfo::withoutSizes(sizes, {"two words"}), "4096 1700000000 one\n12 1700000002 %FF\n1 1 one.2\n");
  QCOMPARE(trashinfo::withoutSizes(sizes, {"\xff"}), "4096 1700000000 one\n8192 1700000001 two%20words\n1 1 one.2\n");
  QCOMPARE(trashinfo::withoutSizes(sizes, {"one.2"}), sizes.left(sizes.size() - 10));
  QCOMPARE(trashinfo::withoutSizes(sizes, {"none"}), sizes);
  QCOMPARE(trashinfo::withoutSizes("", {"one"}), "");
  QCOMPARE(trashinfo::withoutSizes(sizes, {"one.2", "none", "one", "\xff"}), "8192 1700000001 two%20words\n");
  QCOMPARE(trashinfo::withoutSizes(sizes, {}), sizes);
  QCOMPARE(trashinfo::withoutSizes("garbage\n\n1 1 one", {"one"}), "garbage\n\n");
}

void TestTrashInfo::findsLocalMounts_data() {
  QTest::addColumn<QByteArray>("line");
  QTest::addColumn<QByteArray>("point");
  const auto row = [](const char* title, const char* line, const char* point) {
    QTest::newRow(title) << QByteArray(line) << QByteArray(point);
  };
  row("disk", "29 1 254:0 / / rw,noatime shared:1 - ext4 /dev/vda rw,errors=remount-ro", "/");
  row("no tags", "29 1 8:17 / /media/me/stick rw - vfat /dev/sdb1 rw", "/media/me/stick");
  row("many tags", "29 1 8:17 / /m rw shared:1 master:2 propagate_from:3 - xfs /dev/sdb1 rw", "/m");
  row("blanks", "29 1 8:17 / /media/my\\040stick\\134a\\012b rw - ext4 /dev/sdb1 rw", "/media/my stick\\a\nb");
  row("subvolume", "29 1 0:30 /@home /home rw - btrfs /dev/sda2 rw,subvolid=5,subvol=/@home", "/home");
  row("pool", "29 1 0:30 / /tank rw - zfs tank/home rw", "/tank");
  row("overlay", "29 1 0:30 / / rw - overlay overlay rw,lowerdir=/l", "/");
  row("read-only", "29 1 11:0 / /media/disc ro - iso9660 /dev/sr0 ro", "");
  row("read-only mount of a disk", "29 1 8:17 / /m ro - ext4 /dev/sdb1 rw", "");
  row("network", "29 1 0:30 / /net rw - nfs4 server:/export rw", "");
  row("network 2", "29 1 0:30 / /net rw - cifs //server/share rw", "");
  row("fuse", "29 1 0:30 / /run/user/1000/doc rw - fuse.portal portal rw", "");
  row("fuse disk", "29 1 8:17 / /m rw - fuseblk /dev/sdb1 rw", "");
  row("autofs", "29 1 0:30 / /net rw - autofs systemd-1 rw", "");
  row("loop", "29 1 7:0 / /snap/core/1 rw - squashfs /dev/loop0 rw", "");
  row("bind", "29 1 254:0 /srv/data /home/me/data rw - ext4 /dev/vda rw", "");
  row("bind of a subvolume's folder", "29 1 0:30 /@home/me /x rw - btrfs /dev/sda2 rw,subvol=/@home", "");
  row("memory", "29 1 0:30 / /tmp rw - tmpfs tmpfs rw", "");
  row("memory by another name", "29 1 0:30 / /tmp rw - tmpfs /dev/shm2 rw", "");
  row("process table", "29 1 0:30 / /proc rw - proc proc rw", "");
  row("cut", "29 1 8:17 / /m rw", "");
  row("cut 2", "29 1 8:17 / /m rw - ext4", "");
  row("empty", "", "");
}

void TestTrashInfo::findsLocalMounts() {
  QFETCH(QByteArray, line);
  QFETCH(QByteArray, point);
  const QByteArrayList expected = point.isEmpty() ? QByteArrayList() : QByteArrayList{point};
  QCOMPARE(trashinfo::localMountPoints(line + '\n'), expected);
}

void TestTrashInfo::countsAVolumeOnce() {
  QCOMPARE(trashinfo::localMountPoints("29 1 8:1 / / rw - ext4 /dev/sda1 rw\n"
                                       "30 1 8:1 / /mnt/again rw - ext4 /dev/sda1 rw\n"
                                       "31 1 8:2 / /home rw - ext4 /dev/sda2 rw\n"),
           (QByteArrayList{"/", "/home"}));
}

QTEST_GUILESS_MAIN(TestTrashInfo)
#include "tst_trashinfo.moc"
