/// A small home folder with something in every category, and with things that a clean must leave.
#pragma once

#include "support/FixtureHome.h"

#include <QMap>
#include <QStringList>

/// Fills @p home as a Linux desktop would look to the program.
void fillSampleHome(const FixtureHome& home);

/// What is below the fixture's root: path to type, size, modification time and contents or link target.
/// The settings of the test itself are left out.
[[nodiscard]] QMap<QByteArray, QByteArray> wholeTree(const FixtureHome& home);

/// Adds many old installers to the sample home, each an item.
void addManyItems(const FixtureHome& home, int count);

/// Options that make the program think hard about every path, so that a test can step in while it runs: rules that
/// match nothing and are slow to tell it.
[[nodiscard]] QStringList slowRules();
