#include "ui/shell/dialog.h"

#include "ui/Theme.h"
#include "ui/controls/Button.h"
#include "ui/controls/Divider.h"
#include "ui/controls/factory.h"
#include "ui/shell/Overlay.h"
#include "ui/shell/words.h"

#include <QHBoxLayout>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace ui {
namespace {

// Lengths in pixels.
constexpr int kWidthMac = 420;
constexpr int kWidthWin = 460;
constexpr int kBodyGap = 6;
constexpr int kButtonGap = 8;
constexpr QMargins kBodyMac(24, 24, 24, 16);
constexpr QMargins kBodyWin(24, 24, 24, 20);
constexpr QMargins kRowMac(24, 0, 24, 20);
constexpr QMargins kRowWin(24, 16, 24, 16);

/// Confirms at the right on macOS, side by side over the whole width elsewhere.
void fillRow(QHBoxLayout* row, Button* cancel, Button* confirm) {
  if (Theme::get().mac) {
    row->addStretch();
    row->addWidget(cancel);
    row->addWidget(confirm);
    return;
  }
  row->addWidget(confirm, 1);
  row->addWidget(cancel, 1);
}

} // namespace

QVBoxLayout* dialogBody(Overlay* dialog) {
  const bool mac = Theme::get().mac;
  QWidget* panel = dialog->panel;
  panel->setFixedWidth(mac ? kWidthMac : kWidthWin);
  panel->setLayout(vbox());
  auto* body = new QWidget;
  QVBoxLayout* column = vbox(kBodyGap, mac ? kBodyMac : kBodyWin);
  body->setLayout(column);
  panel->layout()->addWidget(body);
  return column;
}

Button* dialogFooter(Overlay* dialog, const QString& confirmText, const char* kind) {
  const bool mac = Theme::get().mac;
  QLayout* panel = dialog->panel->layout();
  if (!mac) panel->addWidget(new Divider);
  auto* footer = new QWidget;
  if (!mac) {
    footer->setAutoFillBackground(false);
    footer->setAttribute(Qt::WA_StyledBackground);
    footer->setStyleSheet(u"background: transparent;"_s);
  }
  auto* cancel = new Button(OverlayWords::tr("Cancel"));
  auto* confirm = new Button(confirmText, kind);
  confirm->setDefault(true);
  QHBoxLayout* row = hbox(kButtonGap, mac ? kRowMac : kRowWin);
  fillRow(row, cancel, confirm);
  footer->setLayout(row);
  panel->addWidget(footer);
  QObject::connect(cancel, &QPushButton::clicked, dialog, &QWidget::close);
  return confirm;
}

} // namespace ui
