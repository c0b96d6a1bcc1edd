// The rules by which the status item's menu is guarded; and on this system the guards have nothing to do.
#include "ui/shell/macsupport.h"

#include "ui/shell/macos/statusitem.h"

#include <QTest>

class TestMacSupport : public QObject {
  Q_OBJECT

 private slots:
  void guardedVersions() {
    QVERIFY(!macsupport::needsStatusItemGuard(26));
    QVERIFY(macsupport::needsStatusItemGuard(27));
    QVERIFY(macsupport::needsStatusItemGuard(28));
  }
  void mouseButtons() {
    QList<unsigned long> buttons;
    for (unsigned long type = 0; type < 64; ++type)
      if (macsupport::isMouseButton(type)) buttons << type;
    QCOMPARE(buttons, (QList<unsigned long>{1, 2, 3, 4, 25, 26}));
  }
};

QTEST_APPLESS_MAIN(TestMacSupport)

#include "tst_macsupport.moc"
