/// Times a repaint of the busiest control, a treemap of 24 tiles with a selection at scale 2, against one of a stock
/// table of 24 visible cells in the same size. The second ratio is that of a repaint after a change of the selection.
#include "ui/Theme.h"
#include "ui/visuals/Treemap.h"

#include "window.h"

#include <QHeaderView>
#include <QStandardItemModel>
#include <QTableView>

#include <cmath>

using namespace Qt::StringLiterals;

namespace {

constexpr int kTiles = 24;
constexpr int kSelectedEvery = 5;
constexpr int kColumns = 4;
constexpr QSize kSize(800, 200);
constexpr int kRounds = 101;

QString name(int i) { return u"Recording of the %1th evening.mov"_s.arg(i); }
QString detail(int i) { return u"%1 MB"_s.arg(900 - 30 * i); }

/// @return the selection
QSet<QString> fill(ui::Treemap* map) {
  QList<ui::Treemap::Item> items;
  QSet<QString> selected;
  for (int i = 0; i < kTiles; ++i) {
    const auto bytes = qint64(9e9 * std::pow(0.85, i));
    items << ui::Treemap::Item{QString::number(i), name(i), detail(i), bytes, QColor::fromHsv(i * 15, 150, 200)};
    if (i % kSelectedEvery == 0) selected << QString::number(i);
  }
  map->setItems(items);
  map->setSelected(selected);
  return selected;
}

void fill(QStandardItemModel* model) {
  for (int i = 0; i < kTiles; ++i)
    model->setItem(i / kColumns, i % kColumns, new QStandardItem(name(i) + u" · "_s + detail(i)));
}

/// As a table comes, but for its rows and columns, which share all of its room.
void layOut(QTableView* table) {
  table->horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
  table->verticalHeader()->setSectionResizeMode(QHeaderView::Stretch);
  table->selectRow(1);
}

void show(QWidget* widget) {
  widget->setFixedSize(kSize);
  widget->show();
}

} // namespace

int main(int argc, char** argv) {
  const bench::Application app(argc, argv, "2");
  Theme::get().refresh(); // colours alone: the table is painted without a style sheet
  ui::Treemap map;
  const QSet<QString> selected = fill(&map);
  show(&map);
  QStandardItemModel model;
  fill(&model);
  QTableView table;
  table.setModel(&model);
  layOut(&table);
  show(&table);
  QApplication::processEvents();

  const auto repaintTable = [&](int) { table.viewport()->repaint(); };
  const auto [ms, tableMs] = bench::inTurns(
      kRounds, [&](int) { map.repaint(); }, repaintTable);
  const auto changed = bench::inTurns(
      kRounds,
      [&](int) {
        map.setSelected(selected); // every tile is painted anew
        map.repaint();
      },
      repaintTable);
  std::printf("name=treemap tiles=%d scale=%.0f ms=%.3f table_ms=%.3f ratio=%.2f changed_ms=%.3f changed_ratio=%.2f "
              "peak_kib=%ld\n",
              map.itemCount(), map.devicePixelRatio(), ms, tableMs, ms / tableMs, changed.ours, changed.ratio(),
              bench::peakKib());
}
