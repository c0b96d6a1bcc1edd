/// A card with one figure, what it says, and a small picture at its right. A word that stands in for a figure, as
/// "Weekly" does, is made smaller where there is little room.
#pragma once

#include "ui/accessible.h"
#include "ui/controls/Card.h"

class QLabel;

namespace ui {

class StatCard : public Card, public AccessibleText {
  Q_OBJECT

 public:
  /// @param visual  the card becomes its parent
  explicit StatCard(QWidget* visual, QWidget* parent = nullptr);

  void set(const QString& value, const QString& caption);
  [[nodiscard]] QString value() const;
  [[nodiscard]] QString caption() const;
  /// "Scheduled scan, Weekly"; the caption alone where the value is a dash.
  [[nodiscard]] QString shownText() const override;

 protected:
  void resizeEvent(QResizeEvent* event) override;

 private:
  void fitValue();

  QLabel* m_value;
  QLabel* m_caption;
  int m_valuePx = 0; ///< the size of the value's font
};

} // namespace ui
