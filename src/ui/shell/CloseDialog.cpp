#include "ui/shell/CloseDialog.h"

#include "ui/controls/Button.h"
#include "ui/controls/Divider.h"
#include "ui/controls/factory.h"
#include "ui/shell/words.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QVBoxLayout>

namespace ui {
namespace {

// Lengths in pixels.
constexpr int kWidth = 460;
constexpr int kBodyGap = 6;
constexpr QMargins kBody(24, 24, 24, 20);
constexpr int kAboveBox = 10;
constexpr int kButtonGap = 8;
constexpr QMargins kRow(24, 16, 24, 16);

} // namespace

CloseDialog::CloseDialog(QWidget* parent)
    : Overlay(parent), m_remember(new QCheckBox(OverlayWords::tr("Remember my choice"))) {
  panel->setFixedWidth(kWidth);
  const QString title = OverlayWords::tr("Keep Tarnwick running?");
  setAccessibleName(title);
  QLabel* text =
      label(OverlayWords::tr("Tarnwick can stay in the system tray when you close the window, so scheduled scans "
                             "and low space alerts keep working. You can open it again from the tray icon."),
            "sub");
  text->setWordWrap(true);
  QLabel* hint = label(OverlayWords::tr("You can change this in Settings."), "micro");
  m_remember->setChecked(true);
  connect(m_remember, &QCheckBox::toggled, hint, &QWidget::setVisible);

  QVBoxLayout* body = vbox(kBodyGap, kBody);
  body->addWidget(label(title, "h2"));
  body->addWidget(text);
  body->addSpacing(kAboveBox);
  body->addWidget(m_remember);
  body->addWidget(hint);

  auto* keep = new Button(OverlayWords::tr("Keep in tray"), "primary");
  keep->setDefault(true);
  //: Button: quit Tarnwick
  auto* quit = new Button(OverlayWords::tr("Quit"));
  connect(keep, &QPushButton::clicked, this, [this] { choose(true); });
  connect(quit, &QPushButton::clicked, this, [this] { choose(false); });
  QHBoxLayout* row = hbox(kButtonGap, kRow);
  row->addWidget(keep, 1);
  row->addWidget(quit, 1);

  QVBoxLayout* all = vbox();
  all->addLayout(body);
  all->addWidget(new Divider);
  all->addLayout(row);
  panel->setLayout(all);
}

void CloseDialog::choose(bool keepInTray) {
  emit chosen(keepInTray, m_remember->isChecked());
  close();
}

} // namespace ui
