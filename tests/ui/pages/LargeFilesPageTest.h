/// What the tests of the Space Map's page share: a page over a real state, files put in place as a search leaves them,
/// and the parts that a user sees.
#pragma once

#include "LargeFilesTest.h"
#include "app/FlowTest.h"
#include "support/pixels.h"
#include "support/uitest.h"
#include "support/window.h"
#include "ui/Theme.h"
#include "ui/controls/Segmented.h"
#include "ui/pages/LargeFilesModel.h"
#include "ui/pages/LargeFilesPage.h"
#include "ui/pages/LargeFilesTable.h"
#include "ui/visuals/Treemap.h"

#include <QLabel>
#include <QLineEdit>
#include <QStackedWidget>

#include <memory>

class LargeFilesPageTest : public FlowTest {
 protected:
  enum View { Start, Scan, Results };
  enum Segment { All, Unused, Downloads };

  /// Before each case.
  void make() {
    qputenv("TARNWICK_HOST", "linux");
    Theme::get().mac = true;
    pixels::setLook(false);
    AppSettings::instance().setOldMonths(6);
    AppSettings::instance().setLargeFileMB(100);
    fill();
    m_state->largeScanned = true; // so that showing the page begins no search
    makePage();
  }
  /// After it.
  void drop() {
    m_page.reset();
    empty();
  }
  void makePage() {
    m_page = std::make_unique<ui::LargeFilesPage>(m_state.get());
    m_page->resize(944, 780);
    m_page->show();
    m_page->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(m_page.get()));
  }
  /// As a search leaves them.
  void putFound(const QList<LargeFile>& files) {
    m_state->largeFiles = files;
    m_state->largeScanned = true;
    m_state->largeSearching = false;
    emit m_state->largeFilesChanged();
    settle();
  }
  void beginSearch() {
    m_state->largeSearching = true;
    emit m_state->largeFilesChanged();
  }
  void settle() {
    QCoreApplication::processEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCoreApplication::processEvents();
  }
  void endOfSearch() { QTRY_VERIFY_WITH_TIMEOUT(!m_state->largeSearching, kPatienceMs); }
  template <typename T = QWidget>
  T* find(const char* name = "") const {
    const QString wanted = QString::fromLatin1(name);
    T* found = wanted.isEmpty() ? m_page->findChild<T*>() : m_page->findChild<T*>(wanted);
    if (!found) qFatal("there is no %s", name);
    return found;
  }
  [[nodiscard]] int view() const { return find<QStackedWidget>("views")->currentIndex(); }
  [[nodiscard]] QWidget* viewAt(int index) const { return find<QStackedWidget>("views")->widget(index); }
  [[nodiscard]] ui::LargeFilesModel* model() const { return find<ui::LargeFilesModel>(); }
  [[nodiscard]] QStringList shown() const { return largetest::namesOf(model()->files()); }
  [[nodiscard]] QString text(const char* name) const { return find<QLabel>(name)->text(); }
  [[nodiscard]] QString sum() const { return windowtest::plain(text("sum")); }
  [[nodiscard]] ui::Treemap* map() const { return find<ui::Treemap>(); }
  [[nodiscard]] ui::LargeFilesTable* table() const { return find<ui::LargeFilesTable>(); }
  [[nodiscard]] ui::Segmented* segments() const { return viewAt(Results)->findChild<ui::Segmented*>(); }
  [[nodiscard]] QLineEdit* search() const { return find<QLineEdit>(); }
  [[nodiscard]] bool isTile(const QString& name, bool marked) const {
    for (int i = 0; i < map()->itemCount(); ++i)
      if (map()->itemAt(i).name == name) return map()->itemAt(i).checked == marked;
    return false;
  }
  void clickRow(int row) const {
    QTest::mouseClick(table()->viewport(), Qt::LeftButton, {}, table()->visualRect(model()->index(row, 3)).center());
  }
  /// A file that is really there, of the kind and size that a search would tell.
  LargeFile real(const QString& relative, qint64 megabytes) const {
    const QFileInfo info(m_home->file(relative));
    LargeFile made = largetest::file(info.fileName(), megabytes, QStringLiteral("Video"), info.path());
    made.path = info.filePath();
    return made;
  }

  std::unique_ptr<ui::LargeFilesPage> m_page;
};
