// The program under test: all of it, but for the lock of its cleans, which lies at the root of the fixture. So tests
// don't wait for each other, nor for a clean of the user who runs them.
#include "cli/program.h"
#include "support/CliRun.h"

#include <QFile>

int main(int argc, char** argv) {
  CleanerWorld world;
  world.lockPath = QFile::decodeName(qgetenv("HOME") + '/' + kCleanLock);
  return cli::run(argc, argv, world);
}
