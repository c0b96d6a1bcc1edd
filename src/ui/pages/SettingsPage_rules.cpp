// The "Never touch these" rules on the Settings page.
#include "ui/pages/SettingsPage.h"

#include "app/AppState.h"
#include "ui/Theme.h"
#include "ui/controls/Button.h"
#include "ui/controls/Card.h"
#include "ui/controls/ElidedLabel.h"
#include "ui/controls/factory.h"
#include "ui/pages/CleanupNotes.h"
#include "ui/pages/SettingsRows.h"
#include "ui/pages/SettingsWords.h"

#include <QDir>
#include <QFileDialog>
#include <QHBoxLayout>
#include <QScrollArea>
#include <QScrollBar>
#include <QTimer>
#include <QVBoxLayout>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace ui {

namespace {

// Lengths in pixels.
constexpr int kCardSpacing = 6;
constexpr QMargins kCardMargins(10, 3, 4, 3);
constexpr int kRemoveSide = 24;
constexpr QMargins kNoteMargins(62, 0, 18, 12);
constexpr int kAboveRules = 36; // the heading stays in view

/// A panel in the fill of what the pointer is over, in the look in force.
Card* quietCard() {
  auto* card = new Card;
  card->bordered = false;
  const auto paint = [card] {
    card->fill = Theme::get().hover;
    card->update();
  };
  paint();
  QObject::connect(&Theme::get(), &Theme::changed, card, paint);
  return card;
}

/// The rule that covers a folder: its path, but where a rule of that text wouldn't. Blanks at its end would be trimmed,
/// so there stands the sign for any character; and "/" alone covers nothing below it.
QString ruleFor(const QString& folder) {
  QString rule = QDir::toNativeSeparators(folder);
  if (rule == "/"_L1) return u"/**"_s;
  for (qsizetype end = rule.size(); end > 0 && rule[end - 1].isSpace(); --end) rule[end - 1] = u'?';
  return rule;
}

QString noteText(AppSettings::Store worth) {
  if (worth == AppSettings::Store::Lost)
    return SettingsWords::tr(
        "<b>Rules have gone from the settings.</b> Check that these are all of yours, and put back "
        "what is missing. Nothing is cleaned until then.");
  return SettingsWords::tr(
      "<b>The settings can't be read.</b> Check that these are all of your rules, and put back what "
      "is missing. Nothing is cleaned until then, and the damaged file stays.");
}

} // namespace

QWidget* SettingsPage::rulesRow() {
  m_addButton = new Button(SettingsWords::tr("Add folder"), nullptr, u"plus"_s);
  connect(m_addButton, &Button::clicked, this, &SettingsPage::addFolder);
  m_rulesRow = new QWidget;
  QVBoxLayout* column = vbox();
  m_rulesRow->setLayout(column);
  column->addWidget(settingsRow({u"folder"_s, SettingsWords::tr("Never touch these"),
                                 SettingsWords::tr("Folders and patterns Tarnwick always skips.")},
                                m_addButton));
  column->addWidget(buildRulesNote());
  column->addLayout(m_exclusionsLayout);
  return m_rulesRow;
}

QWidget* SettingsPage::buildRulesNote() {
  m_rulesNote = spokenNote(Note::Caution, u"alert"_s, {});
  //: Button: the rules were looked at and are right
  m_acceptButton = m_rulesNote->addAction(SettingsWords::tr("These are my rules"));
  connect(m_acceptButton, &QPushButton::clicked, this, &SettingsPage::acceptRules);
  auto* holder = new QWidget;
  QVBoxLayout* column = vbox(0, kNoteMargins);
  holder->setLayout(column);
  addNote(column, m_rulesNote);
  holder->hide();
  return holder;
}

