// What the dialog on updates shows in each state, and the way of an update through it from a real server.
#include "ui/shell/UpdateDialog.h"

#include "core/fmt.h"
#include "support/ReleaseHost.h"
#include "support/pixels.h"
#include "support/uitest.h"
#include "ui/Theme.h"
#include "ui/controls/Button.h"
#include "ui/controls/Card.h"
#include "ui/controls/Divider.h"
#include "ui/controls/IconView.h"

#include <QLabel>
#include <QProgressBar>
#include <QPropertyAnimation>
#include <QScrollArea>
#include <QScrollBar>
#include <QSignalSpy>

using namespace Qt::StringLiterals;
using namespace ui;

namespace {

constexpr qint64 kMb = 1'000'000;

QLabel* labelOf(const QWidget& dialog, const char* role) {
  for (QLabel* one : dialog.findChildren<QLabel*>())
    if (one->property("role").toString() == QLatin1StringView(role)) return one;
  return nullptr;
}

/// The buttons that can be pressed, from left to right.
QStringList buttons(const QWidget& dialog) {
  QList<Button*> shown;
  for (Button* one : dialog.findChildren<Button*>())
    if (one->isVisible()) shown << one;
  std::sort(shown.begin(), shown.end(), [](const Button* a, const Button* b) { return a->x() < b->x(); });
  QStringList texts;
  for (const Button* one : shown) texts << one->text();
  return texts;
}

Button* button(const QWidget& dialog, const QString& text) {
  for (Button* one : dialog.findChildren<Button*>())
    if (one->isVisible() && one->text() == text) return one;
  return nullptr;
}

UpdateRelease release(const QString& date = {}, const QString& size = {}) {
  UpdateRelease made;
  made.version = u"2.1.0"_s;
  made.date = date;
  made.size = size;
  return made;
}

} // namespace

class TestUpdateDialog : public QObject {
  Q_OBJECT

 private slots:
  void initTestCase() { Theme::get().install(qApp); }
  void init();
  void cleanup();

  void eachState_data();
  void eachState();
  void orderAndWidth_data();
  void orderAndWidth();
  void measures_data();
  void measures();
  void dateAndSize_data();
  void dateAndSize();
  void installingWordsFollowTheHost_data();
  void installingWordsFollowTheHost();
  void progressCounts();
  void errorsOnlyWhereTheyTell();
  void changesAreListed();
  void markupIsShownRaw();
  void aLongListLeavesTheButtons();
  void endlessTextsLeaveTheButtons();
  void anEndlessListIsCut();
  void itSlidesToTheMiddle();
  void lookFollows();

  void fromCheckToInstall();
  void cancelledDownloadWarnsOfNothing();
  void failedDownloads_data();
  void failedDownloads();
  void goneServerIsTriedAgain();

 private:
  UpdateDialog* open(Updater* updater) {
    auto* dialog = new UpdateDialog(updater, m_area.get());
    dialog->open();
    return dialog;
  }
  /// A dialog over an updater that nobody runs.
  UpdateDialog* openStill(Updater::State state) {
    m_still.state = state;
    return open(&m_still);
  }

  std::unique_ptr<QWidget> m_area;
  Updater m_still{nullptr, QUrl()};
};

void TestUpdateDialog::init() {
  Theme::get().mac = true;
  pixels::setLook(false);
  m_still.release = release();
  m_still.error.clear();
  m_still.received = m_still.total = 0;
  m_still.currentVersion = u"1.0.0"_s;
  m_area = std::make_unique<QWidget>();
  m_area->resize(960, 600);
  m_area->show();
}

void TestUpdateDialog::cleanup() {
  m_area.reset();
  Theme::get().mac = true;
}

