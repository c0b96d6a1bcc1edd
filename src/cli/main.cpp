// tarnwick-cli: scans and cleans without a window, for servers, scripts and whoever lives in a terminal.
#include "app/identity.h"
#include "app/records.h"
#include "cli/commands.h"
#include "cli/terminal.h"
#include "engines/categories.h"
#include "ui/i18n.h"

#include <memory>

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

int answer(const cli::Parsed& parsed, cli::Output* out) {
  switch (parsed.outcome) {
  case cli::Parsed::Outcome::Run:
    return parsed.command.verb == cli::Verb::Scan ? scan(parsed.command, out) : clean(parsed.command, out);
  case cli::Parsed::Outcome::Show:
    out->write(parsed.text);
    return cli::kDone;
  case cli::Parsed::Outcome::Usage:
    cli::Output(cli::terminal::kErrors).write(parsed.text);
    return cli::kUsage;
  case cli::Parsed::Outcome::Error:
    break;
  }
  cli::complain(parsed.text);
  return cli::kUsage;
}

} // namespace

int main(int argc, char** argv) {
  cli::prepareDescriptors();
  const auto application = makeApplication(argc, argv);
  identity::apply();
  records::registerMetaTypes();
  i18n::install(application.get());

  cli::Output out(cli::terminal::kOutput);
  const int code = answer(cli::parse(QCoreApplication::arguments(), categoryIds()), &out);
  if (!out.failed()) return code;
  cli::complain(cli::Words::tr("the output could not be written: %1").arg(out.failure()));
  return code == cli::kDone ? cli::kStayed : code;
}
