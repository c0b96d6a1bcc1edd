#include "gallery/GalleryWindow.h"

#include "app/AppSettings.h"
#include "gallery/Sheet.h"
#include "ui/Theme.h"
#include "ui/controls/Segmented.h"
#include "ui/controls/factory.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>
#include <QScrollArea>
#include <QTimer>
#include <QVBoxLayout>

#include <algorithm>
#include <iterator>

using namespace Qt::StringLiterals;

namespace gallery {

namespace {

constexpr const char* kScales[] = {"1", "1.5", "2"};
constexpr QMargins kBarMargins{16, 10, 16, 10};
constexpr int kBarSpacingPx = 16;

} // namespace

GalleryWindow::GalleryWindow() : m_sheet(new Sheet), m_otherLook(new QLabel) {
  setWindowTitle(u"Gallery"_s);
  auto* both = new QWidget;
  QHBoxLayout* row = ui::hbox();
  both->setLayout(row);
  row->addWidget(m_sheet, 0, Qt::AlignTop);
  row->addWidget(m_otherLook, 0, Qt::AlignTop);
  auto* area = new QScrollArea;
  area->setWidget(both);
  area->setWidgetResizable(true);
  QVBoxLayout* column = ui::vbox();
  setLayout(column);
  column->addWidget(makeBar());
  column->addWidget(area, 1);
}

QWidget* GalleryWindow::makeBar() {
  const Theme& theme = Theme::get();
  auto* bar = new QWidget;
  auto* looks = new ui::Segmented({u"Light"_s, u"Dark"_s});
  looks->setCurrent(int(theme.dark));
  m_metrics = new ui::Segmented({u"mac"_s, u"win"_s});
  m_metrics->setCurrent(int(!theme.mac));
  QStringList scales;
  for (const char* scale : kScales) scales << QString::fromLatin1(scale);
  m_scale = new ui::Segmented(scales);
  m_scale->setCurrent(int(scales.indexOf(QString::number(devicePixelRatioF()))));
  QHBoxLayout* row = ui::hbox(kBarSpacingPx, kBarMargins);
  bar->setLayout(row);
  for (QWidget* control : {looks, m_metrics, m_scale}) row->addWidget(control);
  row->addStretch();
  connect(looks, &ui::Segmented::currentChanged, this, [this](int index) { setDark(index == 1); });
  const auto restart = [this] {
    emit restartWanted(m_metrics->current() == 0, QString::fromLatin1(kScales[std::max(m_scale->current(), 0)]));
  };
  connect(m_metrics, &ui::Segmented::currentChanged, this, restart);
  connect(m_scale, &ui::Segmented::currentChanged, this, restart);
  return bar;
}

void GalleryWindow::setDark(bool dark) {
  AppSettings::instance().setThemeMode(dark ? AppSettings::Dark : AppSettings::Light);
  takeOtherLook();
}

// There is one theme: it changes over for as long as the picture takes. Nothing of that is seen, as the window repaints
// only when this is through.
void GalleryWindow::takeOtherLook() {
  AppSettings& settings = AppSettings::instance();
  const bool dark = Theme::get().dark;
  settings.setThemeMode(dark ? AppSettings::Light : AppSettings::Dark);
  m_otherLook->setPixmap(m_sheet->grab());
  settings.setThemeMode(dark ? AppSettings::Dark : AppSettings::Light);
}

void GalleryWindow::showEvent(QShowEvent* event) {
  QWidget::showEvent(event);
  QTimer::singleShot(0, this, &GalleryWindow::takeOtherLook);
}

void GalleryWindow::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  painter.fillRect(rect(), Theme::get().bg);
}

} // namespace gallery
