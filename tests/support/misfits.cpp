#include "support/misfits.h"

#include "support/PaintedTexts.h"
#include "support/window.h"
#include "ui/controls/ElidedLabel.h"
#include "ui/pages/furniture.h"

#include <QAbstractScrollArea>
#include <QComboBox>
#include <QLayout>
#include <QScrollArea>
#include <QScrollBar>

#include <limits>

using namespace Qt::StringLiterals;

namespace {

// Pixels that rounding and the soft edges of letters take.
constexpr double kTolerance = 2;
constexpr double kAccents = 2; // above and below a line, where accents of capitals may lie
constexpr double kEndless = 1e6;
constexpr QChar kEllipsis(0x2026);

struct Shown {
  QString text;
  QRectF ink; ///< what of it can be seen, in the root's coordinates
  const QWidget* widget;
};

/// Whether @p widget is the window of a scrolling area on what it holds.
const QAbstractScrollArea* scrollerOf(const QWidget* widget) {
  const auto* area = qobject_cast<const QAbstractScrollArea*>(widget->parentWidget());
  return area && area->viewport() == widget ? area : nullptr;
}

/// The directions in which what a widget shows can be scrolled into view.
struct Scrolling {
  bool across = false;
  bool down = false;

  void add(const QAbstractScrollArea* area) {
    const bool hasBar = area->horizontalScrollBarPolicy() != Qt::ScrollBarAlwaysOff;
    across = across || (hasBar && area->horizontalScrollBar()->maximum() > 0);
    down = down || area->verticalScrollBar()->maximum() > 0;
  }
  /// @p rect without limits in these directions.
  [[nodiscard]] QRectF freed(const QRectF& rect) const {
    const double x = across ? kEndless : 0;
    const double y = down ? kEndless : 0;
    return rect.adjusted(-x, -y, x, y);
  }
};

/// Where a text of @p widget may lie, in the widget's coordinates. @param clip  what its painter lets through
QRectF roomFor(const QWidget* widget, const QWidget* root, const QRectF& clip) {
  Scrolling scrolling;
  if (const auto* area = scrollerOf(widget)) scrolling.add(area);
  QRectF room = scrolling.freed(clip);
  for (const QWidget* one = widget;; one = one->parentWidget()) {
    if (const auto* area = scrollerOf(one)) scrolling.add(area);
    room &= scrolling.freed({widget->mapFrom(one, QPoint()), QSizeF(one->size())});
    if (one == root) return room;
  }
}

bool reaches(const QRectF& ink, const QRectF& room) {
  return ink.left() < room.left() - kTolerance || ink.right() > room.right() + kTolerance ||
         ink.top() < room.top() - kAccents || ink.bottom() > room.bottom() + kAccents;
}

/// How far it reaches, in words for whoever mends it.
QString overhang(const QRectF& ink, const QRectF& room) {
  if (room.isEmpty()) return u"wholly"_s;
  return u"by %1 left, %2 right, %3 above, %4 below"_s.arg(room.left() - ink.left())
      .arg(ink.right() - room.right())
      .arg(room.top() - ink.top())
      .arg(ink.bottom() - room.bottom());
}

/// Whether a program may shorten what @p widget shows.
bool mayShorten(const QWidget* widget) {
  return qobject_cast<const ui::ElidedLabel*>(widget) || qobject_cast<const ui::PathLabel*>(widget) ||
         scrollerOf(widget);
}

bool isShortened(const PaintedText& text, const QWidget* widget) {
  if (!text.text.contains(kEllipsis) || mayShorten(widget)) return false;
  QString whole = windowtest::plain(widget->property("text").toString());
  if (const auto* select = qobject_cast<const QComboBox*>(widget)) whole = select->currentText();
  return !whole.simplified().contains(text.text.simplified(), Qt::CaseInsensitive); // which makes plain spaces of all
}

QString quoted(const QString& text) { return u'"' + text.trimmed() + u'"'; }

QString classOf(const QWidget* widget) {
  QString name = QString::fromLatin1(widget->metaObject()->className());
  const QString text = windowtest::plain(widget->property("text").toString());
  if (!text.isEmpty()) name += u' ' + quoted(text);
  return name;
}

QList<QWidget*> visibleBelow(QWidget* root) {
  QList<QWidget*> widgets = {root};
  for (QWidget* one : root->findChildren<QWidget*>())
    if (one->isVisible() && one->window() == root->window()) widgets << one;
  return widgets;
}

/// Lines for which there is no room aren't painted at all.
bool lacksLines(const QWidget* widget) {
  const auto* label = qobject_cast<const QLabel*>(widget);
  return label && label->wordWrap() && label->heightForWidth(label->width()) > label->height() + kAccents;
}

void look(QWidget* widget, const QWidget* root, QStringList* wrong, QList<Shown>* shown) {
  if (lacksLines(widget)) *wrong << u"cut lines of "_s + classOf(widget);
  const QList<PaintedText> texts = paintedTexts(widget);
  if (texts.isEmpty()) return;
  for (const PaintedText& one : texts) {
    if (one.text.trimmed().isEmpty()) continue;
    const QRectF ink = one.ink();
    const QRectF room = roomFor(widget, root, one.clip);
    if (reaches(ink, room)) *wrong << u"cut "_s + quoted(one.text) + u' ' + overhang(ink, room);
    if (isShortened(one, widget)) *wrong << u"shortened "_s + quoted(one.text);
    const QRectF seen = ink & QRectF(widget->visibleRegion().boundingRect());
    if (!seen.isEmpty()) *shown << Shown{one.text, seen.translated(widget->mapTo(root, QPoint())), widget};
  }
}

/// What floats over the page hides a part of it for a moment.
bool floats(const QWidget* widget) {
  for (const QWidget* one = widget; one; one = one->parentWidget())
    if (one->inherits("ui::Toast")) return true;
  return false;
}

void findOverlaps(const QList<Shown>& shown, QStringList* wrong) {
  for (qsizetype i = 0; i < shown.size(); ++i)
    for (qsizetype k = i + 1; k < shown.size(); ++k) {
      if (floats(shown[i].widget) != floats(shown[k].widget)) continue;
      const QRectF both = shown[i].ink & shown[k].ink;
      if (both.width() > kTolerance && both.height() > kTolerance)
        *wrong << quoted(shown[i].text) + u" on "_s + quoted(shown[k].text);
    }
}

void collect(const QLayout* layout, QList<const QWidget*>* managed) {
  for (int i = 0; i < layout->count(); ++i) {
    if (const QWidget* widget = layout->itemAt(i)->widget(); widget && widget->isVisible()) *managed << widget;
    if (const QLayout* nested = layout->itemAt(i)->layout()) collect(nested, managed);
  }
}

/// Of the widgets that a layout of @p parent places, or that it scrolls in one direction alone.
void findSqueezed(const QWidget* parent, QStringList* wrong) {
  if (const auto* area = qobject_cast<const QScrollArea*>(parent);
      area && area->widget() && area->horizontalScrollBarPolicy() == Qt::ScrollBarAlwaysOff &&
      area->widget()->width() > area->viewport()->width())
    *wrong << u"content of %1 outgrows it by %2"_s.arg(classOf(area->parentWidget()))
                  .arg(area->widget()->width() - area->viewport()->width());
  if (!parent->layout() || parent->inherits("QStackedWidget")) return;
  QList<const QWidget*> managed;
  collect(parent->layout(), &managed);
  for (qsizetype i = 0; i < managed.size(); ++i) {
    if (!parent->rect().contains(managed[i]->geometry()))
      *wrong << classOf(managed[i]) + u" outgrows "_s + classOf(parent);
    for (qsizetype k = i + 1; k < managed.size(); ++k)
      if (managed[i]->geometry().intersects(managed[k]->geometry()))
        *wrong << classOf(managed[i]) + u" on "_s + classOf(managed[k]);
  }
}

} // namespace

QStringList misfits(QWidget* root) {
  QStringList wrong;
  QList<Shown> shown;
  for (QWidget* widget : visibleBelow(root)) {
    look(widget, root, &wrong, &shown);
    findSqueezed(widget, &wrong);
  }
  findOverlaps(shown, &wrong);
  wrong.removeDuplicates();
  return wrong;
}
