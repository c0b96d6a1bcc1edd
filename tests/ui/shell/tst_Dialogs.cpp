// The veil, and the four dialogs on it.
#include "app/AppState.h"
#include "app/identity.h"
#include "core/platform.h"
#include "engines/categories.h"
#include "support/pixels.h"
#include "support/uitest.h"
#include "ui/Theme.h"
#include "ui/controls/Button.h"
#include "ui/controls/Card.h"
#include "ui/controls/Divider.h"
#include "ui/shell/AboutDialog.h"
#include "ui/shell/CloseDialog.h"
#include "ui/shell/ConfirmCleanDialog.h"
#include "ui/shell/ConfirmDialog.h"

#include <QAccessible>
#include <QCheckBox>
#include <QFileInfo>
#include <QLabel>
#include <QLineEdit>
#include <QPointer>
#include <QPropertyAnimation>
#include <QSignalSpy>

using namespace Qt::StringLiterals;
using namespace ui;

namespace {

CleanItem item(const QString& name, qint64 bytes, const QString& owner = {}) {
  CleanItem made;
  made.path = u"/nowhere/"_s + name;
  made.name = name;
  made.owner = owner;
  made.bytes = bytes;
  made.files = 1;
  return made;
}

CategoryResult found(const QString& id, qint64 bytes, Safety safety = Safe) {
  CategoryResult result;
  result.def.id = id;
  result.def.title = id.toUpper();
  result.def.icon = u"trash"_s;
  result.def.colour = Qt::red;
  result.def.safety = safety;
  result.bytes = bytes;
  result.files = 1;
  result.items = {item(id, bytes)};
  return result;
}

QStringList texts(const QWidget& widget) {
  QStringList all;
  for (const QLabel* label : widget.findChildren<QLabel*>()) all << label->text();
  return all;
}

Button* button(const QWidget& dialog, const QString& text) {
  for (Button* one : dialog.findChildren<Button*>())
    if (one->text() == text) return one;
  return nullptr;
}

Button* defaultButton(const QWidget& dialog) {
  for (Button* one : dialog.findChildren<Button*>())
    if (one->isDefault()) return one;
  return nullptr;
}

} // namespace

class TestDialogs : public QObject {
  Q_OBJECT

 private slots:
  void initTestCase() { Theme::get().install(qApp); }
  void init();
  void cleanup();

  void coversAndStands_data();
  void coversAndStands();
  void slidesFrom_data();
  void slidesFrom();
  void resizeKeepsTheVeil();
  void leftByEscapeAndVeil();
  void pressOnTheCardDoesNothing();
  void enterPressesTheDefault();
  void enterPressesTheFocused();
  void tabStaysInside();
  void focusComesBack();
  void veilAndCardColours();
  void acceptedBeforeClosing();
  void confirmKinds();
  void widths_data();
  void widths();
  void cleanMessages_data();
  void cleanMessages();
  void cleanFollowsTheLook();
  void cleanListsTheSelection();
  void cleanIsASnapshot();
  void cleanTellsOfNoTrash();
  void cleanTellsOfOpenApps();
  void closeChoices_data();
  void closeChoices();
  void closeHintFollows();
  void aboutTells();
  void everythingFits_data();
  void everythingFits();
  void readerHearsADialog();

 private:
  ConfirmDialog* openConfirm();
  /// When it stands where it will.
  static void settle(const Overlay* dialog) { QTRY_VERIFY(!dialog->findChild<QPropertyAnimation*>()); }

  std::unique_ptr<QWidget> m_area;
  std::unique_ptr<AppState> m_state;
};

void TestDialogs::init() {
  Theme::get().mac = true;
  pixels::setLook(false);
  AppSettings::instance().setMoveToTrash(true);
  m_area = std::make_unique<QWidget>();
  m_area->resize(961, 640);
  m_state = std::make_unique<AppState>();
  m_area->show();
  QVERIFY(QTest::qWaitForWindowActive(m_area.get()));
}

void TestDialogs::cleanup() {
  m_area.reset();
  m_state.reset();
  Theme::get().mac = true;
}

