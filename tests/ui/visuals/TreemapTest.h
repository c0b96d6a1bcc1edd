/// What the tests of the map of sizes share: tiles that are easy to reckon with, and a mouse and a focus that come and
/// go.
#pragma once

#include "support/pixels.h"
#include "support/uitest.h"
#include "ui/Theme.h"
#include "ui/visuals/Treemap.h"

#include <QMouseEvent>
#include <QToolTip>

namespace treemaptest {

inline constexpr QColor kRed(190, 50, 60);
inline constexpr QColor kBlue(40, 90, 210);
inline constexpr QColor kGreen(30, 150, 90);

/// Four equal tiles in two columns of a map of 400 by 200: a over b at the left, c over d at the right.
inline QList<ui::Treemap::Item> four() {
  return {{QStringLiteral("a"), QString(), QString(), 100, kRed},
          {QStringLiteral("b"), QString(), QString(), 100, kBlue},
          {QStringLiteral("c"), QString(), QString(), 100, kBlue},
          {QStringLiteral("d"), QString(), QString(), 100, kGreen}};
}

/// @p count items of which the first is the largest, by the name "0".
inline QList<ui::Treemap::Item> many(int count) {
  QList<ui::Treemap::Item> items;
  for (int i = 0; i < count; ++i)
    items << ui::Treemap::Item{QString::number(i), QStringLiteral("File %1").arg(i),
                               QStringLiteral("%1 MB").arg(100 - i), 100 - i, kBlue};
  return items;
}

/// Moves the mouse there.
inline void move(ui::Treemap& map, const QPointF& to) {
  QMouseEvent event(QEvent::MouseMove, to, map.mapToGlobal(to), Qt::NoButton, Qt::NoButton, Qt::NoModifier);
  QApplication::sendEvent(&map, &event);
}

/// Takes it away.
inline void leave(ui::Treemap& map) {
  QEvent event(QEvent::Leave);
  QApplication::sendEvent(&map, &event);
}

inline void focus(ui::Treemap& map, Qt::FocusReason reason) {
  QFocusEvent event(QEvent::FocusIn, reason);
  QApplication::sendEvent(&map, &event);
}

} // namespace treemaptest

class TreemapTest : public QObject {
 protected:
  /// Before each case.
  static void make() { pixels::setLook(false); }
  /// After it: no tip is left on show.
  static void drop() {
    QToolTip::hideText();
    QTRY_VERIFY(!QToolTip::isVisible());
  }
};
