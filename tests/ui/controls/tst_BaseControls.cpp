// The controls that only show something: labels, cards, icons, badges, notes.

#include "engines/categories.h"
#include "support/pixels.h"
#include "support/uitest.h"
#include "ui/Theme.h"
#include "ui/controls/Card.h"
#include "ui/controls/Divider.h"
#include "ui/controls/ElidedLabel.h"
#include "ui/controls/IconTile.h"
#include "ui/controls/IconView.h"
#include "ui/controls/Note.h"
#include "ui/controls/Pill.h"
#include "ui/controls/Spinner.h"
#include "ui/icons.h"

#include <QAccessible>
#include <QHBoxLayout>
#include <QPainter>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QStyleOptionSlider>

#include <cmath>

using namespace Qt::StringLiterals;
using pixels::isNear;
using pixels::rendered;
using pixels::setLook;

namespace {

QImage iconImage(int side, const QRectF& rect, const QString& name, const QColor& colour) {
  QImage image(side, side, QImage::Format_ARGB32_Premultiplied);
  image.fill(Qt::transparent);
  QPainter painter(&image);
  painter.setRenderHint(QPainter::Antialiasing);
  icons::paint(&painter, rect, name, colour);
  painter.end();
  return image.convertToFormat(QImage::Format_ARGB32);
}

} // namespace

class TestBaseControls : public QObject {
  Q_OBJECT

 private slots:
  void initTestCase() { Theme::get().install(qApp); }
  void init() { setLook(false); }

  void elidedLabelShortens();
  void elidedLabelKeepsItsTip();
  void elidedLabelSizes();
  void elidedLabelGivesWayInALayout();
  void elidedLabelKeepsAMinimumThatIsSet();
  void cardFills();
  void cardWithoutBorder();
  void cardKeepsScrollBarsOutOfItsCorners();
  void dividerIsAHairline();
  void iconViewPaintsItsTone();
  void iconViewChanges();
  void tileLayout();
  void tileColours();
  void tileMuted();
  void pillLayout();
  void pillColours_data();
  void pillColours();
  void pillFollowsItsSafety();
  void spinnerTurnsWhileShown();
  void spinnerTurnsClockwise();
  void noteKinds_data();
  void noteKinds();
  void noteText();
  void noteRoom();
  void noteActionMoves();
  void noteMirrored();
  void noteIconCentresBesideAnAction();
};

void TestBaseControls::elidedLabelShortens() {
  const QString text = u"A rather long name of a file that nobody can read whole"_s;
  ui::ElidedLabel label(text, "sub");
  label.resize(label.sizeHint());
  label.ensurePolished();
  QCOMPARE(label.property("role").toString(), u"sub"_s);
  label.resize(90, 20);
  for (const bool dark : {true, false}) {
    setLook(dark);
    QImage expected(label.size(), QImage::Format_ARGB32_Premultiplied);
    expected.fill(Qt::transparent);
    const QString shortened = label.fontMetrics().elidedText(text, Qt::ElideRight, 90);
    QVERIFY(shortened.endsWith(QChar(0x2026)));
    QPainter painter(&expected);
    painter.setFont(label.font());
    painter.setPen(Theme::get().text2);
    painter.drawText(expected.rect(), Qt::AlignLeft | Qt::AlignVCenter, shortened);
    painter.end();
    QCOMPARE(rendered(label), expected.convertToFormat(QImage::Format_ARGB32));
  }
}

void TestBaseControls::elidedLabelKeepsItsTip() {
  ui::ElidedLabel label(u"First"_s);
  QCOMPARE(label.toolTip(), u"First"_s);
  label.setText(u"Second"_s);
  QCOMPARE(label.toolTip(), u"First"_s);
  QCOMPARE(label.text(), u"Second"_s);
  QVERIFY(ui::ElidedLabel(u"<b>x</b>.mov"_s).toolTip().contains(u"&lt;b&gt;x&lt;/b&gt;.mov"_s)); // no markup
}

void TestBaseControls::elidedLabelSizes() {
  const ui::ElidedLabel label(u"A rather long name of a file"_s);
  QVERIFY(!label.testAttribute(Qt::WA_WState_Polished)); // it is dressed once, when it has its place
  const QLabel stock(u"A rather long name of a file"_s);
  QCOMPARE(label.sizePolicy().horizontalPolicy(), QSizePolicy::MinimumExpanding);
  QCOMPARE(label.sizePolicy().verticalPolicy(), QSizePolicy::Fixed);
  QCOMPARE(label.minimumSizeHint(),
           QSize(label.fontMetrics().horizontalAdvance(QChar(0x2026)) + 8, stock.minimumSizeHint().height()));
}

