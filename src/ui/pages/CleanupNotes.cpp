#include "ui/pages/CleanupNotes.h"

#include "core/fmt.h"
#include "core/platform.h"
#include "ui/pages/CleanupWords.h"

#include <QPushButton>
#include <QSet>
#include <QTextDocumentFragment>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace ui {

namespace {

bool isMac() { return platform::host() == platform::Host::Mac; }

Note* lockNote(const QString& html) { return spokenNote(Note::Info, u"lock"_s, html); }

void addRestart(Note* note) {
  const QPushButton* restart = note->addAction(CleanupWords::tr("Restart as admin"));
  QObject::connect(restart, &QPushButton::clicked, note, [] {
    if (platform::relaunchElevated()) QCoreApplication::quit();
  });
}

Note* diskAccessNote(bool denied) {
  Note* note = lockNote(denied ? CleanupWords::tr("Some folders need Full Disk Access.")
                               : CleanupWords::tr("Some folders may need Full Disk Access."));
  const QPushButton* open = note->addAction(CleanupWords::tr("Open System Settings"));
  QObject::connect(open, &QPushButton::clicked, note, [] { platform::openFullDiskAccessSettings(); });
  return note;
}

QString leftAlone() { return CleanupWords::tr("Some files belong to the system and were left alone."); }

Note* accessNoteOnMac(const CategoryResult& result) {
  if (result.def.needsFullDiskAccess || result.accessDenied) return diskAccessNote(result.accessDenied);
  if (!result.def.needsAdmin || platform::isElevated()) return nullptr;
  Note* note = lockNote(CleanupWords::tr("These files need administrator rights."));
  addRestart(note);
  return note;
}

Note* accessNoteOnLinux(const CategoryResult& result) {
  if (result.accessDenied) return deniedNote();
  return result.def.needsAdmin && !platform::isElevated() ? lockNote(leftAlone()) : nullptr;
}

/// Without duplicates, in the order of first meeting.
QStringList ownersOf(const QList<CleanItem>& items) {
  QStringList owners;
  QSet<QString> met;
  for (const CleanItem& item : items) {
    if (item.owner.isEmpty() || met.contains(item.owner)) continue;
    met.insert(item.owner);
    owners << item.owner;
  }
  return owners;
}

} // namespace

Note* spokenNote(Note::Kind kind, const QString& icon, const QString& html) {
  auto* note = new Note(kind, icon, {});
  setNoteText(note, html);
  return note;
}

void setNoteText(Note* note, const QString& html) {
  note->setText(html);
  note->setAccessibleName(QTextDocumentFragment::fromHtml(html).toPlainText());
}

// A policy without growth would hold it at the height of its hint, which is that of another width.
void addNote(QVBoxLayout* column, Note* note) { column->addWidget(note, 0, Qt::AlignTop); }

Note* administratorNote() {
  if (!isMac()) return lockNote(leftAlone());
  Note* note =
      lockNote(CleanupWords::tr("<b>Some files need administrator rights.</b> Restart Tarnwick as administrator "
                                "and clean again to remove them."));
  addRestart(note);
  return note;
}

Note* deniedNote() {
  return isMac() ? diskAccessNote(true)
                 : lockNote(CleanupWords::tr("You have no permission to read some of these folders."));
}

Note* accessNote(const CategoryResult& result) { return isMac() ? accessNoteOnMac(result) : accessNoteOnLinux(result); }

Note* runningNote(const QList<CleanItem>& items) {
  const QStringList owners = ownersOf(items);
  if (owners.isEmpty()) return nullptr;
  //: %1: an app
  const QString text = owners.size() == 1 ? CleanupWords::tr("%1 is open. Quit it to include its cache.")
                                          : CleanupWords::tr("%1 are open. Quit them to include their caches.");
  return spokenNote(Note::Caution, u"alert"_s, text.arg(fmt::list(owners).toHtmlEscaped()));
}

} // namespace ui
