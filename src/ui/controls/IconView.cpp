#include "ui/controls/IconView.h"

#include "ui/icons.h"

#include <QPainter>

namespace ui {

IconView::IconView(const QString& icon, Tone tone, int size, QWidget* parent)
    : QWidget(parent), m_icon(icon), m_tone(tone) {
  setFixedSize(size, size);
  setAttribute(Qt::WA_TransparentForMouseEvents);
  connect(&Theme::get(), &Theme::changed, this, qOverload<>(&QWidget::update));
}

void IconView::setIcon(const QString& icon) {
  m_icon = icon;
  update();
}

void IconView::setTone(Tone tone) {
  m_tone = tone;
  update();
}

void IconView::paintEvent(QPaintEvent* /*event*/) {
  if (m_icon.isEmpty()) return;
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  icons::paint(&painter, rect(), m_icon, Theme::get().tone(m_tone));
}

} // namespace ui
