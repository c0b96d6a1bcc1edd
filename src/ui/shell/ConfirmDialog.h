/// Asks one question with one way to say yes.
#pragma once

#include "ui/shell/Overlay.h"

namespace ui {

class ConfirmDialog : public Overlay {
  Q_OBJECT

 public:
  /// @param danger  whether what is confirmed can't be undone
  ConfirmDialog(QWidget* parent, const QString& title, const QString& body, const QString& confirmText, bool danger);

 signals:
  /// The user confirmed; the dialog closes after it.
  void accepted();
};

} // namespace ui
