#include "ui/shell/TitleBar.h"

#include "app/identity.h"
#include "ui/Theme.h"
#include "ui/controls/factory.h"
#include "ui/icons.h"
#include "ui/paint.h"
#include "ui/shell/CaptionButton.h"
#include "ui/shell/words.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QMouseEvent>
#include <QPainter>

namespace ui {
namespace {

// Lengths in pixels.
constexpr int kHeight = 40;
constexpr int kLogoRoom = 46; // from the edge to the name
constexpr double kLogoX = 12;
constexpr double kLogo = 22;

} // namespace

QRectF titleBarLogo(const QSize& bar, Qt::LayoutDirection direction) {
  const QRectF logo(kLogoX, (bar.height() - kLogo) / 2, kLogo, kLogo);
  return paint::mirrored(logo, QRectF(QPointF(), QSizeF(bar)), direction);
}

TitleBar::TitleBar(QWidget* window, QWidget* parent) : QWidget(parent), m_window(window) {
  setFixedHeight(kHeight);
  QHBoxLayout* row = hbox();
  setLayout(row);
  row->addSpacing(kLogoRoom);
  row->addWidget(label(identity::kName, "caption"));
  row->addStretch();
  //: Button with the program’s menu
  m_menu = addButton(CaptionButton::Menu, TitleBarWords::tr("Menu"));
  m_menu->setToolTip(TitleBarWords::tr("Menu"));
  connect(m_menu, &QAbstractButton::clicked, this, &TitleBar::requestMenu);
  //: Button of the window
  connect(addButton(CaptionButton::Minimize, TitleBarWords::tr("Minimize")), &QAbstractButton::clicked, window,
          &QWidget::showMinimized);
  //: Button of the window
  m_maximize = addButton(CaptionButton::Maximize, TitleBarWords::tr("Maximize"));
  connect(m_maximize, &QAbstractButton::clicked, window,
          [window] { window->isMaximized() ? window->showNormal() : window->showMaximized(); });
  //: Button of the window
  connect(addButton(CaptionButton::Close, TitleBarWords::tr("Close")), &QAbstractButton::clicked, window,
          &QWidget::close);
  window->installEventFilter(this);
  connect(&Theme::get(), &Theme::changed, this, qOverload<>(&QWidget::update));
}

void TitleBar::requestMenu() {
  const int corner = layoutDirection() == Qt::RightToLeft ? m_menu->width() : 0;
  emit menuRequested(m_menu->mapToGlobal(QPoint(corner, m_menu->height())));
}

CaptionButton* TitleBar::addButton(int kind, const QString& name) {
  auto* button = new CaptionButton(CaptionButton::Kind(kind));
  button->setAccessibleName(name);
  layout()->addWidget(button);
  return button;
}

bool TitleBar::eventFilter(QObject* watched, QEvent* event) {
  if (watched == m_window && event->type() == QEvent::WindowStateChange) m_maximize->update();
  return QWidget::eventFilter(watched, event);
}

void TitleBar::mousePressEvent(QMouseEvent* event) {
  if (!dragWindowFrom(this, event)) QWidget::mousePressEvent(event);
}

void TitleBar::mouseDoubleClickEvent(QMouseEvent* event) {
  if (!zoomWindowFrom(this, event)) QWidget::mouseDoubleClickEvent(event);
}

void TitleBar::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  icons::paintLogo(&painter, titleBarLogo(size(), layoutDirection()));
}

} // namespace ui
