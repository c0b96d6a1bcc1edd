/// What the benchmark programs share: their argument, their clock, and the one line that each of them prints.
#pragma once

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <fstream>
#include <string>

namespace bench {

/// The folder to work on, the first argument. Without one, says so and ends the program with 2.
inline const char* folderArgument(int argc, char** argv) {
  if (argc >= 2) return argv[1];
  std::fprintf(stderr, "usage: %s DIR\n", argv[0]);
  std::exit(2);
}

/// Milliseconds since it was made, and those of them that a processor worked for this process: on a busy machine only
/// the second say something.
class Clock {
 public:
  [[nodiscard]] double ms() const {
    return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - m_start).count();
  }
  [[nodiscard]] double cpuMs() const { return cpuNow() - m_cpuStart; }

 private:
  static double cpuNow() {
    timespec now{};
    ::clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &now);
    return static_cast<double>(now.tv_sec) * 1e3 + static_cast<double>(now.tv_nsec) / 1e6;
  }

  std::chrono::steady_clock::time_point m_start = std::chrono::steady_clock::now();
  double m_cpuStart = cpuNow();
};

/// The most memory that the process ever held, in KiB; 0 where the system doesn't tell.
inline long peakKib() {
  std::ifstream status("/proc/self/status");
  for (std::string line; std::getline(status, line);)
    if (line.rfind("VmHWM:", 0) == 0) return std::atol(line.c_str() + 6);
  return 0;
}

/// Prints "name=… ms=… bytes=… files=… peak_kib=…".
inline void report(const char* name, double ms, long long bytes, long long files) {
  std::printf("name=%s ms=%.1f bytes=%lld files=%lld peak_kib=%ld\n", name, ms, bytes, files, peakKib());
}

} // namespace bench
