#include "ui/compat.h"

#include "ui/desktop.h"

#include <QGuiApplication>
#include <QStyleHints>

namespace compat {

namespace {

/// What this Qt itself knows about the scheme; Unknown where it doesn't ask the desktop.
Scheme ownScheme() {
#if QT_VERSION >= QT_VERSION_CHECK(6, 5, 0)
  switch (QGuiApplication::styleHints()->colorScheme()) {
  case Qt::ColorScheme::Dark:
    return Scheme::Dark;
  case Qt::ColorScheme::Light:
    return Scheme::Light;
  case Qt::ColorScheme::Unknown:
    break;
  }
#endif
  return Scheme::Unknown;
}

} // namespace

Scheme colorScheme() {
  const Scheme own = ownScheme();
  return own != Scheme::Unknown ? own : desktop::colorScheme();
}

void watchColorScheme(QObject* context, std::function<void()> changed) {
#if QT_VERSION >= QT_VERSION_CHECK(6, 5, 0)
  QObject::connect(QGuiApplication::styleHints(), &QStyleHints::colorSchemeChanged, context, changed);
#endif
  desktop::watch(context, desktop::Wish::ColorScheme, [changed = std::move(changed)] {
    if (ownScheme() == Scheme::Unknown) changed(); // else Qt tells the same change itself
  });
}

bool reducedMotion() { return desktop::reducedMotion(); }

void watchReducedMotion(QObject* context, std::function<void()> changed) {
  desktop::watch(context, desktop::Wish::ReducedMotion, std::move(changed));
}

void setAccent([[maybe_unused]] QPalette* palette, [[maybe_unused]] const QColor& colour) {
#if QT_VERSION >= QT_VERSION_CHECK(6, 6, 0)
  palette->setColor(QPalette::Accent, colour);
#endif
}

} // namespace compat
