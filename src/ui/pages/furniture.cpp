#include "ui/pages/furniture.h"

#include "core/fmt.h"
#include "ui/Theme.h"
#include "ui/controls/Button.h"
#include "ui/controls/IconTile.h"
#include "ui/controls/KeyboardFocus.h"
#include "ui/controls/factory.h"
#include "ui/paint.h"
#include "ui/visuals/Radar.h"

#include <QCheckBox>
#include <QDir>
#include <QElapsedTimer>
#include <QHBoxLayout>
#include <QPainter>
#include <QVBoxLayout>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace ui {

namespace {

// Lengths in pixels.
constexpr int kSideMac = 28;
constexpr int kSideWin = 32;
constexpr QMargins kCentredMargins(32, 24, 32, 24);
constexpr int kBelowBlock = 2; // stretch
constexpr QMargins kStartMargins(32, 60, 32, 32);
constexpr int kStartSpacing = 8;
constexpr int kStartTile = 56;
constexpr int kBelowTile = 8;
constexpr int kAboveButton = 12;
constexpr int kStatSpacing = 2;
constexpr int kCardMin = 290;
constexpr int kCardMax = 340;
constexpr int kCardSpacing = 18;
constexpr QMargins kCardMargins(26, 26, 26, 26);
constexpr int kPathMin = 10;
constexpr int kCheckSquare = 16;
constexpr int kBodySpacing = 18;
constexpr int kBodyBottom = 28;
constexpr QMargins kListMargins(8, 8, 8, 8);
constexpr QMargins kListHeadMargins(12, 14, 12, 8);
constexpr double kRingInset = 5;
constexpr double kRingRadius = 10;

constexpr double kHalfDone = 0.5;
constexpr double kEstimateFrom = 0.15;
constexpr qint64 kMsInSecond = 1000;

QString dash() { return u"—"_s; }

QString fontSize(int pixels) { return u"font-size: %1px;"_s.arg(pixels); }

QLabel* centredLabel(const QString& text, const char* role, Qt::Alignment alignment = Qt::AlignCenter) {
  QLabel* result = label(text, role);
  result->setAlignment(alignment);
  return result;
}

/// A tile in the accent of the look in force.
IconTile* accentTile(const QString& icon, int size) {
  auto* tile = new IconTile(icon, Theme::get().accent, size);
  QObject::connect(&Theme::get(), &Theme::changed, tile, [tile, icon] { tile->set(icon, Theme::get().accent); });
  return tile;
}

} // namespace

int pageSide() { return Theme::get().mac ? kSideMac : kSideWin; }

QWidget* centred(QLayout* block, int maxWidth) {
  auto* holder = new QWidget;
  holder->setLayout(block);
  holder->setMaximumWidth(maxWidth);
  QHBoxLayout* row = hbox();
  row->addStretch();
  row->addWidget(holder, 1);
  row->addStretch();
  auto* whole = new QWidget;
  QVBoxLayout* column = vbox(0, kCentredMargins);
  whole->setLayout(column);
  column->addStretch();
  column->addLayout(row);
  column->addStretch(kBelowBlock);
  return whole;
}

StartBlock startBlock(const StartWords& words) {
  StartBlock block{.layout = vbox(kStartSpacing), .start = new Button(words.button, "primary", words.buttonIcon, "lg")};
  block.layout->setContentsMargins(0, 0, 0, kGlowRoom);
  block.layout->addWidget(accentTile(words.icon, kStartTile), 0, Qt::AlignHCenter);
  block.layout->addSpacing(kBelowTile);
  block.layout->addWidget(centredLabel(words.title, "h2"));
  QLabel* text = centredLabel(words.text, "sub");
  text->setWordWrap(true);
  block.layout->addWidget(text);
  block.layout->addSpacing(kAboveButton);
  block.layout->addWidget(block.start, 0, Qt::AlignHCenter);
  return block;
}

StartView startView(const StartWords& words) {
  const StartBlock block = startBlock(words);
  block.layout->setContentsMargins(kStartMargins);
  block.layout->addStretch();
  auto* view = new QWidget;
  view->setLayout(block.layout);
  return {.view = view, .start = block.start};
}

