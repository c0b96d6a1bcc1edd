#include "ui/pages/LargeFilesModel.h"

#include "LargeFilesTest.h"
#include "support/uitest.h"
#include "ui/pages/LargeFileKind.h"

#include <QAbstractItemModelTester>
#include <QSignalSpy>

using namespace Qt::StringLiterals;
using namespace largetest;
using ui::LargeFilesModel;

namespace {

/// Sizes 1, 3, 2, names that sort otherwise in the other case of letters, ages that sort otherwise too.
QList<LargeFile> three() { return {aged(file(u"b"_s, 1), 2), aged(file(u"C"_s, 3), 9), file(u"a"_s, 2)}; }

} // namespace

class TestLargeFilesModel : public QObject {
  Q_OBJECT

 private slots:
  void empty();
  void size();
  void roles();
  void nothingBeyond();
  void columns_data();
  void columns();
  void marksTheColumn();
  void rowsHaveNoHeading();
  void toldToReaders();
  void ticks();
  void tickWithoutARow();
  void tickOutlivesTheRows();
  void forgetsWithoutTelling();
  void resetThenSorted();
  void sorts_data();
  void sorts();
  void unsortableTakesTheOrder_data();
  void unsortableTakesTheOrder();
  void equalsKeepTheirOrder();
  void sortingTells();
  void indexesFollowTheirFiles();
  void tickedWhileSorted();
  void kinds_data();
  void kinds();
  void greysHaveNoShade();
  void hueSteps_data();
  void hueSteps();
  void shades();
  void paleAndStrong();
};

void TestLargeFilesModel::empty() {
  LargeFilesModel model;
  const QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::QtTest);
  QCOMPARE(model.rowCount(), 0);
  QCOMPARE(model.columnCount(), 5);
  QCOMPARE(model.unusedMonths, 6);
  QCOMPARE(model.sortColumn(), 4);
  QCOMPARE(model.sortOrder(), Qt::DescendingOrder);
  QVERIFY(model.selection().isEmpty());
}

void TestLargeFilesModel::size() {
  LargeFilesModel model;
  const QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::QtTest);
  model.setFiles(three());
  QCOMPARE(model.rowCount(), 3);
  QCOMPARE(model.rowCount(model.index(0, 0)), 0);
  QCOMPARE(model.columnCount(model.index(0, 0)), 0);
  model.setFiles({});
  QCOMPARE(model.rowCount(), 0);
}

void TestLargeFilesModel::roles() {
  LargeFilesModel model;
  LargeFile one = aged(file(u"a.mov"_s, 7), 3);
  model.setFiles({one});
  for (int column = 0; column < 5; ++column) {
    const QModelIndex index = model.index(0, column);
    QCOMPARE(index.data(Qt::ToolTipRole).toString(), QDir::toNativeSeparators(one.path));
    const auto whole = index.data(Qt::UserRole + 1).value<LargeFile>();
    QCOMPARE(whole.path, one.path);
    QCOMPARE(whole.name, one.name);
    QCOMPARE(whole.dir, one.dir);
    QCOMPARE(whole.kind, one.kind);
    QCOMPARE(whole.size, one.size);
    QCOMPARE(whole.lastUsed, one.lastUsed);
    QCOMPARE(index.data(Qt::UserRole + 2), QVariant(false));
    for (const int role : {int(Qt::DisplayRole), int(Qt::DecorationRole), int(Qt::EditRole), int(Qt::FontRole),
                           int(Qt::BackgroundRole), int(Qt::ForegroundRole), int(Qt::SizeHintRole), Qt::UserRole + 3})
      QVERIFY2(!index.data(role).isValid(), qPrintable(QString::number(role)));
  }
  model.toggle(one.path);
  QCOMPARE(model.index(0, 3).data(Qt::UserRole + 2), QVariant(true));
  one.name = u"<b>bold</b>"_s;
  one.path = one.dir + u'/' + one.name;
  model.setFiles({one});
  QVERIFY(model.index(0, 1).data(Qt::ToolTipRole).toString().contains(u"&lt;b&gt;bold"_s)); // shown as it is
}

void TestLargeFilesModel::nothingBeyond() {
  LargeFilesModel model;
  model.setFiles(three());
  const QPersistentModelIndex last = model.index(2, 0);
  for (const int role : {int(Qt::ToolTipRole), Qt::UserRole + 1, Qt::UserRole + 2}) {
    QVERIFY(model.data(last, role).isValid());
    QVERIFY(!model.data({}, role).isValid());
    QVERIFY(!model.data(model.index(3, 0), role).isValid());
  }
}

