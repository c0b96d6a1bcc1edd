#include "gallery/pages.h"

#include "app/AppState.h"
#include "ui/Theme.h"
#include "ui/controls/factory.h"
#include "ui/pages/OverviewPage.h"

#include <QEventLoop>
#include <QPainter>
#include <QVBoxLayout>

namespace gallery {

namespace {

constexpr QSize kPageSize{980, 780}; // what a window of the usual size leaves beside its sidebar

/// The window around a page: its backdrop, and the state behind it.
class Stage : public QWidget {
 public:
  explicit Stage(AppState* state) {
    state->setParent(this);
    setFixedSize(kPageSize);
    setLayout(ui::vbox());
  }

 protected:
  void paintEvent(QPaintEvent* /*event*/) override {
    QPainter painter(this);
    Theme::get().paintBackdrop(&painter, rect());
  }
};

template <typename Page>
QWidget* staged(AppState* state) {
  auto* stage = new Stage(state);
  stage->layout()->addWidget(new Page(state));
  return stage;
}

AppState* scanned() {
  auto* state = new AppState;
  QEventLoop scan;
  QObject::connect(state, &AppState::phaseChanged, &scan, [&] {
    if (state->phase != AppState::Scanning) scan.quit();
  });
  state->startScan();
  if (state->phase == AppState::Scanning) scan.exec();
  return state;
}

} // namespace

QWidget* overviewAtStart() { return staged<ui::OverviewPage>(new AppState); }

QWidget* overviewAfterScan() { return staged<ui::OverviewPage>(scanned()); }

} // namespace gallery
