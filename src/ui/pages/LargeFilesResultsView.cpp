#include "ui/pages/LargeFilesResultsView.h"

#include "app/AppSettings.h"
#include "app/AppState.h"
#include "core/fmt.h"
#include "core/platform.h"
#include "ui/Theme.h"
#include "ui/controls/Button.h"
#include "ui/controls/Card.h"
#include "ui/controls/FooterBar.h"
#include "ui/controls/KeyboardFocus.h"
#include "ui/controls/Segmented.h"
#include "ui/controls/factory.h"
#include "ui/icons.h"
#include "ui/pages/LargeFileKind.h"
#include "ui/pages/LargeFilesFilter.h"
#include "ui/pages/LargeFilesModel.h"
#include "ui/pages/LargeFilesTable.h"
#include "ui/pages/LargeFilesWords.h"
#include "ui/pages/furniture.h"
#include "ui/paint.h"
#include "ui/visuals/Treemap.h"

#include <QAction>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace ui {

namespace {

// Lengths in pixels.
constexpr int kBodySpacing = 14;
constexpr int kBarSpacing = 10;
constexpr int kSearchWidth = 240;
constexpr int kSearchIcon = 14;
constexpr int kFieldIcon = 16;       // the size in which a field shows icons
constexpr int kSearchTextStart = -7; // the field keeps more room beside the icon than it needs
constexpr QMargins kMapMargins(6, 6, 6, 6);
constexpr QMargins kListMargins(10, 8, 10, 4);
constexpr int kFigurePx = 13;
constexpr int kFigureWeight = 400;

QIcon searchIcon() { return icons::icon(u"search"_s, Theme::get().text3, kSearchIcon, kFieldIcon); }

} // namespace

LargeFilesResultsView::LargeFilesResultsView(AppState* state, LargeFilesModel* model, QWidget* parent)
    : QWidget(parent),
      m_state(state),
      m_model(model),
      //: Filter of a list of files: every file
      m_segments(new Segmented({LargeFilesWords::tr("All"), LargeFilesWords::tr("Unused"), u"Downloads"_s})),
      m_search(new QLineEdit),
      m_searchIcon(m_search->addAction(searchIcon(), QLineEdit::LeadingPosition)),
      m_map(new Treemap),
      m_mapCard(buildMap()),
      m_table(new LargeFilesTable(model)),
      m_sum(label({}, "sub")),
      //: Button; %1: the file manager, Finder or Files
      m_reveal(new Button(LargeFilesWords::tr("Show in %1").arg(platform::fileManagerName()), nullptr, u"folder"_s)),
      //: Button; %1: the Trash
      m_move(new Button(LargeFilesWords::tr("Move to %1").arg(platform::trashName()), "primary")),
      m_moveFocus(new KeyboardFocus(m_move)) {
  QVBoxLayout* body = vbox(kBodySpacing, {pageSide(), 0, pageSide(), 0});
  body->addWidget(buildBar());
  body->addWidget(m_mapCard);
  body->addWidget(buildList(), 1);
  QVBoxLayout* root = vbox();
  setLayout(root);
  root->addLayout(body, 1);
  root->addWidget(buildFooter());
  setTabOrder(m_map, m_table->horizontalHeader());
  setTabOrder(m_table->horizontalHeader(), m_table);
  connect(m_segments, &Segmented::currentChanged, this, &LargeFilesResultsView::applyFilter);
  connect(m_search, &QLineEdit::textChanged, this, &LargeFilesResultsView::applyFilter);
  connect(m_map, &Treemap::toggled, model, &LargeFilesModel::toggle);
  connect(m_map, &Treemap::opened, this, [](const QString& path) { platform::revealInFileManager(path); });
  connect(model, &LargeFilesModel::selectionChanged, this, &LargeFilesResultsView::refreshFooter);
  connect(m_reveal, &Button::clicked, this, &LargeFilesResultsView::reveal);
  connect(m_move, &Button::clicked, this, &LargeFilesResultsView::moveToTrash);
  connect(&Theme::get(), &Theme::changed, this, &LargeFilesResultsView::refreshLook);
}

QWidget* LargeFilesResultsView::buildBar() {
  //: Said by a screen reader of the filters: which files to show
  m_segments->setAccessibleName(LargeFilesWords::tr("Show"));
  m_search->setPlaceholderText(LargeFilesWords::tr("Search files"));
  m_search->setAccessibleName(LargeFilesWords::tr("Search files"));
  m_search->setClearButtonEnabled(true);
  m_search->setFixedWidth(kSearchWidth);
  m_search->setTextMargins(paint::mirrored(QMargins(kSearchTextStart, 0, 0, 0), layoutDirection()));
  // By itself, the field puts a text to the side where the text itself begins.
  if (layoutDirection() == Qt::RightToLeft) m_search->setAlignment(Qt::AlignRight | Qt::AlignAbsolute);
  auto* bar = new QWidget;
  QHBoxLayout* row = hbox(kBarSpacing);
  bar->setLayout(row);
  row->addWidget(m_segments);
  row->addStretch();
  row->addWidget(m_search);
  return bar;
}

