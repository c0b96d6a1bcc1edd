#include "ui/shell/AboutDialog.h"

#include "app/identity.h"
#include "ui/controls/Button.h"
#include "ui/controls/factory.h"
#include "ui/icons.h"
#include "ui/shell/website.h"
#include "ui/shell/words.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace ui {
namespace {

// Lengths in pixels.
constexpr int kLeastWidth = 340; // long texts on its buttons make it wider
constexpr int kGap = 4;
constexpr QMargins kMargins(28, 28, 28, 22);
constexpr int kLogo = 72;
constexpr int kBelowLogo = 8;
constexpr int kBelowVersion = 10;
constexpr int kAboveButtons = 16;
constexpr int kButtonGap = 8;

QLabel* centred(const QString& text, const char* role) {
  QLabel* result = label(text, role);
  result->setAlignment(Qt::AlignCenter);
  return result;
}

} // namespace

AboutDialog::AboutDialog(QWidget* parent) : Overlay(parent) {
  setAccessibleName(identity::kName);
  panel->setMinimumWidth(kLeastWidth);
  QVBoxLayout* column = vbox(kGap, kMargins);
  addIdentity(column);
  addButtons(column);
  panel->setLayout(column);
}

void AboutDialog::addIdentity(QVBoxLayout* column) {
  QLabel* logo = label({});
  logo->setPixmap(icons::appIcon().pixmap(QSize(kLogo, kLogo), panel->devicePixelRatioF()));
  logo->setAccessibleName(identity::kName);
  column->addWidget(logo, 0, Qt::AlignHCenter);
  column->addSpacing(kBelowLogo);
  column->addWidget(centred(identity::kName, "h2"));
  column->addWidget(centred(OverlayWords::tr("Version %1").arg(identity::kVersion), "sub"));
  column->addSpacing(kBelowVersion);
  column->addWidget(centred(OverlayWords::tr("© 2026 the Tarnwick authors"), "micro"));
  column->addSpacing(kAboveButtons);
}

void AboutDialog::addButtons(QVBoxLayout* column) {
  auto* site = new Button(MenuBarWords::tr("Tarnwick Website"), nullptr, u"external"_s);
  auto* done = new Button(OverlayWords::tr("Close"), "primary");
  done->setDefault(true);
  connect(site, &QPushButton::clicked, this, [] { website::open(u"/tarnwick/"); });
  connect(done, &QPushButton::clicked, this, &QWidget::close);
  QHBoxLayout* row = hbox(kButtonGap);
  row->addWidget(site, 1);
  row->addWidget(done, 1);
  column->addLayout(row);
}

} // namespace ui
