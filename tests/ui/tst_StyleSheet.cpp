// The style sheet as a text: every rule of every look, and that there is none besides.
#include "ui/Looks.h"

#include "support/uitest.h"

#include <QFontDatabase>
#include <QRegularExpression>

using namespace Qt::StringLiterals;

namespace {

using Properties = QHash<QString, QString>;

/// The rules of a sheet by their selectors; what a later rule says of one selector is added to the earlier.
QHash<QString, Properties> parsed(const QString& sheet) {
  QHash<QString, Properties> rules;
  for (const QString& block : sheet.split(u'}', Qt::SkipEmptyParts)) {
    const QStringList halves = block.split(u'{');
    if (halves.size() != 2) continue;
    for (const QString& selector : halves.at(0).split(u','))
      for (const QString& line : halves.at(1).split(u';')) {
        const qsizetype colon = line.indexOf(u':');
        if (colon > 0) rules[selector.trimmed()][line.left(colon).trimmed()] = line.mid(colon + 1).trimmed();
      }
  }
  return rules;
}

QString rgba(const QColor& colour) {
  return u"rgba(%1,%2,%3,%4)"_s.arg(colour.red()).arg(colour.green()).arg(colour.blue()).arg(colour.alpha());
}

QString general() { return QFontDatabase::systemFont(QFontDatabase::GeneralFont).family(); }

/// A value with {name} in it as the look in force should give it.
QString resolved(QString value) {
  const Theme& theme = Theme::get();
  const auto length = [&](int mac, int win) { return QString::number(theme.mac ? mac : win) + u"px"_s; };
  const QList<std::pair<QString, QString>> names = {
      {u"{accent}"_s, rgba(theme.accent)},
      {u"{accentHover}"_s, rgba(theme.accentHover)},
      {u"{accentSoft}"_s, rgba(theme.accentSoft)},
      {u"{onAccent}"_s, rgba(theme.onAccent)},
      {u"{surface}"_s, rgba(theme.surface)},
      {u"{card}"_s, rgba(theme.card)},
      {u"{cardHover}"_s, rgba(theme.cardHover)},
      {u"{card2}"_s, theme.dark ? u"rgba(255,255,255,15)"_s : u"rgba(255,255,255,255)"_s},
      {u"{line}"_s, rgba(theme.line)},
      {u"{lineStrong}"_s, rgba(theme.lineStrong)},
      {u"{hover}"_s, rgba(theme.hover)},
      {u"{press}"_s, rgba(theme.press)},
      {u"{text}"_s, rgba(theme.text)},
      {u"{text2}"_s, rgba(theme.text2)},
      {u"{text3}"_s, rgba(theme.text3)},
      {u"{ok}"_s, rgba(theme.ok)},
      {u"{warn}"_s, rgba(theme.warn)},
      {u"{look}"_s, theme.dark ? u"dark"_s : u"light"_s},
      {u"{display}"_s, u"\"%1\""_s.arg(general())},
      {u"{mono}"_s, u"\"%1\", \"%2\""_s.arg(theme.mono(11, 400).family(), general())},
      {u"{h1}"_s, length(24, 26)},
      {u"{h}"_s, length(30, 34)},
      {u"{lg}"_s, length(38, 42)},
      {u"{field}"_s, length(28, 32)},
      {u"{gradient}"_s,
       u"qlineargradient(x1:0, y1:0, x2:1, y2:1, stop:0 #22d3ee, stop:0.55 #6366f1, stop:1 #a855f7)"_s},
  };
  for (const auto& [name, with] : names) value.replace(name, with);
  return value;
}

struct Rule {
  const char* selector;
  const char* property;
  const char* value;
};

constexpr Rule kRules[] = {
    {"QWidget", "color", "{text}"},
    {"QLabel", "background", "transparent"},
    {"QToolTip", "background", "transparent"},
    {"QToolTip", "color", "{text}"},
    {"QToolTip", "border", "none"},
    {"QToolTip", "margin", "8px"},
    {"QToolTip", "padding", "5px 10px"},

    {"QLabel[role=\"h1\"]", "font-family", "{display}"},
    {"QLabel[role=\"h1\"]", "font-size", "{h1}"},
    {"QLabel[role=\"h1\"]", "font-weight", "600"},
    {"QLabel[role=\"h1\"]", "color", ""},
    {"QLabel[role=\"h2\"]", "font-family", ""},
    {"QLabel[role=\"h2\"]", "font-size", "18px"},
    {"QLabel[role=\"h2\"]", "font-weight", "600"},
    {"QLabel[role=\"h2\"]", "color", ""},
    {"QLabel[role=\"h3\"]", "font-size", "14px"},
    {"QLabel[role=\"h3\"]", "font-weight", "600"},
    {"QLabel[role=\"h3\"]", "color", ""},
    {"QLabel[role=\"strong\"]", "font-size", ""},
    {"QLabel[role=\"strong\"]", "font-weight", "600"},
    {"QLabel[role=\"strong\"]", "color", ""},
    {"QLabel[role=\"sub\"]", "font-size", ""},
    {"QLabel[role=\"sub\"]", "font-weight", ""},
    {"QLabel[role=\"sub\"]", "color", "{text2}"},
    {"QLabel[role=\"caption\"]", "font-size", "12px"},
    {"QLabel[role=\"caption\"]", "font-weight", ""},
    {"QLabel[role=\"caption\"]", "color", "{text2}"},
    {"QLabel[role=\"micro\"]", "font-family", ""},
    {"QLabel[role=\"micro\"]", "font-size", "11px"},
    {"QLabel[role=\"micro\"]", "font-weight", ""},
    {"QLabel[role=\"micro\"]", "color", "{text3}"},
    {"QLabel[role=\"grp\"]", "font-size", "11px"},
    {"QLabel[role=\"grp\"]", "font-weight", "600"},
    {"QLabel[role=\"grp\"]", "color", "{text3}"},
    {"QLabel[role=\"mono\"]", "font-family", "{mono}"},
    {"QLabel[role=\"mono\"]", "font-size", "11px"},
    {"QLabel[role=\"mono\"]", "font-weight", ""},
    {"QLabel[role=\"mono\"]", "color", "{text3}"},
    {"QLabel[role=\"num\"]", "font-family", "{mono}"},
    {"QLabel[role=\"num\"]", "font-size", "13px"},
    {"QLabel[role=\"num\"]", "font-weight", "600"},
    {"QLabel[role=\"num\"]", "color", ""},
    {"QLabel[role=\"value\"]", "font-family", "{mono}"},
    {"QLabel[role=\"value\"]", "font-size", "20px"},
    {"QLabel[role=\"value\"]", "font-weight", "600"},
    {"QLabel[role=\"big\"]", "font-family", "{mono}"},
    {"QLabel[role=\"big\"]", "font-size", "48px"},
    {"QLabel[role=\"big\"]", "font-weight", "600"},
    {"QLabel[role=\"ok\"]", "font-weight", "600"},
    {"QLabel[role=\"ok\"]", "color", "{ok}"},
    {"QLabel[role=\"warn\"]", "font-weight", "500"},
    {"QLabel[role=\"warn\"]", "color", "{warn}"},

    {"QPushButton", "background", "{card2}"},
    {"QPushButton", "border", "1px solid {lineStrong}"},
    {"QPushButton", "border-radius", "10px"},
    {"QPushButton", "padding", "0 16px"},
    {"QPushButton", "min-height", "{h}"},
    {"QPushButton", "max-height", "{h}"},
    {"QPushButton", "font-weight", "600"},
    {"QPushButton:hover", "background", "{cardHover}"},
    {"QPushButton:pressed", "background", "{press}"},
    {"QPushButton:disabled", "color", "{text3}"},
    {"QPushButton:disabled", "background", "transparent"},
    {"QPushButton:disabled", "border-color", "{line}"},
    {"QPushButton[kind=\"ghost\"]", "background", "transparent"},
    {"QPushButton[kind=\"ghost\"]", "border", "1px solid transparent"},
    {"QPushButton[kind=\"ghost\"]", "color", "{text2}"},
    {"QPushButton[kind=\"ghost\"]:hover", "background", "{hover}"},
    {"QPushButton[kind=\"ghost\"]:hover", "color", "{text}"},
    {"QPushButton[kind=\"link\"]", "background", "transparent"},
    {"QPushButton[kind=\"link\"]", "border", "none"},
    {"QPushButton[kind=\"link\"]", "color", "{accent}"},
    {"QPushButton[kind=\"link\"]", "padding", "0"},
    {"QPushButton[kind=\"link\"]", "min-height", "0"},
    {"QPushButton[kind=\"link\"]", "font-weight", "500"},
    {"QPushButton[kind=\"link\"]:hover", "color", "{accentHover}"},
    {"QPushButton[size=\"lg\"]", "min-height", "{lg}"},
    {"QPushButton[size=\"lg\"]", "max-height", "{lg}"},
    {"QPushButton[size=\"lg\"]", "padding", "0 22px"},
    {"QPushButton[size=\"lg\"]", "font-size", "14px"},
    {"QPushButton[size=\"lg\"]", "border-radius", "12px"},

    {"QCheckBox", "spacing", "10px"},
    {"QCheckBox", "background", "transparent"},
    {"QCheckBox::indicator", "width", "16px"},
    {"QCheckBox::indicator", "height", "16px"},
    {"QCheckBox::indicator", "border-radius", "5px"},
    {"QCheckBox::indicator", "border", "none"},
    {"QCheckBox::indicator", "background", "transparent"},
    {"QCheckBox::indicator:unchecked", "image", "url(:/ui/box-{look}.svg)"},
    {"QCheckBox::indicator:unchecked:hover", "image", "url(:/ui/box-{look}-hover.svg)"},
    {"QCheckBox::indicator:unchecked:disabled", "image", "url(:/ui/box-{look}-off.svg)"},
    {"QCheckBox::indicator:checked", "image", "url(:/ui/check.svg)"},
    {"QCheckBox::indicator:checked", "background", "{gradient}"},
    {"QCheckBox::indicator:indeterminate", "image", "url(:/ui/dash.svg)"},
    {"QCheckBox::indicator:indeterminate", "background", "{gradient}"},

    {"QComboBox", "background", "{card2}"},
    {"QComboBox", "border", "1px solid {lineStrong}"},
    {"QComboBox", "border-radius", "10px"},
    {"QComboBox", "padding", "0 26px 0 10px"},
    {"QComboBox", "min-height", "{field}"},
    {"QComboBox", "combobox-popup", "0"}, // a list, not a menu: only a list is dressed by what follows
    {"QComboBox:hover", "background", "{cardHover}"},
    {"QComboBox::drop-down", "border", "none"},
    {"QComboBox::drop-down", "width", "24px"},
    {"QComboBox::down-arrow", "image", "url(:/ui/arrow-{look}.svg)"},
    {"QComboBox::down-arrow", "width", "12px"},
    {"QComboBox::down-arrow", "height", "12px"},
    {"QComboBox QAbstractItemView", "background", "{surface}"},
    {"QComboBox QAbstractItemView", "border", "1px solid {lineStrong}"},
    {"QComboBox QAbstractItemView", "outline", "none"},
    {"QComboBox QAbstractItemView", "padding", "4px"},
    {"QComboBox QAbstractItemView", "selection-background-color", "{accentSoft}"},
    {"QComboBox QAbstractItemView", "selection-color", "{text}"},

    {"QLineEdit", "background", "{card}"},
    {"QLineEdit", "border", "1px solid {line}"},
    {"QLineEdit", "border-radius", "10px"},
    {"QLineEdit", "padding", "0 10px"},
    {"QLineEdit", "min-height", "{field}"},
    {"QLineEdit", "selection-background-color", "{accent}"},
    {"QLineEdit", "selection-color", "{onAccent}"},
    {"QLineEdit:hover", "border-color", "{lineStrong}"},
    {"QLineEdit:focus", "border-color", "{accent}"},

    {"QScrollArea", "background", "transparent"},
    {"QScrollArea", "border", "none"},
    {"QScrollArea > QWidget", "background", "transparent"},
    {"QScrollArea > QWidget > QWidget", "background", "transparent"},
    {"QStackedWidget", "background", "transparent"},
    {"QScrollBar", "background", "transparent"},
    {"QScrollBar", "margin", "2px"},
    {"QScrollBar:vertical", "width", "10px"},
    {"ui--Card QScrollBar:vertical", "margin", "8px 2px"},
    {"QScrollBar:horizontal", "height", "10px"},
    {"QScrollBar::handle", "background", "{lineStrong}"},
    {"QScrollBar::handle", "border-radius", "3px"},
    {"QScrollBar::handle:vertical", "min-height", "32px"},
    {"QScrollBar::handle:horizontal", "min-width", "32px"},
    {"QScrollBar::handle:vertical:hover", "background", "{text3}"},
    {"QScrollBar::handle:horizontal:hover", "background", ""},
    {"QScrollBar::add-line", "width", "0"},
    {"QScrollBar::add-line", "height", "0"},
    {"QScrollBar::sub-line", "width", "0"},
    {"QScrollBar::sub-line", "height", "0"},
    {"QScrollBar::add-page", "background", "none"},
    {"QScrollBar::sub-page", "background", "none"},

    {"QTableView", "background", "transparent"},
    {"QTableView", "border", "none"},
    {"QTableView", "outline", "none"},
    {"QTableView", "selection-background-color", "transparent"},
    {"QHeaderView", "background", "transparent"},
    {"QHeaderView", "border", "none"},
    {"QHeaderView::section", "background", "transparent"},
    {"QHeaderView::section", "color", "{text3}"},
    {"QHeaderView::section", "border", "none"},
    {"QHeaderView::section", "border-bottom", "1px solid {line}"},
    {"QHeaderView::section", "padding", "0 12px 8px 12px"},
    {"QHeaderView::section", "font-family", "{mono}"},
    {"QHeaderView::section", "font-size", "11px"},
    {"QHeaderView::section", "font-weight", "500"},
    {"QHeaderView::section:hover", "color", "{text}"},
    {"QHeaderView::up-arrow", "width", "0"},
    {"QHeaderView::up-arrow", "height", "0"},
    {"QHeaderView::down-arrow", "width", "0"},
    {"QHeaderView::down-arrow", "height", "0"},

    {"QMenu", "background", "{surface}"},
    {"QMenu", "border", "1px solid {lineStrong}"},
    {"QMenu", "padding", "4px"},
    {"QMenu", "border-radius", "8px"},
    {"QMenu::item", "padding", "6px 16px"},
    {"QMenu::item", "border-radius", "5px"},
    {"QMenu::item:selected", "background", "{accentSoft}"},

    // What can't be used looks like it, whatever it is.
    {"QPushButton[kind=\"ghost\"]:disabled", "color", "{text3}"},
    {"QPushButton[kind=\"link\"]:disabled", "color", "{text3}"},
    {"QCheckBox:disabled", "color", "{text3}"},
    {"QMenu::item:disabled", "color", "{text3}"},
    {"QMenu::separator", "background", "{line}"},
    {"QMenu::separator", "height", "1px"},
    {"QMenu::separator", "margin", "4px 8px"},
    {"QComboBox:disabled", "color", "{text3}"},
    {"QLineEdit:disabled", "color", "{text3}"},
    {"QAbstractScrollArea::corner", "background", "transparent"},
    {"QAbstractScrollArea::corner", "border", "none"},
};

} // namespace

