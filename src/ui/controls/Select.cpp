#include "ui/controls/Select.h"

#include "ui/Theme.h"
#include "ui/controls/KeyboardFocus.h"
#include "ui/controls/SelectPopup.h"
#include "ui/paint.h"

#include <QKeyEvent>
#include <QPainter>

#include <algorithm>
#include <array>

namespace ui {

namespace {

// Lengths in pixels.
constexpr int kTextRoom = 46;
constexpr int kHeightMac = 30;
constexpr int kHeightWin = 34;
constexpr int kLeastWidth = 80;
constexpr double kRadius = 10;
constexpr double kTextLeft = 10;
constexpr double kTextTaken = 44; // of the body's width
constexpr int kEdgeAlphaDark = 40;
constexpr int kEdgeAlphaLight = 14;
constexpr double kRingInset = 3;

constexpr double kChipSize = 16;
constexpr double kChipFromRight = 20;
constexpr double kChipRadius = 4;
constexpr double kChipStroke = 1.4;
constexpr std::array<QPointF, 3> kUp = {QPointF(-3, -1.5), QPointF(0, -4.5), QPointF(3, -1.5)};
constexpr std::array<QPointF, 3> kDown = {QPointF(-3, 1.5), QPointF(0, 4.5), QPointF(3, 1.5)};

constexpr double kChevronFromRight = 17;
constexpr double kChevronStroke = 1.3;
constexpr std::array<QPointF, 3> kChevron = {QPointF(-4.5, -2), QPointF(0, 2.5), QPointF(4.5, -2)};

} // namespace

SelectLayout selectLayout(const QSize& size, bool open, Qt::LayoutDirection direction) {
  const double middle = size.height() / 2.0;
  SelectLayout layout;
  layout.body = paint::hairline(QRectF(QPointF(), QSizeF(size)));
  layout.text =
      QRectF(layout.body.left() + kTextLeft, layout.body.top(), layout.body.width() - kTextTaken, layout.body.height());
  layout.chip = QRectF(size.width() - kChipFromRight, middle - kChipSize / 2, kChipSize, kChipSize);
  layout.chevron = QPointF(size.width() - kChevronFromRight, middle + (open ? 0.5 : 0));
  if (direction != Qt::RightToLeft) return layout;
  const QRectF whole(0, 0, size.width(), size.height());
  for (QRectF* rect : {&layout.text, &layout.chip}) *rect = paint::mirrored(*rect, whole, direction);
  layout.chevron.setX(size.width() - layout.chevron.x());
  return layout;
}

Select::Select(QWidget* parent) : QComboBox(parent), m_focus(new KeyboardFocus(this)) {
  setAttribute(Qt::WA_Hover);
  setFocusPolicy(Qt::StrongFocus);
  connect(&Theme::get(), &Theme::changed, this, qOverload<>(&QWidget::update));
}

bool Select::isOpen() const { return m_popup && m_popup->isVisible(); }

QSize Select::sizeHint() const {
  int widest = 0;
  for (int index = 0; index < count(); ++index)
    widest = std::max(widest, fontMetrics().horizontalAdvance(itemText(index)));
  return {widest + kTextRoom, Theme::get().mac ? kHeightMac : kHeightWin};
}

QSize Select::minimumSizeHint() const { return {kLeastWidth, sizeHint().height()}; }

void Select::showPopup() {
  if (count() == 0 || isOpen()) return;
  m_popup = new SelectPopup(this);
  m_popup->open();
  update();
}

void Select::hidePopup() {
  if (m_popup) m_popup->close();
}

AccessibleItems::Item Select::itemAt(int index) const {
  return {.name = itemText(index), .rect = {}, .selectable = true, .selected = index == currentIndex(), .shown = false};
}

// As a choice in the list does.
void Select::activateItem(int index) {
  if (index == currentIndex()) return;
  setCurrentIndex(index);
  emit activated(index);
}

bool Select::event(QEvent* event) {
  if (event->type() == QEvent::HoverEnter || event->type() == QEvent::HoverLeave) update();
  if (event->type() == QEvent::Wheel) {
    event->ignore(); // the page scrolls; a setting may not change under way
    return false;
  }
  return QComboBox::event(event);
}

void Select::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
    showPopup();
  else
    QComboBox::keyPressEvent(event);
}

void Select::paintEvent(QPaintEvent* /*event*/) {
  const Theme& theme = Theme::get();
  const SelectLayout layout = selectLayout(size(), isOpen(), layoutDirection());
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  paintBody(&painter, layout);
  painter.setPen(isEnabled() ? theme.text : theme.text3);
  paint::text(&painter, layout.text, Qt::AlignLeft | Qt::AlignVCenter,
              fontMetrics().elidedText(currentText(), Qt::ElideRight, int(layout.text.width())));
  if (theme.mac)
    paintArrows(&painter, layout);
  else
    paintArrow(&painter, layout);
  m_focus->paintRing(&painter, layout.body.adjusted(kRingInset, kRingInset, -kRingInset, -kRingInset),
                     kRadius - kRingInset);
}

void Select::paintBody(QPainter* painter, const SelectLayout& layout) const {
  const Theme& theme = Theme::get();
  paint::roundedRect(painter, layout.body.translated(0, 1), kRadius,
                     paint::withAlpha(Qt::black, theme.dark ? kEdgeAlphaDark : kEdgeAlphaLight));
  const bool raised = isOpen() || (isEnabled() && underMouse());
  paint::roundedRect(painter, layout.body, kRadius, raised ? theme.surface2 : theme.surface,
                     paint::pen(hasFocus() && !theme.mac ? theme.accent : theme.lineStrong));
}

void Select::paintArrows(QPainter* painter, const SelectLayout& layout) const {
  const Theme& theme = Theme::get();
  paint::roundedRect(painter, layout.chip, kChipRadius, isEnabled() ? theme.accent : theme.lineStrong);
  painter->save();
  painter->translate(layout.chip.center());
  painter->setPen(paint::roundPen(QColor(Qt::white), kChipStroke));
  painter->drawPolyline(kUp.data(), int(kUp.size()));
  painter->drawPolyline(kDown.data(), int(kDown.size()));
  painter->restore();
}

void Select::paintArrow(QPainter* painter, const SelectLayout& layout) const {
  painter->save();
  painter->translate(layout.chevron);
  painter->setPen(paint::roundPen(Theme::get().text2, kChevronStroke));
  painter->drawPolyline(kChevron.data(), int(kChevron.size()));
  painter->restore();
}

} // namespace ui
