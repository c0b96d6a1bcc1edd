#include "ui/pages/SystemDataRow.h"

#include "core/fmt.h"
#include "ui/Theme.h"
#include "ui/TipStyler.h"
#include "ui/controls/Button.h"
#include "ui/controls/ElidedLabel.h"
#include "ui/controls/IconTile.h"
#include "ui/controls/KeyboardFocus.h"
#include "ui/controls/Label.h"
#include "ui/controls/factory.h"
#include "ui/pages/SystemDataWords.h"

#include <QFontMetrics>
#include <QHBoxLayout>
#include <QLabel>
#include <QVBoxLayout>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace ui {

namespace {

// Lengths in pixels.
constexpr int kSpacing = 16;
constexpr QMargins kMargins(18, 14, 18, 14);
constexpr int kTile = 28;
constexpr int kTextSpacing = 2;
constexpr int kColumnSpacing = 8;
constexpr int kLeastSize = 110;
constexpr int kMostSize = 170;
constexpr int kBesideSize = 6;
constexpr int kLeastButton = 150;
constexpr int kBesideLabel = 40;
constexpr int kMostColumn = 240;
// Of what stands in that column.
constexpr int kFontPx = 13;
constexpr int kSizeWeight = 600;
constexpr int kLabelWeight = 500;
constexpr int kPaintedWeight = 600; // that of buttons, which is wider in some fonts
constexpr int kAroundLabel = 34;    // padding and border of a button

/// Tells on its tool tip what the item is.
class Title : public Label {
 public:
  explicit Title(const SystemDataItem& item) : Label(item.title) {
    setProperty("role", u"strong"_s); // as it is dressed later, once
    setToolTip(item.blurb);
    setWordWrap(true);
  }

 protected:
  bool event(QEvent* event) override { return showTipInLines(this, event) || Label::event(event); }
};

/// Whether its button does anything: what is only counted may be none.
bool isReady(const SystemDataItem& item) { return item.id != "snapshots"_L1 || item.count >= 1; }

} // namespace

bool hasRow(const SystemDataItem& item) { return item.bytes > 0 || item.denied || item.count >= 1; }

int systemDataColumn(int widestSize, int widestLabel) {
  const int size = std::clamp(widestSize + kBesideSize, kLeastSize, kMostSize);
  const int button = std::max(widestLabel + kBesideLabel, kLeastButton);
  return std::min(std::max(size, button), kMostColumn);
}

int systemDataColumn(const QList<SystemDataItem>& items) {
  const QFontMetrics sizes(Theme::get().mono(kFontPx, kSizeWeight));
  const QFontMetrics labels(Theme::get().font(kFontPx, kLabelWeight));
  const QFontMetrics painted(Theme::get().font(kFontPx, kPaintedWeight));
  int widestSize = 0;
  int widestLabel = 0;
  int widestButton = 0;
  for (const SystemDataItem& item : items) {
    if (!hasRow(item)) continue;
    widestSize = std::max(widestSize, sizes.horizontalAdvance(SystemDataWords::sizeOf(item)));
    widestLabel = std::max(widestLabel, labels.horizontalAdvance(item.actionLabel()));
    widestButton = std::max(widestButton, painted.horizontalAdvance(item.actionLabel()) + kAroundLabel);
  }
  return std::max(systemDataColumn(widestSize, widestLabel), std::min(widestButton, kMostColumn));
}

SystemDataRow::SystemDataRow(const SystemDataItem& item, int column, bool busy, QWidget* parent)
    : QWidget(parent), m_id(item.id), m_shown(fmt::list({item.title, SystemDataWords::sizeOf(item)})) {
  QHBoxLayout* row = hbox(kSpacing, kMargins);
  setLayout(row);
  row->addWidget(new IconTile(item.icon, item.color, kTile), 0, Qt::AlignVCenter);
  QLayout* text = buildText(item);
  row->addLayout(text, 1);
  row->setAlignment(text, Qt::AlignVCenter); // else title and detail would drift apart beside a button
  row->addWidget(buildColumn(item, column, busy), 0, Qt::AlignVCenter);
  setAccessibleDescription(item.blurb);
}

QLayout* SystemDataRow::buildText(const SystemDataItem& item) {
  QVBoxLayout* text = vbox(kTextSpacing);
  text->addWidget(new Title(item));
  const QString detail = SystemDataWords::detailOf(item);
  if (detail.isEmpty()) return text;
  auto* below = new ElidedLabel(detail, "micro"); // it may hold names of folders, as long as they like
  below->setTextFormat(Qt::PlainText);
  text->addWidget(below);
  m_shown = fmt::list({m_shown, detail});
  return text;
}

QWidget* SystemDataRow::buildColumn(const SystemDataItem& item, int width, bool busy) {
  auto* column = new QWidget;
  column->setFixedWidth(width);
  QVBoxLayout* lines = vbox(kColumnSpacing);
  column->setLayout(lines);
  QLabel* size = label(SystemDataWords::sizeOf(item), item.denied && item.bytes == 0 ? "warn" : "num");
  size->setWordWrap(true);
  size->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
  lines->addWidget(size);
  if (item.action == SystemDataItem::None) return column;
  m_button = new Button(item.actionLabel());
  m_button->setFixedWidth(width);
  m_button->setEnabled(!busy && isReady(item));
  m_button->setAccessibleName(fmt::list({item.actionLabel(), item.title})); // several rows have the same button
  m_focus = new KeyboardFocus(m_button);
  lines->addWidget(m_button);
  return column;
}

bool SystemDataRow::showsFocus() const { return m_focus && m_focus->isVisible(); }

} // namespace ui
