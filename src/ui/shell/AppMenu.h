/// The menu that the window's own title bar opens: a card with a painted shadow, a second text at the end of a row, and
/// submenus that are cards of the same kind.
#pragma once

#include "ui/MenuStyler.h"

#include <QMenu>

#include <array>

class QPainter;

namespace ui {

/// Where the card lies in a menu of this size; around it is room for the shadow.
[[nodiscard]] QRectF appMenuCard(const QSize& size);

/// Where the end of a row holds what; everything mirrored for languages that are written from right to left.
struct AppMenuRow {
  QRectF trailing;                ///< its text stands at the outer end
  std::array<QPointF, 3> chevron; ///< the corners of a submenu's mark
};
[[nodiscard]] AppMenuRow appMenuRow(const QRect& row, bool hasSubmenu, Qt::LayoutDirection direction);

class AppMenu : public QMenu, public MenuWithCard {
  Q_OBJECT

 public:
  explicit AppMenu(QWidget* parent = nullptr);
  AppMenu(const QString& title, QWidget* parent);

  /// A menu's icon. An invalid @p colour stands for the secondary text's.
  [[nodiscard]] static QIcon itemIcon(const QString& icon, const QColor& colour = {});
  /// Appends a row; the action is the menu's.
  QAction* addItem(const QString& icon, const QString& text, const QColor& colour = {});
  /// A submenu of the same kind, in a row of its own; the menu's.
  AppMenu* addSubmenu(const QString& icon, const QString& text);
  /// A second text at the row's end, and room for it; before the menu is shown. Empty takes it away.
  void setTrailingText(QAction* action, const QString& text);

  [[nodiscard]] Card card() const override;

 protected:
  bool event(QEvent* event) override;
  void showEvent(QShowEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  void dress();
  void updateMinimumWidth();
  void paintShadow(QPainter* painter) const;
  void paintRowEnds(QPainter* painter) const;
};

} // namespace ui
