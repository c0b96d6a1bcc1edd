/// One window a user and settings store: a second start of the program hands its wish to the first and leaves.
#pragma once

#include <QLocalServer>
#include <QLockFile>
#include <QObject>

#include <chrono>
#include <memory>

class QLocalSocket;

namespace ui {

/// Holds a lock file, which a crash frees, and listens on a local socket that only this user can reach. Both are named
/// after the settings store, so a demo with a store of its own is an instance of its own.
class Instance : public QObject {
  Q_OBJECT

 public:
  /// What a second start wants of the first.
  enum class Wish {
    Show,    ///< bring the window to the front
    Nothing, ///< started in the background: the first is there already
    Updated, ///< tell that the program was updated
  };

  /// What one leads to.
  enum class Outcome {
    First, ///< this process is the one now
    Heard, ///< another one is, and has heard the wish: leave
    Alone, ///< another one is but didn't answer in time: go on without a guard
  };

  /// How long a start waits for one that is leaving, which may have to end a clean first.
  static constexpr std::chrono::seconds kPatience{15};

  Instance();
  ~Instance() override;

  /// Becomes the first, or hands @p wish to it. Waits while the first is leaving, @p patience at most.
  [[nodiscard]] Outcome start(Wish wish, std::chrono::milliseconds patience = kPatience);
  /// From here on others wait for this process to end rather than hand over a wish.
  void leave();

 signals:
  /// Another start has handed over its wish.
  void asked(ui::Instance::Wish wish);

 private:
  void listen();
  void onConnection();
  void answer(QLocalSocket* socket);
  [[nodiscard]] bool handOver(Wish wish) const;

  QString m_base; ///< path of both files, without their endings
  QLockFile m_lock;
  QLocalServer m_server;
  bool m_leaving = false;
};

} // namespace ui
