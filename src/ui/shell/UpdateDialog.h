/// Shows what the updater is doing, and drives it.
#pragma once

#include "ui/shell/Overlay.h"

class QLabel;
class QProgressBar;
class QScrollArea;
class QVBoxLayout;
class Updater;

namespace ui {

class Button;
class Card;

/// Holds no state of its own: all that it shows follows from the updater's. While a download is being handed over it
/// can't be closed by its buttons.
class UpdateDialog : public Overlay {
  Q_OBJECT

 public:
  enum class Wish {
    Asked,   ///< the user wants to know
    Unasked, ///< it comes by itself: no key that is meant for what is below may start an update
  };
  /// @param updater  outlives the dialog
  UpdateDialog(Updater* updater, QWidget* parent, Wish wish = Wish::Asked);

 protected:
  void resizeEvent(QResizeEvent* event) override;

 private:
  void addHead(QVBoxLayout* body);
  void addChanges(QVBoxLayout* body);
  void addProgress(QVBoxLayout* body);
  void addFooter(QVBoxLayout* column);
  void dress();

  void refresh();
  void refreshHead();
  void refreshChanges();
  void fitChanges();
  void setChangesHeight(int height);
  void refreshProgress();
  void refreshButtons();

  Updater* m_updater;
  const Wish m_wish;
  QLabel* m_title;
  QLabel* m_subtitle;
  Card* m_changes;
  QScrollArea* m_changeArea;           ///< as high as its rows, where the window has room for that
  QVBoxLayout* m_changeRows = nullptr; ///< in it
  QProgressBar* m_progress;
  QLabel* m_warning;
  Button* m_close;
  Button* m_cancel;
  Button* m_retry;
  Button* m_install;
};

} // namespace ui
