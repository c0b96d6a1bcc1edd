// The records that cross threads: what a default-built one holds, and that a signal can carry them.
#include "app/records.h"

#include <QMetaType>
#include <QTest>

using namespace Qt::StringLiterals;

class tst_records : public QObject {
  Q_OBJECT

 private slots:
  void defaults();
  void metaTypes_data();
  void metaTypes();
  void copiesShareTheirPayload();
};

void tst_records::defaults() {
  const CategoryDef def;
  QCOMPARE(def.safety, Safe);
  QVERIFY(!def.needsAdmin && !def.needsFullDiskAccess && !def.usesRecycleBin && def.roots.isEmpty());
  const CleanItem item;
  QVERIFY(!item.wholeRoot && item.bytes == 0 && item.files == 0 && item.modified == 0);
  const CategoryResult result;
  QVERIFY(result.bytes == 0 && result.files == 0 && !result.accessDenied && result.items.isEmpty());
  const CleanReport report;
  QVERIFY(report.freedBytes == 0 && report.removedFiles == 0 && report.skipped == 0 && !report.needsAdmin);
  QVERIFY(report.skippedSamples.isEmpty() && report.cleanedIds.isEmpty() && report.runningApps.isEmpty());
  QVERIFY(report.logPath.isEmpty() && report.refusal.isEmpty() && report.dryRunLog.isEmpty());
  const ScanRoot root;
  QVERIFY(root.patterns.isEmpty() && root.label.isEmpty() && !root.ownOnly);
  QCOMPARE(int(Safe), 0);
  QCOMPARE(int(Review), 1);
  QCOMPARE(int(Permanent), 2);
}

void tst_records::metaTypes_data() {
  QTest::addColumn<QByteArray>("name");
  for (const char* name :
       {"CategoryResult", "QList<CategoryResult>", "QList<CategoryDef>", "CleanReport", "QList<LargeFile>"})
    QTest::newRow(name) << QByteArray(name);
}

void tst_records::metaTypes() {
  QFETCH(QByteArray, name);
  records::registerMetaTypes();
  QVERIFY(QMetaType::fromName(name).isValid());
}

void tst_records::copiesShareTheirPayload() {
  CategoryResult result;
  result.items = QList<CleanItem>(1000);
  const CategoryResult copy = result;
  QVERIFY(copy.items.isSharedWith(result.items));
}

QTEST_GUILESS_MAIN(tst_records)
#include "tst_records.moc"