void TestUpdateDialog::eachState_data() {
  QTest::addColumn<int>("state");
  QTest::addColumn<QString>("title");
  QTest::addColumn<QString>("subtitle");
  QTest::addColumn<QStringList>("shown");
  QTest::addColumn<bool>("bar");
  const QString checking = u"Checking for updates…"_s;
  QTest::newRow("idle") << int(Updater::Idle) << checking << u"Version 1.0.0 is installed."_s << QStringList{u"Close"_s}
                        << false;
  QTest::newRow("checking") << int(Updater::Checking) << checking << u"Version 1.0.0 is installed."_s
                            << QStringList{u"Close"_s} << true;
  QTest::newRow("up to date") << int(Updater::UpToDate) << u"Tarnwick is up to date"_s
                              << u"Version 1.0.0 is the latest version."_s << QStringList{u"Close"_s} << false;
  QTest::newRow("available") << int(Updater::Available) << u"An update is available"_s
                             << u"Version 2.1.0 is available. You have 1.0.0."_s
                             << QStringList{u"Later"_s, u"Update now"_s} << false;
  QTest::newRow("failed") << int(Updater::Failed) << u"Could not check for updates"_s
                          << u"Check your internet connection and try again."_s << QStringList{u"Close"_s, u"Retry"_s}
                          << false;
  QTest::newRow("downloading") << int(Updater::Downloading) << u"Downloading the update…"_s << u"Version 2.1.0"_s
                               << QStringList{u"Cancel"_s} << true;
  QTest::newRow("installing") << int(Updater::Installing) << u"Installing the update…"_s << QString() << QStringList{}
                              << true;
}

void TestUpdateDialog::eachState() {
  QFETCH(int, state);
  QFETCH(QString, title);
  QFETCH(QString, subtitle);
  QFETCH(QStringList, shown);
  QFETCH(bool, bar);
  const UpdateDialog* dialog = openStill(Updater::State(state));
  QCOMPARE(labelOf(*dialog, "h2")->text(), title);
  QCOMPARE(dialog->accessibleName(), title);
  if (!subtitle.isEmpty()) QCOMPARE(labelOf(*dialog, "sub")->text(), subtitle);
  QCOMPARE(buttons(*dialog), shown);
  const auto* progress = dialog->findChild<QProgressBar*>();
  QCOMPARE(progress->isVisible(), bar);
  QCOMPARE(progress->maximum(), 0);
  QVERIFY(!labelOf(*dialog, "warn")->isVisible());
  QVERIFY(!dialog->findChild<Card*>()->isVisible());
}

void TestUpdateDialog::orderAndWidth_data() {
  QTest::addColumn<bool>("mac");
  QTest::addColumn<int>("width");
  QTest::addColumn<QStringList>("order");
  QTest::newRow("mac") << true << 440 << QStringList{u"Later"_s, u"Update now"_s};
  QTest::newRow("win") << false << 480 << QStringList{u"Update now"_s, u"Later"_s};
}

void TestUpdateDialog::orderAndWidth() {
  QFETCH(bool, mac);
  QFETCH(int, width);
  QFETCH(QStringList, order);
  Theme::get().mac = mac;
  const UpdateDialog* dialog = openStill(Updater::Available);
  QCOMPARE(dialog->panel->width(), width);
  QCOMPARE(buttons(*dialog), order);
  QCOMPARE(dialog->findChildren<Divider*>().size(), mac ? 0 : 1);
  const Button* wide = button(*dialog, u"Update now"_s);
  const Button* other = button(*dialog, u"Later"_s);
  if (!mac) QVERIFY(qAbs(wide->width() - other->width()) <= 1);
  QVERIFY(wide->isDefault());
}

void TestUpdateDialog::measures_data() {
  QTest::addColumn<bool>("mac");
  QTest::addColumn<int>("belowBody"); // with the line between, where there is one
  QTest::addColumn<int>("bottom");
  QTest::newRow("mac") << true << 16 << 20;
  QTest::newRow("win") << false << 20 + 1 + 16 << 16;
}

