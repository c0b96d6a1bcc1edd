/// Times the list of what a scan found in the real window: opening the detail of a category with 50,000 items until it
/// is painted, and toggling one of its items until everything that shows the selection is painted; each against the
/// same in a window whose category has 500.
#include "app/AppState.h"
#include "engines/categories.h"
#include "ui/Theme.h"
#include "ui/pages/CleanupPage.h"
#include "ui/shell/MainWindow.h"
#include "ui/shell/Sidebar.h"

#include "window.h"

#include <QCheckBox>

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype kMany = 50'000;
constexpr qsizetype kFew = 500;
constexpr qsizetype kBeside = 20; // items of the category that is on show before
constexpr qint64 kBytes = 1'000'000;
constexpr int kWarmUp = 4;
constexpr int kOpenings = 41;
constexpr int kToggles = 201;

CategoryResult category(const QString& id, qsizetype items) {
  CategoryResult made;
  for (const CategoryDef& def : categories::forThisPlatform())
    if (def.id == id) made.def = def;
  for (qsizetype i = 0; i < items; ++i) {
    CleanItem item;
    item.path = u"/home/someone/.cache/%1/folder of an app %2/data.db"_s.arg(id).arg(i);
    item.name = u"folder of an app %1"_s.arg(i);
    item.bytes = kBytes - i;
    item.files = 1;
    item.modified = QDateTime::currentMSecsSinceEpoch() - i * kBytes;
    made.bytes += item.bytes;
    made.files += 1;
    made.items << item;
  }
  return made;
}

struct Cost {
  std::vector<double> ms;
  std::vector<double> cpuMs;
};

/// A window that shows the findings of a scan, on the Cleanup page.
class Findings : public QObject {
 public:
  explicit Findings(qsizetype items) : m_window(&m_state) {
    m_state.results = {category(u"appcache"_s, items), category(u"temp"_s, kBeside)};
    m_state.selectAll(true);
    emit m_state.resultsChanged();
    m_state.setPhase(AppState::Review);
    m_window.go(ui::Sidebar::Cleanup);
    m_window.show();
    m_page = m_window.findChild<ui::CleanupPage*>();
    qApp->installEventFilter(this);
    m_shown = m_window.findChild<QWidget*>(u"detailScroll"_s);
  }

  void open(Cost* cost) {
    untilPainted([this] { m_page->focusCategory(u"temp"_s); });
    take(cost, [this] { m_page->focusCategory(u"appcache"_s); });
  }
  /// Another item each time; those of an even round are unticked, the same are ticked again in the next.
  void toggle(int round, Cost* cost) {
    QList<QCheckBox*> boxes = m_shown->findChildren<QCheckBox*>();
    boxes.removeIf([](const QCheckBox* box) { return !box->text().isEmpty(); }); // leaves those of the items
    QCheckBox* box = boxes.at(round / 2 % boxes.size());
    take(cost, [box] { box->click(); });
    if (box->isChecked() != (round % 2 == 1)) qFatal("a toggle came to nothing");
  }

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override {
    if (event->type() == QEvent::Paint && watched->isWidgetType() && m_page)
      m_painted = m_painted || m_page->isAncestorOf(static_cast<QWidget*>(watched));
    return QObject::eventFilter(watched, event);
  }

 private:
  template <typename Action>
  void untilPainted(Action action) {
    m_painted = false;
    action();
    while (!m_painted) QCoreApplication::processEvents();
    // What it left for later belongs to it.
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCoreApplication::processEvents();
  }
  template <typename Action>
  void take(Cost* cost, Action action) {
    const bench::Clock clock;
    untilPainted(action);
    cost->ms.push_back(clock.ms());
    cost->cpuMs.push_back(clock.cpuMs());
  }

  AppState m_state;
  ui::MainWindow m_window;
  ui::CleanupPage* m_page = nullptr;
  QWidget* m_shown = nullptr;
  bool m_painted = false;
};

} // namespace

int main(int argc, char** argv) {
  const bench::Application app(argc, argv, "2");
  Theme::get().install(qApp);
  Findings many(kMany);
  Findings few(kFew);

  Cost warm, openMany, openFew, toggleMany, toggleFew;
  for (int round = 0; round < kOpenings + kWarmUp; ++round) {
    many.open(round < kWarmUp ? &warm : &openMany);
    few.open(round < kWarmUp ? &warm : &openFew);
  }
  for (int round = 0; round < kToggles + kWarmUp; ++round) {
    many.toggle(round, round < kWarmUp ? &warm : &toggleMany);
    few.toggle(round, round < kWarmUp ? &warm : &toggleFew);
  }
  const auto worst = [](const std::vector<double>& all) { return *std::max_element(all.begin(), all.end()); };
  const double toggleCpu = bench::median(toggleMany.cpuMs);
  const double toggleCpuFew = bench::median(toggleFew.cpuMs);
  std::printf("name=window-detail ms=%.2f open_ms=%.2f open_cpu_ms=%.2f open_worst_ms=%.2f open_ratio=%.2f "
              "toggle_cpu_ms=%.2f toggle_few_cpu_ms=%.2f toggle_ratio=%.2f toggle_worst_ms=%.2f peak_kib=%ld\n",
              bench::median(openMany.ms), bench::median(openMany.ms), bench::median(openMany.cpuMs), worst(openMany.ms),
              bench::median(openMany.cpuMs) / bench::median(openFew.cpuMs), toggleCpu, toggleCpuFew,
              toggleCpu / toggleCpuFew, worst(toggleMany.ms), bench::peakKib());
}
