/// What the benchmarks of the window share: an application without a screen and with no settings but its own, and two
/// things timed in turns.
#pragma once

#include "app/identity.h"
#include "app/records.h"
#include "figure.h"

#include <QApplication>
#include <QSettings>
#include <QTemporaryDir>

#include <algorithm>
#include <ctime>
#include <functional>
#include <vector>

namespace bench {

/// What the platform says of itself isn't a figure.
inline void silence(QtMsgType /*type*/, const QMessageLogContext& /*context*/, const QString& /*text*/) {}

/// @param scale  pixels of the screen to a logical one
inline void withoutScreen(const char* scale) {
  qInstallMessageHandler(silence);
  qputenv("QT_QPA_PLATFORM", "offscreen");
  qputenv("QT_SCALE_FACTOR", scale);
  qunsetenv("DBUS_SESSION_BUS_ADDRESS"); // no desktop is asked
  identity::apply();
}

/// The user's own settings are neither read nor changed as long as this lives.
class OwnSettings {
 public:
  OwnSettings() {
    QSettings::setDefaultFormat(QSettings::IniFormat);
    QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, m_folder.path());
    QSettings::setPath(QSettings::IniFormat, QSettings::SystemScope, m_folder.path());
  }

 private:
  QTemporaryDir m_folder;
};

/// An application as the program makes it, but without a screen and with settings of its own.
class Application {
 public:
  /// @param scale  pixels of the screen to a logical one
  Application(int argc, char** argv, const char* scale) : m_argc((withoutScreen(scale), argc)), m_app(m_argc, argv) {
    QApplication::setStyle(QStringLiteral("Fusion"));
    records::registerMetaTypes();
  }

 private:
  int m_argc; // which the application keeps a reference to
  QApplication m_app;
  OwnSettings m_settings;
};

/// Medians of what was timed, in ms.
struct Pair {
  double ours = 0;
  double peer = 0;
  [[nodiscard]] double ratio() const { return ours / peer; }
};

inline double median(std::vector<double> values) {
  std::nth_element(values.begin(), values.begin() + std::ptrdiff_t(values.size() / 2), values.end());
  return values[values.size() / 2];
}

/// Times both in each round, so that a slow moment of the machine meets both. What counts is the processor's time: the
/// longer one would wait more often for its turn on a busy machine. The first rounds warm up and don't count.
/// @param ours, peer  called with the number of the round
inline Pair inTurns(int rounds, const std::function<void(int)>& ours, const std::function<void(int)>& peer) {
  constexpr int warmUp = 4;
  std::vector<double> oursMs, peerMs;
  const auto timed = [](const std::function<void(int)>& call, int round) {
    const std::clock_t begun = std::clock();
    call(round);
    return double(std::clock() - begun) * 1000 / CLOCKS_PER_SEC;
  };
  for (int round = 0; round < rounds + warmUp; ++round) {
    const double one = timed(ours, round);
    const double other = timed(peer, round);
    if (round < warmUp) continue;
    oursMs.push_back(one);
    peerMs.push_back(other);
  }
  return {.ours = median(oursMs), .peer = median(peerMs)};
}

} // namespace bench
