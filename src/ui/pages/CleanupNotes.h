/// The hint boxes of the Cleanup page, in the words of the host.
#pragma once

#include "app/records.h"
#include "ui/controls/Note.h"

class QVBoxLayout;

namespace ui {

/// A note that a screen reader hears as one text.
[[nodiscard]] Note* spokenNote(Note::Kind kind, const QString& icon, const QString& html);
/// Gives such a note another text.
void setNoteText(Note* note, const QString& html);
/// Appends a note that is as high as its text needs, though there be more room.
void addNote(QVBoxLayout* column, Note* note);

/// After a clean: some files need administrator rights. On Linux without a button, as there are none to be had.
[[nodiscard]] Note* administratorNote();
/// Some folders could not be read; on macOS with the way to the settings that allow it.
[[nodiscard]] Note* deniedNote();
/// In the detail of a category: what of it could not be read, or will not be cleaned; null if there is nothing to say.
[[nodiscard]] Note* accessNote(const CategoryResult& result);
/// In the detail of a category: the apps that must be quit first; null if none runs.
[[nodiscard]] Note* runningNote(const QList<CleanItem>& items);

} // namespace ui
