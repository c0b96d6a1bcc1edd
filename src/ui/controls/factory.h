/// The functions with which all pages build their labels and layouts.
#pragma once

#include <QMargins>
#include <QString>

class QHBoxLayout;
class QKeyEvent;
class QLabel;
class QLayout;
class QMouseEvent;
class QScrollArea;
class QVBoxLayout;
class QWidget;

namespace ui {

class AccessibleButton;

/// A Label; @p role, if not null, is what the style sheet selects on.
[[nodiscard]] QLabel* label(const QString& text, const char* role = nullptr, QWidget* parent = nullptr);
/// A small overline.
[[nodiscard]] QLabel* eyebrow(const QString& text, QWidget* parent = nullptr);
/// Gives @p widget another role, at once; null stores an empty one.
void setRole(QWidget* widget, const char* role);
/// @param margins  as they are from left to right: where the program goes the other way, their sides change places
[[nodiscard]] QHBoxLayout* hbox(int spacing = 0, const QMargins& margins = {});
[[nodiscard]] QVBoxLayout* vbox(int spacing = 0, const QMargins& margins = {});
/// Empties a layout and those in it; widgets are hidden at once and deleted later, so that one of them may be the
/// caller.
void clearLayout(QLayout* layout);

/// A page's scrolling column. No Tab stop itself: it scrolls by the keys that the control with the focus, which it
/// holds, leaves alone. @param column  receives the layout to fill
[[nodiscard]] QScrollArea* scrollPage(QVBoxLayout** column);
/// Begins to move the window on a press of the left button; false: the event is the base class's.
bool dragWindowFrom(QWidget* widget, QMouseEvent* event);
/// Maximises or restores the window on a double click of the left button; false: the event is the base class's.
bool zoomWindowFrom(QWidget* widget, QMouseEvent* event);
/// Presses a painted button by Space or Enter, once while the key is held; false: the event is the base class's.
bool pressFrom(AccessibleButton* button, QKeyEvent* event);

} // namespace ui
