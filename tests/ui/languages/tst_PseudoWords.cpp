// ctest: TIMEOUT 300
// Every text of the window in a language that marks what was translated: on all its views, in its dialogs, menus and
// messages, and what a screen reader hears of them.
#include "support/PseudoLanguage.h"

#include "app/AppSettings.h"
#include "app/identity.h"
#include "core/safety.h"
#include "engines/LargeFileFinder.h"
#include "gallery/views.h"
#include "support/PaintedTexts.h"
#include "support/SampleHome.h"
#include "support/uitest.h"
#include "support/window.h"
#include "ui/Theme.h"
#include "ui/i18n.h"
#include "ui/pages/CleanupPage.h"
#include "ui/shell/Overlay.h"
#include "ui/shell/Tray.h"
#include "ui/shell/commands.h"
#include "ui/shell/program.h"

#include <QAction>
#include <QComboBox>
#include <QFile>
#include <QMap>
#include <QMenu>
#include <QRegularExpression>

#include <memory>

using namespace Qt::StringLiterals;

namespace {

/// Texts that are the same in every language by design.
constexpr const char16_t* kLiteral[] = {
    // The table's heads, and a filter that is named like a folder.
    u"Name", u"Kind", u"Last opened", u"Size", u"Downloads",
    // The system's own name of its disk.
    u"Macintosh HD",
    // What the pictures' feed and folders tell.
    u"14 November 2026", u"24 MB", u"Host not found", u"Firefox", u"Slack", u"Acme", u"quarterly report",
    u"The Space Map tells duplicates of a large file apart from the file itself, and never offers the last copy",
    u"Caches of programs that run are measured, and still left alone", u"Starts a third faster",
    u".nvm, .cargo, .gradle"};

/// Words that stand in sentences of others, as it was designed so. Catalogues choose phrases that hold them unbent.
struct Word {
  const char* context;
  const char* source;
  const char* reason;
};
constexpr Word kNested[] = {
    {"Platform", "Trash", "the host's name of it, which several sentences hold"},
    {"Platform", "Finder", "the host's name of its file manager"},
    {"Platform", "Files", "the host's name of its file manager"},
    {"Platform", "System disk", "a disk's name, where it has none of its own"},
    {"fmt", "Today", "when the last scan was"},
};

/// Second lines, which a reader is told after the first one, a figure.
constexpr Word kBeside[] = {
    {"CleanupPage", "found", "the radar's figure and its caption"},
    {"CleanupPage", "of %1", "the ring's figure and its caption"},
    {"OverviewPage", "free of %1", "the orb's figure and its caption"},
    {"SystemDataPage", "measured", "the radar's figure and its caption"},
    {"SystemDataPage", "measured in System Data · <b style='color:%1'>%2</b> you can act on", "a figure over a line"},
    {"CleanupPage", "For example: %1", "a sentence after a sentence"},
};

QStringList sortedData(const AppState& state) {
  QStringList data = {identity::kName, identity::kVersion, safety::protectedSummary()};
  for (const char16_t* text : kLiteral) data << QString::fromUtf16(text);
  for (const i18n::Language& language : i18n::languages()) data << language.name;
  for (const QString& rule : AppSettings::instance().exclusions()) data << rule;
  for (const CategoryResult& result : state.results) {
    data << result.def.locationHint;
    for (const CleanItem& item : result.items) data << item.name << item.owner;
  }
  for (const LargeFile& file : state.largeFiles) data << file.name;
  return data;
}

/// @p text with a separator before what stands beside something by design.
QString withoutBeside(QString text) {
  static const QRegularExpression kMarkup(u"[%<]"_s);
  for (const Word& word : kBeside) {
    const QString begin = QCoreApplication::translate(word.context, word.source).section(kMarkup, 0, 0);
    text.replace(u"⟧ "_s + begin, u"⟧, "_s + begin);
  }
  return text;
}

/// Reads like a place on a disk, a file or a key.
bool isNoText(const QString& text) {
  static const QRegularExpression kNoText(
      uR"(^([~/$*][^⟦⟧\s]*|[\w.-]+\.\w+|((Ctrl|Shift|Alt|Meta)\+?)*(F\d+|\S)?)$)"_s);
  return kNoText.match(text).hasMatch();
}

/// All that a reader is told below @p one.
void hear(QAccessibleInterface* one, QStringList* texts) {
  if (!one || !one->isValid()) return;
  for (const QAccessible::Text kind : {QAccessible::Name, QAccessible::Description, QAccessible::Value})
    *texts << windowtest::plain(one->text(kind));
  for (int i = 0; i < one->childCount(); ++i) hear(one->child(i), texts);
}

/// What a window and its menus hold, whether it is on show or not.
QStringList heldTexts(QWidget* window) {
  QStringList texts = windowtest::allTexts(window);
  hear(QAccessible::queryAccessibleInterface(window), &texts);
  for (const QComboBox* box : window->findChildren<QComboBox*>())
    for (int i = 0; i < box->count(); ++i) texts << box->itemText(i);
  for (const QAction* action : window->findChildren<QAction*>()) texts << action->text() << action->toolTip();
  return texts;
}

QString simple(QString text) { return text.toLower().simplified(); }

/// What is painted without being held by a widget: a line of a wrapped text isn't, nor is a shortened one.
QStringList paintedBeyond(QWidget* window, const QStringList& held) {
  const QString all = simple(held.join(u'\n'));
  QStringList texts;
  for (QWidget* widget : window->findChildren<QWidget*>()) {
    if (!widget->isVisible()) continue;
    for (const PaintedText& painted : paintedTexts(widget)) {
      const QStringList parts = painted.text.split(u'…');
      if (!std::all_of(parts.begin(), parts.end(), [&](const QString& part) { return all.contains(simple(part)); }))
        texts << painted.text;
    }
  }
  return texts;
}

} // namespace

