/// When the window asks for updates, and when it tells of them.
#pragma once

#include "ui/shell/UpdateDialog.h"

#include <QObject>

#include <chrono>

class QUrl;
class QWidget;
class Updater;

namespace ui {

/// Owns the updater. Some seconds after its making it checks once in silence: only a newer release shows a dialog then,
/// and only where that disturbs nobody.
class Updates : public QObject {
  Q_OBJECT

 public:
  static constexpr std::chrono::milliseconds kSilentCheckAfter{5000};

  /// @param area  the window's client area, which dialogs cover; outlives this
  Updates(QWidget* area, const QUrl& feed, QObject* parent);

  /// The user's own wish: opens the dialog, and checks unless there is something to show already.
  void check();

  Updater* const updater;

 private:
  void checkInSilence();
  void onStateChanged();
  void openDialog(UpdateDialog::Wish wish);
  [[nodiscard]] bool isShowing() const;
  [[nodiscard]] bool disturbsNobody() const;

  QWidget* m_area;
  bool m_silent = false; ///< the check under way is nobody's wish
};

} // namespace ui