void TestBaseControls::elidedLabelGivesWayInALayout() {
  const QString text = u"A rather long name of a file"_s;
  for (const char* role : {static_cast<const char*>(nullptr), "h1"}) {
    QWidget row;
    auto* layout = new QHBoxLayout(&row);
    layout->setContentsMargins({});
    layout->setSpacing(0);
    auto* label = new ui::ElidedLabel(text, role);
    auto* fixed = new QWidget;
    fixed->setFixedSize(50, 20);
    layout->addWidget(label);
    layout->addWidget(fixed);
    row.show();
    const int least = label->minimumSizeHint().width();
    QCOMPARE(layout->minimumSize().width(), least + 50);
    QVERIFY(layout->sizeHint().width() >= label->fontMetrics().horizontalAdvance(text) + 50);
    row.resize(least + 50, 40);
    QCOMPARE(label->width(), least);
    row.resize(500, 40);
    QCOMPARE(label->width(), 450); // and takes all there is
  }
}

void TestBaseControls::elidedLabelKeepsAMinimumThatIsSet() {
  ui::ElidedLabel label(u"A rather long name of a file"_s);
  label.setMinimumWidth(60);
  QFont font = label.font();
  font.setPixelSize(30);
  label.setFont(font);
  QCOMPARE(label.minimumWidth(), 60);
}

void TestBaseControls::cardFills() {
  ui::Card card;
  card.resize(60, 60);
  for (const bool dark : {true, false}) {
    setLook(dark);
    QVERIFY(isNear(rendered(card).pixelColor(30, 30), Theme::get().card));
    QCOMPARE(rendered(card).pixelColor(0, 0).alpha(), 0); // round
  }
  card.fill = Qt::black;
  QCOMPARE(rendered(card).pixelColor(30, 30), QColor(Qt::black));
}

void TestBaseControls::cardWithoutBorder() {
  ui::Card card;
  card.resize(60, 60);
  card.fill = Qt::white;
  QVERIFY(rendered(card).pixelColor(0, 30) != QColor(Qt::white)); // the line darkens its edge
  card.bordered = false;
  QCOMPARE(rendered(card).pixelColor(1, 30), QColor(Qt::white));
  QVERIFY(rendered(card).pixelColor(0, 30).red() >= 254);
}

// Else the handle at either end reaches over the rounded outline.
void TestBaseControls::cardKeepsScrollBarsOutOfItsCorners() {
  ui::Card card;
  auto* area = new QScrollArea;
  auto* row = new QHBoxLayout(&card);
  row->setContentsMargins(1, 1, 1, 1);
  row->addWidget(area);
  auto* tall = new QWidget;
  tall->setFixedSize(50, 2000);
  area->setWidget(tall);
  card.resize(200, 300);
  card.show();
  const QScrollBar* bar = area->verticalScrollBar();
  QTRY_VERIFY(bar->isVisible());
  QStyleOptionSlider option;
  option.initFrom(bar);
  option.orientation = Qt::Vertical;
  option.maximum = bar->maximum();
  option.pageStep = bar->pageStep();
  const QRect groove = bar->style()->subControlRect(QStyle::CC_ScrollBar, &option, QStyle::SC_ScrollBarGroove, bar);
  QVERIFY2(groove.top() >= 8, qPrintable(QString::number(groove.top())));
  QVERIFY2(groove.bottom() < bar->height() - 8, qPrintable(QString::number(groove.bottom())));
  QCOMPARE(bar->width(), 10);
}

void TestBaseControls::dividerIsAHairline() {
  ui::Divider divider;
  divider.resize(20, divider.sizeHint().height());
  QCOMPARE(divider.minimumHeight(), 1);
  QCOMPARE(divider.maximumHeight(), 1);
  for (const bool dark : {true, false}) {
    setLook(dark);
    QVERIFY(isNear(rendered(divider).pixelColor(10, 0), Theme::get().line));
  }
}

void TestBaseControls::iconViewPaintsItsTone() {
  ui::IconView view(u"disc"_s, Tone::Warn, 18);
  QCOMPARE(view.minimumSize(), QSize(18, 18));
  QCOMPARE(view.maximumSize(), QSize(18, 18));
  QVERIFY(view.testAttribute(Qt::WA_TransparentForMouseEvents));
  for (const bool dark : {true, false}) {
    setLook(dark);
    QCOMPARE(rendered(view), iconImage(18, QRectF(0, 0, 18, 18), u"disc"_s, Theme::get().warn));
  }
}

