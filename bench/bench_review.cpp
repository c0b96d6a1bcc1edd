/// Times the review of a category with 50,000 items against one with 500: opening its detail, and taking an item out of
/// a ticked category and back in.
#include "app/AppState.h"
#include "engines/categories.h"
#include "ui/Theme.h"
#include "ui/pages/CleanupPage.h"

#include "window.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int kMany = 50'000;
constexpr int kFew = 500;
constexpr int kRounds = 31;
constexpr qint64 kItemBytes = 1'000'000;
constexpr QSize kSize(944, 780);

QString path(int i) { return u"/home/me/.cache/%1/entry"_s.arg(i); }

CategoryResult category(const CategoryDef& def, int items) {
  CategoryResult result;
  result.def = def;
  for (int i = 0; i < items; ++i) {
    CleanItem item;
    item.path = path(i);
    item.name = u"entry %1"_s.arg(i);
    item.bytes = kItemBytes;
    item.files = 1;
    item.modified = 1;
    result.items << item;
  }
  result.bytes = items * kItemBytes;
  result.files = items;
  return result;
}

/// A page on which a category of so many items, and a small one, wait for a decision.
class Findings {
 public:
  explicit Findings(int items) {
    const QList<CategoryDef> defs = categories::forThisPlatform();
    m_state.results = {category(defs.at(0), items), category(defs.at(1), 1)};
    m_state.selectAll(true);
    m_state.setPhase(AppState::Review);
    m_page.resize(kSize);
    m_page.show();
    QApplication::processEvents();
  }
  void close() {
    m_page.focusCategory(m_state.results.at(1).def.id);
    QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QApplication::processEvents();
  }
  void open() { m_page.focusCategory(m_state.results.at(0).def.id); }
  void tick(int round) { m_state.setItemSelected(m_state.results.at(0).def.id, path(1), round % 2 == 1); }

 private:
  AppState m_state;
  ui::CleanupPage m_page{&m_state};
};

} // namespace

int main(int argc, char** argv) {
  const bench::Application app(argc, argv, "1");
  Theme::get().install(qApp);
  Findings many(kMany);
  Findings few(kFew);

  std::vector<double> manyOpened, fewOpened;
  const auto opened = [](Findings* review, std::vector<double>* ms) {
    review->close();
    const bench::Clock clock;
    review->open();
    ms->push_back(clock.ms());
  };
  for (int round = 0; round < kRounds; ++round) {
    opened(&many, &manyOpened);
    opened(&few, &fewOpened);
  }
  const auto ticked = bench::inTurns(
      kRounds, [&](int round) { many.tick(round); }, [&](int round) { few.tick(round); });
  std::printf("name=review items=%d open_ms=%.1f few_open_ms=%.1f tick_ms=%.2f few_tick_ms=%.2f tick_ratio=%.2f "
              "peak_kib=%ld\n",
              kMany, bench::median(manyOpened), bench::median(fewOpened), ticked.ours, ticked.peer, ticked.ratio(),
              bench::peakKib());
}
