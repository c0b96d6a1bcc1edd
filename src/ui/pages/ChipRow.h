/// Chips side by side; one below the other where that would shorten one of them.
#pragma once

#include <QList>
#include <QWidget>

namespace ui {

class Chip;

class ChipRow : public QWidget {
  Q_OBJECT

 public:
  /// @param chips  from the layout's start; the row becomes their parent
  explicit ChipRow(const QList<Chip*>& chips, QWidget* parent = nullptr);

  [[nodiscard]] QSize sizeHint() const override;
  [[nodiscard]] QSize minimumSizeHint() const override;
  [[nodiscard]] int heightForWidth(int width) const override;

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  [[nodiscard]] bool isStacked(int width) const;
  void place();

  QList<Chip*> m_chips;
};

} // namespace ui