class TestPseudoWords : public QObject {
  Q_OBJECT

 private slots:
  void initTestCase();
  void growsAndKeepsWhatIsNoText_data();
  void growsAndKeepsWhatIsNoText();
  void translatesWhatStandsInTheCatalogue();
  void finds_data();
  void finds();
  void everyTextIsTranslated_data();
  void everyTextIsTranslated();
  void everyCommandIsTranslated();
  void tellsWhatNobodyTranslated();

 private:
  using Flaws = QMap<QString, QString>; ///< of a text, to where it was met first
  void look(gallery::Scene* scene, const QString& where);
  void judge(const QStringList& texts, const QStringList& data, const QString& where);
  void lookAtTrouble();
  void lookAtMessages();
  void lookAtTray();
  [[nodiscard]] QString report() const;

  std::unique_ptr<PseudoLanguage> m_language;
  Flaws m_flaws;
  qsizetype m_read = 0;
};

void TestPseudoWords::initTestCase() {
  Theme::get().install(qApp);
  m_language = std::make_unique<PseudoLanguage>(QStringLiteral(TARNWICK_CATALOGUE));
  QVERIFY(!m_language->isEmpty());
  qApp->installTranslator(m_language.get());
}

// The language

void TestPseudoWords::growsAndKeepsWhatIsNoText_data() {
  QTest::addColumn<QString>("source");
  QTest::addColumn<QString>("text");
  QTest::newRow("short") << u"Clean"_s << u"⟦Çléééåååñ⟧"_s;
  QTest::newRow("placeholder") << u"%1 free of %L2"_s << u"⟦%1 fréééééé öööf %L2⟧"_s;
  QTest::newRow("count") << u"Restored %Ln file(s)"_s << u"⟦Réééštöööréééd %Ln fîîîlé(š)⟧"_s;
  QTest::newRow("tag") << u"<b>%2</b> kept"_s << u"⟦<b>%2</b> kééééééépt⟧"_s;
  QTest::newRow("tag with a value") << u"<b style='color:%1'>x</b>"_s << u"⟦<b style='color:%1'>x</b>⟧"_s;
  QTest::newRow("entity") << u"A&amp;B &lt;e&gt;"_s << u"⟦ÅÅÅÅ&amp;B &lt;éééé&gt;⟧"_s;
  QTest::newRow("mnemonic") << u"&Open"_s << u"⟦&ÖÖÖpééé⟧"_s.replace(u"ééé"_s, u"éééñ"_s);
  QTest::newRow("nothing to grow") << u"%1 · %2"_s << u"⟦%1 · %2⟧"_s;
}

void TestPseudoWords::growsAndKeepsWhatIsNoText() {
  QFETCH(QString, source);
  QTEST(pseudo::text(source), "text");
  QCOMPARE(pseudo::text(source, {}, pseudo::Brackets::Left), pseudo::text(source).chopped(1).mid(1));
}

void TestPseudoWords::translatesWhatStandsInTheCatalogue() {
  const PseudoLanguage& language = *m_language;
  QCOMPARE(language.translate("Platform", "Trash", nullptr, -1), pseudo::text(u"Trash"_s));
  QCOMPARE(language.translate("Sidebar", "Trash", nullptr, -1), QString()); // not in that context
  QCOMPARE(language.translate("Platform", "Rubbish", nullptr, -1), QString());
  // A count is filled in by whoever asked.
  QCOMPARE(QCoreApplication::translate("AppState", "Restored %Ln file(s)", nullptr, 3),
           u"⟦Réééštöööréééd 3 fîîîlé(š)⟧"_s);
}

