/// Finds what doesn't fit on a window: texts that are cut, shortened or in each other's way, and widgets that a layout
/// has no room for.
#pragma once

#include <QString>
#include <QStringList>

class QWidget;

/// What is wrong with what @p root shows, one line each; empty if nothing is. What scrolls may reach beyond its view in
/// the direction in which it scrolls. Names of files and paths may be shortened, and the texts of an ElidedLabel.
/// - "cut TEXT": a part of it lies outside its widget, its clip or a parent
/// - "shortened TEXT": an ellipsis stands for a part of it
/// - "TEXT on TEXT": they overlap
/// - "CLASS on CLASS", "CLASS outgrows CLASS": widgets of one layout overlap, or one reaches beyond its parent
[[nodiscard]] QStringList misfits(QWidget* root);
