/// Ctrl-C, a request to end and a terminal that went away, as a signal in the event loop. One object a process.
#pragma once

#include <QObject>

class Interrupts : public QObject {
  Q_OBJECT

 public:
  /// From here on SIGINT, SIGTERM and SIGHUP (unless it was ignored, as under nohup) no longer end the process.
  Interrupts();

  /// Whether one has come, also before the event loop had its turn.
  [[nodiscard]] bool raised() const;

 signals:
  /// One has come; once each.
  void interrupted();

 private:
  void onReadable();
};
