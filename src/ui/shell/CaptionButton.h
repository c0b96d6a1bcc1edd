/// One of the buttons of the window's own title bar.
#pragma once

#include "ui/controls/PaintedButton.h"

#include <QPainterPath>

namespace ui {

/// A click of the mouse doesn't give it the focus, nor does Tab: the keyboard has the window manager's own keys.
class CaptionButton : public PaintedButton {
  Q_OBJECT

 public:
  enum Kind {
    Menu = 0,     ///< opens the application menu
    Minimize = 1, ///< minimises the window
    Maximize = 2, ///< toggles maximised and normal
    Close = 3,    ///< closes the window
  };

  explicit CaptionButton(Kind kind, QWidget* parent = nullptr);

  [[nodiscard]] Kind kind() const { return m_kind; }

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  [[nodiscard]] bool isMaximized() const;
  [[nodiscard]] QColor paintBody(QPainter* painter) const;

  Kind m_kind;
};

/// The drawn shape of a button, around the origin, for where no symbol font is installed.
[[nodiscard]] QPainterPath captionShape(CaptionButton::Kind kind, bool maximized);

} // namespace ui