void TestUpdateDialog::measures() {
  QFETCH(bool, mac);
  QFETCH(int, belowBody);
  QFETCH(int, bottom);
  Theme::get().mac = mac;
  UpdateDialog* dialog = openStill(Updater::Checking);
  const QWidget* panel = dialog->panel;
  const auto placeOf = [panel](const QWidget* one) { return QRect(one->mapTo(panel, QPoint()), one->size()); };
  const QRect title = placeOf(labelOf(*dialog, "h2"));
  const QRect subtitle = placeOf(labelOf(*dialog, "sub"));
  const QRect bar = placeOf(dialog->findChild<QProgressBar*>());
  const QRect close = placeOf(button(*dialog, u"Close"_s));
  QCOMPARE(dialog->findChildren<QLabel*>().first()->pixmap().deviceIndependentSize(), QSizeF(36, 36));
  QCOMPARE(title.topLeft(), QPoint(24 + 36 + 12, 24));
  QCOMPARE(subtitle.top(), title.bottom() + 1 + 2);
  QCOMPARE(bar.left(), 24);
  QCOMPARE(bar.width(), panel->width() - 2 * 24);
  QCOMPARE(bar.top(), std::max(24 + 36, subtitle.bottom() + 1) + 8 + 2 * 6);
  QCOMPARE(close.top() - bar.bottom() - 1, belowBody);
  QCOMPARE(panel->width() - close.right() - 1, 24);
  QCOMPARE(panel->height() - close.bottom() - 1, bottom);

  m_still.release.changes = {u"Finds more"_s};
  m_still.setState(Updater::Available);
  const auto* card = dialog->findChild<Card*>();
  QCOMPARE(placeOf(card).left(), 24);
  const auto* tick = card->findChild<IconView*>();
  QCOMPARE(tick->size(), QSize(14, 14));
  QTRY_COMPARE(tick->mapTo(card, QPoint()).x(), 14);
  const QLabel* line = card->findChildren<QLabel*>().last();
  QCOMPARE(line->mapTo(card, QPoint()).x(), 14 + 14 + 8);
  const QRect later = placeOf(button(*dialog, u"Later"_s));
  const QRect now = placeOf(button(*dialog, u"Update now"_s));
  QCOMPARE(std::max(later.left(), now.left()) - std::min(later.right(), now.right()) - 1, 8);
}

void TestUpdateDialog::dateAndSize_data() {
  QTest::addColumn<QString>("date");
  QTest::addColumn<QString>("size");
  QTest::addColumn<QString>("line");
  QTest::newRow("both") << u"2026-11-01"_s << u"24 MB"_s << u"\n2026-11-01 · 24 MB"_s;
  QTest::newRow("date") << u"2026-11-01"_s << QString() << u"\n2026-11-01"_s;
  QTest::newRow("size") << QString() << u"24 MB"_s << u"\n24 MB"_s;
  QTest::newRow("neither") << QString() << QString() << QString();
}

void TestUpdateDialog::dateAndSize() {
  QFETCH(QString, date);
  QFETCH(QString, size);
  QFETCH(QString, line);
  m_still.release = release(date, size);
  const UpdateDialog* dialog = openStill(Updater::Available);
  const QLabel* subtitle = labelOf(*dialog, "sub");
  QCOMPARE(subtitle->text(), u"Version 2.1.0 is available. You have 1.0.0."_s + line);
  QCOMPARE(subtitle->textFormat(), Qt::PlainText);
}

void TestUpdateDialog::installingWordsFollowTheHost_data() {
  QTest::addColumn<QString>("words");
  QTest::newRow("mac") << u"Drag Tarnwick to Applications in the window that opens to replace this version."_s;
  QTest::newRow("linux") << u"Your file manager opens the folder with the downloaded package. Install it the way you "
                            "install packages."_s;
}

void TestUpdateDialog::installingWordsFollowTheHost() {
  QFETCH(QString, words);
  qputenv("TARNWICK_HOST", QTest::currentDataTag());
  const QString text = labelOf(*openStill(Updater::Installing), "sub")->text();
  qunsetenv("TARNWICK_HOST");
  QCOMPARE(text, words);
}

