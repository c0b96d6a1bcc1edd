#include "ui/controls/Note.h"

#include "ui/Theme.h"
#include "ui/controls/Button.h"
#include "ui/controls/IconView.h"
#include "ui/controls/factory.h"
#include "ui/paint.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>
#include <QVBoxLayout>

namespace ui {

namespace {

// Lengths in pixels.
constexpr int kSpacing = 12;
constexpr QMargins kMargins(14, 12, 14, 12);
constexpr QMargins kIconMargins(0, 1, 0, 0);
constexpr int kTextSpacing = 10;
constexpr int kIconSize = 16;
constexpr int kLeastText = 170; // room for the text, below which the action gives way
constexpr double kRadius = 12;

struct Look {
  Tone icon;
  QColor Theme::*fill;
  bool bordered;
};
// By Note::Kind.
constexpr Look kLooks[] = {
    {Tone::Text3, &Theme::card, true},
    {Tone::Accent, &Theme::accentSoft, false},
    {Tone::Warn, &Theme::warnSoft, false},
};

} // namespace

bool noteActionFitsBeside(int noteWidth, int actionWidth) {
  const int taken = kMargins.left() + kMargins.right() + 2 * kSpacing + kIconSize;
  return noteWidth - taken - actionWidth >= kLeastText;
}

Note::Note(Kind kind, const QString& icon, const QString& text, QWidget* parent)
    : QFrame(parent),
      m_kind(kind),
      m_label(label(text, "sub")),
      m_outer(hbox(kSpacing, kMargins)),
      m_iconColumn(vbox(0, kIconMargins)),
      m_inner(vbox(kTextSpacing)) {
  m_label->setWordWrap(true);
  m_label->setTextFormat(Qt::RichText);
  m_iconColumn->addWidget(new IconView(icon, kLooks[kind].icon, kIconSize));
  m_iconColumn->addStretch();
  m_inner->addWidget(m_label);
  m_outer->addLayout(m_iconColumn);
  m_outer->addLayout(m_inner, 1);
  setLayout(m_outer);
  connect(&Theme::get(), &Theme::changed, this, qOverload<>(&QWidget::update));
}

void Note::setText(const QString& text) { m_label->setText(text); }
QString Note::text() const { return m_label->text(); }

QPushButton* Note::addAction(const QString& text) {
  m_action = new Button(text);
  m_outer->addWidget(m_action, 0, Qt::AlignVCenter);
  m_iconColumn->insertStretch(0); // centres the icon beside the action
  return m_action;
}

void Note::resizeEvent(QResizeEvent* event) {
  QFrame::resizeEvent(event);
  if (m_action) placeAction();
}

void Note::placeAction() {
  const bool beside = noteActionFitsBeside(width(), m_action->sizeHint().width());
  if (beside == (m_outer->indexOf(m_action) >= 0)) return;
  if (beside) {
    m_inner->removeWidget(m_action);
    m_outer->addWidget(m_action, 0, Qt::AlignVCenter);
  } else {
    m_outer->removeWidget(m_action);
    m_inner->addWidget(m_action, 0, Qt::AlignLeft);
  }
}

void Note::paintEvent(QPaintEvent* /*event*/) {
  const Theme& theme = Theme::get();
  const Look& look = kLooks[m_kind];
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  paint::roundedRect(&painter, paint::hairline(rect()), kRadius, theme.*look.fill,
                     look.bordered ? paint::pen(theme.line) : QPen(Qt::NoPen));
}

} // namespace ui
