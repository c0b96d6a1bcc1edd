#include "ui/pages/StatCard.h"

#include "core/fmt.h"
#include "ui/Theme.h"
#include "ui/controls/factory.h"

#include <QFontMetrics>
#include <QHBoxLayout>
#include <QLabel>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace ui {

namespace {
// Lengths in pixels.
constexpr int kSpacing = 14;
constexpr QMargins kMargins(18, 15, 18, 15);
constexpr int kLineSpacing = 2;
constexpr int kValuePx = 20;
constexpr int kLeastValuePx = 15;
constexpr int kValueWeight = 600;

constexpr QStringView kDash = u"—";

int widthOf(const QString& value, int px) {
  return QFontMetrics(Theme::get().mono(px, kValueWeight)).horizontalAdvance(value);
}
} // namespace

StatCard::StatCard(QWidget* visual, QWidget* parent)
    : Card(parent), m_value(label({}, "value")), m_caption(label({}, "micro")) {
  m_caption->setStyleSheet(u"font-size: 12px;"_s);
  m_caption->setWordWrap(true); // three cards stand side by side, and the narrowest window has little room for them
  QVBoxLayout* lines = vbox(kLineSpacing);
  lines->addWidget(m_value);
  lines->addWidget(m_caption);
  QHBoxLayout* row = hbox(kSpacing, kMargins);
  row->addLayout(lines, 1);
  row->addWidget(visual, 0, Qt::AlignVCenter);
  setLayout(row);
}

void StatCard::set(const QString& value, const QString& caption) {
  m_value->setText(value);
  m_caption->setText(caption);
  m_value->setMinimumWidth(widthOf(value, kLeastValuePx));
  fitValue();
  accessibleTextChanged(this);
}

void StatCard::resizeEvent(QResizeEvent* event) {
  Card::resizeEvent(event);
  fitValue();
}

void StatCard::fitValue() {
  const int room = width() - kMargins.left() - kMargins.right() - kSpacing - layout()->itemAt(1)->sizeHint().width();
  int px = kValuePx;
  while (px > kLeastValuePx && widthOf(value(), px) > room) --px;
  if (px == m_valuePx) return;
  m_valuePx = px;
  m_value->setStyleSheet(px == kValuePx ? QString() : u"font-size: %1px;"_s.arg(px));
}

QString StatCard::value() const { return m_value->text(); }
QString StatCard::caption() const { return m_caption->text(); }

QString StatCard::shownText() const { return value() == kDash ? caption() : fmt::list({caption(), value()}); }

} // namespace ui
