/// A small home folder with something in every category, and with things that a clean must leave.
#pragma once

#include "support/FixtureHome.h"

#include <QMap>

/// Fills @p home as a Linux desktop would look to the program.
void fillSampleHome(const FixtureHome& home);

/// What is below the fixture's root: path to type, size, modification time and contents or link target.
/// The settings of the test itself are left out.
[[nodiscard]] QMap<QByteArray, QByteArray> wholeTree(const FixtureHome& home);

/// Makes @p count folders with @p filesEach small files in each, below an existing folder.
void makeFolders(const QString& below, int count, int filesEach);