class TestStyleSheet : public QObject {
  Q_OBJECT

 private slots:
  void initTestCase() { Theme::get().install(qApp); }

  void everyRule_data();
  void everyRule();
  void noRuleIsUnknownToTheTable();
  void noTokenIsLeft();
  void shorterTokensDontEatLongerOnes();
  void boxWithASuffix();
  void refreshAppliesTheSheet();
  void monospacedFamiliesAreTwoQuotedNames();
};

void TestStyleSheet::everyRule_data() {
  QTest::addColumn<int>("look");
  for (int i = 0; i < int(std::size(kLooks)); ++i) QTest::newRow(kLooks[i].name) << i;
}

void TestStyleSheet::everyRule() {
  QFETCH(int, look);
  apply(kLooks[look]);
  const auto rules = parsed(Theme::get().styleSheet());
  for (const Rule& rule : kRules) {
    const QString is = rules.value(QString::fromLatin1(rule.selector)).value(QString::fromLatin1(rule.property));
    const QString should = resolved(QString::fromLatin1(rule.value));
    QVERIFY2(is == should, qPrintable(u"%1 { %2: %3 }, not %4"_s.arg(QString::fromLatin1(rule.selector),
                                                                     QString::fromLatin1(rule.property), is, should)));
  }
}

void TestStyleSheet::noRuleIsUnknownToTheTable() {
  QSet<QString> known;
  for (const Rule& rule : kRules)
    known << QString::fromLatin1(rule.selector) + u'|' + QString::fromLatin1(rule.property);
  known << u"QScrollBar|border"_s;
  const auto rules = parsed(Theme::get().styleSheet());
  for (auto rule = rules.cbegin(); rule != rules.cend(); ++rule)
    for (const QString& property : rule->keys())
      QVERIFY2(known.contains(rule.key() + u'|' + property), qPrintable(rule.key() + u' ' + property));
}

