/// What a build of the program offers: one that a distribution updates has nothing of updates in it.
#pragma once

#include "core/deployment.h"

#include <QStringList>

/// Of the texts of a menu, those that this build has.
inline QStringList offered(QStringList texts) {
  if (!deployment::updatesItself())
    texts.removeIf([](const QString& text) { return text.startsWith(QStringLiteral("Check for Updates")); });
  return texts;
}
