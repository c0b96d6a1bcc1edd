#include "ui/controls/factory.h"

#include "ui/Theme.h"
#include "ui/accessible.h"
#include "ui/controls/Label.h"
#include "ui/desktop.h"
#include "ui/eyebrow.h"
#include "ui/paint.h"

#include <QApplication>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QMouseEvent>
#include <QScrollArea>
#include <QScrollBar>
#include <QStyle>
#include <QVBoxLayout>
#include <QWindow>

namespace ui {

namespace {

constexpr char kRole[] = "role";
constexpr int kEyebrowPx = 11;
constexpr int kPageMarginMac = 28;
constexpr int kPageMarginWin = 32;
constexpr int kPageTop = 4;

template <typename Layout>
Layout* box(int spacing, const QMargins& margins) {
  auto* layout = new Layout;
  layout->setSpacing(spacing);
  layout->setContentsMargins(paint::mirrored(margins, QGuiApplication::layoutDirection()));
  return layout;
}

QWindow* handleOf(const QWidget* widget) { return widget->window()->windowHandle(); }

/// Waits for the first move after a press of the left button, and begins to move the window then.
class PendingDrag : public QObject {
 public:
  PendingDrag(QWidget* widget, const QPoint& pressedAt) : QObject(widget), m_pressedAt(pressedAt) {
    widget->installEventFilter(this);
  }

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override {
    switch (event->type()) {
    case QEvent::MouseMove:
      return moved(static_cast<QWidget*>(watched), static_cast<QMouseEvent*>(event));
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::Hide:
      deleteLater();
      return false;
    default:
      return false;
    }
  }

 private:
  bool moved(QWidget* widget, const QMouseEvent* event) {
    if (m_done || !event->buttons().testFlag(Qt::LeftButton)) return false;
    const QPoint way = event->globalPosition().toPoint() - m_pressedAt;
    if (way.manhattanLength() < QApplication::startDragDistance()) return false;
    m_done = true;
    deleteLater();
    if (QWindow* window = handleOf(widget)) window->startSystemMove();
    return true;
  }

  QPoint m_pressedAt;
  bool m_done = false;
};

/// For a widget that goes: it would be dressed again when it loses its parent, which takes as long as to build another.
void forgetLook(QWidget* widget) {
  widget->setAttribute(Qt::WA_WState_Polished, false);
  for (QWidget* child : widget->findChildren<QWidget*>()) child->setAttribute(Qt::WA_WState_Polished, false);
}

} // namespace

QLabel* label(const QString& text, const char* role, QWidget* parent) {
  auto* label = new Label(text, parent);
  if (role) label->setProperty(kRole, QString::fromLatin1(role));
  return label;
}

QLabel* eyebrow(const QString& text, QWidget* parent) {
  QLabel* result = label(eyebrowText(text), "micro", parent);
  result->setFont(Theme::get().eyebrow(kEyebrowPx));
  return result;
}

void setRole(QWidget* widget, const char* role) {
  widget->setProperty(kRole, QString::fromLatin1(role));
  widget->style()->unpolish(widget);
  widget->style()->polish(widget);
}

QHBoxLayout* hbox(int spacing, const QMargins& margins) { return box<QHBoxLayout>(spacing, margins); }
QVBoxLayout* vbox(int spacing, const QMargins& margins) { return box<QVBoxLayout>(spacing, margins); }

void clearLayout(QLayout* layout) {
  while (QLayoutItem* item = layout->takeAt(0)) {
    if (QWidget* widget = item->widget()) {
      widget->hide();
      forgetLook(widget);
      widget->setParent(nullptr);
      widget->deleteLater();
    } else if (QLayout* nested = item->layout()) {
      clearLayout(nested);
    }
    delete item;
  }
}

namespace {

// What a page shows ends below what its header shows, whether there is a scroll bar beside it or not. As its width is
// the same in both cases, a text that wraps can't make the bar come and go.
void keepEdge(const QScrollArea* area, QVBoxLayout* column, int margin) {
  const QScrollBar* bar = area->verticalScrollBar();
  QObject::connect(bar, &QScrollBar::rangeChanged, column, [bar, column, margin](int least, int most) {
    QMargins margins = column->contentsMargins();
    const int beside = most > least ? margin - bar->sizeHint().width() : margin;
    bar->layoutDirection() == Qt::RightToLeft ? margins.setLeft(beside) : margins.setRight(beside);
    column->setContentsMargins(margins);
  });
}

} // namespace

QScrollArea* scrollPage(QVBoxLayout** column) {
  const int margin = Theme::get().mac ? kPageMarginMac : kPageMarginWin;
  auto* area = new QScrollArea;
  area->setWidgetResizable(true);
  area->setFrameShape(QFrame::NoFrame);
  area->setFocusPolicy(Qt::NoFocus); // Tab stops at what lies in it, and their keys reach it too
  area->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  auto* content = new QWidget;
  *column = vbox(0, {margin, kPageTop, margin, margin});
  content->setLayout(*column);
  area->setWidget(content);
  keepEdge(area, *column, margin);
  return area;
}

bool dragWindowFrom(QWidget* widget, QMouseEvent* event) {
  QWindow* window = handleOf(widget);
  if (event->button() != Qt::LeftButton || !window) return false;
  if (desktop::dragStart() == desktop::DragStart::AtPress)
    window->startSystemMove();
  else
    new PendingDrag(widget, event->globalPosition().toPoint());
  return true;
}

bool zoomWindowFrom(QWidget* widget, QMouseEvent* event) {
  if (event->button() != Qt::LeftButton) return false;
  QWidget* window = widget->window();
  window->isMaximized() ? window->showNormal() : window->showMaximized();
  return true;
}

bool pressFrom(AccessibleButton* button, QKeyEvent* event) {
  switch (event->key()) {
  case Qt::Key_Space:
  case Qt::Key_Return:
  case Qt::Key_Enter:
    if (!event->isAutoRepeat()) button->press();
    return true;
  default:
    return false;
  }
}

} // namespace ui
