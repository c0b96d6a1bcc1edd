#include "core/login.h"

#include "core/ownfile.h"
#include "core/places.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>

#include <unistd.h>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace login {
namespace {

// Told apart by this word alone, so that an entry that the desktop has rewritten is still known.
constexpr char kMark[] = "X-Tarnwick-Login";
constexpr char kBackground[] = "--background";
constexpr char kExec[] = "Exec=";

/// What must be escaped between double quotes.
constexpr QByteArrayView kQuotedSpecials = "\"`$\\";

/// Whether an entry of either system can name it.
bool canBeNamed(const QString& program) {
  return QDir::isAbsolutePath(program) && program.isValidUtf16() && !program.contains(QChar::ReplacementCharacter) &&
         std::none_of(program.cbegin(), program.cend(), [](QChar c) { return c.category() == QChar::Other_Control; });
}

/// A word of an Exec key. Quoted first, then escaped as every text of such a file is: so a backslash becomes four.
QByteArray execWord(const QByteArray& word) {
  QByteArray quoted;
  for (const char c : word) {
    if (kQuotedSpecials.contains(c)) quoted += '\\';
    if (c == '%') quoted += '%';
    quoted += c;
  }
  return '"' + quoted.replace("\\", "\\\\") + '"';
}

QByteArray execLine(const QString& program) {
  const std::optional<QByteArray> value = execValue(program);
  return value ? kExec + *value : QByteArray();
}

/// Whether the folder is the user's, or what there is on the way to it: XDG_CONFIG_HOME may still be that of somebody
/// else in a shell that another user has opened.
bool isOwnFolder(const QString& folder) {
  QString there = folder;
  while (!QFileInfo::exists(there)) there = QFileInfo(there).path();
  return QFileInfo(there).ownerId() == ::geteuid();
}

QString folderOfEntry() { return QFileInfo(path()).path(); }

/// Whether an image of this kind holds the running program. Every program that is started by one, a terminal say,
/// inherits its variables.
bool runsFromImage() {
  const QString mounted = QFileInfo(qEnvironmentVariable("APPDIR")).canonicalFilePath();
  const QString own = QFileInfo(QCoreApplication::applicationFilePath()).canonicalFilePath();
  return !mounted.isEmpty() && own.startsWith(mounted + u'/');
}

enum class Form { First, AsItIs };

Outcome put(const QString& program, Form form) {
  if (!places::homeIsOwn()) return Outcome::Failed;
  const QString folder = folderOfEntry();
  if (QFileInfo::exists(folder) && !QFileInfo(folder).isDir()) return Outcome::Failed;
  if (!isOwnFolder(folder)) return Outcome::Failed;
  const ownfile::Content there = ownfile::read(path());
  const bool isNew = there.kind == ownfile::Kind::Nothing;
  if (!isNew && (there.kind == ownfile::Kind::Other || !isOwn(there.bytes))) return Outcome::Taken;
  const QByteArray wanted = isNew || form == Form::First ? text(program) : brought(there.bytes, program);
  if (wanted.isEmpty()) return Outcome::Failed;
  if (!isNew && wanted == there.bytes) return Outcome::Done;
  return ownfile::write(path(), wanted) == 0 ? Outcome::Done : Outcome::Failed;
}

} // namespace

QString program() {
  const QString image = qEnvironmentVariable("APPIMAGE");
  const QFileInfo file(image);
  if (QDir::isAbsolutePath(image) && file.isFile() && file.isExecutable() && runsFromImage()) return image;
  return QCoreApplication::applicationFilePath();
}

Outcome add(const QString& program) { return put(program, Form::First); }

Outcome keep(const QString& program) { return put(program, Form::AsItIs); }

Outcome remove() {
  if (!places::homeIsOwn()) return Outcome::Failed;
  const ownfile::Content there = ownfile::read(path());
  if (there.kind != ownfile::Kind::File || !isOwn(there.bytes)) return Outcome::Done;
  if (!isOwnFolder(folderOfEntry())) return Outcome::Failed;
  return ownfile::remove(path()) == 0 ? Outcome::Done : Outcome::Failed;
}

bool isOwn(const QByteArray& entry) { return entry.contains(kMark); }

// No program's name may hold a "=", and desktops look for the file before they undo "%%": both are passed on by a
// shell.
std::optional<QByteArray> execValue(const QString& program) {
  if (!canBeNamed(program)) return std::nullopt;
  const bool isPassedOn = program.contains(u'=') || program.contains(u'%');
  const QByteArray shell = isPassedOn ? "/bin/sh -c " + execWord(R"(exec "$0" "$@")") + ' ' : QByteArray();
  return shell + execWord(program.toUtf8()) + ' ' + kBackground;
}

QByteArray desktopEntry(const QString& program) {
  const QByteArray exec = execLine(program);
  if (exec.isEmpty()) return {};
  return "[Desktop Entry]\n"
         "Type=Application\n"
         "Version=1.0\n"
         "Name=Tarnwick\n" +
         exec +
         "\n"
         "Icon=tarnwick\n"
         "Terminal=false\n"
         "StartupNotify=false\n"
         "X-GNOME-Autostart-enabled=true\n" +
         kMark + "=true\n";
}

QByteArray desktopEntry(const QByteArray& entry, const QString& program) {
  const QByteArray exec = execLine(program);
  if (exec.isEmpty()) return {};
  QByteArrayList lines = entry.split('\n');
  const auto found = std::find_if(lines.begin(), lines.end(), [](const auto& one) { return one.startsWith(kExec); });
  if (found == lines.end()) return desktopEntry(program);
  *found = exec;
  return lines.join('\n');
}

QByteArray launchAgent(const QString& program) {
  if (!canBeNamed(program)) return {};
  return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
         "<!-- " +
         QByteArray(kMark) +
         " -->\n"
         "<plist version=\"1.0\">\n"
         "<dict>\n"
         "  <key>Label</key>\n"
         "  <string>tarnwick.login</string>\n"
         "  <key>ProgramArguments</key>\n"
         "  <array>\n"
         "    <string>" +
         program.toHtmlEscaped().toUtf8() +
         "</string>\n"
         "    <string>" +
         kBackground +
         "</string>\n"
         "  </array>\n"
         "  <key>RunAtLoad</key>\n"
         "  <true/>\n"
         "  <key>LimitLoadToSessionType</key>\n"
         "  <string>Aqua</string>\n"
         "</dict>\n"
         "</plist>\n";
}

} // namespace login