void TestPseudoWords::finds_data() {
  QTest::addColumn<QString>("shown");
  QTest::addColumn<QString>("flaw");
  QTest::newRow("translated") << u"⟦Çléåñ⟧"_s << u""_s;
  QTest::newRow("figure alone") << u"62 %"_s << u""_s;
  QTest::newRow("figure with its unit") << u"⟦Çléåñ ⟦12 ⟦MB⟧⟧⟧"_s << u""_s;
  QTest::newRow("list") << u"⟦Çléåñ⟧, ⟦Öpéñ⟧ · ⟦Çlöšé⟧\n⟦Ñåmé⟧"_s << u""_s;
  QTest::newRow("the user's") << u"⟦Öpéñ⟧, notes.txt"_s << u""_s;
  QTest::newRow("form of a list") << u"⟦⟦Gåméš⟧ · ⟦38.9 ⟦GB⟧⟧⟧"_s << u""_s;
  QTest::newRow("untranslated") << u"Clean"_s << u"untranslated"_s;
  QTest::newRow("half translated") << u"⟦Çléåñ⟧ now"_s << u"untranslated"_s;
  QTest::newRow("joined") << u"⟦Çléåñ⟧ ⟦ñöw⟧"_s << u"joined"_s;
  QTest::newRow("joined by an end") << u"⟦Çléåñ⟧⟦ · ñöw⟧"_s << u""_s;
  QTest::newRow("after a colon") << u"⟦Ñö ûpdåté: ⟦Töö låté.⟧⟧"_s << u""_s;
  QTest::newRow("an end") << u"⟦⟦3 ⟦MB⟧⟧ šéléçtéd⟦ · šömé låtér⟧⟧"_s << u""_s;
  QTest::newRow("nested") << u"⟦Mövé tö ⟦Tråšh⟧⟧"_s << u"⟦Tråšh⟧"_s;
  QTest::newRow("unfilled") << u"⟦%1 free⟧"_s << u"unfilled"_s;
  QTest::newRow("unfilled count") << u"⟦%n ågö⟧"_s << u"unfilled"_s;
}

void TestPseudoWords::finds() {
  QFETCH(QString, shown);
  QTEST(pseudo::flaw(shown, {u"txt"_s, u"notes.txt"_s}), "flaw");
}

// The window

void TestPseudoWords::judge(const QStringList& texts, const QStringList& data, const QString& where) {
  for (const QString& text : texts) {
    if (text.isEmpty() || isNoText(text)) continue;
    ++m_read;
    QString flaw = pseudo::flaw(withoutBeside(text), data);
    for (const Word& word : kNested)
      if (flaw == QCoreApplication::translate(word.context, word.source)) flaw.clear();
    if (!flaw.isEmpty() && !m_flaws.contains(flaw + u": "_s + text)) m_flaws.insert(flaw + u": "_s + text, where);
  }
}

void TestPseudoWords::look(gallery::Scene* scene, const QString& where) {
  QCoreApplication::processEvents();
  const QStringList held = heldTexts(&scene->window);
  const QStringList data = sortedData(scene->state);
  judge(held, data, where);
  judge(paintedBeyond(&scene->window, held), data, where);
}

QString TestPseudoWords::report() const {
  QString text;
  for (auto one = m_flaws.begin(); one != m_flaws.end(); ++one) text += one.value() + u" | "_s + one.key() + u'\n';
  return text;
}

/// Results as an unlucky scan leaves them: nothing could be read, everything needs rights, every app is running.
void TestPseudoWords::lookAtTrouble() {
  gallery::Scene scene;
  scene.scan();
  for (CategoryResult& result : scene.state.results) {
    result.accessDenied = true;
    result.def.needsAdmin = result.def.id != u"logs"_s;
    if (!result.items.isEmpty()) result.items.first().owner = u"Acme"_s;
  }
  scene.state.results.last().bytes = 0;
  scene.state.results.last().items.clear();
  emit scene.state.resultsChanged();
  scene.window.show();
  auto* cleanup = scene.window.findChild<ui::CleanupPage*>();
  for (const CategoryResult& result : QList<CategoryResult>(scene.state.results)) {
    cleanup->focusCategory(result.def.id);
    look(&scene, u"trouble in "_s + result.def.id);
  }
  for (const bool toTrash : {true, false}) {
    AppSettings::instance().setMoveToTrash(toTrash);
    scene.state.selectAll(true);
    emit cleanup->confirmRequested();
    look(&scene, u"question about trouble"_s);
    for (ui::Overlay* dialog : scene.window.findChildren<ui::Overlay*>()) dialog->close();
  }
  scene.state.volume = {};
  emit scene.state.volumeChanged();
  look(&scene, u"no volume"_s);
}

