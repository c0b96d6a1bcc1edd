/// A one-line label that shortens its text to the room it is given.
#pragma once

#include <QLabel>

namespace ui {

/// In a layout it takes what room there is, and gives way almost to nothing unless a minimum width is set.
/// Its tool tip is the whole text that it was built with, and doesn't follow a later setText().
class ElidedLabel : public QLabel {
  Q_OBJECT

 public:
  /// @param role  what the style sheet selects on; null for none
  explicit ElidedLabel(const QString& text, const char* role = nullptr, QWidget* parent = nullptr);

  [[nodiscard]] QSize minimumSizeHint() const override;

 protected:
  void changeEvent(QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  void allowShrinking();
  [[nodiscard]] int leastWidth() const;

  int m_leastWidth = 0; ///< the minimum width that it gave itself
};

} // namespace ui
