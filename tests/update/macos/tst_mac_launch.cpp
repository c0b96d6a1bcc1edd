#include "update/macos/launch.h"

#include "support/FixtureHome.h"

#include <QFile>
#include <QTest>

using namespace Qt::StringLiterals;

class TestMacLaunch : public QObject {
  Q_OBJECT

 private slots:
  void theToolGetsThePathAlone() {
    const FixtureHome home;
    QFile tool(home.file(u"bin/tool"_s, 0));
    QVERIFY(tool.open(QIODevice::WriteOnly));
    tool.write("#!/bin/sh\nfor a; do printf '[%s]' \"$a\"; done > \"$HOME/ARGS\"\n");
    tool.close();
    QVERIFY(tool.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner));
    QCOMPARE(launch::with(tool.fileName(), u"/a b/c'd.dmg"_s), QString());
    const auto seen = [&] {
      QFile file(home.path(u"ARGS"_s));
      return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    };
    QTRY_COMPARE(seen(), QByteArray("[/a b/c'd.dmg]"));
  }

  void aToolThatIsNotThereIsSaid() {
    const FixtureHome home;
    QCOMPARE(launch::with(home.path(u"bin/none"_s), u"/a.dmg"_s), u"Could not open the update."_s);
  }
};

QTEST_GUILESS_MAIN(TestMacLaunch)
#include "tst_mac_launch.moc"
