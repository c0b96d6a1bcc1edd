#include "core/LinkSet.h"

#include <QTest>

class TestLinkSet : public QObject {
  Q_OBJECT

 private slots:
  void holdsEachFileOnce_data();
  void holdsEachFileOnce();
  void tellsDevicesApart();
};

void TestLinkSet::holdsEachFileOnce_data() {
  QTest::addColumn<quint64>("step");
  QTest::newRow("one after the other") << quint64{1};
  QTest::newRow("far apart") << (quint64{1} << 32);
  QTest::newRow("odd") << quint64{0x9e3779b97f4a7c15U};
}

void TestLinkSet::holdsEachFileOnce() {
  QFETCH(quint64, step);
  LinkSet links(7);
  for (quint64 i = 1; i <= 10'000; ++i) QVERIFY(links.insert(7, i * step));
  for (quint64 i = 1; i <= 10'000; ++i) QVERIFY(!links.insert(7, i * step));
  QVERIFY(links.insert(7, 10'001 * step));
}

void TestLinkSet::tellsDevicesApart() {
  LinkSet links(7);
  QVERIFY(links.insert(7, 1));
  QVERIFY(links.insert(8, 1));
  QVERIFY(links.insert(9, 1));
  QVERIFY(!links.insert(8, 1));
  QVERIFY(!links.insert(7, 1));
}

QTEST_GUILESS_MAIN(TestLinkSet)
#include "tst_linkset.moc"
