#include "gallery/Shelf.h"
#include "gallery/sections.h"
#include "gallery/stage.h"
#include "ui/Theme.h"
#include "ui/controls/Button.h"
#include "ui/controls/FooterBar.h"
#include "ui/controls/GradientText.h"
#include "ui/controls/Headline.h"
#include "ui/controls/PageHeader.h"
#include "ui/controls/factory.h"
#include "ui/visuals/DiskOrb.h"
#include "ui/visuals/Gauge.h"
#include "ui/visuals/ProgressRing.h"
#include "ui/visuals/Radar.h"
#include "ui/visuals/ScanStepRow.h"
#include "ui/visuals/Sparkline.h"
#include "ui/visuals/StackBar.h"
#include "ui/visuals/StepBar.h"
#include "ui/visuals/Treemap.h"

#include <QHBoxLayout>
#include <QLabel>

using namespace Qt::StringLiterals;

namespace gallery {

namespace {

constexpr QRgb kTileHues[] = {0xff6366f1, 0xff22d3ee, 0xffa855f7, 0xfff59e0b, 0xff10b981, 0xffef4444};
constexpr qint64 kMegabyte = 1'000'000;

QColor hue(size_t index) { return QColor::fromRgb(kTileHues[index % std::size(kTileHues)]); }

ui::PageHeader* header() {
  auto* control = new ui::PageHeader(u"Overview"_s, u"What takes up room on this disk, and what of it can go."_s);
  control->setEyebrow(u"Today"_s);
  control->addAction(new ui::Button(u"Settings"_s, "ghost", u"sliders"_s));
  control->addAction(new ui::Button(u"Scan again"_s, nullptr, u"refresh"_s));
  return control;
}

ui::FooterBar* footer() {
  auto* control = new ui::FooterBar;
  control->row()->addWidget(ui::label(u"12.4 GB"_s, "value"));
  control->row()->addWidget(ui::label(u"in 312 items of 5 categories"_s, "sub"));
  control->row()->addStretch();
  control->row()->addWidget(new ui::Button(u"Cancel"_s, "ghost"));
  control->row()->addWidget(new ui::Button(u"Clean now"_s, "primary", u"sparkle"_s, "lg"));
  return control;
}

ui::Headline* headline(const QString& format, const QString& value) {
  auto* control = new ui::Headline(30);
  control->set(format, value);
  return control;
}

ui::GradientText* gradientText(const QFont& font, const QString& text) {
  auto* control = new ui::GradientText(font);
  control->setText(text);
  return control;
}

ui::DiskOrb* orb(qint64 used, qint64 cleanable, const QString& value, const QString& action) {
  auto* control = new ui::DiskOrb;
  control->setDisk(1000, used, cleanable);
  control->setCenter(value, action.isEmpty() ? u"free"_s : u"can be cleaned"_s, action);
  return control;
}

ui::Gauge* gauge(double value) {
  auto* control = new ui::Gauge;
  control->setValue(value);
  return control;
}

ui::ProgressRing* ring(double progress, bool orbiting, bool success) {
  auto* control = new ui::ProgressRing;
  control->success = success;
  control->setProgress(progress);
  control->setOrbiting(orbiting);
  control->setText(u"%1%"_s.arg(int(progress * 100)), success ? u"Done"_s : u"Cleaning"_s);
  return control;
}

ui::Radar* radar(bool running) {
  auto* control = new ui::Radar;
  control->setText(u"4.2 GB"_s, running ? u"Looking"_s : u"Found"_s);
  control->setRunning(running);
  return control;
}

ui::StepBar* stepBar(ui::StepBar::State state) {
  auto* control = new ui::StepBar;
  control->setState(state);
  return control;
}

// The labels of a row follow the look when it is set again, as a page does.
ui::ScanStepRow* stepRow(ui::StepBar::State state, const QString& icon, const QString& title, const QString& value) {
  auto* row = new ui::ScanStepRow(icon, hue(state), title);
  inEveryLook(row, [row, state, value] { row->set(state, value); });
  return row;
}

ui::Treemap* treemap(int count, const QSet<QString>& selected) {
  auto* control = new ui::Treemap;
  QList<ui::Treemap::Item> items;
  qint64 bytes = 9'000 * kMegabyte;
  for (int index = 0; index < count; ++index) {
    items << ui::Treemap::Item{.key = QString::number(index),
                               .label = u"holiday-video-%1.mov"_s.arg(index),
                               .detail = u"%1 GB"_s.arg(double(bytes) / 1e9, 0, 'f', 1),
                               .bytes = bytes,
                               .color = hue(size_t(index))};
    bytes = bytes * 4 / 5;
  }
  control->setItems(items);
  control->setSelected(selected);
  return control;
}

ui::StackBar* stackBar(int height) {
  auto* control = new ui::StackBar(height);
  control->setSegments({{.bytes = 420, .colour = hue(0), .tip = u"Apps: 420 GB"_s},
                        {.bytes = 180, .colour = hue(1), .tip = u"Documents: 180 GB"_s},
                        {.bytes = 90, .colour = hue(2), .hatched = true, .tip = u"Not measured: 90 GB"_s},
                        {.bytes = 1, .colour = hue(3), .tip = u"Trash: 1 GB"_s}},
                       1000);
  return control;
}

ui::Sparkline* sparkline(const QList<qint64>& values) {
  auto* control = new ui::Sparkline;
  control->setValues(values);
  return control;
}

} // namespace

void furniture(Shelf* shelf) {
  shelf->putWide(header(), u"page header"_s);
  ui::PageHeader* bar = header();
  bar->setToolbar(true, 120);
  shelf->putWide(bar, u"page header as a bar, with room for window buttons"_s);
  shelf->putWide(footer(), u"footer bar"_s);
  shelf->row();
  const Theme& theme = Theme::get();
  shelf->put(gradientText(theme.mono(48, 600), u"12.4 GB"_s), u"gradient text"_s);
  ui::GradientText* stops = shelf->put(gradientText(theme.font(30, 600), u"All tidy"_s), u"own stops"_s);
  inEveryLook(stops, [stops] { stops->stops = {Theme::get().ok, Theme::get().accent}; });
  shelf->put(headline(u"%1 can be cleaned"_s, u"12.4 GB"_s), u"headline"_s);
  shelf->put(headline(u"Nothing to clean"_s, {}), u"without value"_s);
  shelf->row();
  shelf->put(headline(u"You can free %1 without losing anything that you made"_s, u"12.4 GB"_s), u"wrapped"_s, 420);
}

void orbs(Shelf* shelf) {
  shelf->put(orb(620, 124, u"124 GB"_s, u"Clean"_s), u"found something"_s);
  ui::DiskOrb* hovering = shelf->put(orb(620, 124, u"124 GB"_s, u"Clean"_s), u"core hovered"_s);
  onceShown(hovering, [hovering] { pointAt(hovering, hovering->coreRect().center()); });
  shelf->put(orb(940, 30, u"60 GB"_s, u"Scan"_s), u"nearly full"_s);
  shelf->focus(shelf->put(orb(300, 0, u"700.5 GB"_s, u"Scan"_s), u"focused"_s));
  shelf->row();
  shelf->put(orb(500, 1, u"500 GB"_s, {}), u"tiny share, no action"_s);
  shelf->put(orb(1000, 1000, u"0"_s, u"Clean"_s), u"all cleanable, no unit"_s);
  shelf->put(orb(0, 0, u"1 TB"_s, u"Scan"_s), u"empty disk"_s);
}

void progress(Shelf* shelf) {
  for (const double value : {0.0, 0.42, 0.8, 0.85, 0.95, 1.0}) shelf->put(gauge(value), u"gauge %1"_s.arg(value));
  shelf->row();
  shelf->put(ring(0, true, false), u"orbiting"_s);
  shelf->put(ring(0.62, true, false), u"on its way"_s);
  shelf->put(ring(1, false, true), u"success"_s);
  shelf->put(radar(true), u"radar"_s);
  shelf->put(radar(false), u"stopped"_s);
  shelf->row();
  for (const auto state : {ui::StepBar::Pending, ui::StepBar::Running, ui::StepBar::Done})
    shelf->put(stepBar(state), u"step bar %1"_s.arg(int(state)), 180);
  shelf->row();
  shelf->put(stepRow(ui::StepBar::Done, u"layers"_s, u"App caches"_s, u"4.2 GB"_s), u"done"_s, 380);
  shelf->put(stepRow(ui::StepBar::Running, u"globe"_s, u"Browser caches"_s, u"310 MB"_s), u"running"_s, 380);
  shelf->put(stepRow(ui::StepBar::Pending, u"trash"_s, u"Trash"_s, u"—"_s), u"pending"_s, 380);
}

void maps(Shelf* shelf) {
  ui::Treemap* plain = shelf->putWide(treemap(24, {}), u"treemap, the second tile hovered"_s);
  onceShown(plain, [plain] { pointAt(plain, plain->rects().at(1).center()); });
  shelf->putWide(treemap(24, {u"0"_s, u"3"_s, u"14"_s, u"23"_s}), u"selected"_s);
  shelf->row();
  shelf->put(treemap(1, {}), u"one"_s, 200);
  shelf->put(treemap(3, {u"1"_s}), u"three"_s, 300);
  shelf->put(treemap(0, {}), u"none"_s, 100);
  ui::Treemap* focused = shelf->put(treemap(5, {}), u"focused"_s, 300);
  shelf->focus(focused);
}

void bars(Shelf* shelf) {
  for (const int height : {6, 10, 14, 22}) shelf->put(stackBar(height), u"stack bar %1"_s.arg(height), 240);
  shelf->row();
  shelf->put(new ui::StackBar(14), u"without segments"_s, 240);
  shelf->put(sparkline({3, 8, 2, 9, 12, 5}), u"sparkline"_s);
  shelf->put(sparkline({0, 0, 0, 0, 0, 0}), u"all zero"_s);
  shelf->put(sparkline({0, 0, 0, 0, 0, 7}), u"first month"_s);
  shelf->put(sparkline({}), u"no values"_s);
}

} // namespace gallery
