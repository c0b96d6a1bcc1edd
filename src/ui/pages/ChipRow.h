/// Chips side by side; one below the other where that shortens one of them.
#pragma once

#include <QList>
#include <QWidget>

class QBoxLayout;

namespace ui {

class Chip;

class ChipRow : public QWidget {
  Q_OBJECT

 public:
  /// @param chips  from the layout's start; the row becomes their parent
  explicit ChipRow(const QList<Chip*>& chips, QWidget* parent = nullptr);

  [[nodiscard]] bool isStacked() const;

 protected:
  bool event(QEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  void arrange();

  QList<Chip*> m_chips;
  QBoxLayout* m_box;
};

} // namespace ui