void TestLargeFilesModel::columns_data() {
  QTest::addColumn<QString>("text");
  QTest::addColumn<int>("alignment");
  constexpr int left = int(Qt::AlignLeft) | int(Qt::AlignVCenter);
  constexpr int right = int(Qt::AlignRight) | int(Qt::AlignVCenter);
  QTest::newRow("0") << u""_s << left;
  QTest::newRow("1") << u"NAME"_s << left;
  QTest::newRow("2") << u"KIND"_s << left;
  QTest::newRow("3") << u"LAST OPENED"_s << right;
  QTest::newRow("4") << u"SIZE  ↓"_s << right; // sorted by at first
}

void TestLargeFilesModel::columns() {
  const LargeFilesModel model;
  const int column = QByteArray(QTest::currentDataTag()).toInt();
  QTEST(model.headerData(column, Qt::Horizontal).toString(), "text");
  QTEST(model.headerData(column, Qt::Horizontal, Qt::TextAlignmentRole).toInt(), "alignment");
  QVERIFY(!model.headerData(column, Qt::Horizontal, Qt::DecorationRole).isValid());
}

void TestLargeFilesModel::marksTheColumn() {
  LargeFilesModel model;
  const auto texts = [&] {
    QStringList all;
    for (int column = 0; column < 5; ++column) all << model.headerData(column, Qt::Horizontal).toString();
    return all;
  };
  model.sort(1, Qt::AscendingOrder);
  QCOMPARE(texts(), (QStringList{u""_s, u"NAME  ↑"_s, u"KIND"_s, u"LAST OPENED"_s, u"SIZE"_s}));
  model.sort(3, Qt::DescendingOrder);
  QCOMPARE(texts(), (QStringList{u""_s, u"NAME"_s, u"KIND"_s, u"LAST OPENED  ↓"_s, u"SIZE"_s}));
  model.sort(2, Qt::AscendingOrder); // stays with the column before
  QCOMPARE(texts(), (QStringList{u""_s, u"NAME"_s, u"KIND"_s, u"LAST OPENED  ↑"_s, u"SIZE"_s}));
}

void TestLargeFilesModel::rowsHaveNoHeading() {
  LargeFilesModel model;
  model.setFiles(three());
  QVERIFY(!model.headerData(0, Qt::Vertical).isValid());
  QVERIFY(!model.headerData(4, Qt::Vertical, Qt::TextAlignmentRole).isValid());
  QVERIFY(!model.headerData(5, Qt::Horizontal).isValid());
  QVERIFY(!model.headerData(-1, Qt::Horizontal).isValid());
}

void TestLargeFilesModel::toldToReaders() {
  LargeFilesModel model;
  model.setFiles({file(u"a.mov"_s, 7)});
  const auto spoken = [&](int column) { return model.index(0, column).data(Qt::AccessibleTextRole).toString(); };
  QCOMPARE(spoken(0), u"a.mov, 7 MB"_s);
  QCOMPARE(spoken(1), u"a.mov"_s);
  QCOMPARE(spoken(2), u"Video"_s);
  QCOMPARE(spoken(3), u"Today"_s);
  QCOMPARE(spoken(4), u"7 MB"_s);
  QCOMPARE(model.index(0, 1).data(Qt::AccessibleDescriptionRole).toString(), u"~/Films"_s);
  QCOMPARE(model.index(0, 0).data(Qt::CheckStateRole), QVariant(int(Qt::Unchecked)));
  model.toggle(model.files().at(0).path);
  QCOMPARE(model.index(0, 0).data(Qt::CheckStateRole), QVariant(int(Qt::Checked)));
  QVERIFY(!model.index(0, 1).data(Qt::CheckStateRole).isValid());
  QVERIFY(model.index(0, 0).flags().testFlag(Qt::ItemIsUserCheckable));
  QVERIFY(!model.index(0, 1).flags().testFlag(Qt::ItemIsUserCheckable));
  const auto heading = [&](int column) {
    return model.headerData(column, Qt::Horizontal, Qt::AccessibleTextRole).toString();
  };
  QCOMPARE(heading(0), u"Selected"_s);
  QCOMPARE(heading(1), u"Name"_s);
  QCOMPARE(heading(4), u"Size, descending"_s);
  model.sort(1, Qt::AscendingOrder);
  QCOMPARE(heading(1), u"Name, ascending"_s);
  QCOMPARE(heading(4), u"Size"_s);
}

