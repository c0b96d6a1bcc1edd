/// The last question before a clean: what goes, where to, and what will stay.
#pragma once

#include "ui/shell/Overlay.h"

class AppState;
class QVBoxLayout;

namespace ui {

/// Shows the selection as it was when the dialog was made; it doesn't follow while it is open.
class ConfirmCleanDialog : public Overlay {
  Q_OBJECT

 public:
  ConfirmCleanDialog(AppState* state, QWidget* parent);

 signals:
  /// The user confirmed; the dialog closes after it.
  void accepted();

 private:
  void addTexts(QVBoxLayout* body, bool anyPermanent);
  void addWhatStays(QVBoxLayout* body);
  void addCategories(QVBoxLayout* body);

  AppState* m_state;
};

} // namespace ui
