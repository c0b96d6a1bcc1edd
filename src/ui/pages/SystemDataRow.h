/// One item of the System Data breakdown: what it is, how much it holds, and what can be done about it.
#pragma once

#include "app/records.h"
#include "ui/accessible.h"

#include <QWidget>

namespace ui {

class Button;
class KeyboardFocus;

/// Whether there is anything to show of an item.
[[nodiscard]] bool hasRow(const SystemDataItem& item);

/// How wide the column of sizes and buttons is in all rows, in pixels.
/// @param widestSize   of the sizes' texts, in their font
/// @param widestLabel  of the buttons' texts, in their font; 0 if there are none
[[nodiscard]] int systemDataColumn(int widestSize, int widestLabel);
/// The same for the rows of @p items; those without a row don't count.
[[nodiscard]] int systemDataColumn(const QList<SystemDataItem>& items);

class SystemDataRow : public QWidget, public AccessibleText {
  Q_OBJECT

 public:
  /// @param column  width of the column of sizes and buttons in pixels
  /// @param busy    whether nothing can be done now
  SystemDataRow(const SystemDataItem& item, int column, bool busy, QWidget* parent = nullptr);

  /// The item's.
  [[nodiscard]] QString id() const { return m_id; }
  /// Null where there is nothing to be done.
  [[nodiscard]] Button* button() const { return m_button; }
  /// Whether the keyboard's ring is around the button.
  [[nodiscard]] bool showsFocus() const;

  /// "Hidden folders in your home folder, 1.2 GB, Largest: .npm, .nvm"
  [[nodiscard]] QString shownText() const override { return m_shown; }

 private:
  QLayout* buildText(const SystemDataItem& item);
  QWidget* buildColumn(const SystemDataItem& item, int width, bool busy);

  QString m_id;
  QString m_shown;
  Button* m_button = nullptr;
  KeyboardFocus* m_focus = nullptr; ///< of the button
};

} // namespace ui
