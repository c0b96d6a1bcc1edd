/// A hint box: an icon, a text, and at most one action.
#pragma once

#include <QFrame>

class QHBoxLayout;
class QLabel;
class QPushButton;
class QVBoxLayout;

namespace ui {

/// Whether an action of this width still has its place beside the text of a note, or goes below it.
[[nodiscard]] bool noteActionFitsBeside(int noteWidth, int actionWidth);

class Note : public QFrame {
  Q_OBJECT

 public:
  enum Kind { Neutral, Info, Caution };

  /// @param text  rich text; wraps
  Note(Kind kind, const QString& icon, const QString& text, QWidget* parent = nullptr);

  void setText(const QString& text);
  [[nodiscard]] QString text() const;
  /// Adds the action beside the text; it moves below where the note is too narrow. Once: a second one would stay where
  /// it is. @return owned by the note
  QPushButton* addAction(const QString& text);

 protected:
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  void placeAction();

  Kind m_kind;
  QLabel* m_label;
  QHBoxLayout* m_outer;
  QVBoxLayout* m_iconColumn;
  QVBoxLayout* m_inner;
  QPushButton* m_action = nullptr;
};

} // namespace ui