void TestBaseControls::iconViewChanges() {
  ui::IconView view({}, Tone::Text, 16);
  QImage empty(16, 16, QImage::Format_ARGB32);
  empty.fill(Qt::transparent);
  QCOMPARE(rendered(view), empty);
  view.setIcon(u"check"_s);
  QCOMPARE(rendered(view), iconImage(16, QRectF(0, 0, 16, 16), u"check"_s, Theme::get().text));
  view.setTone(Tone::Bad);
  QCOMPARE(rendered(view), iconImage(16, QRectF(0, 0, 16, 16), u"check"_s, Theme::get().bad));
}

void TestBaseControls::tileLayout() {
  const ui::IconTileLayout layout = ui::iconTileLayout({40, 40});
  QCOMPARE(layout.body, QRectF(0.5, 0.5, 39, 39));
  QCOMPARE(layout.radius, 12.0);
  QCOMPARE(layout.icon, QRectF(20 - 10.8, 20 - 10.8, 21.6, 21.6));
}

void TestBaseControls::tileColours() {
  const QColor green(20, 180, 90);
  ui::IconTile tile({}, green, 40);
  QCOMPARE(tile.minimumSize(), QSize(40, 40));
  QCOMPARE(tile.maximumSize(), QSize(40, 40));
  QVERIFY(tile.testAttribute(Qt::WA_TransparentForMouseEvents));
  for (const bool dark : {true, false}) {
    setLook(dark);
    QVERIFY(isNear(rendered(tile).pixelColor(20, 20), QColor(20, 180, 90, dark ? 36 : 31)));
    // The outline lies over the fill.
    const double fill = dark ? 0.14 : 0.12;
    const int edge = int(255 * (1 - (1 - fill * 0.5) * (1 - 0.22)));
    QVERIFY(qAbs(rendered(tile).pixelColor(0, 20).alpha() - edge) <= 20);
    QVERIFY(rendered(tile).pixelColor(0, 20).alpha() > rendered(tile).pixelColor(20, 20).alpha());
  }
  tile.set(u"folder"_s, Qt::black);
  QVERIFY(isNear(rendered(tile).pixelColor(5, 20), QColor(0, 0, 0, 31)));
  const QImage icon = iconImage(40, ui::iconTileLayout({40, 40}).icon, u"folder"_s, Qt::black);
  int inked = 0;
  for (int y = 0; y < 40; ++y)
    for (int x = 0; x < 40; ++x)
      if (icon.pixelColor(x, y).alpha() > 200) {
        ++inked;
        QVERIFY(rendered(tile).pixelColor(x, y).alpha() > 200);
      }
  QVERIFY(inked > 0);
}

void TestBaseControls::tileMuted() {
  ui::IconTile tile({}, Qt::black, 40);
  tile.muted = true;
  for (const bool dark : {true, false}) {
    setLook(dark);
    QVERIFY(isNear(rendered(tile).pixelColor(20, 20), Theme::get().hover));
  }
}

void TestBaseControls::pillLayout() {
  const ui::PillLayout layout = ui::pillLayout({100, 30}, 40);
  QCOMPARE(layout.body, QRectF(0, 5, 67, 20));
  QCOMPARE(layout.dot, QRectF(8, 12, 6, 6));
  QCOMPARE(layout.text.left(), 19.0);
  QCOMPARE(layout.text.center().y(), 15.0);
  QVERIFY(layout.text.width() >= 40);
  const ui::PillLayout mirrored = ui::pillLayout({100, 30}, 40, Qt::RightToLeft);
  QCOMPARE(mirrored.body, QRectF(33, 5, 67, 20));
  QCOMPARE(mirrored.dot, QRectF(86, 12, 6, 6));
  QCOMPARE(mirrored.text.right(), 81.0);
}

void TestBaseControls::pillColours_data() {
  QTest::addColumn<int>("safety");
  QTest::addColumn<int>("tone");
  QTest::newRow("safe") << 0 << int(Tone::Ok);
  QTest::newRow("review") << 1 << int(Tone::Warn);
  QTest::newRow("permanent") << 2 << int(Tone::Bad);
  QTest::newRow("unknown") << 3 << int(Tone::Ok);
}

