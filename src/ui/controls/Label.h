/// A text that stands at the side of its layout's direction, and reads in its own.
#pragma once

#include <QLabel>

namespace ui {

/// A QLabel puts a text to the side where the text itself begins, so that English is left alone at the far end of a row
/// that goes from right to left. This one is like it in all else.
class Label : public QLabel {
  Q_OBJECT

 public:
  explicit Label(const QString& text = {}, QWidget* parent = nullptr);

 protected:
  void changeEvent(QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  void keepSide();
};

} // namespace ui
