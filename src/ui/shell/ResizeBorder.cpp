#include "ui/shell/ResizeBorder.h"

#include <QEvent>
#include <QMouseEvent>
#include <QWidget>
#include <QWindow>

namespace ui {
namespace {

// In pixels.
constexpr int kEdge = 6; // above and below
constexpr int kSide = 4; // left and right
constexpr int kCorner = 16;

class Grip : public QWidget {
 public:
  Grip(Qt::Edges edges, QWidget* window) : QWidget(window), m_edges(edges) { setCursor(resizeCursor(edges)); }

 protected:
  void mousePressEvent(QMouseEvent* event) override {
    QWindow* handle = window()->windowHandle();
    if (event->button() == Qt::LeftButton && handle) handle->startSystemResize(m_edges);
  }
  void mouseDoubleClickEvent(QMouseEvent* event) override { event->accept(); } // it must not reach a title bar below

 private:
  Qt::Edges m_edges;
};

} // namespace

QList<ResizeGrip> resizeGrips(const QSize& window) {
  const QRect all(QPoint(), window);
  const QRegion rim = QRegion(all) - all.adjusted(kSide, kEdge, -kSide, -kEdge);
  const int right = window.width() - kCorner;
  const int bottom = window.height() - kCorner;
  const auto part = [&rim](const QRect& rect) { return rim & rect; };
  return {
      {Qt::TopEdge, part({kCorner, 0, right - kCorner, kCorner})},
      {Qt::BottomEdge, part({kCorner, bottom, right - kCorner, kCorner})},
      {Qt::LeftEdge, part({0, kCorner, kCorner, bottom - kCorner})},
      {Qt::RightEdge, part({right, kCorner, kCorner, bottom - kCorner})},
      {Qt::TopEdge | Qt::LeftEdge, part({0, 0, kCorner, kCorner})},
      {Qt::TopEdge | Qt::RightEdge, part({right, 0, kCorner, kCorner})},
      {Qt::BottomEdge | Qt::LeftEdge, part({0, bottom, kCorner, kCorner})},
      {Qt::BottomEdge | Qt::RightEdge, part({right, bottom, kCorner, kCorner})},
  };
}

Qt::CursorShape resizeCursor(Qt::Edges edges) {
  if (edges == (Qt::TopEdge | Qt::LeftEdge) || edges == (Qt::BottomEdge | Qt::RightEdge)) return Qt::SizeFDiagCursor;
  if (edges == (Qt::TopEdge | Qt::RightEdge) || edges == (Qt::BottomEdge | Qt::LeftEdge)) return Qt::SizeBDiagCursor;
  return edges & (Qt::TopEdge | Qt::BottomEdge) ? Qt::SizeVerCursor : Qt::SizeHorCursor;
}

ResizeBorder::ResizeBorder(QWidget* window) : QObject(window), m_window(window) {
  for (const ResizeGrip& grip : resizeGrips(window->size())) m_grips << new Grip(grip.edges, window);
  window->installEventFilter(this);
  place();
}

bool ResizeBorder::eventFilter(QObject* watched, QEvent* event) {
  switch (event->type()) {
  case QEvent::Resize:
  case QEvent::Show:
  case QEvent::WindowStateChange:
    place();
    break;
  default:
    break;
  }
  return QObject::eventFilter(watched, event);
}

void ResizeBorder::place() {
  const bool fixed = m_window->windowState() & (Qt::WindowMaximized | Qt::WindowFullScreen);
  const QList<ResizeGrip> places = resizeGrips(m_window->size());
  for (qsizetype i = 0; i < m_grips.size(); ++i) {
    const QRect box = places[i].region.boundingRect();
    m_grips[i]->setGeometry(box);
    m_grips[i]->setMask(places[i].region.translated(-box.topLeft()));
    m_grips[i]->setVisible(!fixed);
    m_grips[i]->raise();
  }
}

} // namespace ui
