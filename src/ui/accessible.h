/// What painted controls tell a screen reader. A control implements one of the small faces below beside QWidget; one
/// factory turns them into accessible interfaces. User-interface thread only.
#pragma once

#include <QAccessible>
#include <QRect>
#include <QString>

class QWidget;

namespace ui {

/// A control that shows a value: a gauge, a ring, a bar. The value is also told as text.
class AccessibleValue {
 public:
  virtual ~AccessibleValue() = default;
  /// What the sighted user reads: "62% used".
  [[nodiscard]] virtual QString valueText() const = 0;
  /// Between 0 and 1; negative while there is none (an indeterminate bar).
  [[nodiscard]] virtual double valueFraction() const = 0;
};

/// A control that is one painted button. It may be an AccessibleValue too, and is a button that tells a value then.
class AccessibleButton {
 public:
  virtual ~AccessibleButton() = default;
  /// What stands on the button; its name, unless QWidget::accessibleName is set.
  [[nodiscard]] virtual QString buttonText() const = 0;
  /// Whether there is anything to press; where there isn't, it is read as a text. For the whole life of the widget.
  [[nodiscard]] virtual bool isPressable() const { return true; }
  /// Whether it is one of several of which one is chosen.
  [[nodiscard]] virtual bool isChoice() const { return false; }
  /// Whether it is the chosen one.
  [[nodiscard]] virtual bool isChosen() const { return false; }
  /// Does what a click does.
  virtual void press() = 0;
};

/// A control that paints a text and does nothing else: a badge, a big number.
class AccessibleText {
 public:
  virtual ~AccessibleText() = default;
  /// What the sighted user reads; its name, unless QWidget::accessibleName is set.
  [[nodiscard]] virtual QString shownText() const = 0;
};

/// A control with parts that can be reached and worked one by one: segments, tiles.
class AccessibleItems {
 public:
  struct Item {
    QString name;       ///< what the sighted user reads of it
    QString value = {}; ///< what it shows besides, such as a size
    QRect rect;         ///< in the control's coordinates
    bool checkable = false;
    bool checked = false;
    bool selectable = false; ///< a row or tile of a list, which can be chosen
    bool selected = false;
    bool current = false; ///< has the control's keyboard focus
    bool shown = true;    ///< is on the screen, as far as the control is
  };

  virtual ~AccessibleItems() = default;
  [[nodiscard]] virtual QAccessible::Role itemsRole() const = 0; ///< of the whole control
  [[nodiscard]] virtual QAccessible::Role itemRole() const = 0;  ///< of one part
  [[nodiscard]] virtual int itemCount() const = 0;
  /// @param index  from 0 to itemCount() - 1
  [[nodiscard]] virtual Item itemAt(int index) const = 0;
  /// Does what a click on the part does.
  virtual void activateItem(int index) = 0;
};

/// A control that shows one of its parts and lists all of them when it is opened.
class AccessibleDropDown : public AccessibleItems {
 public:
  /// What the sighted user reads of the closed control.
  [[nodiscard]] virtual QString chosenText() const = 0;
  [[nodiscard]] virtual bool isExpanded() const = 0;
  virtual void setExpanded(bool on) = 0;
};

/// A dialog that covers a part of its window.
class AccessibleDialog {
 public:
  virtual ~AccessibleDialog() = default;
};

/// An area that dialogs cover. While one does, a reader finds nothing else in it.
class AccessibleArea {
 public:
  virtual ~AccessibleArea() = default;
  /// A child of the area; null while there is none.
  [[nodiscard]] virtual QWidget* coveringDialog() const = 0;
};

/// Makes the interfaces known to Qt; Theme::install does it. More calls do nothing.
void installAccessibility();

/// Tells assistive tools, if there are any, that the value of @p widget has changed.
void accessibleValueChanged(QWidget* widget);
/// Tells assistive tools, if there are any, that the text of @p widget has changed.
void accessibleTextChanged(QWidget* widget);
/// Tells assistive tools, if there are any, that @p widget has been opened or closed.
void accessibleExpandedChanged(QWidget* widget);
/// Tells assistive tools, if there are any, that the parts of @p widget, or their states, have changed.
/// @param current  the part that the change is about and that the keyboard works now; -1 for none
void accessibleItemsChanged(QWidget* widget, int current);

} // namespace ui
