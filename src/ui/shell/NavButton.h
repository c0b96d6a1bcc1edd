/// One entry of the sidebar: an icon with its label, or the icon alone in a narrow rail.
#pragma once

#include "ui/controls/PaintedButton.h"

#include <QRectF>

class QPainter;

namespace ui {

struct NavButtonLayout {
  QRectF marker; ///< the bar at the leading edge of the checked button
  QRectF icon;
  QRectF label; ///< null when compact
  QRectF badge; ///< null without a badge; when compact, the dot that stands for it
};
/// @param badgeTextWidth  in the badge's font; negative without a badge
[[nodiscard]] NavButtonLayout navButtonLayout(const QSize& size, bool compact, int badgeTextWidth,
                                              Qt::LayoutDirection direction = Qt::LeftToRight);

class NavButton : public PaintedButton {
  Q_OBJECT

 public:
  explicit NavButton(const QString& icon, const QString& text, QWidget* parent = nullptr);

  /// A short text at the far end; empty takes it away. It belongs to the accessible name.
  void setBadge(const QString& badge);
  [[nodiscard]] QString badge() const { return m_badge; }
  /// The icon alone, with a dot where there is a badge.
  void setCompact(bool compact);
  [[nodiscard]] bool isCompact() const { return m_compact; }

  [[nodiscard]] QSize sizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  void paintBody(QPainter* painter, const NavButtonLayout& layout) const;
  void paintBadge(QPainter* painter, const NavButtonLayout& layout) const;

  QString m_icon;
  QString m_badge;
  bool m_compact = false;
};

} // namespace ui
