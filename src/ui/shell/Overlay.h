/// The base of all dialogs: a veil over the window's client area with a card on it. It is made at the moment of need,
/// shows itself with open(), and deletes itself when it is closed.
#pragma once

#include "ui/accessible.h"

#include <QPointer>
#include <QWidget>

class QPropertyAnimation;
class QPushButton;

namespace ui {

/// Escape and a press on the veil close it, which counts as cancelling; Enter presses the button that has the focus,
/// else the default one. Tab stays among its controls, and the focus goes back to where it was.
class Overlay : public QWidget, public AccessibleDialog {
  Q_OBJECT

 public:
  /// Hidden at first. @p parent  the client area that it covers
  explicit Overlay(QWidget* parent);

  /// Covers the parent, and lets the card slide to its place.
  void open();
  /// Gives the card its size and its place, or the place where it slides to.
  void place();

  QWidget* const panel; ///< the card; a dialog puts its layout on it

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;
  bool focusNextPrevChild(bool next) override;
  void closeEvent(QCloseEvent* event) override;
  void hideEvent(QHideEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  void slideIn();
  void tellReaders(QAccessible::Event what);
  [[nodiscard]] QPushButton* buttonForEnter() const;

  QPointer<QWidget> m_before;           ///< had the focus when it opened
  QPointer<QPropertyAnimation> m_slide; ///< while the card is on its way
};

} // namespace ui
