#include "ui/controls/FocusRing.h"

#include "ui/controls/KeyboardFocus.h"
#include "ui/controls/Switch.h"
#include "ui/paint.h"

#include <QCheckBox>
#include <QEvent>
#include <QFocusFrame>
#include <QPainter>
#include <QPushButton>
#include <QRadioButton>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace ui {

namespace {

constexpr char kShowFocus[] = "showFocus";
constexpr int kFrameGap = 4; // room for the ring on every side

// Corner radii of what the ring goes around.
constexpr double kButtonRadius = 10;
constexpr double kLargeButtonRadius = 12;
constexpr double kOtherRadius = 4;

double radiusOf(const QWidget* widget) {
  if (qobject_cast<const Switch*>(widget)) return widget->height() / 2.0;
  if (!qobject_cast<const QPushButton*>(widget)) return kOtherRadius;
  const double wanted = widget->property("size").toString() == "lg"_L1 ? kLargeButtonRadius : kButtonRadius;
  return std::min(wanted, widget->height() / 2.0);
}

bool takesRing(const QWidget* widget) {
  return qobject_cast<const QPushButton*>(widget) || qobject_cast<const QCheckBox*>(widget) ||
         qobject_cast<const QRadioButton*>(widget) || qobject_cast<const Switch*>(widget);
}

/// A focus frame by its class, as screen readers leave those out; it places and paints itself in our way.
class Frame : public QFocusFrame {
 public:
  Frame(QWidget* around, const KeyboardFocus* focus)
      : QFocusFrame(around->parentWidget()), m_around(around), m_focus(focus) {}

 protected:
  void paintEvent(QPaintEvent* /*event*/) override {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QRectF ring = focusRingLayout(m_around->geometry()).ring;
    const auto strength = m_focus->isVisible() ? KeyboardFocus::Strength::Full : KeyboardFocus::Strength::Soft;
    KeyboardFocus::paintRingAround(&painter, ring, radiusOf(m_around), strength);
  }

 private:
  QWidget* m_around;
  const KeyboardFocus* m_focus;
};

} // namespace

FocusRingLayout focusRingLayout(const QRect& widget) {
  return {.frame = widget.adjusted(-kFrameGap, -kFrameGap, kFrameGap, kFrameGap),
          .ring = paint::hairline(QRectF(QPointF(kFrameGap, kFrameGap), QSizeF(widget.size())))};
}

FocusRing::FocusRing(QWidget* widget)
    : QObject(widget), m_widget(widget), m_focus(new KeyboardFocus(widget, [this] { refresh(); })) {
  widget->installEventFilter(this);
}

FocusRing::~FocusRing() { delete m_frame; }

bool FocusRing::isWanted() const {
  if (!m_widget->isVisible() || m_widget->isWindow()) return false;
  return m_focus->isVisible() || (m_widget->hasFocus() && m_widget->isEnabled() &&
                                  m_widget->focusPolicy() != Qt::NoFocus && m_widget->property(kShowFocus).toBool());
}

// The frame is a child of a widget that may be going through its children just now, to hide them: it mustn't be gone
// when they are done.
void FocusRing::dropFrame() {
  if (!m_frame) return;
  m_frame->hide();
  m_frame->deleteLater();
  m_frame = nullptr;
}

void FocusRing::refresh() {
  if (!isWanted()) {
    dropFrame();
    return;
  }
  if (m_frame && m_frame->parentWidget() != m_widget->parentWidget()) dropFrame();
  if (!m_frame) m_frame = new Frame(m_widget, m_focus);
  m_frame->setGeometry(focusRingLayout(m_widget->geometry()).frame);
  m_frame->raise();
  m_frame->show();
  m_frame->update();
}

bool FocusRing::eventFilter(QObject* watched, QEvent* event) {
  switch (event->type()) {
  case QEvent::Move:
  case QEvent::Resize:
  case QEvent::Show:
  case QEvent::Hide:
  case QEvent::ParentChange:
  case QEvent::ZOrderChange:
  case QEvent::FocusIn:
  case QEvent::FocusOut:
  case QEvent::EnabledChange:
  case QEvent::DynamicPropertyChange:
    refresh();
    break;
  default:
    break;
  }
  return QObject::eventFilter(watched, event);
}

bool FocusRings::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::FocusIn)
    if (auto* widget = qobject_cast<QWidget*>(watched); widget && takesRing(widget))
      if (!widget->findChild<FocusRing*>(QString(), Qt::FindDirectChildrenOnly)) new FocusRing(widget);
  return QObject::eventFilter(watched, event);
}

} // namespace ui