void TestLargeFilesModel::ticks() {
  LargeFilesModel model;
  const QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::QtTest);
  model.setFiles(three());
  const QString path = model.files().at(1).path;
  QSignalSpy changed(&model, &QAbstractItemModel::dataChanged);
  QSignalSpy selection(&model, &LargeFilesModel::selectionChanged);
  for (const bool on : {true, false}) {
    model.toggle(path);
    QCOMPARE(model.selection().contains(path), on);
    QCOMPARE(changed.size(), 1);
    const QVariantList told = changed.takeFirst();
    QCOMPARE(told.at(0).toModelIndex(), model.index(1, 0));
    QCOMPARE(told.at(1).toModelIndex(), model.index(1, 4));
    QVERIFY(told.at(2).value<QList<int>>().isEmpty());
    QCOMPARE(selection.size(), 1);
    selection.clear();
  }
}

void TestLargeFilesModel::tickWithoutARow() {
  LargeFilesModel model;
  model.setFiles(three());
  QSignalSpy changed(&model, &QAbstractItemModel::dataChanged);
  QSignalSpy selection(&model, &LargeFilesModel::selectionChanged);
  model.toggle(u"/elsewhere"_s);
  QCOMPARE(model.selection(), QSet<QString>{u"/elsewhere"_s});
  QCOMPARE(changed.size(), 0);
  QCOMPARE(selection.size(), 1);
}

void TestLargeFilesModel::tickOutlivesTheRows() {
  LargeFilesModel model;
  model.setFiles(three());
  const QString path = file(u"a"_s, 0).path;
  model.toggle(path);
  model.setFiles({file(u"other"_s, 1)});
  QVERIFY(model.selection().contains(path));
  QVERIFY(!model.index(0, 0).data(LargeFilesModel::CheckedRole).toBool());
  model.setFiles(three());
  for (int row = 0; row < 3; ++row)
    QCOMPARE(model.index(row, 0).data(LargeFilesModel::CheckedRole).toBool(), model.files().at(row).name == u"a"_s);
}

void TestLargeFilesModel::forgetsWithoutTelling() {
  LargeFilesModel model;
  model.setFiles(three());
  for (const LargeFile& one : three()) model.toggle(one.path);
  QSignalSpy selection(&model, &LargeFilesModel::selectionChanged);
  model.forget({file(u"a"_s, 0).path, file(u"b"_s, 0).path, u"/never/ticked"_s});
  QCOMPARE(model.selection(), QSet<QString>{file(u"C"_s, 0).path});
  QCOMPARE(selection.size(), 0);
}

void TestLargeFilesModel::resetThenSorted() {
  LargeFilesModel model;
  QStringList order;
  connect(&model, &QAbstractItemModel::modelReset, this, [&] { order << u"reset"_s << namesOf(model.files()); });
  connect(&model, &QAbstractItemModel::layoutChanged, this, [&] { order << u"sorted"_s << namesOf(model.files()); });
  model.setFiles(three());
  QCOMPARE(order, (QStringList{u"reset"_s, u"b"_s, u"C"_s, u"a"_s, u"sorted"_s, u"C"_s, u"a"_s, u"b"_s}));
  model.sort(1, Qt::AscendingOrder);
  model.setFiles(three()); // as the last were
  QCOMPARE(namesOf(model.files()), (QStringList{u"a"_s, u"b"_s, u"C"_s}));
}

void TestLargeFilesModel::sorts_data() {
  QTest::addColumn<int>("column");
  QTest::addColumn<QStringList>("ascending");
  QTest::newRow("name, in any case of letters") << 1 << QStringList{u"a"_s, u"b"_s, u"C"_s};
  QTest::newRow("last opened") << 3 << QStringList{u"C"_s, u"b"_s, u"a"_s};
  QTest::newRow("size") << 4 << QStringList{u"b"_s, u"a"_s, u"C"_s};
}

