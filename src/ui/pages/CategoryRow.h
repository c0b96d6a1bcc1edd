/// One category in the list of what a scan found: a row to click, with other controls in it.
#pragma once

#include "ui/accessible.h"

#include <QWidget>

#include <functional>

namespace ui {

class KeyboardFocus;

/// Space and Enter do what a click does. Its accessible name is the caller's to set.
class CategoryRow : public QWidget, public AccessibleButton {
  Q_OBJECT

 public:
  explicit CategoryRow(QWidget* parent = nullptr);

  bool active = false;           ///< its category is on show
  std::function<void()> onClick; ///< may remove the row, if that deletes it later

  /// Whether it has the focus from the keyboard.
  [[nodiscard]] bool isKeyboardFocused() const;

  [[nodiscard]] QString buttonText() const override { return accessibleName(); }
  [[nodiscard]] bool isChoice() const override { return true; }
  [[nodiscard]] bool isChosen() const override { return active; }
  void press() override;

 protected:
  bool event(QEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  KeyboardFocus* m_focus;
};

} // namespace ui
