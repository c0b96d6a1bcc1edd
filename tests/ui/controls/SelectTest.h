/// What the tests of the select share: one in a window, and the popup that it has opened.
#pragma once

#include "support/pixels.h"
#include "support/uitest.h"
#include "ui/Theme.h"
#include "ui/controls/Select.h"
#include "ui/controls/SelectPopup.h"

#include <QElapsedTimer>
#include <QPointer>

namespace selecttest {

/// The one that is open; null if there is none.
inline ui::SelectPopup* popup() {
  for (QWidget* widget : QApplication::topLevelWidgets())
    if (auto* found = qobject_cast<ui::SelectPopup*>(widget); found && found->isVisible()) return found;
  return nullptr;
}

/// A select in a window, in the middle of the screen.
struct Shown {
  QWidget window;
  QPointer<ui::Select> select = new ui::Select(&window);
  QElapsedTimer sinceOpening;

  explicit Shown(int current = 1) {
    select->addItems({QStringLiteral("System"), QStringLiteral("Light"), QStringLiteral("Dark and long")});
    select->setCurrentIndex(current);
    select->setGeometry(20, 20, 160, select->sizeHint().height());
    window.setGeometry(300, 300, 200, 100);
    window.show();
  }
  bool open() {
    if (!QTest::qWaitForWindowExposed(&window)) return false;
    select->showPopup();
    sinceOpening.start();
    return popup() != nullptr;
  }
};

} // namespace selecttest

class SelectTest : public QObject {
 protected:
  /// Before each case.
  static void make() {
    Theme::get().mac = true;
    pixels::setLook(false);
  }
  /// After it: no popup is left open.
  static void drop() {
    if (selecttest::popup()) selecttest::popup()->close();
    QTRY_VERIFY(!selecttest::popup());
  }
};
