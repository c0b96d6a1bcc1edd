/// Times the Space Map with 500 files at scale 2: painting its list anew after each step of a scroll, against a stock
/// table of the same rows in the same size, which is painted without a style sheet. And what a user does there: ticking
/// a file, and narrowing the list down letter by letter.
#include "app/AppState.h"
#include "ui/Theme.h"
#include "ui/pages/LargeFilesModel.h"
#include "ui/pages/LargeFilesPage.h"
#include "ui/pages/LargeFilesTable.h"

#include "window.h"

#include <QDir>
#include <QHeaderView>
#include <QLineEdit>
#include <QScrollBar>
#include <QStandardItemModel>

using namespace Qt::StringLiterals;

namespace {

constexpr int kFiles = 500;
constexpr int kStepPx = 37; // of the scroll; no multiple of a row
constexpr int kRounds = 301;
constexpr int kActions = 101;
constexpr qint64 kBytes = 10'000'000;
constexpr QSize kSize(944, 780);
constexpr int kRowHeight = 54;
constexpr const char* kKinds[] = {"Video", "Archive", "Disk image", "Document", "Installer", "Audio", "Image", "File"};

QList<LargeFile> files() {
  QList<LargeFile> all;
  for (int i = 0; i < kFiles; ++i) {
    LargeFile file;
    file.name = u"recording of evening %1.mov"_s.arg(i);
    file.dir = QDir::homePath() + u"/Films/of the year %1/as they came"_s.arg(2000 + i % 20);
    file.path = file.dir + u'/' + file.name;
    file.kind = QString::fromLatin1(kKinds[size_t(i) % std::size(kKinds)]);
    file.size = (kFiles - i) * kBytes;
    file.lastUsed = QDateTime::currentDateTime().addDays(-i);
    all << file;
  }
  return all;
}

/// A table as it comes, with the texts of the list.
class StockTable {
 public:
  StockTable(const ui::LargeFilesModel& list, const QTableView& like) {
    constexpr int columns[] = {ui::LargeFilesModel::Name, ui::LargeFilesModel::LastOpened, ui::LargeFilesModel::Size};
    for (int row = 0; row < list.rowCount(); ++row)
      for (int i = 0; i < int(std::size(columns)); ++i)
        m_model.setItem(row, i, new QStandardItem(list.index(row, columns[i]).data(Qt::AccessibleTextRole).toString()));
    m_table.setModel(&m_model);
    m_table.setShowGrid(false);
    m_table.setVerticalScrollMode(QTableView::ScrollPerPixel);
    m_table.verticalHeader()->hide();
    m_table.verticalHeader()->setDefaultSectionSize(kRowHeight);
    m_table.horizontalHeader()->setSectionResizeMode(0, QHeaderView::Stretch);
    m_table.resize(like.size());
    m_table.show();
  }
  [[nodiscard]] QTableView* table() { return &m_table; }

 private:
  QStandardItemModel m_model;
  QTableView m_table;
};

/// Scrolls on, and back at the end.
void scroll(QTableView* table, int round) {
  QScrollBar* bar = table->verticalScrollBar();
  const int way = bar->maximum();
  const int place = round * kStepPx % (2 * way);
  bar->setValue(place < way ? place : 2 * way - place);
  table->viewport()->repaint();
}

template <typename Action>
bench::Clock timed(std::vector<double>* ms, Action action) {
  const bench::Clock clock;
  action();
  QApplication::processEvents();
  ms->push_back(clock.ms());
  return clock;
}

} // namespace

int main(int argc, char** argv) {
  const bench::Application app(argc, argv, "2");
  AppState state;
  state.largeFiles = files();
  state.largeScanned = true;

  ui::LargeFilesPage page(&state);
  auto* model = page.findChild<ui::LargeFilesModel*>();
  auto* table = page.findChild<ui::LargeFilesTable*>();
  page.resize(kSize);
  page.show();
  QApplication::processEvents();
  StockTable stock(*model, *table);
  Theme::get().refresh(); // colours alone
  QApplication::processEvents();
  const auto plain = bench::inTurns(
      kRounds, [&](int round) { scroll(table, round); }, [&](int round) { scroll(stock.table(), round); });

  Theme::get().install(qApp); // as in the program
  QApplication::processEvents();
  const auto dressed = bench::inTurns(
      kRounds, [&](int round) { scroll(table, round); }, [&](int round) { scroll(stock.table(), round); });

  std::vector<double> ticked, filtered;
  auto* search = page.findChild<QLineEdit*>();
  for (int round = 0; round < kActions; ++round) {
    timed(&ticked, [&] { model->toggle(model->files().at(round / 2).path); });
    timed(&filtered, [&] { search->setText(round % 2 == 0 ? u"evening 1"_s : QString()); });
  }
  if (model->rowCount() >= kFiles) qFatal("the filter came to nothing");
  std::printf("name=large-page files=%d ms=%.3f scroll_ms=%.3f stock_ms=%.3f ratio=%.2f dressed_ms=%.3f "
              "dressed_stock_ms=%.3f dressed_ratio=%.2f tick_ms=%.2f filter_ms=%.2f peak_kib=%ld\n",
              kFiles, dressed.ours, plain.ours, plain.peer, plain.ratio(), dressed.ours, dressed.peer, dressed.ratio(),
              bench::median(ticked), bench::median(filtered), bench::peakKib());
}
