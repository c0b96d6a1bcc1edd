/// What the tests of the Cleanup page share: a page over a real state with results put in place.
#pragma once

#include "app/FlowTest.h"
#include "core/fmt.h"
#include "engines/categories.h"
#include "support/uitest.h"
#include "ui/Theme.h"
#include "ui/controls/Note.h"
#include "ui/pages/CategoryRow.h"
#include "ui/pages/CleanupPage.h"

#include <QAccessible>
#include <QCheckBox>
#include <QLabel>
#include <QPushButton>
#include <QStackedWidget>

#include <memory>

namespace cleanuptest {

using namespace Qt::StringLiterals;

/// A category as the Linux catalogue has it, with items of these sizes.
inline CategoryResult category(const QString& id, const QList<qint64>& sizes) {
  CategoryResult made;
  for (const CategoryDef& def : categories::forLinux())
    if (def.id == id) made.def = def;
  for (qsizetype i = 0; i < sizes.size(); ++i) {
    CleanItem item;
    item.path = u"/c/%1/n%2"_s.arg(id).arg(i);
    item.name = u"n%1"_s.arg(i);
    item.bytes = sizes.at(i);
    item.files = 1;
    made.items << item;
    made.bytes += item.bytes;
    made.files += 1;
  }
  return made;
}

inline QList<qint64> sizes(qsizetype count) { return QList<qint64>(count, 1'000'000); }

inline CategoryResult blocked(const QString& id) {
  CategoryResult made = category(id, {});
  made.accessDenied = true;
  return made;
}

/// Texts of all visible labels below @p widget, in the order in which they were made.
inline QStringList texts(const QWidget* widget) {
  QStringList all;
  for (const QLabel* label : widget->findChildren<QLabel*>())
    if (label->isVisibleTo(widget) && !label->text().isEmpty()) all << label->text();
  return all;
}

inline QPushButton* button(const QWidget* widget, const QString& text) {
  for (QPushButton* one : widget->findChildren<QPushButton*>())
    if (one->text() == text && one->isVisibleTo(widget)) return one;
  return nullptr;
}

/// What a screen reader calls it.
inline QString nameOf(QWidget* widget) {
  return QAccessible::queryAccessibleInterface(widget)->text(QAccessible::Name);
}

} // namespace cleanuptest

class CleanupTest : public FlowTest {
 protected:
  void open() {
    qputenv("TARNWICK_HOST", "linux");
    Theme::get().mac = true;
    fill();
    makePage();
  }
  void makePage() {
    m_page = std::make_unique<ui::CleanupPage>(m_state.get());
    m_page->resize(944, 780);
    m_page->show();
    m_page->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(m_page.get()));
  }
  void close() {
    m_page.reset();
    empty();
  }

  /// Puts results in place as a scan leaves them.
  void review(const QList<CategoryResult>& results) {
    m_state->results = results;
    m_state->selectRecommended();
    emit m_state->resultsChanged();
    m_state->setPhase(AppState::Review);
    settle();
  }
  /// Lets what was posted happen, and what was to be deleted go.
  static void settle() {
    QCoreApplication::processEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCoreApplication::processEvents();
  }

  template <typename T = QWidget>
  T* find(const char* name) const {
    T* found = m_page->findChild<T*>(QString::fromLatin1(name));
    if (!found) qFatal("there is no %s", name);
    return found;
  }
  [[nodiscard]] QWidget* view() const { return find<QStackedWidget>("views")->currentWidget(); }
  [[nodiscard]] int viewIndex() const { return find<QStackedWidget>("views")->currentIndex(); }
  [[nodiscard]] QWidget* detail() const { return find<QWidget>("detailScroll"); }
  [[nodiscard]] ui::CategoryRow* row(const QString& id) const {
    return m_page->findChild<ui::CategoryRow*>(QLatin1String("category-") + id);
  }
  [[nodiscard]] QCheckBox* rowBox(const QString& id) const { return row(id)->findChild<QCheckBox*>(); }
  /// Of the items in the detail, without the one that selects all.
  [[nodiscard]] QList<QCheckBox*> itemBoxes() const {
    QList<QCheckBox*> boxes = detail()->findChildren<QCheckBox*>();
    boxes.removeIf([](const QCheckBox* box) { return !box->text().isEmpty(); });
    return boxes;
  }
  [[nodiscard]] bool detailSays(const QString& text) const { return cleanuptest::texts(detail()).contains(text); }
  [[nodiscard]] static ui::Note* noteIn(const QWidget* widget) { return widget->findChild<ui::Note*>(); }
  [[nodiscard]] QPushButton* cleanButton() const { return find<QPushButton>("cleanButton"); }

  std::unique_ptr<ui::CleanupPage> m_page;
};
