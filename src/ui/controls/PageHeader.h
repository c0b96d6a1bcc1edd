/// The head of a page: overline, title, subtitle and actions. Its empty areas move the window.
#pragma once

#include <QWidget>

class QHBoxLayout;
class QLabel;

namespace ui {

class PageHeader : public QWidget {
  Q_OBJECT

 public:
  /// @param title  plain or rich text
  explicit PageHeader(const QString& title, const QString& subtitle = {}, QWidget* parent = nullptr);

  void setTitle(const QString& title);
  /// An empty text leaves no gap; so does an empty overline.
  void setSubtitle(const QString& subtitle);
  void setEyebrow(const QString& eyebrow);
  /// Appends to the row at the right.
  void addAction(QWidget* action);
  using QWidget::addAction;
  /// Turns the header into a bar of one line, with the overline behind the title, or back.
  /// @param reserve  pixels that the bar leaves free at its left, for what floats there
  void setToolbar(bool on, int reserve);
  [[nodiscard]] bool isToolbar() const { return m_toolbar; }

 protected:
  void mousePressEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;

 private:
  void refreshTitle();
  void refreshEyebrow();

  QLabel* m_eyebrowLabel;
  QLabel* m_titleLabel;
  QLabel* m_subtitleLabel;
  QHBoxLayout* m_outer;
  QHBoxLayout* m_actions;
  QString m_title;
  QString m_eyebrow;
  bool m_toolbar = false;
};

} // namespace ui
