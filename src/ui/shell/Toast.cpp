#include "ui/shell/Toast.h"

#include "ui/Theme.h"
#include "ui/controls/IconView.h"
#include "ui/controls/factory.h"
#include "ui/paint.h"
#include "ui/shell/words.h"

#include <QAccessible>
#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>
#include <QPushButton>

using namespace Qt::StringLiterals;

namespace ui {
namespace {

// Lengths in pixels.
constexpr int kGap = 12;
constexpr QMargins kMargins(14, 8, 8, 8);
constexpr int kIcon = 16;
constexpr int kAboveEdge = 24;
constexpr double kRadius = 14;
constexpr int kOutlineAlpha = 80;

QString buttonStyle(const QColor& ink) {
  return u"QPushButton { background: transparent; color: %1; border: 1px solid %2; min-height: 26px; "
         "max-height: 26px; padding: 0 12px; }"_s.arg(ink.name(),
                                                      paint::withAlpha(ink, kOutlineAlpha).name(QColor::HexArgb));
}

} // namespace

Toast::Toast(QWidget* parent)
    : QWidget(parent),
      m_text(label({})),
      //: Button: put the files back that were moved to the Trash
      m_button(new QPushButton(OverlayWords::tr("Undo"))),
      m_timer(new QTimer(this)) {
  m_text->setTextFormat(Qt::PlainText); // names of files stand in it
  m_timer->setSingleShot(true);
  connect(m_timer, &QTimer::timeout, this, &QWidget::hide);
  QHBoxLayout* row = hbox(kGap, kMargins);
  row->addWidget(new IconView(u"check"_s, Tone::Ok, kIcon));
  row->addWidget(m_text);
  row->addWidget(m_button);
  setLayout(row);
  connect(m_button, &QPushButton::clicked, this, [this] {
    hide();
    emit undo();
  });
  parent->installEventFilter(this);
  connect(&Theme::get(), &Theme::changed, this, &Toast::dress);
  hide();
}

// The ground follows the look by itself, and a message may be on show when that changes.
void Toast::dress() {
  const QColor ink = Theme::get().toastFg;
  m_text->setStyleSheet(u"color: %1;"_s.arg(ink.name()));
  m_button->setStyleSheet(buttonStyle(ink));
}

void Toast::show(const QString& text, bool undoable) {
  m_text->setText(text);
  m_button->setVisible(undoable);
  dress();
  setAccessibleName(text);
  place();
  QWidget::show();
  raise();
  m_timer->start(kShownFor);
  QAccessibleEvent heard(this, QAccessible::Alert);
  QAccessible::updateAccessibility(&heard);
}

// As wide as the message, which wraps only where the area has no room for that.
void Toast::fit() {
  m_text->setWordWrap(false);
  layout()->activate();
  adjustSize();
  const int room = parentWidget()->width() - 2 * kAboveEdge;
  if (width() <= room) return;
  m_text->setWordWrap(true);
  layout()->activate();
  resize(room, layout()->totalHeightForWidth(room));
}

void Toast::place() {
  fit();
  const QSize area = parentWidget()->size();
  move((area.width() - width()) / 2, area.height() - height() - kAboveEdge);
}

bool Toast::eventFilter(QObject* watched, QEvent* event) {
  if (watched == parent() && event->type() == QEvent::Resize && isVisible()) place();
  return QWidget::eventFilter(watched, event);
}

void Toast::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  paint::roundedRect(&painter, rect(), kRadius, Theme::get().toastBg);
}

} // namespace ui
