/// How evenly the interface beats while a scan of the tree DIR runs with the Cleanup page on show, from the press of
/// its button until the findings are painted: the gaps between the beats of a timer of 1 ms. Beside it the gaps of
/// a bare loop, and those of a loop with the scan but no window. On a busy machine a gap holds the turns of other
/// programs too; what our own thread worked in it is told apart as "cpu".
#include "app/AppState.h"
#include "engines/Scanner.h"
#include "ui/Theme.h"
#include "ui/pages/CleanupPage.h"
#include "ui/shell/MainWindow.h"
#include "ui/shell/Sidebar.h"

#include "home.h"
#include "window.h"

#include <QEventLoop>
#include <QPushButton>
#include <QStackedWidget>
#include <QTimer>

using namespace Qt::StringLiterals;

namespace {

constexpr double kPercentile = 0.99;

struct Gap {
  double ms = 0;
  double cpuMs = 0; ///< of this thread
};

double threadCpuMs() {
  timespec now{};
  ::clock_gettime(CLOCK_THREAD_CPUTIME_ID, &now);
  return static_cast<double>(now.tv_sec) * 1e3 + static_cast<double>(now.tv_nsec) / 1e6;
}

/// Beats from its making to its end, on this thread's loop.
class Heartbeat {
 public:
  Heartbeat() {
    m_timer.setTimerType(Qt::PreciseTimer);
    QObject::connect(&m_timer, &QTimer::timeout, &m_timer, [this] { beat(); });
    m_timer.start(1);
  }
  /// The gap since the last beat, too.
  void end() {
    beat();
    m_timer.stop();
  }

  [[nodiscard]] std::size_t beats() const { return m_gaps.size(); }
  /// Of the gaps' one figure, that which @p share of them don't exceed; 1 gives the worst.
  [[nodiscard]] double quantile(double Gap::*figure, double share) const {
    std::vector<double> all;
    for (const Gap& gap : m_gaps) all.push_back(gap.*figure);
    const auto at = all.begin() + std::ptrdiff_t(share * double(all.size() - 1));
    std::nth_element(all.begin(), at, all.end());
    return *at;
  }
  /// What is beaten from now on, the present gap with it, belongs to the end.
  void markEnd() { m_endFrom = m_gaps.size(); }
  /// The worst gap before the end began, but for the first, and the worst from there on.
  [[nodiscard]] double worstBeforeEnd(double Gap::*figure) const { return worst(figure, 1, m_endFrom); }
  [[nodiscard]] double worstOfEnd(double Gap::*figure) const { return worst(figure, m_endFrom, m_gaps.size()); }
  [[nodiscard]] Gap first() const { return m_gaps.front(); }
  /// The share of the whole time that lies in gaps of 16 ms and more, in percent.
  [[nodiscard]] double lateShare() const {
    constexpr double kFrameMs = 16;
    double late = 0, whole = 0;
    for (const Gap& gap : m_gaps) {
      whole += gap.ms;
      if (gap.ms >= kFrameMs) late += gap.ms;
    }
    return 100 * late / whole;
  }

 private:
  [[nodiscard]] double worst(double Gap::*figure, std::size_t from, std::size_t to) const {
    double found = 0;
    for (std::size_t i = from; i < to; ++i) found = std::max(found, m_gaps[i].*figure);
    return found;
  }
  void beat() {
    const double cpu = threadCpuMs();
    m_gaps.push_back({m_clock.ms(), cpu - m_cpuMs});
    m_clock = {};
    m_cpuMs = cpu;
  }

  QTimer m_timer;
  bench::Clock m_clock;
  double m_cpuMs = threadCpuMs();
  std::vector<Gap> m_gaps;
  std::size_t m_endFrom = 0;
};

void waitFor(int ms, Heartbeat* heartbeat) {
  QEventLoop loop;
  QTimer::singleShot(ms, &loop, &QEventLoop::quit);
  loop.exec();
  heartbeat->end();
}

/// The scan alone, and nobody who listens but for its end.
double scanUnseen(Heartbeat* heartbeat) {
  Scanner scanner;
  QEventLoop loop;
  QObject::connect(&scanner, &Scanner::finished, &loop, &QEventLoop::quit);
  const bench::Clock clock;
  scanner.start({});
  loop.exec();
  heartbeat->end();
  return clock.ms();
}

/// Runs @p loop until the findings are on the screen.
class Painted : public QObject {
 public:
  Painted(QStackedWidget* views, QEventLoop* loop) : m_views(views), m_loop(loop) {
    views->widget(AppState::Review)->installEventFilter(this);
  }

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override {
    if (event->type() == QEvent::Paint && m_views->currentIndex() == AppState::Review)
      QMetaObject::invokeMethod(m_loop, &QEventLoop::quit, Qt::QueuedConnection); // when all of it is
    return QObject::eventFilter(watched, event);
  }

 private:
  QStackedWidget* m_views;
  QEventLoop* m_loop;
};

} // namespace

int main(int argc, char** argv) {
  const char* tree = bench::folderArgument(argc, argv);
  const QTemporaryDir home(u"/var/tmp/tarnwick-bench-home-XXXXXX"_s);
  bench::moveInto(home.path(), QString::fromLocal8Bit(tree));
  const bench::Application app(argc, argv, "2");

  Heartbeat unseen;
  const double unseenMs = scanUnseen(&unseen);
  Heartbeat bare;
  waitFor(int(unseenMs), &bare);

  Theme::get().install(qApp);
  AppState state;
  ui::MainWindow window(&state);
  window.show();
  QApplication::processEvents();
  window.go(ui::Sidebar::Cleanup);
  QApplication::processEvents();
  auto* views = window.findChild<ui::CleanupPage*>()->findChild<QStackedWidget*>(u"views"_s);
  auto* start = views->currentWidget()->findChild<QPushButton*>();
  QEventLoop loop;
  const Painted painted(views, &loop);
  const bench::Clock clock;
  Heartbeat seen;
  QObject::connect(state.scanner, &Scanner::finished, &loop, [&seen] { seen.markEnd(); });
  start->click();
  loop.exec();
  seen.end();

  qsizetype items = 0;
  for (const CategoryResult& result : state.results) items += result.items.size();
  const auto p99 = [](const Heartbeat& one) { return one.quantile(&Gap::ms, kPercentile); };
  const auto worst = [](const Heartbeat& one) { return one.quantile(&Gap::ms, 1); };
  std::printf(
      "name=window-heartbeat ms=%.1f files=%lld items=%lld beats=%zu p99_ms=%.2f worst_ms=%.2f "
      "late_percent=%.2f p99_cpu_ms=%.2f worst_cpu_ms=%.2f first_cpu_ms=%.2f scanning_worst_ms=%.2f "
      "scanning_worst_cpu_ms=%.2f end_worst_ms=%.2f end_worst_cpu_ms=%.2f unseen_p99_ms=%.2f unseen_worst_ms=%.2f "
      "bare_p99_ms=%.2f bare_worst_ms=%.2f peak_kib=%ld\n",
      clock.ms(), static_cast<long long>(state.scanFiles), static_cast<long long>(items), seen.beats(), p99(seen),
      worst(seen), seen.lateShare(), seen.quantile(&Gap::cpuMs, kPercentile), seen.quantile(&Gap::cpuMs, 1),
      seen.first().cpuMs, seen.worstBeforeEnd(&Gap::ms), seen.worstBeforeEnd(&Gap::cpuMs), seen.worstOfEnd(&Gap::ms),
      seen.worstOfEnd(&Gap::cpuMs), p99(unseen), worst(unseen), p99(bare), worst(bare), bench::peakKib());
}
