/// A card with one figure, what it says, and a small picture at its right.
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

 private:
  QLabel* m_value;
  QLabel* m_caption;
};

} // namespace ui
