/// What newer Qt versions offer, for every version that the program builds with; and what the desktop tells instead.
#pragma once

#include <QObject>
#include <QPalette>

#include <functional>

namespace compat {

enum class Scheme { Unknown, Light, Dark };

/// The desktop's colour scheme: Qt's own answer where it has one, else the desktop portal's, else Unknown.
[[nodiscard]] Scheme colorScheme();
/// Calls @p changed on the user-interface thread whenever the scheme changes, for as long as @p context lives.
void watchColorScheme(QObject* context, std::function<void()> changed);
/// Whether the desktop asks for less motion. Read afresh or kept up to date by the portal.
[[nodiscard]] bool reducedMotion();
/// Calls @p changed on the user-interface thread whenever that changes, for as long as @p context lives.
void watchReducedMotion(QObject* context, std::function<void()> changed);
/// Sets the palette's accent where this Qt has such a role.
void setAccent(QPalette* palette, const QColor& colour);

} // namespace compat
