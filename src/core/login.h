/// The entry by which the system starts the program, in the background, when the user logs in: a desktop file in the
/// autostart folder on Linux, a launch agent on macOS. User-interface thread only.
#pragma once

#include <QByteArray>
#include <QString>

#include <optional>

namespace login {

/// Path of what starts this program: the image that it was unpacked from to run, where there is one, else its own file.
[[nodiscard]] QString program();

enum class Outcome {
  Done,
  Taken,  ///< something that the program didn't write stands in the entry's place; it was left as it is
  Failed, ///< the entry couldn't be written or removed, its folder isn't the user's, or @p program can't be named in
          ///< one; nothing was changed
};

/// Puts an entry for @p program in place, or brings the one that is there to its first form.
[[nodiscard]] Outcome add(const QString& program);
/// Makes the entry start @p program, and puts one in place if it is missing. What the desktop or the user has changed
/// of it besides, such as switching it off, stays; nothing is written where nothing differs.
[[nodiscard]] Outcome keep(const QString& program);
/// Removes the entry. What the program didn't write stays, and is no failure.
[[nodiscard]] Outcome remove();

/// Where the entry of the system that the program was built for lies.
[[nodiscard]] QString path();
/// The text of such an entry; empty if @p program can't be named in one.
[[nodiscard]] QByteArray text(const QString& program);
/// The text of an own entry that starts @p program instead, with all that was changed in it besides; empty likewise.
[[nodiscard]] QByteArray brought(const QByteArray& entry, const QString& program);

// The texts of both systems, compiled everywhere.

/// A desktop file, by the rules of freedesktop.org for desktop entries (1.5) and for autostart (0.5).
[[nodiscard]] QByteArray desktopEntry(const QString& program);
/// The same with the lines of @p entry, where only what is started differs.
[[nodiscard]] QByteArray desktopEntry(const QByteArray& entry, const QString& program);
/// The value of its Exec key. None where the rules have no way to write it: no absolute path, a control character in
/// it, no Unicode.
[[nodiscard]] std::optional<QByteArray> execValue(const QString& program);
/// A launch agent's property list.
[[nodiscard]] QByteArray launchAgent(const QString& program);
/// Whether the program wrote this entry.
[[nodiscard]] bool isOwn(const QByteArray& entry);

} // namespace login