void TestBaseControls::pillColours() {
  QFETCH(int, safety);
  QFETCH(int, tone);
  ui::Pill pill{Safety(safety)};
  const QString text = categories::safetyLabel(Safety(safety));
  QCOMPARE(text.isEmpty(), safety == 3);
  QCOMPARE(pill.font(), Theme::get().font(11, 600));
  QCOMPARE(pill.sizeHint(), QSize(QFontMetrics(pill.font()).horizontalAdvance(text) + 27, 20));
  QCOMPARE(pill.sizePolicy(), QSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed));
  const QAccessibleInterface* face = QAccessible::queryAccessibleInterface(&pill);
  QCOMPARE(face->role(), QAccessible::StaticText);
  QCOMPARE(face->text(QAccessible::Name), text);
  pill.resize(pill.sizeHint());
  for (const bool dark : {true, false}) {
    setLook(dark);
    const Theme& theme = Theme::get();
    const QColor soft = Tone(tone) == Tone::Ok     ? theme.okSoft
                        : Tone(tone) == Tone::Warn ? theme.warnSoft
                                                   : theme.badSoft;
    QVERIFY(isNear(rendered(pill).pixelColor(4, 10), soft));
    QVERIFY(isNear(rendered(pill).pixelColor(10, 10), theme.tone(Tone(tone))));
  }
}

void TestBaseControls::pillFollowsItsSafety() {
  ui::Pill pill(Safe);
  const int before = pill.sizeHint().width();
  pill.setSafety(Permanent);
  QVERIFY(pill.sizeHint().width() > before);
  pill.resize(pill.sizeHint());
  QVERIFY(isNear(rendered(pill).pixelColor(10, 10), Theme::get().bad));
}

void TestBaseControls::spinnerTurnsWhileShown() {
  ui::Spinner spinner(24);
  QCOMPARE(spinner.minimumSize(), QSize(24, 24));
  QCOMPARE(spinner.maximumSize(), QSize(24, 24));
  QVERIFY(!spinner.isTurning());
  QCOMPARE(spinner.angle(), 0);
  spinner.show();
  QVERIFY(spinner.isTurning());
  QTRY_VERIFY(spinner.angle() > 0);
  QCOMPARE(spinner.angle() % 8, 0);
  spinner.hide();
  QVERIFY(!spinner.isTurning());
  spinner.show();
  QVERIFY(spinner.isTurning());
  // Past the whole turn it begins anew.
  int highest = 0;
  QTRY_VERIFY_WITH_TIMEOUT((highest = qMax(highest, spinner.angle())) > spinner.angle(), 20000);
  QVERIFY(highest < 360);
}

void TestBaseControls::spinnerTurnsClockwise() {
  ui::Spinner spinner(40);
  // From 3 o'clock a quarter anticlockwise: the upper right part has the accent.
  const Theme& theme = Theme::get();
  const QImage image = rendered(spinner);
  const auto at = [&](double degrees) {
    const double angle = degrees * 3.14159265 / 180;
    return image.pixelColor(int(20 + 18.5 * std::cos(angle)), int(20 - 18.5 * std::sin(angle)));
  };
  QColor arc = at(45);
  QVERIFY(arc.alpha() > 150);
  arc.setAlpha(255);
  QVERIFY(qAbs(arc.hue() - theme.accent.hue()) < 8);
  for (const double other : {135.0, 225.0, 315.0}) QVERIFY(at(other).alpha() < 80);
  // A step on, it has left the old end and gone beyond the old beginning, below 3 o'clock.
  spinner.show();
  QTRY_VERIFY(spinner.angle() >= 40 && spinner.angle() <= 90);
  spinner.hide();
  const QImage later = rendered(spinner);
  QVERIFY(later.pixelColor(int(20 + 18.5 * std::cos(0.35)), int(20 + 18.5 * std::sin(0.35))).alpha() > 150);
}

void TestBaseControls::noteKinds_data() {
  QTest::addColumn<int>("kind");
  QTest::newRow("neutral") << 0;
  QTest::newRow("info") << 1;
  QTest::newRow("caution") << 2;
}

