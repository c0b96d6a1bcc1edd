#include "engines/Cleaner.h"

#include "core/places.h"
#include "core/platform.h"
#include "engines/CleanRun.h"

#include <QStandardPaths>

using namespace Qt::StringLiterals;

Cleaner::Cleaner(QObject* parent, CleanerWorld world) : QObject(parent), m_world(std::move(world)) {}

Cleaner::~Cleaner() = default;

void Cleaner::start(const QList<CategoryResult>& results, bool moveToTrash, const QList<QString>& exclusions,
                    Run kind) {
  m_job.start([this, order = CleanRun::Order{results, moveToTrash, exclusions, kind}] {
    const auto tellFiles = [this](const QString& category, qint64 done, qint64 total) {
      emit filesProgress(category, done, total);
    };
    const auto tell = [this](const CleanRun::Step& step) {
      emit filesProgress(step.category, step.doneFiles, step.totalFiles);
      emit progress(step.doneBytes, step.totalBytes, step.path);
    };
    CleanRun run(order, m_world, m_job.cancelled(), tell, tellFiles);
    emit finished(run.run());
  });
}

void Cleaner::stop() { m_job.cancel(); }

bool Cleaner::isRunning() const { return m_job.isRunning(); }

QString Cleaner::logDir() {
  if (QStandardPaths::isTestModeEnabled())
    return QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) + u"/Tarnwick/logs"_s;
  if (platform::host() == platform::Host::Mac) return places::home() + u"/Library/Logs/Tarnwick"_s;
  return QStandardPaths::writableLocation(QStandardPaths::AppLocalDataLocation) + u"/logs"_s;
}

#include "moc_Cleaner.cpp"