void TestUpdateDialog::progressCounts() {
  const UpdateDialog* dialog = openStill(Updater::Downloading);
  m_still.received = 3 * kMb;
  m_still.total = 12 * kMb;
  emit m_still.stateChanged();
  const auto* progress = dialog->findChild<QProgressBar*>();
  QCOMPARE(progress->minimum(), 0);
  QCOMPARE(progress->maximum(), 1000);
  QCOMPARE(progress->value(), 250);
  QCOMPARE(progress->height(), 6);
  QVERIFY(!progress->isTextVisible());
  QCOMPARE(labelOf(*dialog, "sub")->text(), fmt::bytes(3 * kMb) + u" of "_s + fmt::bytes(12 * kMb));
  m_still.total = -1; // a server that doesn't say
  emit m_still.stateChanged();
  QCOMPARE(progress->maximum(), 0);
  QCOMPARE(labelOf(*dialog, "sub")->text(), u"Version 2.1.0"_s);
}

void TestUpdateDialog::errorsOnlyWhereTheyTell() {
  m_still.error = u"HTTP 503 <b>x</b>"_s;
  const UpdateDialog* dialog = openStill(Updater::Idle);
  const QLabel* warning = labelOf(*dialog, "warn");
  for (int state = Updater::Idle; state <= Updater::Installing; ++state) {
    m_still.setState(Updater::State(state));
    const bool tells = state == Updater::Available || state == Updater::Failed;
    QCOMPARE(warning->isVisible(), tells);
    QCOMPARE(warning->text(), tells ? m_still.error : QString());
  }
  QCOMPARE(warning->textFormat(), Qt::PlainText);
}

void TestUpdateDialog::changesAreListed() {
  m_still.release.changes = {u"Finds more"_s, u"Leaves more alone"_s};
  const UpdateDialog* dialog = openStill(Updater::Available);
  const auto* card = dialog->findChild<Card*>();
  QVERIFY(card->isVisible());
  QCOMPARE(card->fill, Theme::get().surface2);
  QStringList texts;
  for (const QLabel* one : card->findChildren<QLabel*>()) texts << one->text();
  QCOMPARE(texts.size(), 3);
  QCOMPARE(texts.first().toLower(), u"what's new"_s);
  QCOMPARE(texts.mid(1), m_still.release.changes);
  QCOMPARE(card->findChildren<IconView*>().size(), 2);
  const auto* area = card->findChild<QScrollArea*>();
  QCOMPARE(area->verticalScrollBar()->maximum(), 0);
  QTRY_COMPARE(card->height(), card->sizeHint().height());
  const int height = card->height();
  emit m_still.stateChanged(); // a failure, say: the list is filled anew
  QTRY_COMPARE(card->height(), height);
  QVERIFY(area->height() > area->fontMetrics().height() * 3);
  m_still.setState(Updater::Downloading);
  QVERIFY(!card->isVisible());
}

void TestUpdateDialog::markupIsShownRaw() {
  m_still.release.changes = {u"<b>bold</b> &amp; <img src='x'>"_s};
  const UpdateDialog* dialog = openStill(Updater::Available);
  const QLabel* line = dialog->findChild<Card*>()->findChildren<QLabel*>().last();
  QCOMPARE(line->text(), m_still.release.changes.first());
  QCOMPARE(line->textFormat(), Qt::PlainText);
}

void TestUpdateDialog::aLongListLeavesTheButtons() {
  for (int i = 0; i < 200; ++i) m_still.release.changes << u"A change that takes a line or two, number %1"_s.arg(i);
  const UpdateDialog* dialog = openStill(Updater::Available);
  QVERIFY(dialog->panel->height() <= m_area->height());
  const Button* now = button(*dialog, u"Update now"_s);
  const auto isInReach = [&] {
    return m_area->rect().contains(QRect(now->mapTo(m_area.get(), QPoint()), now->size()));
  };
  QTRY_VERIFY(isInReach()); // it slides in
  const int high = dialog->panel->height();
  m_area->resize(960, 400);
  QTRY_VERIFY(isInReach());
  m_area->resize(960, 600);
  QTRY_COMPARE(dialog->panel->height(), high);
  auto* area = dialog->findChild<QScrollArea*>();
  QTRY_VERIFY(area->verticalScrollBar()->maximum() > 0);
  QTest::keyClick(area, Qt::Key_Down);
  QVERIFY(area->verticalScrollBar()->value() > 0);
}

