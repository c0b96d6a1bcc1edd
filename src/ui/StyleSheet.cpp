// The application's style sheet: what the stock widgets look like. A template with tokens, and what they stand for in
// the look in force.
//
// The selectors go by the properties role, kind and size. Every QWidget has a size already, a QSize that takes no text:
// a class that is to be found by [size="lg"] declares a property of that name over it.

#include "ui/Theme.h"

#include <QFontDatabase>

using namespace Qt::StringLiterals;

namespace {

constexpr QStringView kTemplate = uR"(
QWidget { color: @text; }
QLabel { background: transparent; }
QToolTip { background: transparent; color: @text; border: none; margin: @tipShadowpx; padding: 5px 10px; }

QLabel[role="h1"] { font-family: "@display"; font-size: @h1px; font-weight: 600; }
QLabel[role="h2"] { font-size: 18px; font-weight: 600; }
QLabel[role="h3"] { font-size: 14px; font-weight: 600; }
QLabel[role="strong"] { font-weight: 600; }
QLabel[role="sub"] { color: @text2; }
QLabel[role="caption"] { font-size: 12px; color: @text2; }
QLabel[role="micro"] { font-size: 11px; color: @text3; }
QLabel[role="grp"] { font-size: 11px; font-weight: 600; color: @text3; }
QLabel[role="mono"] { font-family: "@mono"; font-size: 11px; color: @text3; }
QLabel[role="num"] { font-family: "@mono"; font-size: 13px; font-weight: 600; }
QLabel[role="value"] { font-family: "@mono"; font-size: 20px; font-weight: 600; }
QLabel[role="big"] { font-family: "@mono"; font-size: 48px; font-weight: 600; }
QLabel[role="ok"] { font-weight: 600; color: @ok; }
QLabel[role="warn"] { font-weight: 500; color: @warn; }

QPushButton {
  background: @card2; border: 1px solid @lineStrong; border-radius: @rbpx; padding: 0 16px;
  min-height: @hpx; max-height: @hpx; font-weight: 600;
}
QPushButton:hover { background: @cardHover; }
QPushButton:pressed { background: @press; }
QPushButton:disabled { color: @text3; background: transparent; border-color: @line; }
QPushButton[kind="ghost"] { background: transparent; border: 1px solid transparent; color: @text2; }
QPushButton[kind="ghost"]:hover { background: @hover; color: @text; }
QPushButton[kind="link"] {
  background: transparent; border: none; color: @accent; padding: 0; min-height: 0; font-weight: 500;
}
QPushButton[kind="link"]:hover { color: @accentHover; }
QPushButton[kind="ghost"]:disabled, QPushButton[kind="link"]:disabled { color: @text3; }
QPushButton[size="lg"] {
  min-height: @lgpx; max-height: @lgpx; padding: 0 22px; font-size: 14px; border-radius: 12px;
}

QCheckBox { spacing: 10px; background: transparent; }
QCheckBox:disabled { color: @text3; }
QCheckBox::indicator { width: 16px; height: 16px; border-radius: 5px; border: none; background: transparent; }
QCheckBox::indicator:unchecked { image: url(:/ui/@box.svg); }
QCheckBox::indicator:unchecked:hover { image: url(:/ui/@box-hover.svg); }
QCheckBox::indicator:unchecked:disabled { image: url(:/ui/@box-off.svg); }
QCheckBox::indicator:checked, QCheckBox::indicator:indeterminate {
  background: qlineargradient(x1:0, y1:0, x2:1, y2:1, stop:0 #22d3ee, stop:0.55 #6366f1, stop:1 #a855f7);
}
QCheckBox::indicator:checked { image: url(:/ui/check.svg); }
QCheckBox::indicator:indeterminate { image: url(:/ui/dash.svg); }

QComboBox {
  background: @card2; border: 1px solid @lineStrong; border-radius: @rbpx; padding: 0 26px 0 10px;
  min-height: @fieldpx; combobox-popup: 0;
}
QComboBox:hover { background: @cardHover; }
QComboBox::drop-down { border: none; width: 24px; }
QComboBox::down-arrow { image: url(:/ui/@arrow.svg); width: 12px; height: 12px; }
QComboBox QAbstractItemView {
  background: @surface; border: 1px solid @lineStrong; outline: none; padding: 4px;
  selection-background-color: @accentSoft; selection-color: @text;
}

QLineEdit {
  background: @card; border: 1px solid @line; border-radius: @rbpx; padding: 0 10px; min-height: @fieldpx;
  selection-background-color: @accent; selection-color: @onAccent;
}
QLineEdit:hover { border-color: @lineStrong; }
QLineEdit:focus { border-color: @accent; }
QComboBox:disabled, QLineEdit:disabled { color: @text3; }

QScrollArea, QScrollArea > QWidget, QScrollArea > QWidget > QWidget { background: transparent; }
QScrollArea { border: none; }
QAbstractScrollArea::corner { background: transparent; border: none; }
QStackedWidget { background: transparent; }
QScrollBar { background: transparent; border: none; margin: 2px; }
QScrollBar:vertical { width: 10px; }
ui--Card QScrollBar:vertical { margin: 8px 2px; }
QScrollBar:horizontal { height: 10px; }
QScrollBar::handle { background: @lineStrong; border-radius: 3px; }
QScrollBar::handle:vertical { min-height: 32px; }
QScrollBar::handle:horizontal { min-width: 32px; }
QScrollBar::handle:vertical:hover { background: @text3; }
QScrollBar::add-line, QScrollBar::sub-line { width: 0; height: 0; }
QScrollBar::add-page, QScrollBar::sub-page { background: none; }

QTableView { background: transparent; border: none; outline: none; selection-background-color: transparent; }
QHeaderView { background: transparent; border: none; }
QHeaderView::section {
  background: transparent; color: @text3; border: none; border-bottom: 1px solid @line; padding: 0 12px 8px 12px;
  font-family: "@mono"; font-size: 11px; font-weight: 500;
}
QHeaderView::section:hover { color: @text; }
QHeaderView::up-arrow, QHeaderView::down-arrow { width: 0; height: 0; }

QMenu { background: @surface; border: 1px solid @lineStrong; padding: 4px; border-radius: 8px; }
QMenu::item { padding: 6px 16px; border-radius: 5px; }
QMenu::item:selected { background: @accentSoft; }
QMenu::item:disabled { color: @text3; }
QMenu::separator { background: @line; height: 1px; margin: 4px 8px; }
)";

QString rgba(const QColor& colour) {
  return u"rgba(%1,%2,%3,%4)"_s.arg(colour.red()).arg(colour.green()).arg(colour.blue()).arg(colour.alpha());
}
QString px(int length) { return QString::number(length) + "px"_L1; }

QString generalFamily() { return QFontDatabase::systemFont(QFontDatabase::GeneralFont).family(); }

/// The stock fields' own fill, which no painted control shares.
QColor fieldFill(const Theme& theme) { return QColor(255, 255, 255, theme.dark ? 15 : 255); }

struct Token {
  QLatin1StringView name;
  QString (*value)(const Theme& theme);
};

template <QColor Theme::*role>
QString colour(const Theme& theme) {
  return rgba(theme.*role);
}

template <int mac, int win = mac>
QString length(const Theme& theme) {
  return px(theme.mac ? mac : win); // NOLINT(bugprone-branch-clone): the same in both metric sets at this time
}

// In the order of replacement: a token that another begins with comes after it.
constexpr Token kTokens[] = {
    {"@accentHover"_L1, colour<&Theme::accentHover>},
    {"@accentSoft"_L1, colour<&Theme::accentSoft>},
    {"@accent"_L1, colour<&Theme::accent>},
    {"@onAccent"_L1, colour<&Theme::onAccent>},
    {"@surface2"_L1, colour<&Theme::surface2>},
    {"@surface"_L1, colour<&Theme::surface>},
    {"@cardHover"_L1, colour<&Theme::cardHover>},
    {"@card2"_L1, [](const Theme& theme) { return rgba(fieldFill(theme)); }},
    {"@card"_L1, colour<&Theme::card>},
    {"@lineStrong"_L1, colour<&Theme::lineStrong>},
    {"@line"_L1, colour<&Theme::line>},
    {"@press"_L1, colour<&Theme::press>},
    {"@hover"_L1, colour<&Theme::hover>},
    {"@text2"_L1, colour<&Theme::text2>},
    {"@text3"_L1, colour<&Theme::text3>},
    {"@text"_L1, colour<&Theme::text>},
    {"@ok"_L1, colour<&Theme::ok>},
    {"@warn"_L1, colour<&Theme::warn>},
    {"@bad"_L1, colour<&Theme::bad>},
    {"@display"_L1, [](const Theme&) { return generalFamily(); }},
    // Stands between double quotes in the template, so these inner ones close the first name and open the second.
    {"@mono"_L1, [](const Theme& theme) { return theme.mono(11, 400).family() + "\", \""_L1 + generalFamily(); }},
    {"@arrow"_L1, [](const Theme& theme) { return theme.dark ? u"arrow-dark"_s : u"arrow-light"_s; }},
    {"@box"_L1, [](const Theme& theme) { return theme.dark ? u"box-dark"_s : u"box-light"_s; }},
    {"@h1px"_L1, length<24, 26>},
    {"@rbpx"_L1, length<10>},
    {"@hpx"_L1, length<30, 34>},
    {"@lgpx"_L1, length<38, 42>},
    {"@fieldpx"_L1, length<28, 32>},
    {"@tipShadowpx"_L1, length<8>},
};

} // namespace

QString Theme::styleSheet() const {
  QString sheet = kTemplate.toString();
  for (const Token& token : kTokens) sheet.replace(token.name, token.value(*this));
  return sheet;
}
