/// A line icon in a colour of the theme. Decoration: the mouse doesn't see it.
#pragma once

#include "ui/Theme.h"

#include <QWidget>

namespace ui {

class IconView : public QWidget {
  Q_OBJECT

 public:
  /// @param icon  an empty name shows nothing
  /// @param size  of its side in pixels
  IconView(const QString& icon, Tone tone, int size, QWidget* parent = nullptr);

  void setIcon(const QString& icon);
  void setTone(Tone tone);

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  QString m_icon;
  Tone m_tone;
};

} // namespace ui
