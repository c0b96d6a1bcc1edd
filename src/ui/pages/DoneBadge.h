/// A shining check mark: something went well. Decoration.
#pragma once

#include <QPolygonF>
#include <QRectF>
#include <QWidget>

namespace ui {

struct DoneBadgeLayout {
  QRectF glow;
  QRectF disc;
  QPolygonF check;
};
[[nodiscard]] DoneBadgeLayout doneBadgeLayout(const QSize& size);

class DoneBadge : public QWidget {
  Q_OBJECT

 public:
  explicit DoneBadge(QWidget* parent = nullptr);

 protected:
  void paintEvent(QPaintEvent* event) override;
};

} // namespace ui