void TestStyleSheet::noTokenIsLeft() {
  for (const Look& look : kLooks) {
    apply(look);
    QVERIFY(!Theme::get().styleSheet().contains(u'@'));
  }
}

void TestStyleSheet::shorterTokensDontEatLongerOnes() {
  for (const Look& look : kLooks) {
    apply(look);
    // A value and then the rest of a longer token's name, as "rgba(…)2" or "rgba(…)Hover".
    const QRegularExpression stray(u"(\\)|px)[A-Za-z0-9]"_s);
    QVERIFY(!stray.match(Theme::get().styleSheet()).hasMatch());
  }
}

void TestStyleSheet::boxWithASuffix() {
  apply(kLooks[0]);
  QVERIFY(Theme::get().styleSheet().contains("url(:/ui/box-dark-hover.svg)"_L1));
  apply(kLooks[1]);
  QVERIFY(Theme::get().styleSheet().contains("url(:/ui/box-light-hover.svg)"_L1));
}

void TestStyleSheet::refreshAppliesTheSheet() {
  apply(kLooks[0]);
  const QString dark = qApp->styleSheet();
  QCOMPARE(dark, Theme::get().styleSheet());
  apply(kLooks[1]);
  QCOMPARE(qApp->styleSheet(), Theme::get().styleSheet());
  QVERIFY(qApp->styleSheet() != dark);
}

void TestStyleSheet::monospacedFamiliesAreTwoQuotedNames() {
  const QString families = parsed(Theme::get().styleSheet()).value(u"QLabel[role=\"num\"]"_s).value(u"font-family"_s);
  const QRegularExpression two(u"^\"[^\"]+\", \"[^\"]+\"$"_s);
  QVERIFY2(two.match(families).hasMatch(), qPrintable(families));
}

int main(int argc, char** argv) { return uitest::run<TestStyleSheet>(argc, argv); }

#include "tst_StyleSheet.moc"
