#include "ui/shell/UpdateDialog.h"

#include "core/fmt.h"
#include "core/platform.h"
#include "ui/Theme.h"
#include "ui/controls/Button.h"
#include "ui/controls/Card.h"
#include "ui/controls/Divider.h"
#include "ui/controls/IconView.h"
#include "ui/controls/factory.h"
#include "ui/icons.h"
#include "ui/shell/words.h"
#include "update/Updater.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QProgressBar>
#include <QScrollArea>
#include <QVBoxLayout>

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace ui {
namespace {

// Lengths in pixels.
constexpr int kWidthMac = 440;
constexpr int kWidthWin = 480;
constexpr int kBodyGap = 8;
constexpr QMargins kBodyMac(24, 24, 24, 16);
constexpr QMargins kBodyWin(24, 24, 24, 20);
constexpr int kHeadGap = 12;
constexpr int kTitleGap = 2;
constexpr int kLogo = 36;
constexpr int kPartGap = 6; // above the changes and above the progress
constexpr int kChangesGap = 6;
constexpr QMargins kChangesMargins(14, 12, 14, 12);
constexpr int kChangeGap = 8;
constexpr int kTick = 14;
constexpr int kLeastChanges = 60; // however low the window is
constexpr int kAroundPanel = 24;  // what stays free above and below
constexpr int kBarHeight = 6;
constexpr int kButtonGap = 8;
constexpr QMargins kFooterMac(24, 0, 24, 20);
constexpr QMargins kFooterWin(24, 16, 24, 16);

constexpr int kSteps = 1000; // of the progress

// What a feed may say has no limit but its own length; a dialog shows no more than somebody would read.
constexpr qsizetype kMostChanges = 100;
constexpr qsizetype kMostOfChange = 500; // characters
constexpr qsizetype kMostOfFact = 100;   // characters of the date, and of the size

QString shortened(const QString& text, qsizetype most) { return text.size() <= most ? text : text.left(most) + u'…'; }

/// A label that may wrap and never takes its text for markup: what it shows comes from outside.
QLabel* plainLabel(const char* role = nullptr) {
  QLabel* made = label({}, role);
  made->setTextFormat(Qt::PlainText);
  made->setWordWrap(true);
  return made;
}

struct Head {
  QString title;
  QString subtitle;
};

Head availableHead(const Updater& updater) {
  const UpdateRelease& release = updater.release;
  QString subtitle =
      //: %1, %2: versions such as “1.2.0”
      OverlayWords::tr("Version %1 is available. You have %2.").arg(release.version, updater.currentVersion);
  QStringList facts;
  for (const QString& fact : {release.date.simplified(), release.size.simplified()}) // on one line
    if (!fact.isEmpty()) facts << shortened(fact, kMostOfFact);
  if (!facts.isEmpty()) subtitle += u'\n' + facts.join(u" · ");
  return {OverlayWords::tr("An update is available"), subtitle};
}

Head downloadingHead(const Updater& updater) {
  const QString subtitle =
      //: How much of the update is there; %1, %2: sizes
      updater.total > 0 ? OverlayWords::tr("%1 of %2").arg(fmt::bytes(updater.received), fmt::bytes(updater.total))
                        : OverlayWords::tr("Version %1").arg(updater.release.version);
  return {OverlayWords::tr("Downloading the update…"), subtitle};
}

QString installingText() {
  return platform::host() == platform::Host::Mac
             ? OverlayWords::tr("Drag Tarnwick to Applications in the window that opens to replace this version.")
             : OverlayWords::tr("Your file manager opens the folder with the downloaded package. Install it the way "
                                "you install packages.");
}

Head headOf(const Updater& updater) {
  switch (updater.state) {
  case Updater::UpToDate:
    return {OverlayWords::tr("Tarnwick is up to date"),
            OverlayWords::tr("Version %1 is the latest version.").arg(updater.currentVersion)};
  case Updater::Available:
    return availableHead(updater);
  case Updater::Failed:
    return {OverlayWords::tr("Could not check for updates"),
            OverlayWords::tr("Check your internet connection and try again.")};
  case Updater::Downloading:
    return downloadingHead(updater);
  case Updater::Installing:
    return {OverlayWords::tr("Installing the update…"), installingText()};
  default:
    return {OverlayWords::tr("Checking for updates…"),
            OverlayWords::tr("Version %1 is installed.").arg(updater.currentVersion)};
  }
}

QLayout* changeRow(const QString& change) {
  QHBoxLayout* row = hbox(kChangeGap);
  row->addWidget(new IconView(u"check"_s, Tone::Ok, kTick), 0, Qt::AlignTop);
  QLabel* text = plainLabel();
  text->setText(shortened(change, kMostOfChange));
  row->addWidget(text, 1);
  return row;
}

} // namespace

UpdateDialog::UpdateDialog(Updater* updater, QWidget* parent, Wish wish)
    : Overlay(parent),
      m_updater(updater),
      m_wish(wish),
      m_title(label({}, "h2")),
      m_subtitle(plainLabel("sub")),
      m_changes(new Card),
      m_changeArea(new QScrollArea),
      m_progress(new QProgressBar),
      m_warning(plainLabel("warn")),
      m_close(new Button({})),
      m_cancel(new Button(OverlayWords::tr("Cancel"))),
      //: Button: look for updates again
      m_retry(new Button(OverlayWords::tr("Retry"), "primary")),
      m_install(new Button(OverlayWords::tr("Update now"), "primary")) {
  const bool mac = Theme::get().mac;
  panel->setFixedWidth(mac ? kWidthMac : kWidthWin);
  QVBoxLayout* column = vbox();
  panel->setLayout(column);
  auto* body = new QWidget;
  QVBoxLayout* inBody = vbox(kBodyGap, mac ? kBodyMac : kBodyWin);
  body->setLayout(inBody);
  column->addWidget(body);
  addHead(inBody);
  addProgress(inBody);
  addFooter(column);
  dress();
  connect(&Theme::get(), &Theme::changed, this, &UpdateDialog::dress);
  connect(m_updater, &Updater::stateChanged, this, &UpdateDialog::refresh);
  refresh();
}

void UpdateDialog::addHead(QVBoxLayout* body) {
  QLabel* logo = label({});
  logo->setPixmap(icons::appIcon().pixmap(QSize(kLogo, kLogo), panel->devicePixelRatioF()));
  m_title->setWordWrap(true);
  QVBoxLayout* words = vbox(kTitleGap);
  words->addWidget(m_title);
  words->addWidget(m_subtitle);
  QHBoxLayout* head = hbox(kHeadGap);
  head->addWidget(logo, 0, Qt::AlignTop);
  head->addLayout(words, 1);
  body->addLayout(head);
  body->addSpacing(kPartGap);
  addChanges(body);
}

// However long the list is, the buttons below it stay within reach.
void UpdateDialog::addChanges(QVBoxLayout* body) {
  auto* content = new QWidget;
  m_changeRows = vbox(kChangesGap);
  content->setLayout(m_changeRows);
  m_changeArea->setWidget(content);
  m_changeArea->setWidgetResizable(true);
  m_changeArea->setFrameShape(QFrame::NoFrame);
  m_changeArea->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  QVBoxLayout* column = vbox(0, kChangesMargins);
  column->addWidget(m_changeArea);
  m_changes->setLayout(column);
  body->addWidget(m_changes);
}

void UpdateDialog::addProgress(QVBoxLayout* body) {
  body->addSpacing(kPartGap);
  m_progress->setTextVisible(false);
  m_progress->setFixedHeight(kBarHeight);
  body->addWidget(m_progress);
  body->addWidget(m_warning);
}

void UpdateDialog::addFooter(QVBoxLayout* column) {
  const bool mac = Theme::get().mac;
  if (!mac) column->addWidget(new Divider);
  connect(m_close, &QPushButton::clicked, this, &QWidget::close);
  connect(m_cancel, &QPushButton::clicked, m_updater, &Updater::cancel);
  connect(m_retry, &QPushButton::clicked, m_updater, &Updater::check);
  connect(m_install, &QPushButton::clicked, m_updater, &Updater::install);
  std::array<Button*, 4> buttons{m_close, m_cancel, m_retry, m_install};
  if (!mac) std::reverse(buttons.begin(), buttons.end());
  QHBoxLayout* row = hbox(kButtonGap, mac ? kFooterMac : kFooterWin);
  if (mac) row->addStretch();
  for (Button* button : buttons) row->addWidget(button, mac ? 0 : 1);
  column->addLayout(row);
}

void UpdateDialog::dress() {
  const Theme& theme = Theme::get();
  m_changes->fill = theme.surface2;
  m_changes->update();
  m_progress->setStyleSheet(u"QProgressBar { background: %1; border: 0; border-radius: 3px; }"
                            "QProgressBar::chunk { background: %2; border-radius: 3px; }"_s.arg(
                                theme.track.name(QColor::HexArgb), theme.accent.name()));
}

void UpdateDialog::refresh() {
  refreshHead();
  refreshChanges();
  refreshProgress();
  refreshButtons();
  panel->adjustSize();
  place();
}

void UpdateDialog::refreshHead() {
  const Head head = headOf(*m_updater);
  m_title->setText(head.title);
  m_subtitle->setText(head.subtitle);
  setAccessibleName(head.title);
  const bool tells = m_updater->state == Updater::Available || m_updater->state == Updater::Failed;
  m_warning->setText(tells ? m_updater->error : QString());
  m_warning->setVisible(!m_warning->text().isEmpty());
}

void UpdateDialog::refreshChanges() {
  clearLayout(m_changeRows);
  const QStringList changes = m_updater->release.changes.mid(0, kMostChanges);
  const bool any = m_updater->state == Updater::Available && !changes.isEmpty();
  if (any) {
    m_changeRows->addWidget(eyebrow(OverlayWords::tr("What's new")));
    for (const QString& change : changes) m_changeRows->addLayout(changeRow(change));
    fitChanges();
  }
  m_changes->setVisible(any);
}

void UpdateDialog::fitChanges() {
  for (QWidget* part : m_changeArea->widget()->findChildren<QWidget*>()) part->show(); // else they count from later on
  const QMargins body = Theme::get().mac ? kBodyMac : kBodyWin;
  const int width = panel->width() - body.left() - body.right() - kChangesMargins.left() - kChangesMargins.right();
  m_changes->show();
  setChangesHeight(0);
  const int room = parentWidget()->height() - panel->sizeHint().height() - 2 * kAroundPanel;
  const int wanted = m_changeRows->totalHeightForWidth(width);
  setChangesHeight(std::min(wanted, std::max(room, kLeastChanges)));
  m_changeArea->setFocusPolicy(wanted > m_changeArea->height() ? Qt::TabFocus : Qt::NoFocus); // keys scroll it
}

// The window has another size, and with it the list another room.
void UpdateDialog::resizeEvent(QResizeEvent* event) {
  Overlay::resizeEvent(event);
  if (m_changes->isHidden()) return;
  fitChanges();
  panel->adjustSize();
  place();
}

// The layouts above learn of it at once, and not by an event that comes after the panel was measured.
void UpdateDialog::setChangesHeight(int height) {
  m_changeArea->setFixedHeight(height);
  for (QWidget* one = m_changeArea; one != panel; one = one->parentWidget()) one->updateGeometry();
}

void UpdateDialog::refreshProgress() {
  const Updater::State state = m_updater->state;
  const bool known = state == Updater::Downloading && m_updater->total > 0;
  m_progress->setRange(0, known ? kSteps : 0);
  if (known) m_progress->setValue(int(m_updater->received * kSteps / m_updater->total));
  m_progress->setVisible(state == Updater::Checking || state == Updater::Downloading || state == Updater::Installing);
}

void UpdateDialog::refreshButtons() {
  const Updater::State state = m_updater->state;
  m_install->setVisible(state == Updater::Available);
  m_retry->setVisible(state == Updater::Failed);
  m_cancel->setVisible(state == Updater::Downloading);
  m_close->setVisible(state != Updater::Downloading && state != Updater::Installing);
  //: Button: do not update now
  m_close->setText(state == Updater::Available ? OverlayWords::tr("Later") : OverlayWords::tr("Close"));
  m_install->setDefault(state == Updater::Available && m_wish == Wish::Asked);
  m_retry->setDefault(state == Updater::Failed);
}

} // namespace ui
