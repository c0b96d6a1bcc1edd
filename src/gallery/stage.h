/// Puts controls into states that otherwise need a pointer or a keyboard. They keep them until one really comes.
#pragma once

#include <QAbstractButton>
#include <QWidget>

#include <functional>

namespace gallery {

/// Lets the pointer come to @p place, in the coordinates of @p control. One at a time for the application as a whole is
/// what a real one could.
void pointAt(QWidget* control, const QPointF& place);
/// Calls @p act when @p control has its place and size for the first time.
void onceShown(QWidget* control, std::function<void()> act);

template <typename Control>
Control* hovered(Control* control) {
  pointAt(control, QPointF(1, 1));
  return control;
}

template <typename Control>
Control* disabled(Control* control) {
  control->setEnabled(false);
  return control;
}

template <typename Control>
Control* pressed(Control* control) {
  hovered(control)->setDown(true);
  return control;
}

template <typename Control>
Control* checked(Control* control) {
  control->setCheckable(true);
  control->setChecked(true);
  return control;
}

/// As if the focus had come to @p control by Tab. Several look focused at once, as each of them says that it has the
/// focus when @p keeper has it.
void giveFocus(QWidget* control, QWidget* keeper);

} // namespace gallery
