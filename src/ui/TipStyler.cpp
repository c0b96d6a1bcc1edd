#include "ui/TipStyler.h"

#include "ui/Theme.h"
#include "ui/paint.h"
#include "ui/popup.h"

#include <QCursor>
#include <QHelpEvent>
#include <QLabel>
#include <QPainter>
#include <QTextDocument>
#include <QToolTip>
#include <QVariant>

using namespace Qt::StringLiterals;

namespace {

constexpr int kShadowMargin = 8; // what the style sheet leaves around a tip
constexpr int kBelowCursor = 14;
constexpr double kRadius = 7;
constexpr int kShadowOffset = 2;
constexpr int kShadowPeakDark = 40;
constexpr int kShadowPeakLight = 18;

// Where the filter last moved a tip to: that move is its own, every other is Qt's.
constexpr char kPlaced[] = "tkPlaced";

// The class is Qt's secret, but its name is not.
QLabel* asTip(QObject* object) {
  auto* label = qobject_cast<QLabel*>(object);
  return label && label->qt_metacast("QTipLabel") ? label : nullptr;
}

void makeTranslucent(QLabel* tip) {
  tip->setAttribute(Qt::WA_TranslucentBackground);
  tip->setWindowFlags(tip->windowFlags() | Qt::FramelessWindowHint | Qt::NoDropShadowWindowHint);
}

QRectF bubble(const QLabel* tip) {
  return QRectF(tip->rect()).adjusted(kShadowMargin, kShadowMargin, -kShadowMargin, -kShadowMargin);
}

// Qt's label brings a margin of its own, which would add to the style sheet's. The spare pixel keeps a text whose
// width was rounded down from wrapping.
void dropOwnMargin(QLabel* tip) {
  if (tip->margin() == 0) return;
  tip->setMargin(0);
  tip->resize(tip->sizeHint() + QSize(1, 0));
}

void prepare(QLabel* tip) {
  dropOwnMargin(tip);
  ui::trimWithoutCompositor(tip, bubble(tip), kRadius);
}

// Puts the bubble, not its transparent margin, where Qt meant the tip to be.
void place(QLabel* tip) {
  if (tip->property(kPlaced).toPoint() == tip->pos() && tip->property(kPlaced).isValid()) return;
  const QPoint cursor = QCursor::pos();
  const QRect frame = tip->geometry();
  const bool above = (frame.top() + frame.bottom()) / 2 < cursor.y();
  const QPoint target(tip->x() - kShadowMargin, above ? tip->y() + kShadowMargin : cursor.y() + kBelowCursor);
  tip->setProperty(kPlaced, target);
  tip->move(target);
}

void paintBubble(QLabel* tip) {
  const Theme& theme = Theme::get();
  const QRectF body = bubble(tip);
  QPainter painter(tip);
  if (!tip->mask().isEmpty()) painter.fillRect(body, theme.surface);
  painter.setRenderHint(QPainter::Antialiasing);
  ui::paint::shadow(&painter, body,
                    {.layers = kShadowMargin,
                     .offsetY = kShadowOffset,
                     .radius = kRadius,
                     .peak = theme.dark ? kShadowPeakDark : kShadowPeakLight});
  ui::paint::roundedRect(&painter, ui::paint::hairline(body), kRadius, theme.surface, ui::paint::pen(theme.line));
}

} // namespace

bool TipStyler::eventFilter(QObject* watched, QEvent* event) {
  // The kind of event first: it is the cheaper question, and this sees every event of the program.
  switch (event->type()) {
  case QEvent::Polish:
    if (QLabel* tip = asTip(watched)) makeTranslucent(tip);
    break;
  case QEvent::Show:
    if (QLabel* tip = asTip(watched)) prepare(tip);
    break;
  case QEvent::Move:
    if (QLabel* tip = asTip(watched)) place(tip);
    break;
  case QEvent::Paint:
    if (QLabel* tip = asTip(watched)) paintBubble(tip);
    break;
  default:
    break;
  }
  return false;
}

QString plainTip(const QString& text) { return Qt::mightBeRichText(text) ? Qt::convertFromPlainText(text) : text; }

bool showTipInLines(QWidget* widget, QEvent* event) {
  if (event->type() != QEvent::ToolTip || widget->toolTip().isEmpty()) return false;
  const QString text = widget->toolTip();
  const QString inLines = Qt::mightBeRichText(text) ? text : u"<qt>%1</qt>"_s.arg(text.toHtmlEscaped());
  QToolTip::showText(static_cast<QHelpEvent*>(event)->globalPos(), inLines, widget);
  return true;
}
