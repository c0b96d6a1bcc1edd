/// What the tests of the System Data page share: a page over a real state whose measuring sees an empty disk, items put
/// in place, and a measuring that is held.
#pragma once

#include "app/AppSettings.h"
#include "app/AppState.h"
#include "core/fmt.h"
#include "engines/Cleaner.h"
#include "engines/SystemDataScanner.h"
#include "engines/systemdata.h"
#include "support/Marking.h"
#include "support/pixels.h"
#include "support/uitest.h"
#include "support/window.h"
#include "ui/Theme.h"
#include "ui/controls/Button.h"
#include "ui/controls/Card.h"
#include "ui/controls/ElidedLabel.h"
#include "ui/controls/IconTile.h"
#include "ui/controls/PageHeader.h"
#include "ui/pages/SystemDataPage.h"
#include "ui/pages/SystemDataResults.h"
#include "ui/pages/SystemDataRow.h"
#include "ui/pages/SystemDataScanView.h"
#include "ui/visuals/Radar.h"
#include "ui/visuals/ScanStepRow.h"

#include <QAccessible>
#include <QBoxLayout>
#include <QLabel>
#include <QScrollArea>
#include <QScrollBar>
#include <QSemaphore>
#include <QSignalSpy>
#include <QStackedWidget>

#include <memory>

namespace systemdatatest {

using namespace Qt::StringLiterals;

inline constexpr qint64 kMB = 1'000'000;
inline constexpr qint64 kGB = 1'000 * kMB;
inline constexpr int kPatienceMs = 60'000; ///< for what takes a moment on any machine

/// An item as a measuring leaves it, that the user can do something about.
inline SystemDataItem item(const QString& id, qint64 bytes,
                           SystemDataItem::Action action = SystemDataItem::RevealInFinder) {
  SystemDataItem made;
  made.id = id;
  made.title = u"Title of "_s + id;
  made.blurb = u"About "_s + id;
  made.icon = u"folder"_s;
  made.color = QColor(200, 40, 60);
  made.actionable = true;
  made.action = action;
  made.bytes = bytes;
  return made;
}
inline SystemDataItem managed(const QString& id, qint64 bytes) {
  SystemDataItem made = item(id, bytes, SystemDataItem::None);
  made.actionable = false;
  return made;
}
inline SystemDataItem denied(SystemDataItem made) {
  made.denied = true;
  return made;
}
inline SystemDataItem withDetail(SystemDataItem made, const QString& detail) {
  made.detail = detail;
  return made;
}
inline SystemDataItem snapshots(int count, const QString& detail) {
  SystemDataItem made = withDetail(item(u"snapshots"_s, 0, SystemDataItem::RemoveSnapshots), detail);
  made.count = count;
  return made;
}

inline QString roleOf(const QWidget* widget) { return widget->property("role").toString(); }
inline const QBoxLayout* boxOf(QLayoutItem* item) { return qobject_cast<const QBoxLayout*>(item->layout()); }
inline const QBoxLayout* boxOf(const QWidget* widget) { return qobject_cast<const QBoxLayout*>(widget->layout()); }
inline QAccessibleInterface* reader(QWidget* widget) { return QAccessible::queryAccessibleInterface(widget); }

/// While it lives, a measuring waits before its first item.
class Held {
 public:
  explicit Held(SystemDataScanner* scanner) {
    m_connection = QObject::connect(
        scanner, &SystemDataScanner::progress, scanner, [gate = m_gate] { gate->acquire(); }, Qt::DirectConnection);
  }
  ~Held() { letGo(); }
  void letGo() {
    QObject::disconnect(m_connection);
    m_gate->release(1'000'000);
  }

 private:
  std::shared_ptr<QSemaphore> m_gate = std::make_shared<QSemaphore>(); ///< the worker may still be on its way out of it
  QMetaObject::Connection m_connection;
};

} // namespace systemdatatest

