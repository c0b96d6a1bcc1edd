#include "gallery/Shelf.h"
#include "gallery/sections.h"
#include "gallery/stage.h"
#include "ui/Theme.h"
#include "ui/controls/Button.h"
#include "ui/controls/Card.h"
#include "ui/controls/Divider.h"
#include "ui/controls/ElidedLabel.h"
#include "ui/controls/IconTile.h"
#include "ui/controls/IconView.h"
#include "ui/controls/Note.h"
#include "ui/controls/Pill.h"
#include "ui/controls/Segmented.h"
#include "ui/controls/Select.h"
#include "ui/controls/Spinner.h"
#include "ui/controls/Switch.h"
#include "ui/controls/factory.h"

#include <QLabel>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace gallery {

namespace {

struct Kind {
  const char* kind; ///< null for an ordinary button
  const char* text;
  const char* icon;
};
constexpr Kind kKinds[] = {{nullptr, "Choose folder", "folder"},
                           {"primary", "Clean now", "sparkle"},
                           {"danger", "Delete", "trash"},
                           {"ghost", "Cancel", "x"},
                           {"link", "Show in Files", "external"}};

ui::Button* button(const Kind& kind, bool withIcon = false, const char* size = nullptr) {
  const QString icon = withIcon ? QString::fromLatin1(kind.icon) : QString();
  return new ui::Button(QString::fromLatin1(kind.text), kind.kind, icon, size);
}

ui::Switch* onOff(bool on) {
  auto* control = new ui::Switch;
  control->setChecked(on);
  return control;
}

ui::Segmented* segmented(int current) {
  auto* control = new ui::Segmented({u"System"_s, u"Light"_s, u"Dark"_s});
  control->setCurrent(current);
  return control;
}

ui::Select* select() {
  auto* control = new ui::Select;
  control->addItems({u"Every week"_s, u"Every month"_s, u"Never"_s});
  return control;
}

ui::Select* longSelect() {
  auto* control = new ui::Select;
  control->addItem(u"An entry that is longer than there is room"_s);
  return control;
}

ui::Card* card(bool bordered) {
  auto* control = new ui::Card;
  control->bordered = bordered;
  control->setFixedSize(150, 72);
  QVBoxLayout* inner = ui::vbox(6, {16, 14, 16, 14});
  control->setLayout(inner);
  inner->addWidget(ui::label(u"App caches"_s, "strong"));
  inner->addWidget(new ui::Divider);
  inner->addWidget(ui::label(u"4.2 GB"_s, "num"));
  return control;
}

ui::IconTile* tile(const QString& icon, const QColor& colour, int size, bool muted = false) {
  auto* control = new ui::IconTile(icon, colour, size);
  control->muted = muted;
  return control;
}

ui::Note* note(ui::Note::Kind kind, const QString& icon, const QString& action) {
  auto* control = new ui::Note(
      kind, icon, u"<b>Quit the apps first.</b> What a running app has in its cache stays until it has ended."_s);
  if (!action.isEmpty()) control->addAction(action);
  return control;
}

} // namespace

void buttons(Shelf* shelf) {
  for (const Kind& kind : kKinds) {
    shelf->row();
    shelf->put(button(kind), kind.kind ? QString::fromLatin1(kind.kind) : u"ordinary"_s);
    shelf->put(hovered(button(kind)), u"hovered"_s);
    shelf->put(pressed(button(kind)), u"pressed"_s);
    shelf->put(disabled(button(kind)), u"disabled"_s);
    shelf->put(button(kind, true), u"with icon"_s);
    shelf->put(disabled(button(kind, true)), u"disabled"_s);
    shelf->put(button(kind, true, "lg"), u"large"_s);
    shelf->putFocused(button(kind), u"focused"_s);
  }
}

void choices(Shelf* shelf) {
  shelf->put(onOff(false), u"off"_s);
  shelf->put(onOff(true), u"on"_s);
  shelf->put(hovered(onOff(false)), u"hovered"_s);
  shelf->put(hovered(onOff(true)), u"on, hovered"_s);
  shelf->put(disabled(onOff(false)), u"disabled"_s);
  shelf->put(disabled(onOff(true)), u"on, disabled"_s);
  shelf->putFocused(onOff(false), u"focused"_s);
  shelf->putFocused(onOff(true), u"on, focused"_s);
  shelf->row();
  for (const int current : {0, 1, 2}) shelf->put(segmented(current), u"segment %1"_s.arg(current));
  shelf->putFocused(segmented(0), u"focused"_s);
  shelf->put(disabled(segmented(0)), u"disabled"_s);
  shelf->put(new ui::Segmented({}), u"none"_s);
}

void marks(Shelf* shelf) {
  shelf->put(new ui::Pill(Safety::Safe), u"safe"_s);
  shelf->put(new ui::Pill(Safety::Review), u"review"_s);
  shelf->put(new ui::Pill(Safety::Permanent), u"permanent"_s);
  for (const int size : {14, 18, 28}) shelf->put(new ui::Spinner(size), u"spinner %1"_s.arg(size));
  shelf->put(new ui::ElidedLabel(u"Long names give way to what stands beside them"_s), u"elided"_s, 160);
  shelf->put(new ui::ElidedLabel(u"Short"_s, "strong"), u"whole"_s, 60);
  shelf->row();
  for (int tone = 0; tone <= int(Tone::White); ++tone)
    shelf->put(new ui::IconView(u"shield"_s, Tone(tone), 18), u"tone %1"_s.arg(tone));
  shelf->row();
  for (const int size : {30, 34, 40, 56})
    shelf->put(tile(u"layers"_s, QColor(99, 102, 241), size), u"tile %1"_s.arg(size));
  shelf->put(tile(u"globe"_s, QColor(34, 211, 238), 40), u"cyan"_s);
  shelf->put(tile(u"download"_s, QColor(245, 158, 11), 40), u"amber"_s);
  shelf->put(tile(u"trash"_s, QColor(239, 68, 68), 40), u"red"_s);
  shelf->put(tile(u"code"_s, QColor(16, 185, 129), 40, true), u"muted"_s);
  shelf->row();
  shelf->put(card(true), u"card"_s);
  shelf->put(card(false), u"without border"_s);
  ui::Card* filled = shelf->put(card(true), u"filled"_s);
  inEveryLook(filled, [filled] { filled->fill = Theme::get().accentSoft; });
}

void notes(Shelf* shelf) {
  shelf->put(note(ui::Note::Neutral, u"info"_s, {}), u"neutral"_s, 340);
  shelf->put(note(ui::Note::Info, u"shield"_s, {}), u"info"_s, 340);
  shelf->put(note(ui::Note::Caution, u"alert"_s, {}), u"caution"_s, 340);
  shelf->putWide(note(ui::Note::Caution, u"alert"_s, u"Open settings"_s), u"action beside"_s);
  shelf->row();
  shelf->put(note(ui::Note::Info, u"info"_s, u"Open settings"_s), u"action below"_s, 320);
}

void selects(Shelf* shelf) {
  shelf->put(select(), u"select"_s);
  shelf->put(hovered(select()), u"hovered"_s);
  shelf->put(disabled(select()), u"disabled"_s);
  shelf->putFocused(select(), u"focused"_s);
  shelf->put(longSelect(), u"elided"_s, 150);
  shelf->put(new ui::Select, u"empty"_s);
}

} // namespace gallery
