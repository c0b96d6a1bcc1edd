/// A hairline between two rows.
#pragma once

#include <QWidget>

namespace ui {

class Divider : public QWidget {
  Q_OBJECT

 public:
  explicit Divider(QWidget* parent = nullptr);

 protected:
  void paintEvent(QPaintEvent* event) override;
};

} // namespace ui
