/// The title bar that the window draws where the system gives it none: logo, name, menu and the window's buttons.
#pragma once

#include <QRectF>
#include <QWidget>

namespace ui {

class CaptionButton;

/// Where the logo lies in a bar of this size.
[[nodiscard]] QRectF titleBarLogo(const QSize& bar, Qt::LayoutDirection direction = Qt::LeftToRight);

/// Its empty parts move the window, and a double click there maximises it or brings it back.
class TitleBar : public QWidget {
  Q_OBJECT

 public:
  /// @param window  the one that its buttons work on
  explicit TitleBar(QWidget* window, QWidget* parent = nullptr);

  /// As if the menu button had been clicked.
  void requestMenu();

 signals:
  /// The menu is wanted. @p globalPos  the lower corner of its button where its layout begins
  void menuRequested(const QPoint& globalPos);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  [[nodiscard]] CaptionButton* addButton(int kind, const QString& name);

  QWidget* m_window;
  CaptionButton* m_menu = nullptr;
  CaptionButton* m_maximize = nullptr;
};

} // namespace ui