void TestLargeFilesModel::sorts() {
  QFETCH(int, column);
  QFETCH(QStringList, ascending);
  LargeFilesModel model;
  const QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::QtTest);
  model.setFiles(three());
  model.sort(column, Qt::AscendingOrder);
  QCOMPARE(namesOf(model.files()), ascending);
  QCOMPARE(model.sortColumn(), column);
  model.sort(column, Qt::DescendingOrder);
  std::reverse(ascending.begin(), ascending.end());
  QCOMPARE(namesOf(model.files()), ascending);
  QCOMPARE(model.sortOrder(), Qt::DescendingOrder);
}

void TestLargeFilesModel::unsortableTakesTheOrder_data() {
  QTest::addColumn<int>("column");
  for (const int column : {0, 2, -1, 5}) QTest::addRow("%d", column) << column;
}

void TestLargeFilesModel::unsortableTakesTheOrder() {
  QFETCH(int, column);
  LargeFilesModel model;
  model.setFiles(three());
  model.sort(1, Qt::AscendingOrder);
  model.sort(column, Qt::DescendingOrder);
  QCOMPARE(model.sortColumn(), 1);
  QCOMPARE(model.sortOrder(), Qt::DescendingOrder);
  QCOMPARE(namesOf(model.files()), (QStringList{u"C"_s, u"b"_s, u"a"_s}));
}

void TestLargeFilesModel::equalsKeepTheirOrder() {
  LargeFilesModel model;
  QList<LargeFile> files;
  for (const QString& name : {u"d"_s, u"b"_s, u"D"_s, u"a"_s, u"c"_s}) files << file(name, 1);
  files << file(u"large"_s, 2);
  model.setFiles(files);
  QCOMPARE(namesOf(model.files()), (QStringList{u"large"_s, u"d"_s, u"b"_s, u"D"_s, u"a"_s, u"c"_s}));
  model.sort(4, Qt::AscendingOrder);
  QCOMPARE(namesOf(model.files()), (QStringList{u"d"_s, u"b"_s, u"D"_s, u"a"_s, u"c"_s, u"large"_s}));
  model.sort(1, Qt::DescendingOrder); // and so do names that differ in their case alone
  QCOMPARE(namesOf(model.files()), (QStringList{u"large"_s, u"d"_s, u"D"_s, u"c"_s, u"b"_s, u"a"_s}));
}

void TestLargeFilesModel::sortingTells() {
  LargeFilesModel model;
  model.setFiles(three());
  QStringList order;
  connect(&model, &QAbstractItemModel::layoutAboutToBeChanged, this, [&] { order << u"about"_s; });
  connect(&model, &QAbstractItemModel::layoutChanged, this, [&] { order << u"changed"_s; });
  connect(&model, &QAbstractItemModel::headerDataChanged, this, [&](Qt::Orientation way, int first, int last) {
    order << u"header %1 %2 %3"_s.arg(way == Qt::Horizontal).arg(first).arg(last);
  });
  model.sort(1, Qt::AscendingOrder);
  QCOMPARE(order, (QStringList{u"about"_s, u"changed"_s, u"header 1 0 4"_s}));
}

void TestLargeFilesModel::indexesFollowTheirFiles() {
  LargeFilesModel model;
  model.setFiles(three());
  QList<QPersistentModelIndex> held;
  QStringList names;
  for (int row = 0; row < 3; ++row) {
    held << model.index(row, row);
    names << model.files().at(row).name;
  }
  model.sort(1, Qt::AscendingOrder);
  for (int i = 0; i < 3; ++i) {
    QCOMPARE(model.files().at(held.at(i).row()).name, names.at(i));
    QCOMPARE(held.at(i).column(), i);
  }
}

void TestLargeFilesModel::tickedWhileSorted() {
  LargeFilesModel model;
  model.setFiles(three());
  const QString path = model.files().at(0).path;
  model.toggle(path);
  model.sort(1, Qt::AscendingOrder);
  QCOMPARE(model.rowOf(path), 2);
  QVERIFY(model.index(2, 0).data(LargeFilesModel::CheckedRole).toBool());
  QVERIFY(!model.index(0, 0).data(LargeFilesModel::CheckedRole).toBool());
  QCOMPARE(model.rowOf(u"/elsewhere"_s), -1);
}

// The look of the kinds

