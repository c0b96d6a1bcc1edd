#include "ui/shell/ConfirmCleanDialog.h"

#include "app/AppSettings.h"
#include "app/AppState.h"
#include "core/fmt.h"
#include "core/platform.h"
#include "ui/Theme.h"
#include "ui/controls/Button.h"
#include "ui/controls/Card.h"
#include "ui/controls/Divider.h"
#include "ui/controls/IconTile.h"
#include "ui/controls/factory.h"
#include "ui/shell/dialog.h"
#include "ui/shell/words.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QVBoxLayout>

#include <algorithm>

namespace ui {
namespace {

// Lengths in pixels.
constexpr int kAboveCard = 8;
constexpr int kRowGap = 10;
constexpr QMargins kRow(12, 8, 12, 8);
constexpr int kTile = 24;

QLabel* wrapped(const QString& text) {
  QLabel* result = label(text, "sub");
  result->setWordWrap(true);
  return result;
}

QString message(bool toTrash, bool anyPermanent) {
  if (!toTrash) return OverlayWords::tr("Permanent delete is on. These files can't be recovered.");
  const QString text = anyPermanent
                           //: %1: the Trash
                           ? OverlayWords::tr("Emptying the %1 can't be undone. Everything else goes to the %1.")
                           : OverlayWords::tr("Everything will be moved to the %1, so you can restore it later.");
  return text.arg(platform::trashName());
}

QHBoxLayout* categoryRow(const CategoryResult& result) {
  QHBoxLayout* row = hbox(kRowGap, kRow);
  row->addWidget(new IconTile(result.def.icon, result.def.colour, kTile));
  row->addWidget(label(result.def.title), 1);
  row->addWidget(label(fmt::bytes(result.bytes), "strong"));
  return row;
}

/// What of the selection belongs to apps that were running when it was scanned.
struct InUse {
  qint64 bytes = 0;
  QStringList apps;
};
InUse inUse(const QList<CategoryResult>& selection) {
  InUse found;
  for (const CategoryResult& result : selection)
    for (const CleanItem& item : result.items) {
      if (item.owner.isEmpty()) continue;
      found.bytes += item.bytes;
      if (!found.apps.contains(item.owner)) found.apps << item.owner;
    }
  return found;
}

QString confirmText(bool danger) {
  //: Button: clean, where some of it is deleted for good
  if (danger) return OverlayWords::tr("Clean and delete");
  //: Button: start the cleanup
  return OverlayWords::tr("Clean");
}

} // namespace

ConfirmCleanDialog::ConfirmCleanDialog(AppState* state, QWidget* parent) : Overlay(parent), m_state(state) {
  const QList<CategoryResult> selection = state->selectedResults();
  const bool anyPermanent = std::any_of(selection.begin(), selection.end(),
                                        [](const CategoryResult& one) { return one.def.safety == Permanent; });
  QVBoxLayout* body = dialogBody(this);
  addTexts(body, anyPermanent);
  addWhatStays(body);
  body->addSpacing(kAboveCard);
  addCategories(body);
  const bool danger = anyPermanent || !AppSettings::instance().moveToTrash();
  Button* confirm = dialogFooter(this, confirmText(danger), danger ? "danger" : "primary");
  connect(confirm, &QPushButton::clicked, this, [this] {
    emit accepted();
    close();
  });
}

void ConfirmCleanDialog::addTexts(QVBoxLayout* body, bool anyPermanent) {
  //: Heading of the question; %1: a size
  const QString title = OverlayWords::tr("Clean %1?").arg(fmt::bytes(m_state->selectedBytes()));
  setAccessibleName(title);
  body->addWidget(label(title, "h2"));
  body->addWidget(wrapped(message(AppSettings::instance().moveToTrash(), anyPermanent)));
}

// A clean skips both, so the user hears of it before rather than after.
void ConfirmCleanDialog::addWhatStays(QVBoxLayout* body) {
  const qint64 noTrash = AppSettings::instance().moveToTrash() ? m_state->selectedBytesWithoutTrash() : 0;
  if (noTrash > 0)
    //: %1: a size; %2: the Trash
    body->addWidget(wrapped(OverlayWords::tr("%1 of it will stay: there is no %2 on its volume.")
                                .arg(fmt::bytes(noTrash), platform::trashName())));
  const InUse used = inUse(m_state->selectedResults());
  if (!used.apps.isEmpty())
    //: %1: a size; %2: apps, with commas
    body->addWidget(wrapped(OverlayWords::tr("%1 of it will stay while these apps are open: %2.")
                                .arg(fmt::bytes(used.bytes), fmt::list(used.apps))));
}

void ConfirmCleanDialog::addCategories(QVBoxLayout* body) {
  auto* card = new Card;
  const auto fill = [card] { card->fill = Theme::get().surface; };
  connect(&Theme::get(), &Theme::changed, card, fill);
  fill();
  QVBoxLayout* rows = vbox();
  for (const CategoryResult& result : m_state->selectedResults()) {
    if (rows->count() > 0) rows->addWidget(new Divider);
    rows->addLayout(categoryRow(result));
  }
  card->setLayout(rows);
  body->addWidget(card);
}

} // namespace ui
