/// The keys of a shortcut, each in a box of its own.
#pragma once

#include "ui/accessible.h"

#include <QKeySequence>
#include <QRectF>
#include <QStringList>
#include <QWidget>

namespace ui {

/// The names of the keys to hold together, as they are written on this platform: "Ctrl", "Shift", "L". Where it writes
/// them without a sign between them, as one.
[[nodiscard]] QStringList keyNames(const QKeySequence& keys);
/// Where the boxes lie whose texts are this wide, from the left, in pixels.
[[nodiscard]] QList<QRectF> keyCapsLayout(const QList<int>& textWidths);

class KeyCaps : public QWidget, public AccessibleText {
  Q_OBJECT

 public:
  explicit KeyCaps(const QKeySequence& keys, QWidget* parent = nullptr);

  [[nodiscard]] QSize sizeHint() const override;
  [[nodiscard]] QString shownText() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  [[nodiscard]] QList<QRectF> boxes() const;

  QKeySequence m_keys;
  QStringList m_names;
};

} // namespace ui
