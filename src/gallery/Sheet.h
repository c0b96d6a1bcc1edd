/// Every control in every state, below one another.
#pragma once

#include <QWidget>

class QLabel;
class QVBoxLayout;

namespace gallery {

/// On the backdrop of the window, in the look and metrics in force. Its width is fixed, its height follows.
class Sheet : public QWidget {
  Q_OBJECT

 public:
  Sheet();

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  void addSections(QVBoxLayout* column);
  void tellLook();

  QLabel* m_look;
};

} // namespace gallery
