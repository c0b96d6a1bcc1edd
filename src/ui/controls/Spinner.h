/// A turning arc: something is going on. It turns only while it is shown, and stands still under reduced motion.
#pragma once

#include <QWidget>

namespace ui {

class Ticker;

class Spinner : public QWidget {
  Q_OBJECT

 public:
  /// @param size  of its side in pixels
  explicit Spinner(int size, QWidget* parent = nullptr);

  /// Clockwise, in degrees from 0 to 359.
  [[nodiscard]] int angle() const { return m_angle; }
  [[nodiscard]] bool isTurning() const;

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  void turn();

  Ticker* m_ticker;
  int m_angle = 0;
};

} // namespace ui