void TestUpdateDialog::endlessTextsLeaveTheButtons() {
  m_still.release = release(u"2026\n"_s.repeated(9000), u"M"_s.repeated(90'000));
  m_still.release.changes = {u"word "_s.repeated(50'000)};
  const UpdateDialog* dialog = openStill(Updater::Available);
  const QStringList lines = labelOf(*dialog, "sub")->text().split(u'\n');
  QCOMPARE(lines.size(), 2);
  QVERIFY(lines.last().startsWith(u"2026 2026 "_s) && lines.last().endsWith(u"MMM…"_s));
  QVERIFY(lines.last().size() < 250);
  QVERIFY(dialog->findChild<Card*>()->findChildren<QLabel*>().last()->text().endsWith(u"word …"_s));
  QVERIFY(dialog->panel->height() <= m_area->height());
  const Button* now = button(*dialog, u"Update now"_s);
  QTRY_VERIFY(m_area->rect().contains(QRect(now->mapTo(m_area.get(), QPoint()), now->size())));
}

/// As many as a feed has room for would keep the window busy for minutes.
void TestUpdateDialog::anEndlessListIsCut() {
  for (int i = 0; i < 80'000; ++i) m_still.release.changes << QString::number(i);
  const UpdateDialog* dialog = openStill(Updater::Available);
  const QList<QLabel*> labels = dialog->findChild<Card*>()->findChildren<QLabel*>();
  QCOMPARE(labels.size(), 1 + 100);
  QCOMPARE(labels.last()->text(), u"99"_s);
}

/// Its height may change on the way: a check begins right after it was opened.
void TestUpdateDialog::itSlidesToTheMiddle() {
  Theme::get().mac = false;
  const UpdateDialog* dialog = openStill(Updater::Idle);
  const int before = dialog->panel->height();
  QSignalSpy arrived(dialog->findChild<QPropertyAnimation*>(), &QAbstractAnimation::finished);
  m_still.setState(Updater::Checking);
  QVERIFY(dialog->panel->height() > before + 1);
  QVERIFY(arrived.wait());
  QCOMPARE(dialog->panel->y(), (m_area->height() - dialog->panel->height()) / 2);
}

void TestUpdateDialog::lookFollows() {
  m_still.release.changes = {u"Finds more"_s};
  const UpdateDialog* dialog = openStill(Updater::Available);
  for (const bool dark : {true, false}) {
    pixels::setLook(dark);
    QCOMPARE(dialog->findChild<Card*>()->fill, Theme::get().surface2);
    const QString sheet = dialog->findChild<QProgressBar*>()->styleSheet();
    QVERIFY(sheet.contains(Theme::get().track.name(QColor::HexArgb)));
    QVERIFY(sheet.contains(Theme::get().accent.name()));
  }
}

void TestUpdateDialog::fromCheckToInstall() {
  ReleaseHost host;
  host.server.answers.insert("/files/tarnwick.pkg", Answer::ok(ReleaseHost::package()));
  const auto updater = host.updaterWithRelease();
  UpdateDialog* dialog = open(updater.get());
  QSignalSpy quits(updater.get(), &Updater::quitForUpdate);
  QTest::mouseClick(button(*dialog, u"Update now"_s), Qt::LeftButton);
  QCOMPARE(labelOf(*dialog, "h2")->text(), u"Downloading the update…"_s);
  QVERIFY(ReleaseHost::hasEnded(*updater));
  QCOMPARE(labelOf(*dialog, "h2")->text(), u"Installing the update…"_s);
  QCOMPARE(buttons(*dialog), QStringList());
  QCOMPARE(quits.size(), 1);
  QCOMPARE(host.launched.size(), 1);
}

void TestUpdateDialog::cancelledDownloadWarnsOfNothing() {
  ReleaseHost host;
  const auto updater =
      host.updaterWithRelease(u"/a.pkg"_s, Answer::ok(ReleaseHost::package()).repeated(0).ending(Answer::End::Hang));
  UpdateDialog* dialog = open(updater.get());
  QTest::mouseClick(button(*dialog, u"Update now"_s), Qt::LeftButton);
  QTRY_COMPARE(host.server.requests.size(), 2);
  QTest::mouseClick(button(*dialog, u"Cancel"_s), Qt::LeftButton);
  QVERIFY(ReleaseHost::hasEnded(*updater));
  QCOMPARE(labelOf(*dialog, "h2")->text(), u"An update is available"_s);
  QVERIFY(!labelOf(*dialog, "warn")->isVisible());
  QCOMPARE(host.downloads(), QStringList());
}

void TestUpdateDialog::failedDownloads_data() {
  QTest::addColumn<QByteArray>("kind");
  QTest::addColumn<QString>("words");
  const QString start = u"The update could not be downloaded: "_s;
  QTest::newRow("wrong checksum") << QByteArray("sum")
                                  << start + u"The update does not match the published checksum."_s;
  QTest::newRow("redirected away") << QByteArray("away") << start + u"The update is not on Tarnwick's server."_s;
  QTest::newRow("too small") << QByteArray("small") << start + u"The update has an unexpected size."_s;
  QTest::newRow("too large") << QByteArray("large") << start + u"The update has an unexpected size."_s;
  QTest::newRow("not there") << QByteArray("gone") << start;
}

void TestUpdateDialog::failedDownloads() {
  QFETCH(QByteArray, kind);
  QFETCH(QString, words);
  const QHash<QByteArray, Answer> answers{
      {"sum", Answer::ok(QByteArray(ReleaseHost::package().size(), 'x'))},
      {"away", Answer::redirect("https://elsewhere.example/a.pkg")},
      {"small", Answer::ok("tiny")},
      {"large", Answer::ok(QByteArray(1 << 20, 'x')).repeated(Answer::kForever)},
      {"gone", Answer::of("404 Not Found")},
  };
  Answer answer = answers.value(kind);
  if (kind == "large") answer.head = "HTTP/1.1 200 OK\r\nConnection: close\r\n\r\n";
  ReleaseHost host;
  const auto updater = host.updaterWithRelease(u"/a.pkg"_s, answer);
  UpdateDialog* dialog = open(updater.get());
  QTest::mouseClick(button(*dialog, u"Update now"_s), Qt::LeftButton);
  QVERIFY(ReleaseHost::hasEnded(*updater));
  QCOMPARE(labelOf(*dialog, "h2")->text(), u"An update is available"_s);
  const QLabel* warning = labelOf(*dialog, "warn");
  QVERIFY(warning->isVisible());
  QVERIFY2(kind == "gone" ? warning->text().startsWith(words) : warning->text() == words, qPrintable(warning->text()));
  QCOMPARE(buttons(*dialog), (QStringList{u"Later"_s, u"Update now"_s}));
  QCOMPARE(host.downloads(), QStringList());
}

void TestUpdateDialog::goneServerIsTriedAgain() {
  ReleaseHost host;
  const auto updater = host.updater();
  host.server.answers.clear();
  UpdateDialog* dialog = open(updater.get());
  updater->check();
  QCOMPARE(labelOf(*dialog, "h2")->text(), u"Checking for updates…"_s);
  QVERIFY(ReleaseHost::hasEnded(*updater));
  QCOMPARE(labelOf(*dialog, "h2")->text(), u"Could not check for updates"_s);
  QVERIFY(labelOf(*dialog, "warn")->isVisible());
  host.server.answers.insert(updater->feedUrl.path().toLatin1(),
                             Answer::ok(ReleaseHost::feed(ReleaseHost::address(u"/a.pkg"_s))));
  QTest::mouseClick(button(*dialog, u"Retry"_s), Qt::LeftButton);
  QVERIFY(ReleaseHost::hasEnded(*updater));
  QCOMPARE(labelOf(*dialog, "h2")->text(), u"An update is available"_s);
}

int main(int argc, char** argv) { return uitest::run<TestUpdateDialog>(argc, argv); }

#include "tst_UpdateDialog.moc"
