#include "ui/shell/ShortcutsOverlay.h"

#include "ui/controls/Button.h"
#include "ui/controls/factory.h"
#include "ui/shell/CommandSet.h"
#include "ui/shell/KeyCaps.h"
#include "ui/shell/words.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>

#include <algorithm>

namespace ui {
namespace {

using commands::Menu;
// Lengths in pixels.
constexpr int kLeastWidth = 640;
constexpr int kBesidePanel = 40; // to the edges of the area that it covers, at least
constexpr QMargins kMargins(28, 24, 28, 22);
constexpr int kBelowTitle = 18;
constexpr int kBetweenColumns = 36;
constexpr int kBetweenGroups = 18;
constexpr int kBetweenRows = 6;
constexpr int kAboveFooter = 20;

/// What it is called without saying that a dialog comes.
QString plainText(const QAction* action) {
  QString text = action->text();
  if (text.endsWith(u'…')) text.chop(1);
  return text;
}

} // namespace

ShortcutsOverlay::ShortcutsOverlay(const CommandSet& commands, QWidget* parent) : Overlay(parent) {
  const QString title = OverlayWords::tr("Keyboard shortcuts");
  setAccessibleName(title);
  QVBoxLayout* body = vbox(0, kMargins);
  body->addWidget(label(title, "h2"));
  body->addSpacing(kBelowTitle);
  QHBoxLayout* columns = hbox(kBetweenColumns);
  columns->addLayout(column(commands, {Menu::File, Menu::Edit}), 1);
  columns->addLayout(column(commands, {Menu::View, Menu::Window, Menu::Help}), 1);
  body->addLayout(columns);
  body->addSpacing(kAboveFooter);
  addFooter(body);
  panel->setLayout(body);
  fitWidth();
}

// As wide as its columns want it. Where the window is too narrow for that, long names wrap.
void ShortcutsOverlay::fitWidth() {
  for (QLabel* text : panel->findChildren<QLabel*>()) text->ensurePolished(); // its font comes from the style sheet
  const int room = parentWidget()->width() - 2 * kBesidePanel;
  const int wanted = panel->layout()->sizeHint().width();
  if (wanted > std::max(room, kLeastWidth))
    for (QLabel* text : panel->findChildren<QLabel*>()) text->setWordWrap(true);
  panel->setFixedWidth(std::clamp(wanted, kLeastWidth, std::max(room, kLeastWidth)));
}

QVBoxLayout* ShortcutsOverlay::column(const CommandSet& commands, std::initializer_list<Menu> menus) const {
  QVBoxLayout* all = vbox(kBetweenGroups);
  for (const Menu menu : menus) all->addLayout(group(commands, menu));
  all->addStretch();
  return all;
}

QGridLayout* ShortcutsOverlay::group(const CommandSet& commands, Menu menu) const {
  auto* rows = new QGridLayout;
  rows->setContentsMargins({});
  rows->setVerticalSpacing(kBetweenRows);
  rows->setColumnStretch(0, 1);
  rows->addWidget(label(commands::titleOf(menu), "grp"), 0, 0, 1, 2);
  for (const commands::Entry& entry : commands::entries()) {
    const QAction* action = entry.menu == menu ? commands.action(entry.id) : nullptr;
    if (!action || action->shortcut().isEmpty()) continue;
    const int row = rows->rowCount();
    rows->addWidget(label(plainText(action)), row, 0);
    rows->addWidget(new KeyCaps(action->shortcut()), row, 1, Qt::AlignRight | Qt::AlignVCenter);
  }
  return rows;
}

void ShortcutsOverlay::addFooter(QVBoxLayout* body) {
  auto* done = new Button(OverlayWords::tr("Close"), "primary");
  done->setDefault(true);
  connect(done, &QPushButton::clicked, this, &QWidget::close);
  QHBoxLayout* row = hbox();
  row->addStretch();
  row->addWidget(done);
  body->addLayout(row);
}

} // namespace ui
