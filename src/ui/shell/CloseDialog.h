/// Asks what closing the window shall mean.
#pragma once

#include "ui/shell/Overlay.h"

class QCheckBox;

namespace ui {

class CloseDialog : public Overlay {
  Q_OBJECT

 public:
  explicit CloseDialog(QWidget* parent);

 signals:
  /// The user chose; the dialog closes after it. @p remember  whether the choice is to hold from now on
  void chosen(bool keepInTray, bool remember);

 private:
  void choose(bool keepInTray);

  QCheckBox* m_remember;
};

} // namespace ui