Card* LargeFilesResultsView::buildMap() {
  m_map->setAccessibleName(LargeFilesWords::tr("Largest files"));
  auto* card = new Card;
  card->setObjectName("mapCard"_L1);
  QVBoxLayout* column = vbox(0, kMapMargins);
  card->setLayout(column);
  column->addWidget(m_map);
  return card;
}

Card* LargeFilesResultsView::buildList() {
  auto* card = new Card;
  QVBoxLayout* column = vbox(0, kListMargins);
  card->setLayout(column);
  column->addWidget(m_table);
  return card;
}

FooterBar* LargeFilesResultsView::buildFooter() {
  m_sum->setObjectName("sum"_L1);
  m_sum->setWordWrap(true); // the buttons beside it have long texts in some languages
  m_move->setObjectName("moveButton"_L1);
  m_reveal->setObjectName("revealButton"_L1);
  auto* footer = new FooterBar;
  footer->row()->addWidget(m_sum, 1);
  footer->row()->addWidget(m_reveal);
  footer->row()->addWidget(m_move);
  return footer;
}

void LargeFilesResultsView::refreshLook() {
  m_searchIcon->setIcon(searchIcon());
  refreshFooter();
}

void LargeFilesResultsView::applyFilter() {
  const int months = AppSettings::instance().oldMonths();
  //: Filter of a list of files: not opened for %1 months or more (3, 6, 12 or 24)
  m_segments->setItemText(LargeFilesFilter::Unused,
                          LargeFilesWords::tr("Unused %1+ months", nullptr, months).arg(months));
  m_model->unusedMonths = months;
  const LargeFilesFilter filter{.segment = LargeFilesFilter::Segment(m_segments->current()),
                                .months = months,
                                .needle = m_search->text().trimmed(),
                                .downloads = downloadsPrefix()};
  const QList<LargeFile> kept = filter.kept(m_state->largeFiles);
  m_model->setFiles(kept);
  showTiles(kept);
  refreshFooter();
}

void LargeFilesResultsView::showTiles(const QList<LargeFile>& files) {
  QHash<QString, int> ofKind;
  QList<Treemap::Item> items;
  for (const LargeFile& file : files)
    items << Treemap::Item{.key = file.path,
                           .label = file.name,
                           .detail = fmt::bytes(file.size),
                           .bytes = file.size,
                           .color = tileColour(kindStyle(file.kind).colour, ofKind[file.kind]++)};
  m_map->setItems(items);
  m_mapCard->setVisible(!files.isEmpty());
}

QList<QString> LargeFilesResultsView::tickedPaths() const {
  QList<QString> paths;
  for (const LargeFile& file : m_model->files())
    if (m_model->selection().contains(file.path)) paths << file.path;
  return paths;
}

// What the filter hides counts nowhere, ticked or not.
void LargeFilesResultsView::refreshFooter() {
  qint64 total = 0;
  qint64 selected = 0;
  QSet<QString> visible;
  for (const LargeFile& file : m_model->files()) {
    total += file.size;
    if (!m_model->selection().contains(file.path)) continue;
    selected += file.size;
    visible.insert(file.path);
  }
  m_map->setSelected(visible);
  const QString look = u"%1; font-family:'%2'; font-size:15px"_s.arg(
      Theme::get().text.name(), Theme::get().mono(kFigurePx, kFigureWeight).family());
  //: %2, %3: sizes; %4: how many files are listed, which the forms count; leave the tag as it is
  m_sum->setText(
      LargeFilesWords::tr("<b style='color:%1'>%2</b> selected of %3 · %4 files", nullptr, m_model->rowCount())
          .arg(look, fmt::bytes(selected), fmt::bytes(total), QString::number(m_model->rowCount())));
  m_reveal->setEnabled(!visible.isEmpty());
  m_move->setEnabled(!visible.isEmpty());
}

void LargeFilesResultsView::reveal() {
  const QList<QString> paths = tickedPaths();
  if (!paths.isEmpty()) platform::revealInFileManager(paths.first());
}

// The button has nothing left to do then; the keyboard goes on in the list.
void LargeFilesResultsView::moveToTrash() {
  const QList<QString> paths = tickedPaths();
  if (m_move->hasFocus()) m_table->setFocus(m_moveFocus->isVisible() ? Qt::TabFocusReason : Qt::OtherFocusReason);
  m_model->forget(paths);
  m_state->trashLargeFiles(paths);
}

} // namespace ui
