/// The context of the texts that the Settings page shows.
#pragma once

#include <QCoreApplication>

namespace ui {

struct SettingsWords {
  Q_DECLARE_TR_FUNCTIONS(SettingsPage)
};

} // namespace ui
