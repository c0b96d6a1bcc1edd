#include "gallery/Sheet.h"

#include "gallery/Shelf.h"
#include "gallery/sections.h"
#include "ui/Theme.h"
#include "ui/controls/Divider.h"
#include "ui/controls/factory.h"

#include <QLabel>
#include <QPainter>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace gallery {

namespace {

struct Section {
  const char* title;
  void (*fill)(Shelf* shelf);
};
constexpr Section kSections[] = {
    {"Colours", colours},
    {"Type", type},
    {"Line icons at 14, 16, 18 and 30", lineIcons},
    {"Logos, tray, glyphs", logosAndGlyphs},
    {"Buttons", buttons},
    {"Switches and segments", choices},
    {"Select", selects},
    {"Badges, spinners, tiles, cards", marks},
    {"Notes", notes},
    {"Page furniture", furniture},
    {"Disk orb", orbs},
    {"Work in progress", progress},
    {"Treemap", maps},
    {"Bars and lines", bars},
    {"Check boxes and fields of the style sheet", stockFields},
    {"Tables and scroll bars of the style sheet", stockViews},
    {"Tool tips, menus, lists", stockPopups},
};

constexpr int kWidthPx = 1404;
constexpr QMargins kMargins{40, 32, 40, 40};
constexpr int kBetweenRowsPx = 16;
constexpr int kBeforeSectionPx = 28;

} // namespace

Sheet::Sheet() : m_look(ui::label({}, "h1")) {
  setFocusPolicy(Qt::StrongFocus);
  QVBoxLayout* column = ui::vbox(kBetweenRowsPx, kMargins);
  setLayout(column);
  column->setSizeConstraint(QLayout::SetFixedSize);
  column->addWidget(m_look);
  addSections(column);
  column->addStrut(kWidthPx - kMargins.left() - kMargins.right());
  connect(&Theme::get(), &Theme::changed, this, &Sheet::tellLook);
  tellLook();
}

void Sheet::addSections(QVBoxLayout* column) {
  for (const Section& section : kSections) {
    column->addSpacing(kBeforeSectionPx);
    column->addWidget(ui::label(QString::fromLatin1(section.title), "h2"));
    column->addWidget(new ui::Divider);
    Shelf shelf(this, column);
    section.fill(&shelf);
  }
}

void Sheet::tellLook() {
  const Theme& theme = Theme::get();
  m_look->setText(u"%1, %2 metrics"_s.arg(theme.dark ? u"Dark"_s : u"Light"_s, theme.mac ? u"mac"_s : u"win"_s));
  update();
}

void Sheet::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  Theme::get().paintBackdrop(&painter, rect());
}

} // namespace gallery