StatPair statPair(const QString& caption, const StatSizes& sizes) {
  StatPair pair{.layout = vbox(kStatSpacing), .value = centredLabel({}, "num")};
  pair.value->setStyleSheet(fontSize(sizes.value));
  QLabel* below = centredLabel(caption, "micro");
  below->setWordWrap(true); // several stand side by side
  if (sizes.caption > 0) below->setStyleSheet(fontSize(sizes.caption));
  below->setBuddy(pair.value); // tells screen readers what the value is of
  pair.layout->addWidget(pair.value);
  pair.layout->addWidget(below);
  return pair;
}

QCheckBox* bareCheckBox(const QString& name) {
  auto* box = new QCheckBox;
  box->setFixedWidth(kCheckSquare); // it would keep room for the gap before a label
  box->setAccessibleName(name);
  return box;
}

PathLabel::PathLabel(QWidget* parent) : QLabel(parent) {
  setRole(this, "mono");
  setTextFormat(Qt::PlainText); // file names may look like markup
  setAlignment(Qt::AlignCenter);
}

void PathLabel::setPath(const QString& path, int widthPx) {
  const QString native = QDir::toNativeSeparators(path);
  setAccessibleName(native);
  setText(fontMetrics().elidedText(native, Qt::ElideMiddle, widthPx));
}

void PathLabel::paintEvent(QPaintEvent* /*event*/) {
  const QRect room = contentsRect();
  QPainter painter(this);
  painter.setPen(palette().color(foregroundRole()));
  paint::text(&painter, room, int(alignment()), fontMetrics().elidedText(text(), Qt::ElideMiddle, room.width()));
}

RadarCard::RadarCard(const QString& name, QWidget* parent)
    : Card(parent), m_radar(new Radar), m_path(new PathLabel), m_counters(hbox()) {
  setMinimumWidth(std::max(kCardMin, m_radar->width() + kCardMargins.left() + kCardMargins.right()));
  setMaximumWidth(kCardMax);
  m_radar->setAccessibleName(name);
  m_path->setMinimumWidth(kPathMin);
  m_path->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
  QVBoxLayout* column = vbox(kCardSpacing, kCardMargins);
  setLayout(column);
  column->addStretch();
  column->addWidget(m_radar, 0, Qt::AlignHCenter);
  column->addWidget(m_path);
  column->addLayout(m_counters);
  column->addStretch();
}

QLabel* RadarCard::addCounter(const QString& caption) {
  const StatPair pair = statPair(caption);
  pair.value->setText(dash());
  m_counters->addLayout(pair.layout, 1);
  return pair.value;
}

QHBoxLayout* scanBody(RadarCard* radar, QWidget* results, const ScanShares& shares) {
  QHBoxLayout* body = hbox(kBodySpacing, {pageSide(), 0, pageSide(), kBodyBottom});
  body->addWidget(radar, shares.radar);
  body->addWidget(results, shares.results);
  return body;
}

ListCard::ListCard(const QString& heading, QWidget* parent) : Card(parent), m_column(vbox(0, kListMargins)) {
  QHBoxLayout* head = hbox(0, kListHeadMargins);
  head->addWidget(eyebrow(heading));
  m_column->addLayout(head);
  setLayout(m_column);
}

void ListCard::ringFor(QWidget* inside) {
  m_inside = new KeyboardFocus(inside, [this] { update(); });
}

void ListCard::paintEvent(QPaintEvent* event) {
  Card::paintEvent(event);
  if (!m_inside) return;
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  m_inside->paintRing(&painter, QRectF(rect()).adjusted(kRingInset, kRingInset, -kRingInset, -kRingInset), kRingRadius);
}

double scanFraction(int current, qsizetype count) {
  if (count < 1) return 0;
  return std::clamp((std::max(current, 0) + kHalfDone) / double(count), 0.0, 1.0);
}

qint64 elapsedSeconds(const QElapsedTimer& clock) { return clock.isValid() ? clock.elapsed() / kMsInSecond : 0; }

QString scanRemaining(double fraction, qint64 elapsedSeconds) {
  if (fraction <= kEstimateFrom) return dash();
  return u'~' + fmt::clock(qint64((1 - fraction) * (double(elapsedSeconds) / fraction)));
}

} // namespace ui
