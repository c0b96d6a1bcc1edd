#include "gallery/Shelf.h"

#include "gallery/stage.h"
#include "ui/controls/factory.h"

#include <QHBoxLayout>
#include <QLabel>

namespace gallery {

namespace {

constexpr int kBetweenSpecimensPx = 26;
constexpr int kToCaptionPx = 6;

} // namespace

void Shelf::row() {
  m_row = ui::hbox(kBetweenSpecimensPx);
  m_row->addStretch();
  m_column->addLayout(m_row);
}

void Shelf::place(QWidget* control, const QString& caption, int width) {
  if (!m_row) row();
  const bool whole = width == kWholeRow;
  QVBoxLayout* cell = ui::vbox(kToCaptionPx);
  if (width > 0) control->setFixedWidth(width);
  if (width > 0 && control->hasHeightForWidth()) control->setFixedHeight(control->heightForWidth(width));
  cell->addWidget(control, 0, whole ? Qt::Alignment() : Qt::AlignLeft | Qt::AlignBottom);
  if (!caption.isEmpty()) cell->addWidget(ui::label(caption, "micro"));
  // The stretch at the row's end keeps the others in their own size.
  m_row->insertLayout(m_row->count() - 1, cell, whole ? 1 : 0);
  if (whole)
    delete m_row->takeAt(m_row->count() - 1);
  else
    m_row->setAlignment(cell, Qt::AlignBottom);
}

void Shelf::focus(QWidget* control) { giveFocus(control, m_sheet); }

} // namespace gallery
