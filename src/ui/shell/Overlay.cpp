#include "ui/shell/Overlay.h"

#include "ui/Theme.h"
#include "ui/desktop.h"
#include "ui/paint.h"

#include <QApplication>
#include <QKeyEvent>
#include <QLayout>
#include <QMouseEvent>
#include <QPainter>
#include <QPropertyAnimation>
#include <QPushButton>

namespace ui {
namespace {

constexpr int kSlideMs = 180;
// Lengths in pixels.
constexpr int kRise = 12;
constexpr double kRadiusMac = 12;
constexpr double kRadiusWin = 8;
constexpr int kShadowLayers = 6;
constexpr int kShadowAlpha = 6; // of 255, of each layer
constexpr double kShadowDrop = 4;

/// The card. Its shadow is clipped to it, so it only darkens the corners.
class Panel : public QWidget {
 public:
  using QWidget::QWidget;

  /// As high as its wrapped texts are at the width that it is given.
  [[nodiscard]] QSize sizeHint() const override {
    QSize hint = QWidget::sizeHint();
    if (!layout() || !layout()->hasHeightForWidth()) return hint;
    hint.setWidth(qMin(qMax(hint.width(), minimumWidth()), maximumWidth()));
    hint.setHeight(layout()->totalHeightForWidth(hint.width()));
    return hint;
  }

 protected:
  void mousePressEvent(QMouseEvent* event) override { event->accept(); } // it must not reach the veil

  void paintEvent(QPaintEvent* /*event*/) override {
    const Theme& theme = Theme::get();
    const double radius = theme.mac ? kRadiusMac : kRadiusWin;
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    for (int i = kShadowLayers; i > 0; --i) {
      const QRectF layer = QRectF(rect()).translated(0, kShadowDrop).adjusted(-i, -i, i, i);
      paint::roundedRect(&painter, layer, radius + i, paint::withAlpha(Qt::black, kShadowAlpha));
    }
    paint::roundedRect(&painter, paint::hairline(rect()), radius, theme.surface, paint::pen(theme.line));
  }
};

/// The next control of @p root in the order of Tab that takes the focus by Tab; null if there is none.
QWidget* nextIn(const QWidget* root, QWidget* from, bool forward) {
  QWidget* at = from;
  do {
    at = forward ? at->nextInFocusChain() : at->previousInFocusChain();
    const bool takesTab = at->focusPolicy() & Qt::TabFocus;
    if (at != root && root->isAncestorOf(at) && takesTab && at->isEnabled() && at->isVisibleTo(root)) return at;
  } while (at != from);
  return nullptr;
}

} // namespace

Overlay::Overlay(QWidget* parent) : QWidget(parent), panel(new Panel(this)) {
  setAttribute(Qt::WA_DeleteOnClose);
  setFocusPolicy(Qt::StrongFocus);
  parent->installEventFilter(this);
  hide();
}

void Overlay::open() {
  m_before = QApplication::focusWidget();
  setGeometry(parentWidget()->rect());
  panel->adjustSize();
  place();
  show();
  raise();
  setFocus();
  tellReaders(QAccessible::DialogStart);
  slideIn();
}

// What the area below holds changes for them with the dialog.
void Overlay::tellReaders(QAccessible::Event what) {
  QAccessibleEvent dialog(this, what);
  QAccessible::updateAccessibility(&dialog);
  QAccessibleEvent area(parentWidget(), QAccessible::ObjectReorder);
  QAccessible::updateAccessibility(&area);
}

void Overlay::place() {
  panel->resize(panel->sizeHint().expandedTo(panel->minimumSize()));
  const int x = (width() - panel->width()) / 2;
  const QPoint place(x, Theme::get().mac ? 0 : (height() - panel->height()) / 2);
  m_slide ? m_slide->setEndValue(place) : panel->move(place);
}

void Overlay::slideIn() {
  if (desktop::reducedMotion()) return;
  m_slide = new QPropertyAnimation(panel, "pos", this);
  const QPoint end = panel->pos();
  m_slide->setStartValue(QPoint(end.x(), Theme::get().mac ? -panel->height() : end.y() + kRise));
  m_slide->setEndValue(end);
  m_slide->setDuration(kSlideMs);
  m_slide->setEasingCurve(QEasingCurve::OutCubic);
  m_slide->start(QAbstractAnimation::DeleteWhenStopped);
}

bool Overlay::eventFilter(QObject* watched, QEvent* event) {
  if (watched == parent() && event->type() == QEvent::Resize) {
    setGeometry(parentWidget()->rect());
    place();
  }
  return QWidget::eventFilter(watched, event);
}

bool Overlay::focusNextPrevChild(bool next) {
  QWidget* from = QApplication::focusWidget();
  if (!from || !isAncestorOf(from)) from = this;
  if (QWidget* to = nextIn(this, from, next)) to->setFocus(next ? Qt::TabFocusReason : Qt::BacktabFocusReason);
  return true;
}

void Overlay::closeEvent(QCloseEvent* event) {
  if (m_before) m_before->setFocus(Qt::OtherFocusReason);
  QWidget::closeEvent(event);
}

void Overlay::hideEvent(QHideEvent* event) {
  tellReaders(QAccessible::DialogEnd);
  QWidget::hideEvent(event);
}

void Overlay::keyPressEvent(QKeyEvent* event) {
  switch (event->key()) {
  case Qt::Key_Escape:
    close();
    return;
  case Qt::Key_Return:
  case Qt::Key_Enter:
    if (QPushButton* button = event->isAutoRepeat() ? nullptr : buttonForEnter()) return button->click();
    break;
  default:
    break;
  }
  QWidget::keyPressEvent(event);
}

// The button that has the focus, which may be the one that cancels, before the default one.
QPushButton* Overlay::buttonForEnter() const {
  const auto isReady = [](const QPushButton* button) { return button && button->isEnabled(); };
  auto* focused = qobject_cast<QPushButton*>(QApplication::focusWidget());
  if (isReady(focused) && panel->isAncestorOf(focused)) return focused;
  for (QPushButton* button : panel->findChildren<QPushButton*>())
    if (isReady(button) && button->isDefault()) return button;
  return nullptr;
}

void Overlay::mousePressEvent(QMouseEvent* /*event*/) { close(); }

void Overlay::paintEvent(QPaintEvent* event) {
  QPainter painter(this);
  painter.fillRect(event->rect(), Theme::get().scrim);
}

} // namespace ui
