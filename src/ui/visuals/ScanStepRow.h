/// One row of a list of steps: what is looked at, how far that is, and what it came to.
#pragma once

#include "ui/accessible.h"
#include "ui/visuals/StepBar.h"

#include <QWidget>

class QLabel;

namespace ui {

/// Its labels take their colours in set(), and follow a change of look with the next.
class ScanStepRow : public QWidget, public AccessibleValue {
  Q_OBJECT

 public:
  ScanStepRow(const QString& icon, const QColor& colour, const QString& title, QWidget* parent = nullptr);

  /// @param value  what stands at the row's end: a size, or a placeholder until there is one
  void set(StepBar::State state, const QString& value);
  /// Whether the row stands out, as the one in work.
  [[nodiscard]] bool isActive() const { return m_active; }

  /// The state in words, and the value of a step that is done.
  [[nodiscard]] QString valueText() const override;
  [[nodiscard]] double valueFraction() const override { return m_bar->valueFraction(); }

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  QLabel* m_title;
  StepBar* m_bar;
  QLabel* m_value;
  bool m_active = false;
};

} // namespace ui