ConfirmDialog* TestDialogs::openConfirm() {
  auto* dialog = new ConfirmDialog(m_area.get(), u"Delete it?"_s, u"It can't be restored."_s, u"Delete"_s, true);
  dialog->open();
  return dialog;
}

void TestDialogs::coversAndStands_data() {
  QTest::addColumn<bool>("mac");
  QTest::newRow("mac") << true;
  QTest::newRow("win") << false;
}

void TestDialogs::coversAndStands() {
  QFETCH(bool, mac);
  Theme::get().mac = mac;
  auto* hidden = new ConfirmDialog(m_area.get(), u"a"_s, u"b"_s, u"c"_s, false);
  QVERIFY(hidden->isHidden());
  const ConfirmDialog* dialog = openConfirm();
  settle(dialog);
  QCOMPARE(dialog->geometry(), m_area->rect());
  QCOMPARE(dialog->panel->x(), (961 - dialog->panel->width()) / 2);
  QCOMPARE(dialog->panel->y(), mac ? 0 : (640 - dialog->panel->height()) / 2);
}

void TestDialogs::slidesFrom_data() { coversAndStands_data(); }

void TestDialogs::slidesFrom() {
  QFETCH(bool, mac);
  Theme::get().mac = mac;
  const ConfirmDialog* dialog = openConfirm();
  const auto* slide = dialog->findChild<QPropertyAnimation*>();
  QVERIFY(slide);
  QCOMPARE(slide->duration(), 180);
  QCOMPARE(slide->easingCurve().type(), QEasingCurve::OutCubic);
  const QPoint end = slide->endValue().toPoint();
  QCOMPARE(slide->startValue().toPoint(), QPoint(end.x(), mac ? -dialog->panel->height() : end.y() + 12));
}

void TestDialogs::resizeKeepsTheVeil() {
  const ConfirmDialog* dialog = openConfirm();
  settle(dialog);
  m_area->resize(1200, 700);
  QCOMPARE(dialog->geometry(), m_area->rect());
  QCOMPARE(dialog->panel->x(), (1200 - dialog->panel->width()) / 2);
}

void TestDialogs::leftByEscapeAndVeil() {
  for (const bool byKey : {true, false}) {
    QPointer<ConfirmDialog> dialog = openConfirm();
    QSignalSpy accepted(dialog.data(), &ConfirmDialog::accepted);
    if (byKey)
      QTest::keyClick(dialog.data(), Qt::Key_Escape);
    else
      QTest::mouseClick(dialog.data(), Qt::LeftButton, {}, QPoint(5, 600));
    QTRY_VERIFY(!dialog);
    QCOMPARE(accepted.count(), 0);
  }
}

void TestDialogs::pressOnTheCardDoesNothing() {
  QPointer<ConfirmDialog> dialog = openConfirm();
  settle(dialog);
  QTest::mouseClick(dialog->panel, Qt::LeftButton, {}, QPoint(6, 6));
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  QVERIFY(dialog && dialog->isVisible());
}

void TestDialogs::enterPressesTheDefault() {
  QPointer<ConfirmDialog> dialog = openConfirm();
  QSignalSpy accepted(dialog.data(), &ConfirmDialog::accepted);
  QTest::keyClick(dialog.data(), Qt::Key_Return);
  QCOMPARE(accepted.count(), 1);
}

void TestDialogs::enterPressesTheFocused() {
  QPointer<ConfirmDialog> dialog = openConfirm();
  QSignalSpy accepted(dialog.data(), &ConfirmDialog::accepted);
  button(*dialog, u"Cancel"_s)->setFocus();
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
  QTRY_VERIFY(!dialog);
  QCOMPARE(accepted.count(), 0);
}

void TestDialogs::tabStaysInside() {
  QLineEdit behind(m_area.get());
  behind.show();
  const ConfirmDialog* dialog = openConfirm();
  QSet<QWidget*> seen;
  for (int i = 0; i < 5; ++i) {
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    seen << QApplication::focusWidget();
  }
  const QSet<QWidget*> wanted{button(*dialog, u"Cancel"_s), button(*dialog, u"Delete"_s)};
  QCOMPARE(seen, wanted);
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Backtab);
  QVERIFY(wanted.contains(QApplication::focusWidget()));
}

