/// A category as a tile: its icon, its name, and how much it holds.
#pragma once

#include "ui/accessible.h"

#include <QWidget>

#include <functional>

struct CategoryDef;

namespace ui {

class KeyboardFocus;

/// With an action it lights up under the mouse, and a click, Space or Enter does it. Without one it only shows: it
/// neither reacts to the mouse nor takes the focus.
class CategoryTile : public QWidget, public AccessibleButton {
  Q_OBJECT

 public:
  /// @param amount   empty where it isn't known, which is shown as a dash
  /// @param onClick  may get rid of the tile, but not at once; may be empty
  CategoryTile(const CategoryDef& category, const QString& amount, std::function<void()> onClick = {},
               QWidget* parent = nullptr);

  /// The category's.
  [[nodiscard]] QString id() const { return m_id; }
  /// Whether the ring of the keyboard is around it.
  [[nodiscard]] bool showsFocus() const;

  /// "Browser caches, 1.2 GB"; the name alone where the amount isn't known.
  [[nodiscard]] QString buttonText() const override { return m_shown; }
  [[nodiscard]] bool isPressable() const override { return bool(m_onClick); }
  void press() override;

 protected:
  bool event(QEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  QString m_id;
  QString m_shown;
  std::function<void()> m_onClick;
  KeyboardFocus* m_focus;
};

} // namespace ui
