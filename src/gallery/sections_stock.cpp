#include "gallery/Shelf.h"
#include "gallery/Snapshot.h"
#include "gallery/sections.h"
#include "gallery/stage.h"
#include "ui/controls/SelectPopup.h"
#include "ui/controls/factory.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QScrollArea>
#include <QScrollBar>
#include <QStandardItemModel>
#include <QStyleOptionFrame>
#include <QTableView>
#include <QToolTip>
#include <QVBoxLayout>

#include <memory>

using namespace Qt::StringLiterals;

namespace gallery {

namespace {

constexpr int kFieldWidthPx = 150;

QCheckBox* checkBox(Qt::CheckState state) {
  auto* box = new QCheckBox(u"Move to Trash"_s);
  box->setTristate(state == Qt::PartiallyChecked);
  box->setCheckState(state);
  return box;
}

QComboBox* comboBox() {
  auto* box = new QComboBox;
  box->addItems({u"Every week"_s, u"Every month"_s, u"Never"_s});
  return box;
}

QLineEdit* lineEdit(const QString& text) {
  auto* edit = new QLineEdit(text);
  edit->setPlaceholderText(u"A path or a pattern"_s);
  return edit;
}

// A selection in a field that hasn't the focus is no different; what is asked here is how its colours read.
QLineEdit* selectedLineEdit() {
  QLineEdit* edit = lineEdit(u"~/Projects"_s);
  edit->selectAll();
  return edit;
}

QScrollArea* scrollArea(const QSize& size, const QSize& content) {
  auto* area = new QScrollArea;
  auto* inner = new QLabel(u"More than there is room for"_s);
  inner->setAlignment(Qt::AlignTop | Qt::AlignLeft);
  inner->setFixedSize(content);
  area->setWidget(inner);
  area->setFixedSize(size);
  return area;
}

QTableView* table() {
  static constexpr const char* kCells[][3] = {
      {"render-cache.bin", "1.2 GB", "Today"}, {"holiday.mov", "940 MB", "March"}, {"backup.tar", "88 MB", "2023"}};
  auto* view = new QTableView;
  auto* model = new QStandardItemModel(0, 3, view);
  model->setHorizontalHeaderLabels({u"Name"_s, u"Size"_s, u"Changed"_s});
  for (const auto& cells : kCells) {
    QList<QStandardItem*> row;
    for (const char* cell : cells) row << new QStandardItem(QString::fromLatin1(cell));
    model->appendRow(row);
  }
  view->setModel(model);
  view->setShowGrid(false);
  view->verticalHeader()->hide();
  view->horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
  view->horizontalHeader()->setStretchLastSection(true);
  view->setSortingEnabled(true);
  view->setFixedSize(430, 140);
  return view;
}

QPixmap takeTip(const QString& text) {
  QToolTip::showText({}, text);
  for (QWidget* widget : QApplication::topLevelWidgets()) {
    if (!widget->inherits("QTipLabel") || !widget->isVisible()) continue;
    const QPixmap picture = widget->grab();
    QToolTip::hideText();
    return picture;
  }
  return {};
}

QPixmap takeMenu() {
  QMenu menu;
  menu.addAction(u"Open Tarnwick"_s);
  QAction* active = menu.addAction(u"Scan now"_s);
  menu.addAction(u"Clean"_s)->setEnabled(false);
  menu.addSeparator();
  QAction* checkable = menu.addAction(u"Show in the tray"_s);
  checkable->setCheckable(true);
  checkable->setChecked(true);
  menu.addMenu(u"Language"_s);
  menu.addAction(u"Quit"_s)->setShortcut(Qt::CTRL | Qt::Key_Q);
  menu.ensurePolished();
  menu.resize(menu.sizeHint());
  menu.setActiveAction(active);
  return menu.grab();
}

QPixmap takeStockList() {
  const std::unique_ptr<QComboBox> box(comboBox());
  box->resize(kFieldWidthPx, box->sizeHint().height());
  box->showPopup();
  const QPixmap picture = box->view()->window()->grab();
  box->hidePopup();
  return picture;
}

QPixmap takeSelectList() {
  const std::unique_ptr<QComboBox> box(comboBox());
  box->resize(kFieldWidthPx, box->sizeHint().height());
  auto* popup = new ui::SelectPopup(box.get());
  popup->open();
  QKeyEvent down(QEvent::KeyPress, Qt::Key_Down, Qt::NoModifier);
  QCoreApplication::sendEvent(popup, &down);
  const QPixmap picture = popup->grab();
  popup->close();
  return picture;
}

} // namespace

void stockFields(Shelf* shelf) {
  shelf->put(checkBox(Qt::Unchecked), u"unchecked"_s);
  shelf->put(hovered(checkBox(Qt::Unchecked)), u"hovered"_s);
  shelf->put(checkBox(Qt::Checked), u"checked"_s);
  shelf->put(checkBox(Qt::PartiallyChecked), u"partly"_s);
  shelf->put(disabled(checkBox(Qt::Unchecked)), u"disabled"_s);
  shelf->put(disabled(checkBox(Qt::Checked)), u"checked, disabled"_s);
  shelf->putFocused(checkBox(Qt::Checked), u"focused"_s);
  shelf->row();
  shelf->put(comboBox(), u"combo box"_s, kFieldWidthPx);
  shelf->put(hovered(comboBox()), u"hovered"_s, kFieldWidthPx);
  shelf->put(disabled(comboBox()), u"disabled"_s, kFieldWidthPx);
  shelf->putFocused(comboBox(), u"focused"_s);
  shelf->row();
  shelf->put(lineEdit(u"~/Projects"_s), u"line edit"_s, kFieldWidthPx);
  shelf->put(hovered(lineEdit(u"~/Projects"_s)), u"hovered"_s, kFieldWidthPx);
  shelf->put(lineEdit({}), u"empty"_s, kFieldWidthPx);
  shelf->put(selectedLineEdit(), u"selected"_s, kFieldWidthPx);
  shelf->put(disabled(lineEdit(u"~/Projects"_s)), u"disabled"_s, kFieldWidthPx);
  shelf->putFocused(lineEdit(u"~/Projects"_s), u"focused"_s);
}

void stockViews(Shelf* shelf) {
  shelf->put(table(), u"table"_s);
  shelf->put(scrollArea({200, 140}, {600, 600}), u"scroll area"_s);
  QScrollArea* area = scrollArea({120, 140}, {100, 400});
  QScrollBar* bar = area->verticalScrollBar();
  onceShown(bar, [bar] { pointAt(bar, QPointF(bar->width() / 2.0, bar->width())); }); // in its handle
  shelf->put(area, u"scroll bar, hovered"_s);
}

void stockPopups(Shelf* shelf) {
  shelf->put(new Snapshot([] { return takeTip(u"Moves what you ticked to the Trash"_s); }), u"tool tip"_s);
  shelf->put(new Snapshot([] { return takeTip(u"<b>Two lines</b><br>of rich text"_s); }), u"rich tool tip"_s);
  shelf->put(new Snapshot(takeMenu), u"menu"_s);
  shelf->put(new Snapshot(takeStockList), u"stock list"_s);
  shelf->put(new Snapshot(takeSelectList), u"list of a select"_s);
}

} // namespace gallery
