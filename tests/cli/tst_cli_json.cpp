// The JSON objects, from values that no file system of a test can give.
#include "cli/json.h"

#include <QTest>

using namespace Qt::StringLiterals;

class tst_cli_json : public QObject {
  Q_OBJECT

 private slots:
  void scan();
  void clean();
  void systemData();
  void largeNumbersAreExact();
};

void tst_cli_json::scan() {
  qputenv("TARNWICK_HOST", "mac");
  CategoryResult category;
  category.def.id = u"dev"_s;
  category.def.title = u"Développeurs"_s;
  category.def.safety = Review;
  category.bytes = 7;
  category.files = 9;
  category.accessDenied = true;
  CleanItem item;
  item.path = u"/a\n\"b"_s;
  item.name = u"b"_s;
  item.wholeRoot = true;
  item.owner = u"Chrome"_s;
  item.bytes = 7;
  item.files = 1;
  item.modified = 1234;
  category.items << item;
  QCOMPARE(
      cli::json::text(cli::json::Scan{{category}, true, 42}).toUtf8(),
      QByteArray(R"({"bytes":7,"cancelled":true,"categories":[{"accessDenied":true,"bytes":7,"files":9,"id":"dev",)"
                 R"("items":[{"bytes":7,"files":1,"modified":1234,"name":"b","owner":"Chrome","path":"/a\n\"b",)"
                 R"("wholeRoot":true}],"safety":"review","title":"Développeurs"}],)"
                 R"("elapsedMs":42,"files":9,"host":"mac"})"
                 "\n"));
}

void tst_cli_json::clean() {
  CleanReport report;
  report.freedBytes = 1;
  report.removedFiles = 2;
  report.skipped = 3;
  report.skippedSamples = {u"/a"_s, u"/b"_s};
  report.cleanedIds = {u"temp"_s};
  report.logPath = u"/log"_s;
  report.needsAdmin = true;
  report.runningApps = {u"Chrome"_s};
  report.refusal = u"no"_s;
  report.dryRunLog = u"text"_s;
  QCOMPARE(cli::json::text(cli::json::Clean{report, true, false}).toUtf8(),
           QByteArray(R"({"cleanedIds":["temp"],"dryRun":true,"freedBytes":1,"logPath":"/log","mode":"delete",)"
                      R"("needsAdmin":true,"removedFiles":2,"runningApps":["Chrome"],"skipped":3,)"
                      R"("skippedSamples":["/a","/b"]})"
                      "\n"));
}

void tst_cli_json::systemData() {
  SystemDataItem item;
  item.id = u"snapshots"_s;
  item.title = u"Clichés"_s;
  item.actionable = true;
  item.action = SystemDataItem::RemoveSnapshots;
  item.bytes = 7;
  item.files = 9;
  item.denied = true;
  item.count = 3;
  item.detail = u"3"_s;
  SystemDataItem other;
  other.bytes = 9'007'199'254'740'993; // one more than a double holds
  QCOMPARE(cli::json::text(cli::json::SystemData{{item, other}, true}).toUtf8(),
           QByteArray(R"({"bytes":9007199254741000,"cancelled":true,"items":[)"
                      R"({"action":"removeSnapshots","actionable":true,"bytes":7,"count":3,"denied":true,)"
                      R"("detail":"3","files":9,"id":"snapshots","title":"Clichés"},)"
                      R"({"action":"none","actionable":false,"bytes":9007199254740993,"count":-1,"denied":false,)"
                      R"("detail":"","files":0,"id":"","title":""}]})"
                      "\n"));
}

void tst_cli_json::largeNumbersAreExact() {
  CategoryResult category;
  category.bytes = 9'007'199'254'740'993; // one more than a double holds
  const QString text = cli::json::text(cli::json::Scan{{category}, false, 0});
  QCOMPARE(text.count(u"\"bytes\":9007199254740993,"_s), 2);
}

QTEST_GUILESS_MAIN(tst_cli_json)
#include "tst_cli_json.moc"
