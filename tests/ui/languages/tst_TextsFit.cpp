// The whole window in one language, at both of its sizes and in both metric sets: no text is cut, shortened or in
// another one's way. TARNWICK_TEST_LANGUAGE names the language; without it, it is one whose words are 30 percent longer
// than the English ones.
#include "app/AppSettings.h"
#include "engines/LargeFileFinder.h"
#include "gallery/views.h"
#include "support/PseudoLanguage.h"
#include "support/SampleHome.h"
#include "support/misfits.h"
#include "support/uitest.h"
#include "ui/Theme.h"
#include "ui/i18n.h"
#include "ui/pages/CleanupPage.h"
#include "ui/shell/Overlay.h"
#include "ui/shell/Sidebar.h"
#include "ui/shell/Toast.h"

#include <QFontDatabase>
#include <QGlyphRun>
#include <QMenu>
#include <QPropertyAnimation>
#include <QRawFont>
#include <QTextLayout>

using namespace Qt::StringLiterals;

namespace {

constexpr pseudo::Growth kGrowth{.usual = 0.3, .ofShort = 0.3};
constexpr qint64 kLarger = 100'000; // a sample home's kilobytes are to look like a disk's gigabytes

/// Views that leave something behind, and need a window of their own.
constexpr const char* kAlone[] = {"app-menu", "settings-below", "settings-damaged", "cleanup-review-damaged"};

bool isAlone(const gallery::ViewEntry& entry) {
  return std::any_of(std::begin(kAlone), std::end(kAlone),
                     [&](const char* name) { return QLatin1StringView(name) == QLatin1StringView(entry.name); });
}

/// One window that goes from view to view.
class Tour {
 public:
  gallery::Scene* at(const gallery::ViewEntry& entry) {
    if (!m_scene || m_wasAlone) begin();
    m_wasAlone = isAlone(entry);
    if (m_wasAlone) begin();
    goBack(entry.scanned);
    gallery::bringTo(m_scene.get(), entry);
    endMotion();
    return m_scene.get();
  }

 private:
  void begin() {
    m_scene = std::make_unique<gallery::Scene>();
    m_scene->scan();
    for (CategoryResult& result : m_scene->state.results) {
      result.bytes *= kLarger;
      for (CleanItem& item : result.items) item.bytes *= kLarger;
    }
    m_results = m_scene->state.results;
  }
  /// To where every view begins.
  void goBack(bool scanned) {
    for (ui::Overlay* one : m_scene->window.findChildren<ui::Overlay*>()) one->close();
    for (ui::Toast* one : m_scene->window.findChildren<ui::Toast*>()) one->hide();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    AppState& state = m_scene->state;
    state.report = {};
    state.largeFiles.clear();
    state.largeScanned = false;
    state.largeSearching = state.largeFinder->isRunning(); // a view may have pretended it
    state.systemDataBusy = false;
    emit state.largeFilesChanged();
    state.results = scanned ? m_results : QList<CategoryResult>();
    state.selectRecommended();
    emit state.resultsChanged();
    state.setPhase(scanned ? AppState::Review : AppState::Empty);
  }
  void endMotion() const {
    QCoreApplication::processEvents();
    for (auto* motion : m_scene->window.findChildren<QPropertyAnimation*>()) motion->setCurrentTime(motion->duration());
  }

  std::unique_ptr<gallery::Scene> m_scene;
  QList<CategoryResult> m_results;
  bool m_wasAlone = false;
};

/// What is to be looked at: a dialog's card hides a part of what lies below it.
QWidget* foreground(gallery::Scene* scene) {
  for (const ui::Overlay* one : scene->window.findChildren<ui::Overlay*>())
    if (one->isVisible()) return one->panel;
  return &scene->window;
}

/// The families that a Latin text is really shown in.
QStringList facesOf(const QFont& font) {
  QTextLayout layout(u"88 MB Clean"_s, font);
  layout.beginLayout();
  layout.createLine();
  layout.endLayout();
  QStringList faces;
  for (const QGlyphRun& run : layout.glyphRuns()) faces << run.rawFont().familyName().toLower();
  return faces;
}

/// In the foreground and in the menus that are open.
QStringList misfitsOf(gallery::Scene* scene, const QString& where) {
  constexpr int kRounds = 6; // in which layouts within layouts have heard of the window's size
  for (int i = 0; i < kRounds; ++i) QCoreApplication::processEvents();
  QStringList wrong = misfits(foreground(scene));
  for (QMenu* menu : scene->window.findChildren<QMenu*>())
    if (menu->isVisible()) wrong += misfits(menu);
  const QSize size = scene->window.size();
  for (QString& one : wrong) one = u"%1 %2x%3: %4"_s.arg(where).arg(size.width()).arg(size.height()).arg(one);
  return wrong;
}

} // namespace

