/// A one-line label that shortens its text to the room it is given.
#pragma once

#include <QLabel>

namespace ui {

/// Its tool tip is the whole text that it was built with, and doesn't follow a later setText().
class ElidedLabel : public QLabel {
  Q_OBJECT

 public:
  /// @param role  what the style sheet selects on; null for none
  explicit ElidedLabel(const QString& text, const char* role = nullptr, QWidget* parent = nullptr);

  [[nodiscard]] QSize minimumSizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;
};

} // namespace ui
