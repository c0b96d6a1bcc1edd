#include "ui/pages/LargeFilesTable.h"

#include "core/platform.h"
#include "ui/Theme.h"
#include "ui/controls/KeyboardFocus.h"
#include "ui/pages/LargeFileDelegate.h"
#include "ui/pages/LargeFilesHeader.h"
#include "ui/pages/LargeFilesModel.h"
#include "ui/pages/LargeFilesWords.h"

#include <QAccessible>
#include <QHeaderView>
#include <QKeyEvent>
#include <QPainter>

#include <algorithm>
#include <utility>

namespace ui {

namespace {
// Lengths in pixels.
constexpr int kHeaderHeight = 32;
constexpr int kCheckWidth = 40;
constexpr int kAgeWidth = 140;
constexpr int kSizeWidth = 100;
constexpr double kRingRadius = 6;
constexpr double kRingInset = 4; // the ring lies inside, as the next row is close
} // namespace

LargeFilesTable::LargeFilesTable(LargeFilesModel* model, QWidget* parent)
    : QTableView(parent), m_model(model), m_focus(new KeyboardFocus(this, [this] { viewport()->update(); })) {
  setModel(model);
  setItemDelegate(new LargeFileDelegate(model, this));
  setShowGrid(false);
  setSelectionMode(NoSelection);
  setMouseTracking(true);
  viewport()->setMouseTracking(true);
  setFocusPolicy(Qt::StrongFocus);
  setTabKeyNavigation(false);
  setVerticalScrollMode(ScrollPerPixel);
  setAccessibleName(LargeFilesWords::tr("Large files"));
  verticalHeader()->hide();
  verticalHeader()->setDefaultSectionSize(LargeFileDelegate::kRowHeight);
  buildHeader();
  viewport()->installEventFilter(m_focus); // which gets the presses of the mouse
  connect(&Theme::get(), &Theme::changed, viewport(), qOverload<>(&QWidget::update));
  connect(this, &QTableView::clicked, this, [this](const QModelIndex& index) { m_model->toggle(pathAt(index)); });
  connect(this, &QTableView::doubleClicked, this,
          [this](const QModelIndex& index) { platform::revealInFileManager(pathAt(index)); });
  connect(model, &LargeFilesModel::modelAboutToBeReset, this, &LargeFilesTable::keepPlace);
  connect(model, &LargeFilesModel::layoutChanged, this, &LargeFilesTable::findPlace); // new rows are sorted first
  connect(model, &LargeFilesModel::dataChanged, this, [this](const QModelIndex& first) { tellTick(first.row()); });
}

void LargeFilesTable::buildHeader() {
  auto* header = new LargeFilesHeader;
  setHorizontalHeader(header);
  header->setFixedHeight(kHeaderHeight);
  header->setHighlightSections(false);
  header->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
  header->setSortIndicator(m_model->sortColumn(), m_model->sortOrder());
  //: Said by a screen reader of the heads of the columns
  header->setAccessibleName(LargeFilesWords::tr("Sort by"));
  setSortingEnabled(true);
  header->setSortIndicatorShown(false); // the texts have a mark of their own
  header->setMinimumSectionSize(kCheckWidth);
  header->setSectionResizeMode(LargeFilesModel::Check, QHeaderView::Fixed);
  header->setSectionResizeMode(LargeFilesModel::Name, QHeaderView::Stretch);
  setColumnHidden(LargeFilesModel::Kind, true);
  setColumnWidth(LargeFilesModel::Check, kCheckWidth);
  setColumnWidth(LargeFilesModel::LastOpened, kAgeWidth);
  setColumnWidth(LargeFilesModel::Size, kSizeWidth);
}

QString LargeFilesTable::pathAt(const QModelIndex& index) const {
  return index.isValid() ? m_model->files().at(index.row()).path : QString();
}

void LargeFilesTable::focusInEvent(QFocusEvent* event) {
  QTableView::focusInEvent(event);
  if (event->reason() == Qt::TabFocusReason || event->reason() == Qt::BacktabFocusReason) scrollTo(currentIndex());
}

// By rows: along a row there is nothing to see.
QModelIndex LargeFilesTable::moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) {
  const int rows = m_model->rowCount();
  const int column = std::max(0, currentIndex().column());
  if (action == MoveHome) return m_model->index(0, column);
  if (action == MoveEnd) return m_model->index(rows - 1, column);
  return QTableView::moveCursor(action, modifiers);
}

void LargeFilesTable::keyPressEvent(QKeyEvent* event) {
  const QString path = pathAt(currentIndex());
  switch (event->key()) {
  case Qt::Key_Space:
    scrollTo(currentIndex()); // nothing is ticked unseen
    if (!path.isEmpty() && !event->isAutoRepeat()) m_model->toggle(path);
    return;
  case Qt::Key_Return:
  case Qt::Key_Enter:
    if (!path.isEmpty() && !event->isAutoRepeat()) platform::revealInFileManager(path);
    return;
  default:
    QTableView::keyPressEvent(event);
  }
}

void LargeFilesTable::paintEvent(QPaintEvent* event) {
  QTableView::paintEvent(event);
  const int row = currentIndex().row();
  if (row < 0) return;
  QPainter painter(viewport());
  painter.setRenderHint(QPainter::Antialiasing);
  const QRectF whole(0, rowViewportPosition(row), viewport()->width(), rowHeight(row));
  m_focus->paintRing(&painter, whole.adjusted(kRingInset, kRingInset, -kRingInset, -kRingInset), kRingRadius);
}

void LargeFilesTable::keepPlace() {
  m_workedPath = pathAt(currentIndex());
  m_workedRow = currentIndex().row();
}

void LargeFilesTable::findPlace() {
  const int before = std::exchange(m_workedRow, -1);
  if (before < 0 || m_model->rowCount() == 0) return;
  const int same = m_model->rowOf(m_workedPath);
  const int row = same >= 0 ? same : std::min(before, m_model->rowCount() - 1);
  setAutoScroll(m_focus->isVisible()); // who works with the mouse stays where he looks
  selectionModel()->setCurrentIndex(m_model->index(row, LargeFilesModel::Check), QItemSelectionModel::NoUpdate);
  setAutoScroll(true);
}

void LargeFilesTable::tellTick(int row) {
  if (!QAccessible::isActive()) return;
  QAccessibleInterface* spoken = QAccessible::queryAccessibleInterface(this);
  const QAccessibleTableInterface* cells = spoken ? spoken->tableInterface() : nullptr;
  if (!cells) return;
  QAccessible::State touched;
  touched.checked = true;
  QAccessibleStateChangeEvent event(cells->cellAt(row, LargeFilesModel::Check), touched);
  QAccessible::updateAccessibility(&event);
}

} // namespace ui
