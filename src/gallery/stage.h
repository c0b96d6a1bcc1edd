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
  control->setAttribute(Qt::WA_UnderMouse);
  onceShown(control, [control] { pointAt(control, QPointF(control->height() / 2.0, control->height() / 2.0)); });
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

/// Calls @p set now and in every look to come: for what takes its colours from outside.
void inEveryLook(QWidget* control, const std::function<void()>& set);

/// As if the focus had come to @p control by Tab. Several look focused at once, as each of them says that it has the
/// focus when @p keeper has it.
void giveFocus(QWidget* control, QWidget* keeper);

} // namespace gallery