void TestPseudoWords::lookAtMessages() {
  gallery::Scene scene;
  scene.window.show();
  connect(&scene.state, &AppState::toast, this,
          [&](const QString& text) { judge({text}, sortedData(scene.state), u"message"_s); });
  const auto one = [](const QString& name) {
    LargeFile file;
    file.name = name;
    file.path = QDir::homePath() + u'/' + name;
    return file;
  };
  scene.state.largeFiles = {one(u"gone-1.mov"_s), one(u"gone-2.mov"_s)};
  scene.state.trashLargeFiles({scene.state.largeFiles.first().path}); // it isn't there
  scene.state.undoLastTrash();
  scene.state.volume.totalBytes = 1000;
  scene.state.volume.availableBytes = 1;
  ui::afterStart(&scene.window, &scene.state, {.background = false, .updated = false});
  look(&scene, u"low space"_s);
  ui::afterStart(&scene.window, &scene.state, {.background = false, .updated = true});
  look(&scene, u"updated"_s);
}

void TestPseudoWords::lookAtTray() {
  gallery::Scene scene;
  ui::TrayDesktop desktop;
  desktop.available = [] { return true; };
  desktop.watch = [](QObject*, const std::function<void()>&) {};
  const ui::Tray tray(&scene.window, &scene.state, desktop);
  QMenu* menu = scene.window.findChild<QMenu*>();
  QVERIFY(menu && menu->actions().size() > 5);
  emit menu->aboutToShow(); // which brings its status up to date
  const qsizetype before = m_read;
  const QStringList data = sortedData(scene.state) + QStringList{scene.state.volume.name};
  for (const QAction* action : menu->actions()) judge({action->text()}, data, u"tray"_s);
  QVERIFY(m_read - before > 5);
}

void TestPseudoWords::everyTextIsTranslated_data() {
  QTest::addColumn<QByteArray>("host");
  QTest::addColumn<bool>("mac");
  QTest::newRow("linux, other metrics") << QByteArray("linux") << false;
  QTest::newRow("mac, mac metrics") << QByteArray("mac") << true;
}

void TestPseudoWords::everyTextIsTranslated() {
  QFETCH(QByteArray, host);
  QFETCH(bool, mac);
  qputenv("TARNWICK_HOST", host);
  Theme::get().mac = mac;
  const FixtureHome home;
  fillSampleHome(home);
  m_flaws.clear();
  m_read = 0;
  for (const gallery::ViewEntry& entry : gallery::views())
    look(gallery::openView(entry).get(), QString::fromLatin1(entry.name));
  lookAtTrouble();
  lookAtMessages();
  lookAtTray();
  Theme::get().mac = true;
  for (auto one = m_flaws.begin(); one != m_flaws.end(); ++one)
    qWarning("%s: %s", qPrintable(one.value()), qPrintable(one.key()));
  QVERIFY(m_flaws.isEmpty());
  QVERIFY2(m_read > 5000, qPrintable(QString::number(m_read)));
}

void TestPseudoWords::everyCommandIsTranslated() {
  m_flaws.clear();
  const QStringList data = {identity::kName};
  for (const ui::commands::Entry& entry : ui::commands::entries())
    for (const bool other : {false, true})
      if (entry.id != ui::commands::Id::Separator)
        judge({ui::commands::textOf(entry, {.isSidebarCollapsed = other, .isFullScreen = other})}, data, u"command"_s);
  for (int menu = 0; menu <= int(ui::commands::Menu::Help); ++menu)
    judge({ui::commands::titleOf(ui::commands::Menu(menu))}, data, u"menu"_s);
  QVERIFY2(m_flaws.isEmpty(), qPrintable(report()));
}

// What the walk would say of a text that went by the catalogue.
void TestPseudoWords::tellsWhatNobodyTranslated() {
  qputenv("TARNWICK_HOST", "linux");
  const FixtureHome home;
  gallery::Scene scene;
  scene.window.show();
  (new QLabel(u"Nobody translated this"_s, &scene.window))->show();
  m_flaws.clear();
  look(&scene, u"here"_s);
  QCOMPARE(m_flaws.value(u"untranslated: Nobody translated this"_s), u"here"_s);
  m_flaws.clear();
}

int main(int argc, char** argv) { return uitest::run<TestPseudoWords>(argc, argv); }

#include "tst_PseudoWords.moc"
