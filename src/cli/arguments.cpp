#include "cli/arguments.h"

#include "app/identity.h"
#include "cli/terminal.h"
#include "cli/words.h"
#include "core/fmt.h"
#include "core/names.h"
#include "core/places.h"
#include "core/platform.h"

#include <QCommandLineParser>
#include <QDir>

#include <algorithm>
#include <array>
#include <utility>

using namespace Qt::StringLiterals;

namespace cli {
namespace {

struct VerbRow {
  Verb verb;
  const char* name;
  const char* usage;
  const char* summary;
};

constexpr std::array kVerbs = {
    VerbRow{Verb::Scan, "scan", "[--only ID[,ID]] [--exclude RULE] [--json]",
            QT_TRANSLATE_NOOP("Cli", "Measures what could be cleaned, and changes nothing.")},
    VerbRow{Verb::Clean, "clean", "[--only ID[,ID]] [--exclude RULE] [--delete|--trash] [--dry-run] [--yes] [--json]",
            QT_TRANSLATE_NOOP("Cli", "Scans, shows what would go, asks, and cleans it.")},
    VerbRow{Verb::Large, "large", "[--min-mb N] [--json]",
            QT_TRANSLATE_NOOP("Cli", "Searches the home folder for large files, and changes nothing.")},
    VerbRow{Verb::System, "system", "[--json]",
            QT_TRANSLATE_NOOP("Cli", "Measures what makes up the system's share of the disk, and changes nothing.")},
};

enum Takers { kScan = 1, kClean = 2, kLarge = 4, kSystem = 8, kBoth = kScan | kClean, kAll = kBoth | kLarge | kSystem };

struct OptionRow {
  const char* name;
  const char* value; ///< null: the option takes none
  int takers;
  const char* text;
};

constexpr std::array kOptions = {
    OptionRow{"only", "ID[,ID]", kBoth,
              QT_TRANSLATE_NOOP("Cli", "look only at these categories; a clean then takes all of them, also those that "
                                       "are never cleaned unasked")},
    OptionRow{
        "exclude", "RULE", kBoth,
        QT_TRANSLATE_NOOP("Cli", "never touch what this rule names, beside the rules in the settings; repeatable")},
    OptionRow{"delete", nullptr, kClean, QT_TRANSLATE_NOOP("Cli", "delete for good, whatever the settings say")},
    //: %1: the Trash
    OptionRow{"trash", nullptr, kClean, QT_TRANSLATE_NOOP("Cli", "move to the %1, whatever the settings say")},
    OptionRow{"dry-run", nullptr, kClean,
              QT_TRANSLATE_NOOP("Cli", "touch nothing; list what would go and what would stay, and why")},
    OptionRow{"yes", nullptr, kClean, QT_TRANSLATE_NOOP("Cli", "don't ask")},
    OptionRow{"min-mb", "N", kLarge,
              QT_TRANSLATE_NOOP("Cli", "look for files that take at least so many megabytes on the disk, whatever the "
                                       "settings say")},
    OptionRow{"json", nullptr, kAll, QT_TRANSLATE_NOOP("Cli", "one JSON object on standard output")},
};

constexpr int kHelpColumn = 20;
constexpr int kHelpWidth = 78;
const QString kProgram = u"tarnwick-cli"_s;

int takerOf(Verb verb) {
  switch (verb) {
  case Verb::Scan:
    return kScan;
  case Verb::Clean:
    return kClean;
  case Verb::Large:
    return kLarge;
  case Verb::System:
    break;
  }
  return kSystem;
}

/// Whether it looks at the categories.
bool hasCategories(Verb verb) { return (takerOf(verb) & kBoth) != 0; }

/// The names of all verbs, for a sentence.
QString verbNames() {
  QStringList names;
  for (const VerbRow& row : kVerbs) names << u'"' + QLatin1String(row.name) + u'"';
  const QString last = names.takeLast();
  //: %1: one or more words, with commas; %2: the last one
  return Words::tr("%1 and %2").arg(fmt::list(names), last);
}

const VerbRow* findVerb(const QString& name) {
  const auto found =
      std::find_if(kVerbs.begin(), kVerbs.end(), [&](const VerbRow& row) { return name == QLatin1String(row.name); });
  return found == kVerbs.end() ? nullptr : &*found;
}

/// A line of help: the left part, then the text from the column @p indent on.
QString helpLine(const QString& left, const QString& text, int indent = kHelpColumn) {
  return left + QString(std::max(0, indent - terminal::columns(left)), u' ') + u' ' +
         terminal::wrapped(text, kHelpWidth, indent + 1, indent + 1) + u'\n';
}

QString commonHelp() {
  return helpLine(u"  -h, --help"_s, Words::tr("show this help")) +
         helpLine(u"  -v, --version"_s, Words::tr("show the version"));
}

QString generalHelp() {
  //: %1: a command line, which stays as it is
  QString text = Words::tr("Usage: %1").arg(kProgram + u" COMMAND [OPTIONS]\n\n"_s) + Words::tr("Commands:") + u'\n';
  for (const VerbRow& row : kVerbs) text += helpLine(u"  "_s + QLatin1String(row.name), Words::tr(row.summary));
  text += u'\n' + Words::tr("Options:") + u'\n' + commonHelp() + u'\n';
  //: %1: a command line; one: one of the commands above
  return text + Words::tr("Say \"%1\" to learn about one.").arg(kProgram + u" COMMAND --help"_s) + u'\n';
}

QString helpOf(const VerbRow& verb, const QStringList& categoryIds) {
  const QString head = Words::tr("Usage: %1").arg(kProgram + u' ' + QLatin1String(verb.name));
  QString text = helpLine(head, QLatin1String(verb.usage), terminal::columns(head)) + u'\n' + Words::tr(verb.summary) +
                 u"\n\n"_s + Words::tr("Options:") + u'\n';
  for (const OptionRow& row : kOptions) {
    if (!(row.takers & takerOf(verb.verb))) continue;
    const QString value = row.value ? u' ' + QLatin1String(row.value) : QString();
    text += helpLine(u"  --"_s + QLatin1String(row.name) + value,
                     Words::tr(row.text).replace("%1"_L1, platform::trashName()));
  }
  text += commonHelp();
  //: %1: ids, which stay as they are
  if (hasCategories(verb.verb)) text += u'\n' + Words::tr("Categories: %1").arg(categoryIds.join(u", "_s)) + u'\n';
  return text;
}

void addOptions(QCommandLineParser* parser) {
  parser->addOption(QCommandLineOption(QStringList{u"h"_s, u"help"_s}));
  parser->addOption(QCommandLineOption(QStringList{u"v"_s, u"version"_s}));
  for (const OptionRow& row : kOptions) {
    QCommandLineOption option(QLatin1String(row.name));
    if (row.value) option.setValueName(QLatin1String(row.value));
    parser->addOption(option);
  }
}

QString quoted(const QString& text) { return u'\'' + names::escaped(text) + u'\''; }

QString dashed(const QString& name) { return (name.size() == 1 ? u"-"_s : u"--"_s) + name; }

/// The library's sentence as the end of a line that begins with the program's name.
QString asOurs(QString sentence) {
  if (sentence.endsWith(u'.')) sentence.chop(1);
  return sentence.left(1).toLower() + sentence.mid(1);
}

/// Why the command line can't be read at all; empty if it can.
QString misread(const QCommandLineParser& parser, bool understood) {
  const QStringList unknown = parser.unknownOptionNames();
  if (!unknown.isEmpty()) return Words::tr("there is no option %1").arg(quoted(dashed(unknown.first())));
  return understood ? QString() : asOurs(names::escaped(parser.errorText()));
}

/// Why the words beside the options make no command; empty if they do, or if there are none.
QString misworded(const QStringList& words) {
  if (words.isEmpty()) return {};
  if (!findVerb(words.first()))
    return Words::tr("there is no command %1, only %2").arg(quoted(words.first()), verbNames());
  //: %1: a word in quotes
  if (words.size() > 1) return Words::tr("%1 is one word too many").arg(quoted(words.at(1)));
  return {};
}

/// Why these options don't go with this verb, or with each other; empty if they do.
QString mismatched(const QCommandLineParser& parser, const VerbRow& verb) {
  for (const OptionRow& row : kOptions)
    if (parser.isSet(QLatin1String(row.name)) && !(row.takers & takerOf(verb.verb)))
      //: %1: a command; %2: an option
      return Words::tr("\"%1\" takes no --%2").arg(QLatin1String(verb.name), QLatin1String(row.name));
  if (parser.isSet(u"delete"_s) && parser.isSet(u"trash"_s))
    return Words::tr("--delete and --trash exclude each other");
  return {};
}

/// Reads the ids into @p only. An empty list would mean everything, so a variable that a script forgot is an error.
QString readOnly(const QStringList& values, const QStringList& categoryIds, QStringList* only) {
  for (const QString& value : values) {
    for (const QString& part : value.split(u',')) {
      const QString id = part.trimmed();
      if (id.isEmpty()) return Words::tr("--only wants ids of categories: %1").arg(categoryIds.join(u", "_s));
      if (!categoryIds.contains(id))
        return Words::tr("there is no category %1, only %2").arg(quoted(id), categoryIds.join(u", "_s));
      if (!only->contains(id)) *only << id;
    }
  }
  return {};
}

/// Whether "/.." stands behind a wildcard, where it can't be told whose parent is meant.
bool climbsFromWildcard(const QString& rule) {
  const auto wildcard = std::find_if(rule.cbegin(), rule.cend(), [](QChar c) { return c == u'*' || c == u'?'; });
  return (rule + u'/').indexOf(u"/../"_s, wildcard - rule.cbegin()) >= 0;
}

/// @p path without what cleaning takes out of it; empty if it is the root itself, or would lie above it.
QString belowRoot(const QString& path) {
  const QString clean = QDir::cleanPath(path);
  const bool aboveRoot = (clean + u'/').startsWith(u"/../"_s);
  return clean.size() > 1 && clean.contains(u'/') && !aboveRoot ? clean : QString();
}

/// Whether a rule that begins with "~" names something below the root, with a home folder in its place.
bool namesAPlace(const QString& rule) {
  if (rule.size() > 1 && rule.at(1) != u'/') return false;
  const QStringList homes{QDir::homePath(), places::home()};
  return std::any_of(homes.cbegin(), homes.cend(), [&](const QString& home) {
    return !home.isEmpty() && !belowRoot(home + rule.sliced(1)).isEmpty();
  });
}

/// @p rule as it is held against paths, which are clean and end in no slash; empty if none can match. Paths are
/// absolute, so a rule with a slash in it must not begin with a name; and what "~" begins is cleaned with the home
/// folder in its place.
QString matchable(QString rule) {
  while (rule.size() > 1 && rule.endsWith(u'/')) rule.chop(1);
  if (climbsFromWildcard(rule)) return {};
  if (rule.startsWith(u'~')) return namesAPlace(rule) ? rule : QString();
  if (!rule.contains(u'/')) return rule == u"."_s || rule == u".."_s ? QString() : rule;
  if (!rule.startsWith(u'/') && !rule.startsWith(u'*')) return {};
  return belowRoot(rule);
}

/// Reads the rules into @p exclude. A rule that could never match is an error, for somebody relies on it.
QString readExclude(const QStringList& values, QStringList* exclude) {
  for (const QString& value : values) {
    if (value.trimmed().isEmpty()) return Words::tr("--exclude wants a rule");
    const QString rule = matchable(value.trimmed());
    if (rule.isEmpty())
      return Words::tr("the rule %1 matches nothing: a path begins with / or ~/ and lies below /, a name has no slash")
          .arg(quoted(value));
    *exclude << rule;
  }
  return {};
}

/// Reads the size of a large file; the last one counts.
QString readMinimum(const QStringList& values, std::optional<int>* megabytes) {
  if (values.isEmpty()) return {};
  bool isNumber = false;
  const int number = values.last().toInt(&isNumber);
  if (!isNumber || number < 0)
    return Words::tr("--min-mb wants a number of megabytes, not %1").arg(quoted(values.last()));
  *megabytes = number;
  return {};
}

Parsed readCommand(const QCommandLineParser& parser, const VerbRow& verb, const QStringList& categoryIds) {
  Command command;
  command.verb = verb.verb;
  command.json = parser.isSet(u"json"_s);
  command.dryRun = parser.isSet(u"dry-run"_s);
  command.yes = parser.isSet(u"yes"_s);
  if (parser.isSet(u"delete"_s)) command.moveToTrash = false;
  if (parser.isSet(u"trash"_s)) command.moveToTrash = true;
  QString error = mismatched(parser, verb);
  if (error.isEmpty()) error = readOnly(parser.values(u"only"_s), categoryIds, &command.only);
  if (error.isEmpty()) error = readExclude(parser.values(u"exclude"_s), &command.exclude);
  if (error.isEmpty()) error = readMinimum(parser.values(u"min-mb"_s), &command.minMegabytes);
  if (!error.isEmpty()) return {Parsed::Outcome::Error, error, {}};
  return {Parsed::Outcome::Run, {}, command};
}

} // namespace

Parsed parse(const QStringList& arguments, const QStringList& categoryIds) {
  QCommandLineParser parser;
  addOptions(&parser);
  const bool understood = parser.parse(arguments);
  const QStringList words = parser.positionalArguments();
  for (const QString& error : {misread(parser, understood), misworded(words)})
    if (!error.isEmpty()) return {Parsed::Outcome::Error, error, {}};
  const VerbRow* verb = words.isEmpty() ? nullptr : findVerb(words.first());
  if (parser.isSet(u"help"_s)) return {Parsed::Outcome::Show, verb ? helpOf(*verb, categoryIds) : generalHelp(), {}};
  if (parser.isSet(u"version"_s)) return {Parsed::Outcome::Show, kProgram + u' ' + identity::kVersion + u'\n', {}};
  if (!verb) return {Parsed::Outcome::Usage, generalHelp(), {}};
  return readCommand(parser, *verb, categoryIds);
}

} // namespace cli
