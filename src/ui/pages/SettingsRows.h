/// What the Settings page is built of: sections, rows, choices, and the sign of what can't be changed.
#pragma once

#include <QList>
#include <QString>

class QVBoxLayout;
class QWidget;

namespace ui {

class Select;

struct SettingsRowWords {
  QString icon;
  QString title;
  QString description; ///< told by the row's tip, and to screen readers
};
/// One setting. @param control  what changes it, at the right; takes the row's words for screen readers, but for its
/// name where it has a text of its own
/// @param second  stands left of the control; may be null
[[nodiscard]] QWidget* settingsRow(const SettingsRowWords& words, QWidget* control, QWidget* second = nullptr);

/// Appends rows under a heading, in a card, with a line between two rows.
void addSettingsSection(QVBoxLayout* column, const QString& title, const QList<QWidget*>& rows);

struct SettingsChoice {
  QString text;
  int value = 0;
};
inline constexpr int kUsualChoiceWidth = 130; ///< pixels

/// Lists the choices with their values as data; shows the one of @p present, else the first.
[[nodiscard]] Select* settingsSelect(const QList<SettingsChoice>& choices, int present,
                                     int minWidth = kUsualChoiceWidth);

/// A green sign and word in a control's place.
[[nodiscard]] QWidget* settingsStatus(const QString& icon, const QString& text);

} // namespace ui
