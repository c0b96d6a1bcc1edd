/// The sheet to work with: alive in one look, and beside it a picture of it in the other.
#pragma once

#include <QWidget>

class QLabel;

namespace ui {
class Segmented;
}

namespace gallery {

class Sheet;

class GalleryWindow : public QWidget {
  Q_OBJECT

 public:
  GalleryWindow();

 signals:
  /// The user wants other metrics, or another scale: both are settled when a process starts.
  void restartWanted(bool mac, const QString& scale);

 protected:
  void showEvent(QShowEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  [[nodiscard]] QWidget* makeBar();
  void setDark(bool dark);
  void takeOtherLook();

  Sheet* m_sheet;
  QLabel* m_otherLook;
  ui::Segmented* m_metrics = nullptr;
  ui::Segmented* m_scale = nullptr;
};

} // namespace gallery
