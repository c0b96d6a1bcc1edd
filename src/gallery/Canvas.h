/// A still picture that is painted anew in every look.
#pragma once

#include <QWidget>

#include <functional>

class QPainter;

namespace gallery {

class Canvas : public QWidget {
  Q_OBJECT

 public:
  /// @param paint  called with an antialiasing painter over the whole widget, whose size is fixed
  Canvas(const QSize& size, std::function<void(QPainter*)> paint);

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  std::function<void(QPainter*)> m_paint;
};

} // namespace gallery
