#include "app/AppSettings.h"
#include "gallery/GalleryWindow.h"
#include "gallery/Sheet.h"
#include "gallery/Snapshot.h"
#include "gallery/shots.h"
#include "gallery/views.h"
#include "support/SampleHome.h"
#include "support/uitest.h"
#include "support/window.h"
#include "ui/Theme.h"
#include "ui/controls/ElidedLabel.h"
#include "ui/controls/Segmented.h"
#include "ui/pages/CleanupPage.h"
#include "ui/pages/OverviewPage.h"

#include <QDir>
#include <QImage>
#include <QLabel>
#include <QMenu>
#include <QProcess>
#include <QProcessEnvironment>
#include <QRegularExpression>
#include <QScrollArea>
#include <QSignalSpy>
#include <QTemporaryDir>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

void setLook(AppSettings::ThemeMode mode) { AppSettings::instance().setThemeMode(mode); }

/// One run of the program: its exit code, -1 if it didn't end by itself, and what it complained of.
struct Run {
  int code = -1;
  QString errors;
};

Run runGallery(const QStringList& arguments, const QString& look = {}, const QString& scale = {}) {
  QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
  if (!look.isEmpty()) environment.insert(u"TARNWICK_LOOK"_s, look);
  if (!scale.isEmpty()) environment.insert(u"QT_SCALE_FACTOR"_s, scale);
  environment.remove(u"QT_QPA_PLATFORM"_s); // the program finds its way without a screen itself
  QProcess process;
  process.setProcessEnvironment(environment);
  process.start(QStringLiteral(TARNWICK_GALLERY), arguments);
  if (!process.waitForFinished(60'000) || process.exitStatus() != QProcess::NormalExit) return {};
  return {process.exitCode(), QString::fromUtf8(process.readAllStandardError())};
}

bool shows(const QImage& picture, const QColor& colour) {
  for (int y = 0; y < picture.height(); ++y)
    for (int x = 0; x < picture.width(); ++x)
      if (picture.pixelColor(x, y) == colour) return true;
  return false;
}

/// Whether a scrolling view shows as much of it as it wants to.
bool isInView(const QWidget* widget) {
  for (const QWidget* parent = widget->parentWidget(); parent; parent = parent->parentWidget())
    if (parent->inherits("QAbstractScrollArea")) return true;
  return false;
}

const gallery::ViewEntry& viewCalled(const QByteArray& name) {
  const auto all = gallery::views();
  const auto found = std::find_if(all.begin(), all.end(), [&](const auto& entry) { return entry.name == name; });
  if (found == all.end()) qFatal("no view is called %s", name.constData());
  return *found;
}

bool contains(const QStringList& texts, const QString& part) {
  return std::any_of(texts.begin(), texts.end(), [&](const QString& text) { return text.contains(part); });
}

/// The rows of the menus that are open.
QStringList menuTexts(const QWidget& window) {
  QStringList texts;
  for (const QMenu* menu : window.findChildren<QMenu*>())
    for (const QAction* action : menu->actions())
      if (menu->isVisible()) texts << action->text();
  return texts;
}

ui::Segmented* segmentedWith(const QWidget& window, const QString& item) {
  for (auto* control : window.findChildren<ui::Segmented*>())
    for (int index = 0; index < control->itemCount(); ++index)
      if (control->itemAt(index).name == item && !qobject_cast<gallery::Sheet*>(control->parentWidget()))
        return control;
  return nullptr;
}

} // namespace

class TestGallery : public QObject {
  Q_OBJECT

 private slots:
  void initTestCase() { Theme::get().install(qApp); }
  void init() { setLook(AppSettings::Light); }

  void sheetNames_data();
  void sheetNames();
  void viewNames();
  void viewsHaveNamesOfTheirOwn();
  void viewsShowWhatTheyAreCalled_data();
  void viewsShowWhatTheyAreCalled();
  void viewsShowEveryPhase();
  void viewsLeaveTheHomeAlone();
  void nothingIsSqueezed_data();
  void nothingIsSqueezed();
  void sheetFollowsTheLook();
  void changeOfLookLeavesNothingBehind_data();
  void changeOfLookLeavesNothingBehind();
  void whatOpensIsTakenInEveryLook();
  void otherLookStandsBesideTheLiveOne();
  void otherMetricsNeedAnotherProcess();
  void programWritesBothLooks();
  void programWritesAViewAtBothSizes();
  void everyControlIsOnTheSheet();
  void programTellsWhatWentWrong();
};

void TestGallery::sheetNames_data() {
  QTest::addColumn<bool>("dark");
  QTest::addColumn<bool>("mac");
  QTest::addColumn<double>("scale");
  QTest::addColumn<QString>("name");
  QTest::newRow("dark mac 2") << true << true << 2.0 << u"gallery-dark-mac-2x.png"_s;
  QTest::newRow("light mac 1") << false << true << 1.0 << u"gallery-light-mac-1x.png"_s;
  QTest::newRow("dark win 1.5") << true << false << 1.5 << u"gallery-dark-win-1.5x.png"_s;
}

void TestGallery::sheetNames() {
  QFETCH(bool, dark);
  QFETCH(bool, mac);
  QFETCH(double, scale);
  QTEST(gallery::sheetName(dark, mac, scale), "name");
}

void TestGallery::viewNames() {
  QCOMPARE(gallery::viewName(u"cleanup-review"_s, false, {960, 640}), u"cleanup-review-light-960x640.png"_s);
  QCOMPARE(gallery::viewName(u"about"_s, true, {1180, 780}), u"about-dark-1180x780.png"_s);
}

void TestGallery::viewsHaveNamesOfTheirOwn() {
  QSet<QByteArray> names;
  for (const gallery::ViewEntry& entry : gallery::views()) names << QByteArray(entry.name);
  QCOMPARE(size_t(names.size()), gallery::views().size());
}

void TestGallery::viewsShowWhatTheyAreCalled_data() {
  QTest::addColumn<QString>("text");
  QTest::newRow("overview-empty") << u"What Smart Scan looks at"_s;
  QTest::newRow("overview-found") << u"Top recommendations"_s;
  QTest::newRow("cleanup-empty") << u"Nothing scanned yet"_s;
  QTest::newRow("cleanup-scan") << u"Scanning"_s;
  QTest::newRow("cleanup-review") << u"Largest items"_s;
  QTest::newRow("cleanup-review-partly") << u"Select recommended"_s;
  QTest::newRow("cleanup-review-permanent") << u"Emptying cannot be undone"_s;
  QTest::newRow("cleanup-review-collapsed") << u"Select recommended"_s;
  QTest::newRow("cleanup-cleaning") << u"Cleaning"_s;
  QTest::newRow("cleanup-done") << u"For example: "_s;
  QTest::newRow("space-start") << u"Find what's taking up space"_s;
  QTest::newRow("space-search") << u"Largest so far"_s;
  QTest::newRow("space-results") << u" · 20 files"_s;
  QTest::newRow("space-results-ticked") << u"19.0 GB selected of "_s;
  QTest::newRow("space-results-none") << u" · 0 files"_s;
  QTest::newRow("clean-question") << u"Clean and delete"_s;
  QTest::newRow("system-data-start") << u"See what's inside System Data"_s;
  QTest::newRow("system-data-scan") << u"Measuring System Data…"_s;
  QTest::newRow("system-data-results") << u"You can reclaim"_s;
  QTest::newRow("system-data-refused") << u"at least "_s;
  QTest::newRow("system-data-managed") << u"No permission to read"_s;
  QTest::newRow("system-data-busy") << u"Working…"_s;
  QTest::newRow("system-data-question") << u"Move to Trash?"_s;
  QTest::newRow("about") << u"Version"_s;
  QTest::newRow("app-menu") << u"Open Log Folder"_s;
  QTest::newRow("shortcuts") << u"Keyboard shortcuts"_s;
  QTest::newRow("close-dialog") << u"Keep Tarnwick running?"_s;
  QTest::newRow("toast") << u"12 files (12 MB) moved to the Trash"_s;
}

void TestGallery::viewsShowWhatTheyAreCalled() {
  QFETCH(QString, text);
  const FixtureHome home;
  fillSampleHome(home);
  const gallery::ViewEntry& entry = viewCalled(QTest::currentDataTag());
  const auto scene = gallery::openView(entry);
  QCOMPARE(scene->window.page(), entry.page); // though a scan brings its own page to the front
  QVERIFY2(contains(windowtest::shownTexts(scene->window) + menuTexts(scene->window), text), qPrintable(text));
}

void TestGallery::viewsShowEveryPhase() {
  QSet<int> phases;
  for (const gallery::ViewEntry& entry : gallery::views()) phases << int(gallery::openView(entry)->state.phase);
  QCOMPARE(phases, QSet<int>({0, 1, 2, 3, 4}));
}

void TestGallery::viewsLeaveTheHomeAlone() {
  const FixtureHome home;
  fillSampleHome(home);
  (void)gallery::openView(gallery::views().front()); // makes the folder of the settings
  const auto before = wholeTree(home);
  for (const gallery::ViewEntry& entry : gallery::views()) (void)gallery::openView(entry);
  const auto after = wholeTree(home);
  QCOMPARE(after.keys(), before.keys());
  for (auto one = before.begin(); one != before.end(); ++one) QVERIFY2(after.value(one.key()) == *one, one.key());
}

void TestGallery::nothingIsSqueezed_data() {
  QTest::addColumn<int>("mode");
  QTest::newRow("light") << int(AppSettings::Light);
  QTest::newRow("dark") << int(AppSettings::Dark);
}

void TestGallery::nothingIsSqueezed() {
  QFETCH(int, mode);
  setLook(AppSettings::ThemeMode(mode));
  gallery::Sheet sheet;
  sheet.show();
  for (const auto* widget : sheet.findChildren<QWidget*>()) {
    if (!widget->isVisible() || isInView(widget)) continue;
    const QByteArray what = widget->metaObject()->className() + QByteArray(" ") + widget->objectName().toUtf8();
    QVERIFY2(widget->parentWidget()->rect().contains(widget->geometry()), what);
    const auto* label = qobject_cast<const QLabel*>(widget);
    if (!label || label->wordWrap() || qobject_cast<const ui::ElidedLabel*>(label)) continue;
    QVERIFY2(label->width() >= label->sizeHint().width(), qPrintable(label->text()));
    QVERIFY2(label->height() >= label->sizeHint().height(), qPrintable(label->text()));
  }
}

void TestGallery::sheetFollowsTheLook() {
  gallery::Sheet sheet;
  sheet.show();
  const auto heading = [&] { return sheet.findChild<QLabel*>()->text(); };
  QVERIFY(heading().startsWith(u"Light"_s));
  QVERIFY(sheet.grab().toImage().pixelColor(sheet.width() / 2, 2).lightness() > 200);
  setLook(AppSettings::Dark);
  QVERIFY(heading().startsWith(u"Dark"_s));
  QVERIFY(sheet.grab().toImage().pixelColor(sheet.width() / 2, 2).lightness() < 60);
}

void TestGallery::changeOfLookLeavesNothingBehind_data() { nothingIsSqueezed_data(); }

// Nobody keeps a colour, a font or a picture of the look before.
void TestGallery::changeOfLookLeavesNothingBehind() {
  QFETCH(int, mode);
  setLook(mode == AppSettings::Dark ? AppSettings::Light : AppSettings::Dark);
  gallery::Sheet changed;
  changed.grab(); // painted in the look before, as in a program
  setLook(AppSettings::ThemeMode(mode));
  const QImage is = changed.grab().toImage();
  const QImage should = gallery::Sheet().grab().toImage();
  QCOMPARE(is.size(), should.size());
  for (int y = 0; y < is.height(); ++y)
    for (int x = 0; x < is.width(); ++x) {
      if (is.pixel(x, y) == should.pixel(x, y)) continue;
      const QWidget* odd = changed.childAt(x, y);
      const char* what = odd ? odd->metaObject()->className() : "the sheet";
      QFAIL(qPrintable(u"%1 at %2, %3"_s.arg(QString::fromLatin1(what)).arg(x).arg(y)));
    }
}

void TestGallery::whatOpensIsTakenInEveryLook() {
  gallery::Sheet sheet;
  sheet.show();
  const auto pictures = [&] {
    QList<QImage> images;
    for (const auto* snapshot : sheet.findChildren<gallery::Snapshot*>()) images << snapshot->pixmap().toImage();
    return images;
  };
  const QList<QImage> light = pictures();
  setLook(AppSettings::Dark);
  const QList<QImage> dark = pictures();
  QVERIFY(light.size() >= 5);
  for (qsizetype at = 0; at < light.size(); ++at) {
    const QPoint middle = light.at(at).rect().center();
    QVERIFY(light.at(at).width() > 50 && light.at(at).height() > 20);
    QVERIFY(light.at(at) != dark.at(at));
    QVERIFY(light.at(at).pixelColor(middle).alpha() > 0);
  }
  // Nothing that was opened for its picture stays open.
  for (const QWidget* widget : QApplication::topLevelWidgets()) QVERIFY(widget == &sheet || !widget->isVisible());
}

void TestGallery::otherLookStandsBesideTheLiveOne() {
  gallery::GalleryWindow window;
  window.show();
  const auto* area = window.findChild<QScrollArea*>();
  const auto picture = [&] {
    for (const auto* label : area->widget()->findChildren<QLabel*>(Qt::FindDirectChildrenOnly))
      if (!label->pixmap().isNull()) return label->pixmap().toImage();
    return QImage();
  };
  const auto* sheet = window.findChild<gallery::Sheet*>();
  QTRY_VERIFY(!picture().isNull());
  QCOMPARE(picture().size(), sheet->size());
  QVERIFY(picture().pixelColor(600, 2).lightness() < 60);
  QVERIFY(!Theme::get().dark);
  const QColor accent = Theme::get().accent;
  QVERIFY(!shows(picture(), accent));
  segmentedWith(window, u"Dark"_s)->setCurrent(1);
  QVERIFY(Theme::get().dark);
  QVERIFY(picture().pixelColor(600, 2).lightness() > 200);
  QVERIFY(shows(picture(), accent)); // what lies on the sheet, not only its ground
}

void TestGallery::otherMetricsNeedAnotherProcess() {
  gallery::GalleryWindow window;
  QSignalSpy wanted(&window, &gallery::GalleryWindow::restartWanted);
  segmentedWith(window, u"win"_s)->setCurrent(1);
  QCOMPARE(wanted.takeFirst(), QVariantList({false, u"1"_s}));
  segmentedWith(window, u"1.5"_s)->setCurrent(2);
  QCOMPARE(wanted.takeFirst(), QVariantList({false, u"2"_s}));
}

void TestGallery::programWritesBothLooks() {
  const QTemporaryDir folder;
  const QDir shots(folder.filePath(u"a/b"_s));
  const Run run = runGallery({u"--write"_s, shots.path()}, u"win"_s, u"1.5"_s);
  QVERIFY2(run.code == 0, qPrintable(run.errors));
  const QStringList names = {u"gallery-dark-win-1.5x.png"_s, u"gallery-light-win-1.5x.png"_s};
  QCOMPARE(shots.entryList(QDir::Files, QDir::Name), names);
  const QImage dark(shots.filePath(names.at(0)));
  const QImage light(shots.filePath(names.at(1)));
  QVERIFY(dark.pixelColor(600, 2).lightness() < 60);
  QVERIFY(light.pixelColor(600, 2).lightness() > 200);
  QVERIFY(dark.width() >= 1404 * 3 / 2);
}

void TestGallery::programWritesAViewAtBothSizes() {
  const QTemporaryDir folder;
  const Run run = runGallery({u"--write-views"_s, folder.path(), u"--view"_s, u"cleanup-empty"_s});
  QVERIFY2(run.code == 0, qPrintable(run.errors));
  const QStringList names = {u"cleanup-empty-dark-1180x780.png"_s, u"cleanup-empty-dark-960x640.png"_s,
                             u"cleanup-empty-light-1180x780.png"_s, u"cleanup-empty-light-960x640.png"_s};
  const QDir shots(folder.path());
  QCOMPARE(shots.entryList(QDir::Files, QDir::Name), names);
  for (const QString& name : names) {
    const QImage picture(shots.filePath(name));
    QCOMPARE(picture.size(), name.contains(u"960"_s) ? QSize(960, 640) : QSize(1180, 780));
    QCOMPARE(picture.pixelColor(picture.width() / 2, 4).lightness() < 60, name.contains(u"dark"_s));
  }
}

// A control that isn't on the sheet is one that nobody looks at.
void TestGallery::everyControlIsOnTheSheet() {
  // Taken when it is open; the common part of others.
  static const QSet<QString> kNotByItself = {u"SelectPopup"_s, u"PaintedButton"_s};
  const QRegularExpression widget(u"^class (\\w+) : public (?!QObject)Q\\w+"_s, QRegularExpression::MultilineOption);
  gallery::Sheet sheet;
  QSet<QString> shown;
  for (const auto* child : sheet.findChildren<QWidget*>())
    shown << QString::fromLatin1(child->metaObject()->className());
  int controls = 0;
  for (const QString& folder : {u"controls"_s, u"visuals"_s}) {
    const QDir headers(QStringLiteral(TARNWICK_SOURCE "/src/ui/") + folder);
    for (const QString& name : headers.entryList({u"*.h"_s})) {
      QFile header(headers.filePath(name));
      QVERIFY(header.open(QIODevice::ReadOnly));
      const QString control = widget.match(QString::fromUtf8(header.readAll())).captured(1);
      if (control.isEmpty() || kNotByItself.contains(control)) continue;
      QVERIFY2(shown.contains(u"ui::"_s + control), qPrintable(control));
      ++controls;
    }
  }
  QVERIFY(controls > 20);
}

void TestGallery::programTellsWhatWentWrong() {
  const QTemporaryDir folder;
  Run run = runGallery({u"--write-views"_s, folder.path(), u"--view"_s, u"nothing"_s});
  QCOMPARE(run.code, 1);
  QVERIFY(run.errors.contains(u"no view called nothing"_s));
  QVERIFY(QDir(folder.path()).isEmpty());

  QFile file(folder.filePath(u"file"_s));
  QVERIFY(file.open(QIODevice::WriteOnly));
  for (const QString& verb : {u"--write"_s, u"--write-views"_s}) {
    run = runGallery({verb, folder.filePath(u"file/below"_s)});
    QCOMPARE(run.code, 1);
    QVERIFY(run.errors.contains(u"can't make the folder"_s));
  }

  QCOMPARE(runGallery({u"--write"_s, folder.path(), u"--loud"_s}).code, 2);
}

int main(int argc, char** argv) { return uitest::run<TestGallery>(argc, argv); }

#include "tst_Gallery.moc"
