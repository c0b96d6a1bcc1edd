#include "ui/controls/PageHeader.h"

#include "ui/Theme.h"
#include "ui/controls/factory.h"
#include "ui/eyebrow.h"
#include "ui/paint.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QMouseEvent>
#include <QTextDocument>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace ui {

namespace {

// Lengths in pixels.
constexpr int kSpacing = 16;
constexpr int kTextSpacing = 3;
constexpr int kActionSpacing = 8;
constexpr QMargins kMarginsMac(28, 22, 28, 18);
constexpr QMargins kMarginsWin(32, 20, 32, 18);
constexpr int kToolbarRight = 28;
constexpr int kToolbarBottom = 6;
constexpr int kToolbarHeight = 42;
constexpr int kToolbarActionsTopMac = 6;
constexpr int kToolbarActionsTopWin = 4;

QMargins pageMargins() { return Theme::get().mac ? kMarginsMac : kMarginsWin; }

QString asHtml(const QString& text) { return Qt::mightBeRichText(text) ? text : text.toHtmlEscaped(); }

} // namespace

PageHeader::PageHeader(const QString& title, const QString& subtitle, QWidget* parent)
    : QWidget(parent),
      m_eyebrowLabel(eyebrow({})),
      m_titleLabel(label({}, "h1")),
      m_subtitleLabel(label({}, "sub")),
      m_outer(hbox(kSpacing, pageMargins())),
      m_actions(hbox(kActionSpacing)),
      m_title(title) {
  m_titleLabel->setWordWrap(true); // rather than push the actions together, or lose the figure at its end
  // As rich text it would keep the moves of the mouse, by which the window is dragged.
  m_titleLabel->setTextInteractionFlags(Qt::NoTextInteraction);
  QVBoxLayout* texts = vbox(kTextSpacing);
  for (QLabel* line : {m_eyebrowLabel, m_titleLabel, m_subtitleLabel}) texts->addWidget(line);
  m_outer->addLayout(texts, 1);
  m_outer->addLayout(m_actions);
  m_outer->setAlignment(m_actions, Qt::AlignBottom);
  setLayout(m_outer);
  setSubtitle(subtitle);
  refreshEyebrow();
  refreshTitle();
  connect(&Theme::get(), &Theme::changed, this, &PageHeader::refreshTitle);
}

void PageHeader::setTitle(const QString& title) {
  m_title = title;
  refreshTitle();
}

void PageHeader::setSubtitle(const QString& subtitle) {
  m_subtitleLabel->setText(subtitle);
  m_subtitleLabel->setVisible(!subtitle.isEmpty());
}

void PageHeader::setEyebrow(const QString& eyebrow) {
  m_eyebrow = eyebrow;
  m_eyebrowLabel->setText(eyebrowText(eyebrow));
  refreshEyebrow();
  if (m_toolbar) refreshTitle();
}

void PageHeader::addAction(QWidget* action) { m_actions->addWidget(action); }

void PageHeader::setToolbar(bool on, int reserve) {
  m_toolbar = on;
  const QMargins toolbar(reserve, 0, kToolbarRight, kToolbarBottom);
  m_outer->setContentsMargins(on ? paint::mirrored(toolbar, layoutDirection()) : pageMargins());
  m_titleLabel->setStyleSheet(on ? u"font-size: 15px; font-weight: 600;"_s : QString());
  m_titleLabel->setMinimumHeight(on ? kToolbarHeight : 0);
  m_outer->setAlignment(m_actions, on ? Qt::AlignTop : Qt::AlignBottom);
  const int actionsTop = Theme::get().mac ? kToolbarActionsTopMac : kToolbarActionsTopWin;
  m_actions->setContentsMargins(0, on ? actionsTop : 0, 0, 0);
  refreshEyebrow();
  refreshTitle();
}

void PageHeader::refreshEyebrow() { m_eyebrowLabel->setVisible(!m_eyebrow.isEmpty() && !m_toolbar); }

// The format is named where the text is HTML for sure: by itself, the label takes "&amp;" for plain text.
void PageHeader::refreshTitle() {
  m_titleLabel->setTextFormat(m_toolbar ? Qt::RichText : Qt::AutoText);
  if (!m_toolbar) {
    m_titleLabel->setText(m_title);
    return;
  }
  QString html = asHtml(m_title);
  if (!m_eyebrow.isEmpty())
    html += u"&nbsp;&nbsp;<span style=\"color:%1; font-size:12px; font-weight:400;\">%2</span>"_s.arg(
        Theme::get().text3.name(), m_eyebrow.toHtmlEscaped());
  m_titleLabel->setText(html);
}

void PageHeader::mousePressEvent(QMouseEvent* event) {
  if (!dragWindowFrom(this, event)) QWidget::mousePressEvent(event);
}

void PageHeader::mouseDoubleClickEvent(QMouseEvent* event) {
  if (!zoomWindowFrom(this, event)) QWidget::mouseDoubleClickEvent(event);
}

} // namespace ui
