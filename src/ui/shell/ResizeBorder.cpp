#include "ui/shell/ResizeBorder.h"

#include <QEvent>
#include <QMouseEvent>
#include <QWidget>
#include <QWindow>

namespace ui {
namespace {

// In pixels.
constexpr int kEdge = 8;
constexpr int kCorner = 16;

class Grip : public QWidget {
 public:
  Grip(Qt::Edges edges, QWidget* window) : QWidget(window), m_edges(edges) {
    setCursor(resizeCursor(edges));
    setAccessibleName({});
  }

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
  const int w = window.width();
  const int h = window.height();
  return {
      {Qt::TopEdge, QRect(kCorner, 0, w - 2 * kCorner, kEdge)},
      {Qt::BottomEdge, QRect(kCorner, h - kEdge, w - 2 * kCorner, kEdge)},
      {Qt::LeftEdge, QRect(0, kCorner, kEdge, h - 2 * kCorner)},
      {Qt::RightEdge, QRect(w - kEdge, kCorner, kEdge, h - 2 * kCorner)},
      {Qt::TopEdge | Qt::LeftEdge, QRect(0, 0, kCorner, kCorner)},
      {Qt::TopEdge | Qt::RightEdge, QRect(w - kCorner, 0, kCorner, kCorner)},
      {Qt::BottomEdge | Qt::LeftEdge, QRect(0, h - kCorner, kCorner, kCorner)},
      {Qt::BottomEdge | Qt::RightEdge, QRect(w - kCorner, h - kCorner, kCorner, kCorner)},
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
    m_grips[i]->setGeometry(places[i].rect);
    m_grips[i]->setVisible(!fixed);
    m_grips[i]->raise();
  }
}

} // namespace ui
