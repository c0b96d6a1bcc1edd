/// A line icon on a rounded square of its own colour. Decoration: the mouse doesn't see it.
#pragma once

#include <QColor>
#include <QWidget>

namespace ui {

struct IconTileLayout {
  QRectF body;
  double radius = 0;
  QRectF icon;
};
[[nodiscard]] IconTileLayout iconTileLayout(const QSize& size);

class IconTile : public QWidget {
  Q_OBJECT

 public:
  /// @param size  of its side in pixels
  IconTile(const QString& icon, const QColor& colour, int size, QWidget* parent = nullptr);

  void set(const QString& icon, const QColor& colour);

  bool muted = false; ///< grey, for what is out of use; call update() after a change

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  QString m_icon;
  QColor m_colour;
};

} // namespace ui
