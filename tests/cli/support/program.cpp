// The program under test: all of it, but
// - the lock of its cleans lies at the root of the fixture, so that tests don't wait for each other, nor for a clean of
//   the user who runs them;
// - System Data has its own places at the fixture's root too;
// - further rules keep it from what that user has outside of the fixture.
#include "cli/program.h"
#include "support/CliRun.h"
#include "support/FixtureHome.h"

#include <QFile>

#include <vector>

namespace {

/// The arguments with the rules behind the verb, where there is one: what is wrong with the others stays as it is.
std::vector<QByteArray> withRules(int argc, char** argv) {
  std::vector<QByteArray> words(argv, argv + argc);
  if (argc < 2 || (words[1] != "scan" && words[1] != "clean")) return words;
  auto behindVerb = words.begin() + 2;
  for (const QString& rule : FixtureHome::rulesForOutside())
    behindVerb = words.insert(behindVerb, "--exclude=" + QFile::encodeName(rule)) + 1;
  return words;
}

} // namespace

int main(int argc, char** argv) {
  using namespace Qt::StringLiterals;
  cli::World world;
  SystemDataWorld& system = world.systemData;
  system.root = QFile::decodeName(qgetenv("HOME") + '/' + kSystemRoot);
  system.sources.procRoot = system.root + u"/proc"_s;
  system.tmutil = system.root + system.tmutil;
  world.cleaner.lockPath = QFile::decodeName(qgetenv("HOME") + '/' + kCleanLock);
  std::vector<QByteArray> words = withRules(argc, argv);
  std::vector<char*> pointers;
  for (QByteArray& word : words) pointers.push_back(word.data());
  pointers.push_back(nullptr);
  return cli::run(static_cast<int>(words.size()), pointers.data(), world);
}