void TestDialogs::focusComesBack() {
  QLineEdit behind(m_area.get());
  behind.show();
  behind.setFocus();
  ConfirmDialog* dialog = openConfirm();
  QCOMPARE(QApplication::focusWidget(), dialog);
  QTest::keyClick(dialog, Qt::Key_Escape);
  QCOMPARE(QApplication::focusWidget(), &behind);
}

void TestDialogs::veilAndCardColours() {
  for (const bool dark : {false, true}) {
    pixels::setLook(dark);
    ConfirmDialog* dialog = openConfirm();
    settle(dialog);
    const QImage shown = pixels::rendered(*dialog);
    QVERIFY(pixels::isNear(shown.pixelColor(3, 600), Theme::get().scrim));
    QCOMPARE(pixels::rendered(*dialog->panel).pixelColor(12, 60), Theme::get().surface);
    dialog->close();
  }
}

void TestDialogs::acceptedBeforeClosing() {
  QPointer<ConfirmDialog> dialog = openConfirm();
  bool shownThen = false;
  connect(dialog.data(), &ConfirmDialog::accepted, this, [&] { shownThen = dialog->isVisible(); });
  button(*dialog, u"Delete"_s)->click();
  QVERIFY(shownThen);
  QTRY_VERIFY(!dialog);
}

void TestDialogs::confirmKinds() {
  for (const bool danger : {true, false}) {
    const ConfirmDialog dialog(m_area.get(), u"Title"_s, u"Body"_s, u"Go"_s, danger);
    QCOMPARE(button(dialog, u"Go"_s)->property("kind").toString(), danger ? u"danger"_s : u"primary"_s);
    QVERIFY(button(dialog, u"Go"_s)->isDefault());
    QCOMPARE(texts(dialog), (QStringList{u"Title"_s, u"Body"_s}));
    QCOMPARE(dialog.accessibleName(), u"Title"_s);
  }
}

void TestDialogs::widths_data() {
  QTest::addColumn<bool>("mac");
  QTest::addColumn<int>("width");
  QTest::addColumn<QStringList>("buttons"); // from left to right
  QTest::newRow("mac") << true << 420 << QStringList{u"Cancel"_s, u"Delete"_s};
  QTest::newRow("win") << false << 460 << QStringList{u"Delete"_s, u"Cancel"_s};
}

void TestDialogs::widths() {
  QFETCH(bool, mac);
  QFETCH(int, width);
  QFETCH(QStringList, buttons);
  Theme::get().mac = mac;
  const ConfirmDialog* dialog = openConfirm();
  QCOMPARE(dialog->panel->width(), width);
  QCOMPARE(!dialog->findChildren<Divider*>().isEmpty(), !mac);
  const Button* left = button(*dialog, buttons[0]);
  const Button* right = button(*dialog, buttons[1]);
  QVERIFY(left->mapTo(dialog, QPoint()).x() < right->mapTo(dialog, QPoint()).x());
  if (!mac) QVERIFY(qAbs(left->width() - right->width()) <= 1);
}

void TestDialogs::cleanMessages_data() {
  QTest::addColumn<bool>("trash");
  QTest::addColumn<bool>("permanent");
  QTest::addColumn<QString>("message");
  QTest::addColumn<QString>("confirm");
  QTest::addColumn<QString>("kind");
  const QString gone = u"Permanent delete is on. These files can't be recovered."_s;
  QTest::newRow("trash, some for good") << true << true
                                        << u"Emptying the Trash can't be undone. Everything else goes to the Trash."_s
                                        << u"Clean and delete"_s << u"danger"_s;
  QTest::newRow("trash") << true << false << u"Everything will be moved to the Trash, so you can restore it later."_s
                         << u"Clean"_s << u"primary"_s;
  QTest::newRow("for good") << false << false << gone << u"Clean and delete"_s << u"danger"_s;
  QTest::newRow("all for good") << false << true << gone << u"Clean and delete"_s << u"danger"_s;
}