class TestTextsFit : public QObject {
  Q_OBJECT

 private slots:
  void initTestCase();
  void latinKeepsItsFace();
  void sidebarStaysInItsBounds();
  void everyView_data();
  void everyView();

 private:
  std::unique_ptr<PseudoLanguage> m_longer;
  QStringList m_general; ///< the faces of the desktop's fonts, before the program has its say
  QStringList m_fixed;
};

void TestTextsFit::initTestCase() {
  const auto system = [](QFontDatabase::SystemFont kind) { return facesOf(QFontDatabase::systemFont(kind)); };
  m_general = system(QFontDatabase::GeneralFont);
  m_fixed = system(QFontDatabase::FixedFont);
  Theme::get().install(qApp);
  if (qEnvironmentVariableIsSet("TARNWICK_LANG")) return;
  m_longer = std::make_unique<PseudoLanguage>(QStringLiteral(TARNWICK_CATALOGUE), kGrowth, pseudo::Brackets::Left);
  qApp->installTranslator(m_longer.get());
}

// A family for Han characters has letters too, which aren't those of the interface.
void TestTextsFit::latinKeepsItsFace() {
  QCOMPARE(facesOf(Theme::get().font(13, 400)), m_general);
  QCOMPARE(facesOf(Theme::get().mono(13, 400)), m_fixed);
}

void TestTextsFit::sidebarStaysInItsBounds() {
  gallery::Scene scene;
  scene.window.setSidebarCollapsed(false);
  scene.window.show();
  const int width = scene.window.findChild<ui::Sidebar*>()->width();
  QVERIFY2(width >= ui::sidebarWidth(0) && width < ui::sidebarWidth(10'000), qPrintable(QString::number(width)));
}

void TestTextsFit::everyView_data() {
  QTest::addColumn<bool>("mac");
  QTest::newRow("mac metrics") << true;
  QTest::newRow("other metrics") << false;
}

void TestTextsFit::everyView() {
  QFETCH(bool, mac);
  Theme::get().mac = mac;
  Theme::get().refresh();
  const FixtureHome home;
  fillSampleHome(home);
  QStringList wrong;
  Tour tour;
  for (const gallery::ViewEntry& entry : gallery::views()) {
    gallery::Scene* scene = tour.at(entry);
    const QString where = QString::fromLatin1(entry.name);
    for (const QSize& size : gallery::viewSizes()) {
      scene->window.resize(size);
      wrong += misfitsOf(scene, where);
      if (where == "cleanup-review"_L1)
        for (const CategoryResult& result : scene->state.results) {
          scene->window.findChild<ui::CleanupPage*>()->focusCategory(result.def.id);
          wrong += misfitsOf(scene, where + u'-' + result.def.id);
        }
    }
  }
  Theme::get().mac = true;
  for (const QString& one : std::as_const(wrong)) qInfo("%s", qPrintable(one));
  QVERIFY2(wrong.isEmpty(), qPrintable(u"%1 misfits"_s.arg(wrong.size())));
}

int main(int argc, char** argv) {
  uitest::isolate();
  const QByteArray language = qgetenv("TARNWICK_TEST_LANGUAGE");
  if (!language.isEmpty()) qputenv("TARNWICK_LANG", language);
  const FixtureHome home;
  QApplication app(argc, argv);
  QApplication::setStyle(u"Fusion"_s);
  i18n::install(&app);
  TestTextsFit test;
  return QTest::qExec(&test, argc, argv);
}

#include "tst_TextsFit.moc"
