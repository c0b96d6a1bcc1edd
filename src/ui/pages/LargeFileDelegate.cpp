#include "ui/pages/LargeFileDelegate.h"

#include "core/fmt.h"
#include "engines/LargeFileFinder.h"
#include "ui/Theme.h"
#include "ui/icons.h"
#include "ui/pages/LargeFileKind.h"
#include "ui/pages/LargeFilesModel.h"
#include "ui/paint.h"

#include <QAbstractItemView>
#include <QCursor>
#include <QEvent>
#include <QFontMetrics>
#include <QPainter>
#include <QScrollBar>

namespace ui {

namespace {

// Lengths in pixels.
constexpr QSize kCellHint(100, LargeFileDelegate::kRowHeight);
constexpr int kSide = 12;
constexpr QSizeF kBox(18, 18);
constexpr int kBoxUp = 9; // above the row's middle
constexpr double kBoxInset = 0.75;
constexpr double kBoxRadius = 5;
constexpr double kBoxOutline = 1.5;
constexpr QPointF kTick[] = {{5, 9.5}, {8, 12.5}, {13.5, 6}}; // from the box's corner
constexpr double kTickWidth = 2;
constexpr QSizeF kTile(27, 27);
constexpr double kTileLeft = 12.5;
constexpr double kTileUp = 13.5;
constexpr double kTileRadius = 8;
constexpr double kIconInset = 6.5;
constexpr int kNameLeft = 52;
constexpr int kNameInset = 9; // above and below
constexpr int kTextPx = 13;
constexpr int kFolderPx = 11;

constexpr int kRegular = 400;
constexpr int kMedium = 500;
constexpr int kSemibold = 600;

// Alphas, of 255 and as fractions.
constexpr int kBoxOutlineAlpha = 0x47;
constexpr int kBoxFillAlpha = 0x0a; // in the dark look
constexpr double kTileFillDark = 0.14;
constexpr double kTileFillLight = 0.12;
constexpr double kTileOutline = 0.22;

constexpr QColor kInk(15, 23, 42); // hue: around a box on a light ground

constexpr Qt::Alignment kRightMiddle = Qt::AlignRight | Qt::AlignVCenter;
constexpr Qt::Alignment kLeftMiddle = Qt::AlignLeft | Qt::AlignVCenter;

void paintEmptyBox(QPainter* painter, const FileCellLayout& layout) {
  const bool dark = Theme::get().dark;
  const QColor fill = dark ? paint::withAlpha(Qt::white, kBoxFillAlpha) : QColor(Qt::white);
  const QColor outline = paint::withAlpha(dark ? QColor(Qt::white) : kInk, kBoxOutlineAlpha);
  paint::roundedRect(painter, layout.boxBody, layout.boxRadius, fill, paint::pen(outline, kBoxOutline));
}

void paintTickedBox(QPainter* painter, const FileCellLayout& layout) {
  paint::roundedRect(painter, layout.boxBody, layout.boxRadius, Theme::gradient(layout.box));
  painter->setBrush(Qt::NoBrush);
  painter->setPen(paint::roundPen(QColor(Qt::white), kTickWidth));
  painter->drawPolyline(layout.tick);
}

void paintKind(QPainter* painter, const FileCellLayout& layout, const QString& kind) {
  const KindStyle& style = kindStyle(kind);
  const double fill = Theme::get().dark ? kTileFillDark : kTileFillLight;
  paint::roundedRect(painter, layout.tile, layout.tileRadius, paint::withAlphaF(style.colour, fill),
                     paint::pen(paint::withAlphaF(style.colour, kTileOutline)));
  icons::paint(painter, layout.icon, style.icon, style.colour);
}

void paintText(QPainter* painter, const QRect& room, Qt::Alignment alignment, const QColor& colour,
               const QString& text) {
  painter->setPen(colour);
  paint::text(painter, room, int(alignment) | Qt::TextSingleLine, text);
}

void paintName(QPainter* painter, const QRect& room, const LargeFile& file) {
  const Theme& theme = Theme::get();
  painter->setFont(theme.font(kTextPx, kMedium));
  paintText(painter, room, Qt::AlignLeft | Qt::AlignTop, theme.text,
            painter->fontMetrics().elidedText(file.name, Qt::ElideRight, room.width()));
  painter->setFont(theme.mono(kFolderPx, kRegular));
  paintText(painter, room, Qt::AlignLeft | Qt::AlignBottom, theme.text3,
            painter->fontMetrics().elidedText(fmt::shortPath(file.dir), Qt::ElideMiddle, room.width()));
}

void paintAge(QPainter* painter, const QRect& room, const QDateTime& lastUsed, int unusedMonths) {
  const Theme& theme = Theme::get();
  const bool unused = fmt::monthsSince(lastUsed) >= unusedMonths;
  painter->setFont(theme.font(kTextPx, unused ? kMedium : kRegular));
  paintText(painter, room, kRightMiddle, unused ? theme.warn : theme.text2,
            painter->fontMetrics().elidedText(fmt::age(lastUsed), Qt::ElideRight, room.width()));
}

/// Every piece at the other side of the cell, with its shape as it is.
FileCellLayout mirrored(FileCellLayout layout, const QRect& cell) {
  const auto turned = [&cell](const QRectF& rect) { return paint::mirrored(rect, cell, Qt::RightToLeft); };
  const QPointF step = turned(layout.box).topLeft() - layout.box.topLeft();
  layout.box.translate(step);
  layout.boxBody.translate(step);
  layout.tick.translate(step);
  layout.tile = turned(layout.tile);
  layout.icon = turned(layout.icon);
  layout.name = turned(layout.name).toRect();
  layout.text = turned(layout.text).toRect();
  return layout;
}

} // namespace

FileCellLayout fileCellLayout(const QRect& cell, Qt::LayoutDirection direction) {
  const int middle = cell.center().y();
  FileCellLayout layout;
  layout.line = QRect(cell.left(), cell.bottom(), cell.width(), 1);
  layout.box = QRectF(QPointF(cell.left() + kSide, middle - kBoxUp), kBox);
  layout.boxBody = layout.box.adjusted(kBoxInset, kBoxInset, -kBoxInset, -kBoxInset);
  layout.boxRadius = kBoxRadius;
  for (const QPointF& point : kTick) layout.tick << layout.box.topLeft() + point;
  layout.tile = QRectF(QPointF(cell.left() + kTileLeft, middle - kTileUp), kTile);
  layout.tileRadius = kTileRadius;
  layout.icon = layout.tile.adjusted(kIconInset, kIconInset, -kIconInset, -kIconInset);
  layout.name = cell.adjusted(kNameLeft, kNameInset, -kSide, -kNameInset);
  layout.text = cell.adjusted(kSide, 0, -kSide, 0);
  return direction == Qt::RightToLeft ? mirrored(layout, cell) : layout;
}

LargeFileDelegate::LargeFileDelegate(LargeFilesModel* model, QAbstractItemView* view)
    : QStyledItemDelegate(view), m_model(model), m_view(view) {
  view->viewport()->installEventFilter(this);
  connect(view->verticalScrollBar(), &QScrollBar::valueChanged, this, &LargeFileDelegate::updateHover);
}

bool LargeFileDelegate::eventFilter(QObject* /*watched*/, QEvent* event) {
  const QEvent::Type type = event->type();
  if (type == QEvent::MouseMove || type == QEvent::Enter || type == QEvent::Leave) updateHover();
  return false; // what the base class does is for editors
}

void LargeFileDelegate::updateHover() {
  QWidget* viewport = m_view->viewport();
  const QPoint pointer = viewport->mapFromGlobal(QCursor::pos());
  const int row = viewport->rect().contains(pointer) ? m_view->indexAt(pointer).row() : -1;
  if (row == m_hoverRow) return;
  m_hoverRow = row;
  viewport->update();
}

QSize LargeFileDelegate::sizeHint(const QStyleOptionViewItem& /*option*/, const QModelIndex& /*index*/) const {
  return kCellHint;
}

void LargeFileDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const {
  painter->save();
  painter->setRenderHint(QPainter::Antialiasing);
  if (index.row() == m_hoverRow) painter->fillRect(option.rect, Theme::get().hover);
  paintCell(painter, option.rect, index);
  painter->restore();
}

void LargeFileDelegate::paintCell(QPainter* painter, const QRect& cell, const QModelIndex& index) const {
  const Theme& theme = Theme::get();
  const FileCellLayout layout = fileCellLayout(cell, m_view->layoutDirection());
  const auto file = index.data(LargeFilesModel::FileRole).value<LargeFile>();
  paint::line(painter, layout.line, theme.line);
  switch (index.column()) {
  case LargeFilesModel::Check:
    (index.data(LargeFilesModel::CheckedRole).toBool() ? paintTickedBox : paintEmptyBox)(painter, layout);
    break;
  case LargeFilesModel::Name:
    paintKind(painter, layout, file.kind);
    paintName(painter, layout.name, file);
    break;
  case LargeFilesModel::Kind:
    painter->setFont(theme.font(kTextPx, kRegular));
    paintText(painter, layout.text, kLeftMiddle, theme.text2, LargeFileFinder::kindName(file.kind));
    break;
  case LargeFilesModel::LastOpened:
    paintAge(painter, layout.text, file.lastUsed, m_model->unusedMonths);
    break;
  default:
    painter->setFont(theme.mono(kTextPx, kSemibold));
    paintText(painter, layout.text, kRightMiddle, theme.text, fmt::bytes(file.size));
  }
}

} // namespace ui
