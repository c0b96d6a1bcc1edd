/// The one short message at the foot of the window, with an offer to undo what it tells of. A newer message replaces it
/// at once; there is no queue.
#pragma once

#include <QTimer>
#include <QWidget>

#include <chrono>

class QLabel;
class QPushButton;

namespace ui {

class Toast : public QWidget {
  Q_OBJECT

 public:
  static constexpr std::chrono::milliseconds kShownFor{4500};

  /// Hidden at first. @p parent  the area at whose foot it stands
  explicit Toast(QWidget* parent);

  /// Shows @p text for kShownFor, counted from now also while the window is hidden. @p undoable shows "Undo".
  void show(const QString& text, bool undoable);
  /// Centres the toast above the lower edge of its parent, no wider than that has room.
  void place();

 signals:
  /// The user wants back what the message told of; the toast is hidden by then.
  void undo();

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  void dress();
  void fit();

  QLabel* m_text;
  QPushButton* m_button;
  QTimer* m_timer;
};

} // namespace ui
