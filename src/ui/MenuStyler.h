/// Gives menus the round corners that the style sheet draws. User-interface thread only.
#pragma once

#include <QObject>
#include <QRectF>

/// A menu that leaves room around its card, for a shadow of its own.
class MenuWithCard {
 public:
  struct Card {
    QRectF rect; ///< in the menu's coordinates
    double radius = 0;
  };

  virtual ~MenuWithCard() = default;
  [[nodiscard]] virtual Card card() const = 0;
};

/// An event filter for the whole application; only menus are touched, and every event goes on to them. Their windows
/// are translucent, so that nothing is seen in the corners; without a compositor they are cut.
class MenuStyler : public QObject {
 public:
  using QObject::QObject;

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;
};
