/// Times a whole change of look with every control open, against setting the same style sheet and no more.
#include "app/AppSettings.h"
#include "gallery/Sheet.h"
#include "ui/Theme.h"

#include "window.h"

namespace {

constexpr int kRounds = 31;

void setLook(int round) {
  AppSettings::instance().setThemeMode(round % 2 == 0 ? AppSettings::Dark : AppSettings::Light);
}

} // namespace

int main(int argc, char** argv) {
  const bench::Application app(argc, argv, "1");
  Theme::get().install(qApp);
  gallery::Sheet sheet;
  sheet.show();
  QApplication::processEvents();

  // Each round changes the look, and then sets the sheet of the look that it came to.
  const auto [ours, peer] =
      bench::inTurns(kRounds, setLook, [&](int) { qApp->setStyleSheet(Theme::get().styleSheet()); });
  std::printf("name=refresh widgets=%lld ms=%.1f sheet_ms=%.1f ratio=%.2f peak_kib=%ld\n",
              static_cast<long long>(QApplication::allWidgets().size()), ours, peer, ours / peer, bench::peakKib());
}