void TestLargeFilesModel::kinds_data() {
  QTest::addColumn<QString>("icon");
  QTest::addColumn<QString>("colour");
  QTest::newRow("Disk image") << u"disc"_s << u"#6366f1"_s;
  QTest::newRow("Video") << u"film"_s << u"#ec4899"_s;
  QTest::newRow("Archive") << u"archive"_s << u"#f59e0b"_s;
  QTest::newRow("Installer") << u"download"_s << u"#0ea5e9"_s;
  QTest::newRow("Document") << u"file"_s << u"#10b981"_s;
  QTest::newRow("Backup") << u"archive"_s << u"#8b5cf6"_s;
  QTest::newRow("Audio") << u"file"_s << u"#14b8a6"_s;
  QTest::newRow("Image") << u"image"_s << u"#f97316"_s;
  QTest::newRow("Partial download") << u"download"_s << u"#94a3b8"_s;
  QTest::newRow("File") << u"file"_s << u"#64748b"_s;
  QTest::newRow("") << u"file"_s << u"#64748b"_s;
  QTest::newRow("video") << u"file"_s << u"#64748b"_s; // labels are exact
}

void TestLargeFilesModel::kinds() {
  const ui::KindStyle& style = ui::kindStyle(QString::fromLatin1(QTest::currentDataTag()));
  QTEST(style.icon, "icon");
  QTEST(style.colour.name(QColor::HexRgb), "colour");
  QCOMPARE(style.colour.alpha(), 255);
}

void TestLargeFilesModel::greysHaveNoShade() {
  for (int n = 0; n < 9; ++n) {
    const QColor grey = QColor::fromHsv(215, 40, 184);
    QCOMPARE(ui::tileColour(grey, n), grey);
    QVERIFY(ui::tileColour(QColor::fromHsv(215, 41, 184), n) != QColor::fromHsv(215, 41, 184));
  }
}

void TestLargeFilesModel::hueSteps_data() {
  QTest::addColumn<int>("hue");
  QTest::addColumn<QList<int>>("hues"); // of the files from 0 to 8
  QTest::newRow("cold") << 160 << QList<int>{160, 176, 148, 190, 136, 168, 140, 184, 160};
  QTest::newRow("warm") << 40 << QList<int>{40, 45, 36, 50, 32, 42, 34, 48, 40};
  QTest::newRow("70 is cold") << 70 << QList<int>{70, 86, 58, 100, 46, 78, 50, 94, 70};
  QTest::newRow("69 is warm") << 69 << QList<int>{69, 74, 65, 79, 61, 71, 63, 77, 69};
  QTest::newRow("300 is cold") << 300 << QList<int>{300, 316, 288, 330, 276, 308, 280, 324, 300};
  QTest::newRow("301 is warm") << 301 << QList<int>{301, 306, 297, 311, 293, 303, 295, 309, 301};
  QTest::newRow("around the turn") << 355 << QList<int>{355, 0, 351, 5, 347, 357, 349, 3, 355};
  QTest::newRow("and back") << 2 << QList<int>{2, 7, 358, 12, 354, 4, 356, 10, 2};
}

void TestLargeFilesModel::hueSteps() {
  QFETCH(int, hue);
  QFETCH(QList<int>, hues);
  for (int n = 0; n < 9; ++n) QCOMPARE(ui::tileColour(QColor::fromHsv(hue, 180, 200), n).hsvHue(), hues.at(n));
}

void TestLargeFilesModel::shades() {
  const QColor base = QColor::fromHsv(160, 180, 200);
  for (int n = 0; n < 9; ++n) {
    const QColor tile = ui::tileColour(base, n);
    QCOMPARE(tile.value(), 200 - 22 - n % 3 * 8);
    QCOMPARE(tile.hsvSaturation(), 200);
    QCOMPARE(tile.alpha(), 255);
  }
  const QColor third = ui::tileColour(base, 2);
  QCOMPARE(third.hsvHue(), 160 - 12);
  QCOMPARE(third.value(), 200 - 22 - 16);
}

void TestLargeFilesModel::paleAndStrong() {
  QCOMPARE(ui::tileColour(QColor::fromHsv(160, 255, 200), 0).hsvSaturation(), 255);
  QCOMPARE(ui::tileColour(QColor::fromHsv(160, 236, 200), 0).hsvSaturation(), 255);
  QCOMPARE(ui::tileColour(QColor::fromHsv(160, 41, 200), 0).hsvSaturation(), 61);
  QCOMPARE(ui::tileColour(QColor::fromHsv(160, 180, 30), 2).value(), 0); // no darker than black
}

int main(int argc, char** argv) { return uitest::run<TestLargeFilesModel>(argc, argv); }

#include "tst_LargeFilesModel.moc"
