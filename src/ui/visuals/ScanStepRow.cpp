#include "ui/visuals/ScanStepRow.h"

#include "core/fmt.h"
#include "ui/Theme.h"
#include "ui/controls/ElidedLabel.h"
#include "ui/controls/IconTile.h"
#include "ui/controls/factory.h"
#include "ui/paint.h"

#include <QHBoxLayout>
#include <QPainter>

using namespace Qt::StringLiterals;

namespace ui {

namespace {
// Lengths in pixels.
constexpr int kSpacing = 14;
constexpr QMargins kMargins(12, 10, 14, 10);
constexpr int kTile = 30;
constexpr int kBarMin = 40;
constexpr int kBarMax = 120;
constexpr int kValueWidth = 78;
constexpr double kRadius = 10;
// Shares of the room.
constexpr int kTitleStretch = 5;
constexpr int kBarStretch = 2;

QString titleStyle() { return u"font-weight: 500;"_s; }
QString inColour(const QColor& colour) { return u"color: %1;"_s.arg(colour.name()); }

/// A style sheet is costly to set, even the same again.
void restyle(QLabel* label, const QString& sheet) {
  if (label->styleSheet() != sheet) label->setStyleSheet(sheet);
}
} // namespace

ScanStepRow::ScanStepRow(const QString& icon, const QColor& colour, const QString& title, QWidget* parent)
    : QWidget(parent), m_title(new ElidedLabel(title)), m_bar(new StepBar), m_value(label(u"—"_s, "num")) {
  QHBoxLayout* row = hbox(kSpacing, kMargins);
  setLayout(row);
  row->addWidget(new IconTile(icon, colour, kTile));
  row->addWidget(m_title, kTitleStretch);
  row->addWidget(m_bar, kBarStretch);
  row->addWidget(m_value);
  m_title->setStyleSheet(titleStyle());
  m_bar->setMinimumWidth(kBarMin);
  m_bar->setMaximumWidth(kBarMax);
  m_bar->setAccessibleName(title);
  m_value->setFixedWidth(kValueWidth);
  m_value->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
  setAccessibleName(title);
  connect(&Theme::get(), &Theme::changed, this, qOverload<>(&QWidget::update));
}

void ScanStepRow::set(StepBar::State state, const QString& value) {
  const Theme& theme = Theme::get();
  m_bar->setState(state);
  m_value->setText(value);
  restyle(m_value, inColour(state == StepBar::Done ? theme.text : theme.text3));
  restyle(m_title, titleStyle() + u' ' + inColour(state == StepBar::Pending ? theme.text2 : theme.text));
  const bool active = state == StepBar::Running;
  if (active != m_active) {
    m_active = active;
    update();
  }
  accessibleValueChanged(this);
}

QString ScanStepRow::valueText() const {
  const QString state = m_bar->valueText();
  return m_bar->state() == StepBar::Done ? fmt::list({state, m_value->text()}) : state;
}

void ScanStepRow::paintEvent(QPaintEvent* /*event*/) {
  if (!m_active) return;
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  paint::roundedRect(&painter, rect(), kRadius, Theme::get().cardHover);
}

} // namespace ui
