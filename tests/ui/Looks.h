/// The looks that the style sheet is made for, and how a test puts one on.
#pragma once

#include "app/AppSettings.h"
#include "ui/Theme.h"

struct Look {
  const char* name;
  AppSettings::ThemeMode mode;
  bool mac;
};

inline constexpr Look kLooks[] = {{"dark mac", AppSettings::Dark, true},
                                  {"light mac", AppSettings::Light, true},
                                  {"dark win", AppSettings::Dark, false},
                                  {"light win", AppSettings::Light, false}};

inline void apply(const Look& look) {
  Theme::get().mac = look.mac;
  AppSettings::instance().setThemeMode(look.mode);
  Theme::get().refresh();
}
