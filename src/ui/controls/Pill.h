/// The badge that tells how safe it is to clean something.
#pragma once

#include "app/records.h"
#include "ui/accessible.h"

#include <QWidget>

namespace ui {

struct PillLayout {
  QRectF body;
  QRectF dot;
  QRectF text;
};
/// @param widget     size of the whole widget
/// @param textWidth  in the badge's font
[[nodiscard]] PillLayout pillLayout(const QSize& widget, int textWidth,
                                    Qt::LayoutDirection direction = Qt::LeftToRight);

class Pill : public QWidget, public AccessibleText {
  Q_OBJECT

 public:
  /// @param safety  a value that is none of the enumeration looks safe and has no label
  explicit Pill(Safety safety, QWidget* parent = nullptr);

  void setSafety(Safety safety);
  [[nodiscard]] QSize sizeHint() const override;
  [[nodiscard]] QString shownText() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  [[nodiscard]] int textWidth() const;

  Safety m_safety;
};

} // namespace ui
