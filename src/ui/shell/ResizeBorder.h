/// The edges and corners by which a window without a system's frame is resized.
#pragma once

#include <QList>
#include <QObject>
#include <QRegion>

class QWidget;

namespace ui {

struct ResizeGrip {
  Qt::Edges edges;
  QRegion region; ///< in the window
};
/// Four corners, each an angle, and between them four edges; together they are the outermost pixels of a window of this
/// size. At the sides they are so narrow that a scroll bar at the window's edge can still be taken.
[[nodiscard]] QList<ResizeGrip> resizeGrips(const QSize& window);
[[nodiscard]] Qt::CursorShape resizeCursor(Qt::Edges edges);

/// Lies on the window's content. Away while the window is maximised or fills the screen.
class ResizeBorder : public QObject {
  Q_OBJECT

 public:
  /// Owned by @p window.
  explicit ResizeBorder(QWidget* window);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void place();

  QWidget* m_window;
  QList<QWidget*> m_grips;
};

} // namespace ui
