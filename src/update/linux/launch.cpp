/// There is no one installer here: the user sees the package, and installs it the way packages are installed.
#include "update/Updater.h"

#include "core/platform.h"

#include <QEventLoop>
#include <QFileInfo>
#include <QTimer>

#include <chrono>
#include <memory>

using namespace std::chrono_literals;

namespace {
/// More than the file manager is given to start and answer.
constexpr auto kAnswerLimit = 15s;
constexpr int kShown = 0;
constexpr int kNotShown = 1;
} // namespace

// The program ends after this, so it has to wait: a question that is still on its way would be lost. The loop is shared
// with an answer that may come after all.
QString Updater::launchInstaller(const QString& path) {
  const QString failure = tr("Could not open the update.");
  if (!QFileInfo::exists(path)) return failure;
  const auto loop = std::make_shared<QEventLoop>();
  QTimer::singleShot(kAnswerLimit, loop.get(), [&loop = *loop] { loop.exit(kNotShown); });
  platform::revealInFileManager(path, [loop](bool isShown) { loop->exit(isShown ? kShown : kNotShown); });
  return loop->exec(QEventLoop::ExcludeUserInputEvents) == kShown ? QString() : failure;
}