void TestDialogs::cleanMessages() {
  QFETCH(bool, trash);
  QFETCH(bool, permanent);
  QFETCH(QString, message);
  QFETCH(QString, confirm);
  QFETCH(QString, kind);
  AppSettings::instance().setMoveToTrash(trash);
  m_state->results = {found(u"logs"_s, 3'000'000), found(u"trash"_s, 1'000'000, permanent ? Permanent : Review)};
  m_state->selectAll(true);
  const ConfirmCleanDialog dialog(m_state.get(), m_area.get());
  QVERIFY2(texts(dialog).contains(message), qPrintable(texts(dialog).join(u'|')));
  QVERIFY(texts(dialog).contains(u"Clean 4 MB?"_s));
  QCOMPARE(defaultButton(dialog)->text(), confirm);
  QCOMPARE(defaultButton(dialog)->property("kind").toString(), kind);
}

void TestDialogs::cleanFollowsTheLook() {
  m_state->results = {found(u"logs"_s, 3'000'000)};
  m_state->selectAll(true);
  const ConfirmCleanDialog dialog(m_state.get(), m_area.get());
  for (const bool dark : {true, false}) {
    pixels::setLook(dark);
    QCOMPARE(dialog.findChild<Card*>()->fill, Theme::get().surface); // its texts follow, and must stay readable
  }
}

void TestDialogs::cleanListsTheSelection() {
  m_state->results = {found(u"logs"_s, 3'000'000), found(u"dev"_s, 7'000'000), found(u"temp"_s, 2'000'000)};
  m_state->selectAll(true);
  m_state->setSelected(u"dev"_s, false);
  const ConfirmCleanDialog dialog(m_state.get(), m_area.get());
  const QStringList shown = texts(dialog);
  QVERIFY(shown.indexOf(u"LOGS"_s) < shown.indexOf(u"TEMP"_s));
  QVERIFY(shown.contains(u"3 MB"_s) && shown.contains(u"2 MB"_s));
  QVERIFY(!shown.contains(u"DEV"_s));
  QCOMPARE(dialog.findChildren<Divider*>().size(), 1); // between the two rows
}

void TestDialogs::cleanIsASnapshot() {
  m_state->results = {found(u"logs"_s, 3'000'000)};
  m_state->selectAll(true);
  const ConfirmCleanDialog dialog(m_state.get(), m_area.get());
  m_state->selectAll(false);
  QVERIFY(texts(dialog).contains(u"Clean 3 MB?"_s));
}

void TestDialogs::cleanTellsOfNoTrash() {
  const QString memory = u"/dev/shm"_s; // lives in memory, so no Trash is made there
  if (!QFileInfo(memory).isWritable()) QSKIP("there is no file system in memory");
  m_state->results = {found(u"logs"_s, 3'000'000)};
  m_state->results[0].items[0].path = memory + u"/thing"_s;
  m_state->selectAll(true);
  const QString told = u"3 MB of it will stay: there is no Trash on its volume."_s;
  QVERIFY(texts(ConfirmCleanDialog(m_state.get(), m_area.get())).contains(told));
  AppSettings::instance().setMoveToTrash(false);
  QVERIFY(!texts(ConfirmCleanDialog(m_state.get(), m_area.get())).contains(told));
}

void TestDialogs::cleanTellsOfOpenApps() {
  CategoryResult caches = found(u"appcache"_s, 5'000'000);
  caches.items[0].owner = u"Firefox"_s;
  caches.items << item(u"b"_s, 1'000'000, u"Code"_s);
  caches.bytes += 1'000'000;
  m_state->results = {caches};
  m_state->selectAll(true);
  QVERIFY(texts(ConfirmCleanDialog(m_state.get(), m_area.get()))
              .contains(u"6 MB of it will stay while these apps are open: Firefox, Code."_s));
  m_state->setItemSelected(u"appcache"_s, u"/nowhere/b"_s, false);
  QVERIFY(texts(ConfirmCleanDialog(m_state.get(), m_area.get()))
              .contains(u"5 MB of it will stay while these apps are open: Firefox."_s));
}

void TestDialogs::closeChoices_data() {
  QTest::addColumn<QString>("press");
  QTest::addColumn<bool>("remember");
  for (const bool remember : {true, false}) {
    QTest::addRow("keep, %d", int(remember)) << u"Keep in tray"_s << remember;
    QTest::addRow("quit, %d", int(remember)) << u"Quit"_s << remember;
  }
}

