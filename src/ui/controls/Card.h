/// The rounded panel that groups what belongs together.
#pragma once

#include <QColor>
#include <QFrame>

namespace ui {

class Card : public QFrame {
  Q_OBJECT

 public:
  explicit Card(QWidget* parent = nullptr);

  QColor fill;          ///< instead of the theme's card colour, if valid; call update() after a change
  bool bordered = true; ///< whether a hairline runs around it; call update() after a change

 protected:
  void paintEvent(QPaintEvent* event) override;
};

} // namespace ui
