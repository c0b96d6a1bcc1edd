#include "app/loginentry.h"

#include "app/AppSettings.h"
#include "core/fmt.h"
#include "core/login.h"

#include <QCoreApplication>

namespace loginentry {
namespace {

struct Words {
  Q_DECLARE_TR_FUNCTIONS(LoginEntry)
};

QString words(login::Outcome outcome, bool on) {
  switch (outcome) {
  case login::Outcome::Done:
    break;
  case login::Outcome::Taken:
    //: %1: a path
    return Words::tr("%1 is not from Tarnwick and was left as it is. Remove it to open Tarnwick at login.")
        .arg(fmt::shortPath(login::path()));
  case login::Outcome::Failed:
    return (on ? Words::tr("%1 can't be written, so Tarnwick does not open at login.")
               : Words::tr("%1 can't be removed, so Tarnwick still opens at login."))
        .arg(fmt::shortPath(login::path()));
  }
  return {};
}

} // namespace

QString set(bool on) {
  const login::Outcome outcome = on ? login::add(login::program()) : login::remove();
  if (outcome == login::Outcome::Done) AppSettings::instance().setStartAtLogin(on);
  return words(outcome, on);
}

void keep() {
  AppSettings& settings = AppSettings::instance();
  if (!settings.isReadable() || !settings.holds("auto/startAtLogin")) return;
  // There is nobody yet to tell that it failed; the next start tries again.
  [[maybe_unused]] const login::Outcome outcome =
      settings.startAtLogin() ? login::keep(login::program()) : login::remove();
}

} // namespace loginentry