void TestDialogs::closeChoices() {
  QFETCH(QString, press);
  QFETCH(bool, remember);
  QPointer<CloseDialog> dialog = new CloseDialog(m_area.get());
  dialog->open();
  QVERIFY(dialog->findChild<QCheckBox*>()->isChecked());
  dialog->findChild<QCheckBox*>()->setChecked(remember);
  QSignalSpy chosen(dialog.data(), &CloseDialog::chosen);
  button(*dialog, press)->click();
  QCOMPARE(chosen.count(), 1);
  QCOMPARE(chosen[0], (QVariantList{press == u"Keep in tray"_s, remember}));
  QTRY_VERIFY(!dialog);
}

void TestDialogs::closeHintFollows() {
  const CloseDialog dialog(m_area.get());
  const auto hint = [&] {
    for (const QLabel* label : dialog.findChildren<QLabel*>())
      if (label->text() == u"You can change this in Settings."_s) return label;
    return static_cast<const QLabel*>(nullptr);
  };
  QVERIFY(hint() && !hint()->isHidden());
  dialog.findChild<QCheckBox*>()->setChecked(false);
  QVERIFY(hint()->isHidden());
  dialog.findChild<QCheckBox*>()->setChecked(true);
  QVERIFY(!hint()->isHidden());
  QCOMPARE(defaultButton(dialog)->text(), u"Keep in tray"_s);
  QCOMPARE(dialog.panel->width(), 460);
}

void TestDialogs::aboutTells() {
  QPointer<AboutDialog> dialog = new AboutDialog(m_area.get());
  dialog->open();
  QCOMPARE(dialog->panel->width(), 340);
  QVERIFY(texts(*dialog).contains(u"Tarnwick"_s));
  QVERIFY(texts(*dialog).contains(u"Version 1.0.0"_s));
  QVERIFY(button(*dialog, u"Tarnwick Website"_s));
  QCOMPARE(defaultButton(*dialog)->text(), u"Close"_s);
  defaultButton(*dialog)->click();
  QTRY_VERIFY(!dialog);
}

void TestDialogs::everythingFits_data() { coversAndStands_data(); }

// The longest question, in the smallest window: eight categories, no Trash for a part of it, and apps that run.
void TestDialogs::everythingFits() {
  QFETCH(bool, mac);
  Theme::get().mac = mac;
  for (const CategoryDef& def : categories::forThisPlatform()) {
    CategoryResult result = found(def.id, 1'234'000'000, def.safety);
    result.def = def;
    result.items[0].path = u"/dev/shm/thing"_s;
    m_state->results << result;
  }
  for (const QString& app : {u"Google Chrome"_s, u"Firefox"_s, u"Visual Studio Code"_s, u"Thunderbird"_s})
    m_state->results[1].items << item(app, 1000, app);
  m_state->selectAll(true);
  constexpr int kTitleBar = 40;
  m_area->resize(960, 640 - kTitleBar);
  auto* dialog = new ConfirmCleanDialog(m_state.get(), m_area.get());
  dialog->open();
  settle(dialog);
  QCOMPARE(m_state->selectedResults().size(), 8);
  QVERIFY2(dialog->rect().contains(dialog->panel->geometry()), qPrintable(QString::number(dialog->panel->height())));
  for (const QLabel* label : dialog->findChildren<QLabel*>()) {
    const int height = label->wordWrap() ? label->heightForWidth(label->width()) : label->sizeHint().height();
    QVERIFY2(label->height() >= height, qPrintable(label->text()));
    QVERIFY2(label->wordWrap() || label->width() >= label->sizeHint().width(), qPrintable(label->text()));
  }
}

void TestDialogs::readerHearsADialog() {
  const ConfirmDialog* dialog = openConfirm();
  const QAccessibleInterface* heard = QAccessible::queryAccessibleInterface(const_cast<ConfirmDialog*>(dialog));
  QCOMPARE(heard->role(), QAccessible::Dialog);
  QCOMPARE(heard->text(QAccessible::Name), u"Delete it?"_s);
  QVERIFY(heard->state().modal);
}

int main(int argc, char** argv) { return uitest::run<TestDialogs>(argc, argv); }

#include "tst_Dialogs.moc"
