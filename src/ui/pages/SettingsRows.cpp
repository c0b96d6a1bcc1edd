#include "ui/pages/SettingsRows.h"

#include "ui/TipStyler.h"
#include "ui/controls/Card.h"
#include "ui/controls/Divider.h"
#include "ui/controls/IconTile.h"
#include "ui/controls/IconView.h"
#include "ui/controls/Select.h"
#include "ui/controls/factory.h"
#include "ui/paint.h"

#include <QAbstractButton>
#include <QHBoxLayout>
#include <QLabel>
#include <QVBoxLayout>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace ui {

namespace {

// Lengths in pixels.
constexpr int kRowHeight = 56;
constexpr int kRowSpacing = 16;
constexpr QMargins kRowMargins(18, 10, 18, 10);
constexpr int kRowTile = 28;
constexpr QMargins kHeadingMargins(2, 0, 0, 10);
constexpr int kBelowSection = 26;
constexpr int kStatusSpacing = 6;
constexpr int kStatusIcon = 14;

IconTile* rowTile(const QString& icon) {
  auto* tile = new IconTile(icon, QColor(), kRowTile);
  tile->muted = true;
  return tile;
}

/// A switch or a choice bears the row's title; a button says itself what it does.
void nameControl(QWidget* control, const SettingsRowWords& words) {
  const auto* button = qobject_cast<const QAbstractButton*>(control);
  if (!button || button->text().isEmpty()) control->setAccessibleName(words.title);
  control->setAccessibleDescription(words.description);
}

} // namespace

QWidget* settingsRow(const SettingsRowWords& words, QWidget* control, QWidget* second) {
  auto* row = new QWidget;
  row->setMinimumHeight(kRowHeight);
  row->setToolTip(plainTip(words.description));
  QHBoxLayout* line = hbox(kRowSpacing, kRowMargins);
  row->setLayout(line);
  line->addWidget(rowTile(words.icon));
  QLabel* title = label(words.title);
  title->setStyleSheet(u"font-weight: 500;"_s);
  title->setWordWrap(true); // the controls beside it don't give way
  line->addWidget(title, 1);
  if (second) line->addWidget(second);
  line->addWidget(control);
  nameControl(control, words);
  return row;
}

void addSettingsSection(QVBoxLayout* column, const QString& title, const QList<QWidget*>& rows) {
  QLabel* heading = eyebrow(title);
  heading->setContentsMargins(paint::mirrored(kHeadingMargins, heading->layoutDirection()));
  column->addWidget(heading);
  auto* card = new Card;
  QVBoxLayout* lines = vbox();
  card->setLayout(lines);
  for (QWidget* row : rows) {
    if (lines->count() > 0) lines->addWidget(new Divider);
    lines->addWidget(row);
  }
  column->addWidget(card);
  column->addSpacing(kBelowSection);
}

Select* settingsSelect(const QList<SettingsChoice>& choices, int present, int minWidth) {
  auto* select = new Select;
  for (const SettingsChoice& choice : choices) select->addItem(choice.text, choice.value);
  select->setCurrentIndex(std::max(0, select->findData(present)));
  select->setMinimumWidth(minWidth);
  return select;
}

QWidget* settingsStatus(const QString& icon, const QString& text) {
  auto* status = new QWidget;
  QHBoxLayout* line = hbox(kStatusSpacing);
  status->setLayout(line);
  line->addWidget(new IconView(icon, Tone::Ok, kStatusIcon));
  line->addWidget(label(text, "ok"));
  return status;
}

} // namespace ui
