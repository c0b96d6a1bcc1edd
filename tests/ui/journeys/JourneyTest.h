/// What the journeys share: the real window over a real state with real engines, a home folder for each of them, and a
/// lock of their own for the clean.
#pragma once

#include "DemoHome.h"
#include "app/AppSettings.h"
#include "app/AppState.h"
#include "core/fmt.h"
#include "engines/Cleaner.h"
#include "engines/Scanner.h"
#include "engines/SystemDataScanner.h"
#include "support/SampleHome.h"
#include "support/uitest.h"
#include "support/window.h"
#include "ui/Theme.h"
#include "ui/pages/CategoryRow.h"
#include "ui/pages/CleanupPage.h"
#include "ui/shell/ConfirmCleanDialog.h"
#include "ui/shell/MainWindow.h"
#include "ui/shell/Sidebar.h"

#include <QCheckBox>
#include <QScrollArea>

#include <filesystem>
#include <memory>
#include <set>
#include <string>

using namespace Qt::StringLiterals;

class JourneyTest : public QObject {
 protected:
  static constexpr int kPatienceMs = 100'000; // for what takes a moment on any machine

  ~JourneyTest() override { QCoreApplication::processEvents(); } // writes the settings while their folder is there

  /// Opens the window over a small home: that of a Linux user, an empty one, or that of a macOS user.
  enum class Small { Sample, Empty, Mac };
  void open(Small kind = Small::Sample) {
    m_home = std::make_unique<FixtureHome>();
    openIn(kind);
  }
  /// The same in the fixture that is there already.
  void openIn(Small kind) {
    qputenv("TARNWICK_HOST", kind == Small::Mac ? "mac" : "linux");
    if (kind == Small::Sample) fillSampleHome(*m_home);
    if (kind == Small::Mac)
      for (const char* path : {"Library/Caches/acme/1", "Library/Developer/Xcode/DerivedData/1", ".Trash/1"})
        m_home->file(QString::fromLatin1(path));
    openWindow();
  }
  /// Opens it over the demo home of a host.
  void openDemo(const QString& host) {
    m_home = std::make_unique<FixtureHome>();
    m_demo = std::make_unique<DemoHome>(*m_home, host);
    openWindow();
  }
  void close() {
    m_window.reset();
    m_state.reset();
    m_demo.reset();
    m_home.reset();
  }
  /// The columns of a journey that both hosts take.
  static void hosts() {
    QTest::addColumn<QString>("host");
    QTest::newRow("linux") << u"linux"_s;
    QTest::newRow("mac") << u"mac"_s;
  }

  // The steps

  void waitFor(AppState::Phase phase) {
    QTRY_COMPARE_WITH_TIMEOUT(m_state->phase, phase, kPatienceMs);
    QTRY_VERIFY_WITH_TIMEOUT(!m_state->scanner->isRunning() && !m_state->cleaner->isRunning(), kPatienceMs);
    settle();
  }
  void scan() {
    m_window->go(ui::Sidebar::Cleanup);
    windowtest::click(*m_window, u"Start Smart Scan"_s);
    waitFor(AppState::Review);
  }
  void rescan() {
    windowtest::click(*m_window, u"Rescan"_s);
    waitFor(AppState::Review);
  }
  /// Presses the clean button, and the question's button of this text.
  void clean(const QString& confirm) {
    clickClean();
    QVERIFY(question());
    windowtest::click(*question(), confirm);
    waitFor(AppState::Done);
  }
  void clickClean() { QTest::mouseClick(cleanButton(), Qt::LeftButton); }
  void showDetail(const QString& id) {
    QVERIFY2(row(id), qPrintable(id));
    QTest::mouseClick(row(id), Qt::LeftButton);
    settle();
  }
  /// Where its square is, whatever its width.
  static void clickBox(QCheckBox* box) {
    constexpr int kInSquare = 8; // pixels
    QVERIFY(box && box->isEnabled());
    QTest::mouseClick(box, Qt::LeftButton, {}, QPoint(kInSquare, box->height() / 2));
    settle();
  }
  /// Lets what was posted happen, and what was to be deleted go.
  static void settle() {
    QCoreApplication::processEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCoreApplication::processEvents();
  }

  // What is on show

