#include "ui/pages/StatCard.h"

#include "core/fmt.h"
#include "ui/controls/factory.h"

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

constexpr QStringView kDash = u"—";
} // namespace

StatCard::StatCard(QWidget* visual, QWidget* parent)
    : Card(parent), m_value(label({}, "value")), m_caption(label({}, "micro")) {
  m_caption->setStyleSheet(u"font-size: 12px;"_s);
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
  accessibleTextChanged(this);
}

QString StatCard::value() const { return m_value->text(); }
QString StatCard::caption() const { return m_caption->text(); }

QString StatCard::shownText() const { return value() == kDash ? caption() : fmt::list({caption(), value()}); }

} // namespace ui