class SystemDataTest : public QObject {
 protected:
  SystemDataTest() { records::registerMetaTypes(); }
  ~SystemDataTest() override { QCoreApplication::processEvents(); } // writes the settings while their folder is there

  void open() {
    qputenv("TARNWICK_HOST", "linux");
    Theme::get().mac = true;
    pixels::setLook(false);
    m_home = std::make_unique<FixtureHome>();
    m_opened.clear();
    makePage();
  }
  /// For @p host, with the figures that are there now forgotten.
  void makePage(const char* host = "linux") {
    qputenv("TARNWICK_HOST", host);
    m_page.reset();
    SystemDataWorld world;
    world.root = m_home->outside(QStringLiteral("disk"));
    world.open = QStringLiteral("/no/such/program");
    world.openFolder = [this](const QString& path) { m_opened << path; };
    m_state = std::make_unique<AppState>(nullptr, CleanerWorld(), world);
    m_page = std::make_unique<ui::SystemDataPage>(m_state.get());
    m_page->resize(724, 640); // what the smallest window leaves
  }
  void close() {
    m_page.reset();
    m_state.reset();
    m_home.reset();
    Theme::get().mac = true;
    qputenv("TARNWICK_HOST", "linux");
  }
  void show() {
    m_page->show();
    m_page->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(m_page.get()));
    settle();
  }
  /// Lets what was posted happen, and what was to be deleted go.
  static void settle() {
    QCoreApplication::processEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCoreApplication::processEvents();
  }
  /// Puts figures in place as a measuring leaves them.
  void put(const QList<SystemDataItem>& items) {
    m_state->systemData = items;
    m_state->systemDataReady = true;
    emit m_state->systemDataChanged();
    settle();
  }
  void setBusy(bool on) {
    m_state->systemDataBusy = on;
    emit m_state->systemDataChanged();
    settle();
  }

  template <typename T = QWidget>
  T* find(const char* name) const {
    T* found = m_page->findChild<T*>(QString::fromLatin1(name));
    if (!found) qFatal("there is no %s", name);
    return found;
  }
  [[nodiscard]] QStackedWidget* views() const { return find<QStackedWidget>("views"); }
  [[nodiscard]] QWidget* view() const { return views()->currentWidget(); }
  enum View { Start, Scan, Results };
  [[nodiscard]] int viewIndex() const { return views()->currentIndex(); }
  [[nodiscard]] QAbstractButton* button(const QString& text) const { return windowtest::button(*m_page, text); }
  [[nodiscard]] ui::Radar* radar() const { return m_page->findChild<ui::Radar*>(); }
  /// Of the measuring that is watched, in the catalogue's order.
  [[nodiscard]] QList<ui::ScanStepRow*> stepRows() const {
    return views()->widget(Scan)->findChildren<ui::ScanStepRow*>();
  }
  /// Those on show, from top to bottom.
  [[nodiscard]] QList<ui::SystemDataRow*> rows() const {
    QList<ui::SystemDataRow*> all = views()->widget(Results)->findChildren<ui::SystemDataRow*>();
    std::ranges::stable_sort(all, {}, [this](const QWidget* row) { return row->mapTo(m_page.get(), QPoint()).y(); });
    return all;
  }
  [[nodiscard]] ui::SystemDataRow* row(const QString& id) const {
    for (ui::SystemDataRow* one : rows())
      if (one->id() == id) return one;
    return nullptr;
  }
  /// The label of this role that says the size of a row, or null.
  [[nodiscard]] static QLabel* sizeOf(const ui::SystemDataRow* row) {
    for (QLabel* one : row->findChildren<QLabel*>())
      if (one->wordWrap() && one->alignment() & Qt::AlignRight) return one;
    return nullptr;
  }

  std::unique_ptr<FixtureHome> m_home;
  std::unique_ptr<AppState> m_state;
  std::unique_ptr<ui::SystemDataPage> m_page;
  QStringList m_opened; ///< folders that the file manager was asked for
};