void TestBaseControls::noteKinds() {
  QFETCH(int, kind);
  QCOMPARE(int(ui::Note::Neutral), 0);
  QCOMPARE(int(ui::Note::Info), 1);
  QCOMPARE(int(ui::Note::Caution), 2);
  ui::Note note(ui::Note::Kind(kind), u"info"_s, u"Words"_s);
  note.resize(300, 60);
  auto* icon = note.findChild<ui::IconView*>();
  QVERIFY(icon);
  QCOMPARE(icon->size(), QSize(16, 16));
  for (const bool dark : {true, false}) {
    setLook(dark);
    const Theme& theme = Theme::get();
    const QColor fills[] = {theme.card, theme.accentSoft, theme.warnSoft};
    const QColor inks[] = {theme.text3, theme.accent, theme.warn};
    QVERIFY(isNear(rendered(note).pixelColor(150, 3), fills[kind]));
    // The body's edge covers half a pixel there, a border the whole.
    QCOMPARE(rendered(note).pixelColor(150, 0).alpha() > fills[kind].alpha() / 2 + 8, kind == 0);
    QCOMPARE(rendered(*icon), iconImage(16, QRectF(0, 0, 16, 16), u"info"_s, inks[kind]));
  }
}

void TestBaseControls::noteText() {
  ui::Note note(ui::Note::Info, u"info"_s, u"<b>Words</b>"_s);
  const auto* label = note.findChild<QLabel*>();
  QVERIFY(label);
  QCOMPARE(label->property("role").toString(), u"sub"_s);
  QVERIFY(label->wordWrap());
  QCOMPARE(label->textFormat(), Qt::RichText);
  QCOMPARE(note.text(), u"<b>Words</b>"_s);
  note.setText(u"Others"_s);
  QCOMPARE(note.text(), u"Others"_s);
  QCOMPARE(label->text(), u"Others"_s);
  QCOMPARE(note.layout()->spacing(), 12);
  QCOMPARE(note.layout()->contentsMargins(), QMargins(14, 12, 14, 12));
}

void TestBaseControls::noteRoom() {
  // Margins 28, two spacings 24, icon 16, action 100: 168 are gone.
  QVERIFY(ui::noteActionFitsBeside(338, 100));
  QVERIFY(!ui::noteActionFitsBeside(337, 100));
}

void TestBaseControls::noteActionMoves() {
  ui::Note note(ui::Note::Caution, u"alert"_s, u"Some words that wrap when there is little room for them"_s);
  QPushButton* action = note.addAction(u"Allow"_s);
  QCOMPARE(action->text(), u"Allow"_s);
  const auto* label = note.findChild<QLabel*>();
  note.show();
  const int edge = 28 + 24 + 16 + 170 + action->sizeHint().width();
  const auto isBeside = [&] { return note.layout()->indexOf(action) >= 0; };
  for (int round = 0; round < 2; ++round) {
    note.resize(edge, 120);
    QVERIFY(isBeside());
    note.layout()->activate();
    QVERIFY(action->x() > label->geometry().right());
    QVERIFY(qAbs(action->geometry().center().y() - note.rect().center().y()) <= 1);
    note.resize(edge - 1, 120);
    QVERIFY(!isBeside());
    note.layout()->activate();
    QVERIFY(action->y() > label->geometry().bottom());
    QCOMPARE(action->x(), label->x());
  }
}

void TestBaseControls::noteMirrored() {
  const auto picture = [](const QString& text) {
    ui::Note note(ui::Note::Info, u"lock"_s, text);
    note.addAction(u"Open"_s);
    note.resize(480, 60);
    note.show();
    const QRect icon = note.findChild<ui::IconView*>()->geometry();
    const QRect action = note.findChild<QPushButton*>()->geometry();
    return std::tuple(icon, action, note.grab().toImage());
  };
  const QString text = u"<b>80 MB</b> belong to others."_s;
  const auto [icon, action, here] = picture(text);
  const pixels::Mirrored mirrored;
  const auto [iconThere, actionThere, there] = picture(text);
  QCOMPARE(iconThere.left(), 480 - icon.right() - 1);
  QCOMPARE(actionThere.left(), 480 - action.right() - 1);
  // The text begins beside the icon: what is written differs from nothing written.
  const QRect words = pixels::difference(there, std::get<2>(picture(u"<b></b>"_s)));
  QVERIFY(!words.isEmpty());
  QVERIFY2(iconThere.left() - words.right() <= 14, qPrintable(QString::number(words.right())));
}

void TestBaseControls::noteIconCentresBesideAnAction() {
  ui::Note note(ui::Note::Info, u"info"_s, u"Words"_s);
  note.resize(500, 101);
  note.layout()->activate();
  const auto* icon = note.findChild<ui::IconView*>();
  QCOMPARE(icon->y(), 13);
  note.addAction(u"Allow"_s);
  note.layout()->activate();
  QVERIFY(qAbs(icon->geometry().center().y() - note.rect().center().y()) <= 1);
}

int main(int argc, char** argv) { return uitest::run<TestBaseControls>(argc, argv); }

#include "tst_BaseControls.moc"
