#include "cli/program.h"

#include "app/identity.h"
#include "app/records.h"
#include "cli/terminal.h"
#include "engines/categories.h"
#include "ui/i18n.h"

#include <memory>

namespace cli {
namespace {

/// Later versions of Qt warn where the locale's encoding isn't UTF-8, as in a timer job. They then write UTF-8, and so
/// do we, so that there is nothing to say.
std::unique_ptr<QCoreApplication> makeApplication(int& argc, char** argv) {
  const QtMessageHandler usual = qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});
  auto application = std::make_unique<QCoreApplication>(argc, argv);
  qInstallMessageHandler(usual);
  return application;
}

QStringList categoryIds() {
  QStringList ids;
  for (const CategoryDef& def : categories::forThisPlatform()) ids << def.id;
  return ids;
}

ExitCode carryOut(const Command& command, Output* out, const World& world) {
  switch (command.verb) {
  case Verb::Scan:
    break;
  case Verb::Clean:
    return clean(command, out, world);
  case Verb::Large:
    return large(command, out);
  case Verb::System:
    return systemData(command, out, world);
  }
  return scan(command, out);
}

int answer(const Parsed& parsed, Output* out, const World& world) {
  switch (parsed.outcome) {
  case Parsed::Outcome::Run:
    return carryOut(parsed.command, out, world);
  case Parsed::Outcome::Show:
    out->write(parsed.text);
    return kDone;
  case Parsed::Outcome::Usage:
    Output(terminal::kErrors).write(parsed.text);
    return kUsage;
  case Parsed::Outcome::Error:
    break;
  }
  complain(parsed.text);
  return kUsage;
}

} // namespace

int run(int argc, char** argv, const World& world) {
  prepareDescriptors();
  const auto application = makeApplication(argc, argv);
  identity::apply();
  records::registerMetaTypes();
  i18n::install(application.get());

  Output out(terminal::kOutput);
  const int code = answer(parse(QCoreApplication::arguments(), categoryIds()), &out, world);
  if (!out.failed()) return code;
  complain(Words::tr("the output could not be written: %1").arg(out.failure()));
  return code == kDone ? kStayed : code;
}

} // namespace cli