void SettingsPage::rebuildExclusions() {
  clearLayout(m_exclusionsLayout);
  m_removeButtons.clear();
  QWidget* before = m_acceptButton;
  setTabOrder(m_addButton, m_acceptButton);
  for (const QString& rule : AppSettings::instance().exclusions()) {
    m_removeButtons << addRuleCard(rule);
    setTabOrder(before, m_removeButtons.last()); // what is built anew would come last
    before = m_removeButtons.last();
  }
}

Button* SettingsPage::addRuleCard(const QString& rule) {
  Card* card = quietCard();
  QHBoxLayout* line = hbox(kCardSpacing, kCardMargins);
  card->setLayout(line);
  auto* text = new ElidedLabel(rule, "mono");
  text->setTextFormat(Qt::PlainText);
  text->setStyleSheet(u"color: palette(text); font-size: 12px;"_s);
  line->addWidget(text, 1);
  auto* remove = new Button({}, "ghost", u"x"_s);
  remove->setFixedWidth(kRemoveSide);
  remove->setOwnHeight(kRemoveSide);
  remove->setStyleSheet(u"padding: 0; min-height: 24px; max-height: 24px;"_s);
  //: Tip of a button that takes a rule away
  remove->setToolTip(SettingsWords::tr("Remove"));
  //: Said by a screen reader of a button; %1: a rule, such as ".git"
  remove->setAccessibleName(SettingsWords::tr("Remove %1").arg(rule));
  connect(remove, &Button::clicked, this, [this, rule] { removeRule(rule); });
  line->addWidget(remove);
  m_exclusionsLayout->addWidget(card);
  return remove;
}

void SettingsPage::addFolder() {
  const QString folder = QFileDialog::getExistingDirectory(this, SettingsWords::tr("Choose a folder to exclude"),
                                                           QDir::homePath(), QFileDialog::ShowDirsOnly);
  if (folder.isEmpty()) return;
  QStringList rules = AppSettings::instance().exclusions();
  const QString rule = ruleFor(folder);
  if (rules.contains(rule)) return;
  AppSettings::instance().setExclusions(rules << rule);
  rebuildExclusions();
}

// The button that was pressed goes with its rule: the next one takes the focus.
void SettingsPage::removeRule(const QString& rule) {
  QStringList rules = AppSettings::instance().exclusions();
  const qsizetype place = rules.indexOf(rule);
  rules.removeAll(rule);
  AppSettings::instance().setExclusions(rules);
  rebuildExclusions();
  QWidget* next = m_addButton;
  if (!m_removeButtons.isEmpty())
    next = m_removeButtons.at(std::clamp<qsizetype>(place, 0, m_removeButtons.size() - 1));
  next->setFocus(Qt::OtherFocusReason);
}

void SettingsPage::refreshRulesNote() {
  const AppSettings::Store worth = AppSettings::instance().lastLook();
  if (worth == m_shownWorth) return;
  m_shownWorth = worth;
  const bool isSound = worth == AppSettings::Store::Sound;
  if (!isSound) setNoteText(m_rulesNote, noteText(worth));
  m_rulesNote->parentWidget()->setVisible(!isSound);
  rebuildExclusions();
}

void SettingsPage::acceptRules() {
  m_addButton->setFocus(Qt::OtherFocusReason); // the button that has it goes
  const bool done = AppSettings::instance().acceptExclusions();
  emit m_state->toast(done
                          ? SettingsWords::tr("The rules are kept. The damaged settings file stays beside the new one.")
                          : SettingsWords::tr("The settings can't be written, so they stay as they are."),
                      false);
}

void SettingsPage::showExclusions() {
  QWidget* goal = m_shownWorth == AppSettings::Store::Sound ? static_cast<QWidget*>(m_addButton) : m_acceptButton;
  goal->setFocus(Qt::OtherFocusReason);
  // A page that was never on show has its places only when it has been laid out.
  QTimer::singleShot(0, this, [this] {
    const int top = m_rulesRow->mapTo(m_scroll->widget(), QPoint()).y();
    m_scroll->verticalScrollBar()->setValue(top - kAboveRules);
  });
}

} // namespace ui
