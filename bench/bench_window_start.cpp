/// From the start of the process to the first painted window, the whole program in a process of its own, in turns with
/// a bare window of the same size; and the memory that the program holds at rest, after its start and after a scan of
/// the tree DIR.
#include "app/AppState.h"
#include "ui/shell/program.h"

#include "home.h"
#include "window.h"

#include <QProcess>
#include <QPushButton>
#include <QStackedWidget>
#include <QTimer>

#include <fstream>
#include <map>
#include <sstream>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

constexpr int kRounds = 15;
constexpr auto kRest = 2s; // longer than anything that the program does on its own after its start
constexpr QSize kWindow(1180, 780);
constexpr int kPatienceMs = 120'000;

constexpr const char* kRole = "TARNWICK_BENCH_ROLE";   // what a child is: "program", "bare" or "memory"
constexpr const char* kBegun = "TARNWICK_BENCH_BEGUN"; // when it was started, in ns of the steady clock

qint64 now() { return std::chrono::steady_clock::now().time_since_epoch().count(); }

/// A line of "/proc/self/smaps_rollup" in KiB; 0 where the system doesn't tell.
long memoryKib(const std::string& name) {
  std::ifstream rollup("/proc/self/smaps_rollup");
  for (std::string line; std::getline(rollup, line);)
    if (line.rfind(name + ':', 0) == 0) return std::atol(line.c_str() + name.size() + 1);
  return 0;
}

void printMemory(const char* when) {
  std::printf("%s_rss_kib=%ld %s_pss_kib=%ld %s_own_kib=%ld ", when, memoryKib("Rss"), when, memoryKib("Pss"), when,
              memoryKib("Private_Dirty"));
}

/// Sees the first window painted, then does what the child is there for, and ends it.
class Watch : public QObject {
 public:
  using QObject::QObject;

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override {
    auto* window = qobject_cast<QWidget*>(watched);
    if (!m_seen && window && window->isWindow() && event->type() == QEvent::Paint) {
      m_seen = true;
      m_window = window;
      QMetaObject::invokeMethod(this, &Watch::onPainted, Qt::QueuedConnection); // when all of it is, on the screen
    }
    return QObject::eventFilter(watched, event);
  }

 private:
  void onPainted() {
    std::printf("ms=%.2f cpu_ms=%.2f ", double(now() - qgetenv(kBegun).toLongLong()) / 1e6, cpuMs());
    if (qgetenv(kRole) == "memory")
      QTimer::singleShot(kRest, this, &Watch::scan);
    else
      QCoreApplication::quit();
  }
  void scan() {
    printMemory("start");
    auto* views = m_window->findChild<QStackedWidget*>(u"views"_s);
    connect(views, &QStackedWidget::currentChanged, this, [this](int view) {
      if (view == AppState::Review) QTimer::singleShot(kRest, this, &Watch::end);
    });
    views->currentWidget()->findChild<QPushButton*>()->click();
  }
  void end() {
    printMemory("scan");
    QCoreApplication::quit();
  }
  static double cpuMs() { return double(std::clock()) * 1000 / CLOCKS_PER_SEC; }

  QWidget* m_window = nullptr;
  bool m_seen = false;
};

/// Every application of this process is watched from its making on.
void watch() {
  if (qEnvironmentVariableIsSet(kRole)) qApp->installEventFilter(new Watch(qApp));
}

int runBare(int argc, char** argv) {
  const QApplication app(argc, argv);
  QApplication::setStyle(u"Fusion"_s);
  QWidget window;
  window.resize(kWindow);
  window.show();
  return QApplication::exec();
}

/// What a child printed, by name.
std::map<std::string, double> startAs(const char* role) {
  QProcess child;
  QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
  environment.insert(QString::fromLatin1(kRole), QString::fromLatin1(role));
  environment.insert(QString::fromLatin1(kBegun), QString::number(now()));
  child.setProcessEnvironment(environment);
  child.setProcessChannelMode(QProcess::ForwardedErrorChannel);
  child.start(QCoreApplication::applicationFilePath(), QStringList());
  if (!child.waitForFinished(kPatienceMs) || child.exitCode() != 0) qFatal("a start as %s failed", role);
  std::istringstream words(child.readAllStandardOutput().toStdString());
  std::map<std::string, double> figures;
  for (std::string word; words >> word;) {
    const std::size_t sign = word.find('=');
    figures[word.substr(0, sign)] = std::stod(word.substr(sign + 1));
  }
  return figures;
}

struct Starts {
  std::vector<double> ms;
  std::vector<double> cpuMs;
  void take(const char* role, bool counts) {
    auto figures = startAs(role);
    if (!counts) return;
    ms.push_back(figures["ms"]);
    cpuMs.push_back(figures["cpu_ms"]);
  }
};

int runParent(int argc, char** argv) {
  const char* tree = bench::folderArgument(argc, argv);
  const QTemporaryDir home(u"/var/tmp/tarnwick-bench-home-XXXXXX"_s);
  bench::moveInto(home.path(), QString::fromLocal8Bit(tree));
  const QCoreApplication app(argc, argv);
  Starts ours, bare;
  for (int round = 0; round <= kRounds; ++round) { // the first warms up
    ours.take("program", round > 0);
    bare.take("bare", round > 0);
  }
  const double ms = bench::median(ours.ms);
  const double cpuMs = bench::median(ours.cpuMs);
  std::printf("name=window-start ms=%.1f least_ms=%.1f cpu_ms=%.1f bare_ms=%.1f bare_cpu_ms=%.1f cpu_ratio=%.2f", ms,
              *std::min_element(ours.ms.begin(), ours.ms.end()), cpuMs, bench::median(bare.ms),
              bench::median(bare.cpuMs), cpuMs / bench::median(bare.cpuMs));
  for (const auto& [name, value] : startAs("memory"))
    if (name.ends_with("kib")) std::printf(" %s=%.0f", name.c_str(), value);
  std::printf("\n");
  return 0;
}

} // namespace

Q_COREAPP_STARTUP_FUNCTION(watch)

int main(int argc, char** argv) {
  bench::withoutScreen("2");
  const QByteArray role = qgetenv(kRole);
  if (role.isEmpty()) return runParent(argc, argv);
  return role == "bare" ? runBare(argc, argv) : ui::runProgram(argc, argv);
}
