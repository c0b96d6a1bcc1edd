/// The user's launch agents. The system reads the folder at each login.
#include "core/login.h"

#include "core/places.h"

using namespace Qt::StringLiterals;

namespace login {

QString path() { return places::home() + u"/Library/LaunchAgents/tarnwick.login.plist"_s; }

QByteArray text(const QString& program) { return launchAgent(program); }

// Switching it off is kept by the system elsewhere.
QByteArray brought(const QByteArray& /*entry*/, const QString& program) { return launchAgent(program); }

} // namespace login