  [[nodiscard]] ui::CleanupPage* cleanup() const { return m_window->findChild<ui::CleanupPage*>(); }
  [[nodiscard]] ui::ConfirmCleanDialog* question() const { return m_window->findChild<ui::ConfirmCleanDialog*>(); }
  [[nodiscard]] ui::CategoryRow* row(const QString& id) const {
    return cleanup()->findChild<ui::CategoryRow*>(u"category-"_s + id);
  }
  [[nodiscard]] QCheckBox* rowBox(const QString& id) const {
    const ui::CategoryRow* of = row(id);
    return of ? of->findChild<QCheckBox*>() : nullptr;
  }
  [[nodiscard]] QCheckBox* selectAllBox() const { return cleanup()->findChild<QCheckBox*>(u"selectAll"_s); }
  [[nodiscard]] QCheckBox* detailBox() const { return cleanup()->findChild<QCheckBox*>(u"detailSelectAll"_s); }
  [[nodiscard]] QScrollArea* detail() const { return cleanup()->findChild<QScrollArea*>(u"detailScroll"_s); }
  /// Of the items of the category on show.
  [[nodiscard]] QList<QCheckBox*> itemBoxes() const {
    QList<QCheckBox*> boxes = detail()->findChildren<QCheckBox*>();
    boxes.removeIf([](const QCheckBox* box) { return !box->text().isEmpty(); });
    return boxes;
  }
  /// By the beginning of its name.
  [[nodiscard]] QCheckBox* itemBox(const QString& name) const {
    for (QCheckBox* box : itemBoxes())
      if (box->accessibleName().startsWith(name)) return box;
    return nullptr;
  }
  [[nodiscard]] QAbstractButton* cleanButton() const {
    return cleanup()->findChild<QAbstractButton*>(u"cleanButton"_s);
  }
  /// The sum of the selection stands alike in the footer, on the button and in the state.
  void checkSum(qint64 bytes) const {
    QCOMPARE(m_state->selectedBytes(), bytes);
    QCOMPARE(cleanButton()->text(), u"Clean "_s + fmt::bytes(bytes));
    QCOMPARE(cleanButton()->isEnabled(), bytes > 0);
    const auto* sum = cleanup()->findChild<QLabel*>(u"selectionLabel"_s);
    QCOMPARE(windowtest::plain(sum->text()), fmt::bytes(bytes) + u" selected"_s);
  }
  [[nodiscard]] qint64 bytesOf(const QStringList& ids) const {
    qint64 sum = 0;
    for (const QString& id : ids)
      if (const CategoryResult* result = m_state->result(id)) sum += result->bytes;
    return sum;
  }

  // What is on the disk

  [[nodiscard]] bool there(const QString& relative) const { return QFile::exists(m_home->path(relative)); }
  using Paths = std::set<std::string>;
  /// Every path below @p top, by its bytes.
  [[nodiscard]] static Paths pathsBelow(const QString& top) {
    Paths paths;
    for (const auto& entry : std::filesystem::recursive_directory_iterator(QFile::encodeName(top).toStdString()))
      paths.insert(entry.path().string());
    return paths;
  }
  /// The lines of the log of the last clean.
  [[nodiscard]] QStringList log() const {
    QFile file(m_state->report.logPath);
    if (!file.open(QIODevice::ReadOnly)) qFatal("there is no log at %s", qPrintable(m_state->report.logPath));
    return QString::fromUtf8(file.readAll()).split(u'\n');
  }

  SystemDataWorld m_systemData; ///< its disk is an empty folder of the home's fixture, unless a test fills it
  std::unique_ptr<FixtureHome> m_home;
  std::unique_ptr<DemoHome> m_demo;
  std::unique_ptr<AppState> m_state;
  std::unique_ptr<ui::MainWindow> m_window;

 private:
  void openWindow() {
    AppSettings& settings = AppSettings::instance();
    settings.setMoveToTrash(false);
    settings.setExclusions(QStringList{u".git"_s} + FixtureHome::rulesForOutside());
    settings.setLastScan(QDateTime());
    settings.put("history/freed", QVariantMap());
    CleanerWorld world;
    world.lockPath = m_home->outside(u"clean.lock"_s);
    world.sleep = [](std::chrono::milliseconds) {}; // what stays is tried again at once
    m_systemData.root = m_home->outside(u"disk"_s);
    m_state = std::make_unique<AppState>(nullptr, world, m_systemData);
    m_window = std::make_unique<ui::MainWindow>(m_state.get());
    m_window->show();
    m_window->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
  }
};
