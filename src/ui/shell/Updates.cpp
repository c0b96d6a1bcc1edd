#include "ui/shell/Updates.h"

#include "ui/shell/Overlay.h"
#include "ui/shell/UpdateDialog.h"
#include "update/Updater.h"

#include <QCoreApplication>
#include <QTimer>
#include <QWidget>

#include <algorithm>

namespace ui {

Updates::Updates(QWidget* area, const QUrl& feed, QObject* parent)
    : QObject(parent), updater(new Updater(this, feed)), m_area(area) {
  connect(updater, &Updater::quitForUpdate, this, &QCoreApplication::quit);
  connect(updater, &Updater::stateChanged, this, &Updates::onStateChanged);
  auto* timer = new QTimer(this);
  timer->setSingleShot(true);
  connect(timer, &QTimer::timeout, this, &Updates::checkInSilence);
  timer->start(kSilentCheckAfter);
}

void Updates::check() {
  m_silent = false;
  if (!isShowing()) openDialog(UpdateDialog::Wish::Asked);
  switch (updater->state) {
  case Updater::Available:
  case Updater::Downloading:
  case Updater::Installing:
    break; // the dialog shows it
  default:
    updater->check();
  }
}

void Updates::checkInSilence() {
  m_silent = true;
  updater->check();
}

void Updates::onStateChanged() {
  if (!m_silent || updater->state == Updater::Checking) return;
  m_silent = false;
  if (updater->state == Updater::Available && disturbsNobody()) openDialog(UpdateDialog::Wish::Unasked);
}

// A dialog that was closed lives on for a moment.
bool Updates::isShowing() const {
  const QList<UpdateDialog*> dialogs = m_area->findChildren<UpdateDialog*>(QString(), Qt::FindDirectChildrenOnly);
  return std::ranges::any_of(dialogs, [](const UpdateDialog* one) { return !one->isHidden(); });
}

bool Updates::disturbsNobody() const {
  const QWidget* window = m_area->window();
  return window->isVisible() && !window->isMinimized() &&
         !m_area->findChild<Overlay*>(QString(), Qt::FindDirectChildrenOnly);
}

void Updates::openDialog(UpdateDialog::Wish wish) { (new UpdateDialog(updater, m_area, wish))->open(); }

} // namespace ui
