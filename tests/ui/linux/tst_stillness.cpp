// Under reduced motion sweeps and orbits stand still, where they can be seen, and values still move. The portal that
// asks for it is a stand-in on a bus of the test's own.

#include "support/pixels.h"
#include "support/servers.h"
#include "support/uitest.h"
#include "ui/Theme.h"
#include "ui/compat.h"
#include "ui/visuals/ProgressRing.h"
#include "ui/visuals/Radar.h"
#include "ui/visuals/StepBar.h"

#include <QDBusConnection>
#include <QDBusVariant>

using namespace Qt::StringLiterals;
using namespace pixels;

namespace {

const QString kAppearance = u"org.freedesktop.appearance"_s;
const QString kLessMotion = u"reduced-motion"_s;

class Portal : public QObject {
  Q_OBJECT
  Q_CLASSINFO("D-Bus Interface", "org.freedesktop.portal.Settings")

 public:
  bool open(const QString& address) {
    QDBusConnection bus = QDBusConnection::connectToBus(address, u"portal"_s);
    return bus.registerObject(u"/org/freedesktop/portal/desktop"_s, this,
                              QDBusConnection::ExportAllSlots | QDBusConnection::ExportAllSignals) &&
           bus.registerService(u"org.freedesktop.portal.Desktop"_s);
  }
  void setLessMotion(bool on) { emit SettingChanged(kAppearance, kLessMotion, QDBusVariant(uint(on))); }

 public slots:
  QDBusVariant Read(const QString& group, const QString& key) {
    if (group == kAppearance) return QDBusVariant(uint(key == kLessMotion));
    return QDBusVariant(true); // animations are on, another way of asking
  }

 signals:
  void SettingChanged(const QString& group, const QString& key, const QDBusVariant& value);
};

} // namespace

class TestStillness : public QObject {
  Q_OBJECT

 private slots:
  void initTestCase();
  void sweepsStandAndValuesMove();

 private:
  servers::Server m_bus;
  Portal m_portal;
};

void TestStillness::initTestCase() {
  if (!servers::startBus(&m_bus)) QSKIP("no dbus-daemon here");
  qputenv("DBUS_SESSION_BUS_ADDRESS", m_bus.answer().toUtf8());
  Theme::get().install(qApp); // looks for the portal, and hears when it comes
  QVERIFY(m_portal.open(m_bus.answer()));
  QTRY_VERIFY(compat::reducedMotion());
}

void TestStillness::sweepsStandAndValuesMove() {
  ui::ProgressRing ring;
  ui::Radar radar;
  ui::StepBar bar;
  bar.resize(100, 4);
  for (QWidget* widget : QWidgetList{&ring, &radar, &bar}) widget->show();
  ring.setOrbiting(true);
  radar.setRunning(true);
  bar.setState(ui::StepBar::Running);
  ring.setProgress(1);
  QTRY_COMPARE(ring.shown(), 1.0); // in no less than 43 beats
  QCOMPARE(ring.orbit(), 0.0);
  QCOMPARE(radar.angle(), 0.0);
  QCOMPARE(bar.phase(), 0.0);
  QVERIFY(!bar.isSweeping());
  // At its phase the band would be out of sight: it stands in the middle.
  const QImage still = rendered(bar);
  const QBrush band = Theme::gradient(ui::stepBand({100, 4}, 0.5));
  QVERIFY(isNear(at(still, {50, 2}), brushAt(band, {50, 2})));
  for (const double x : {10.0, 90.0}) QVERIFY(isNear(at(still, {x, 2}), Theme::get().track));

  m_portal.setLessMotion(false);
  QTRY_VERIFY(ring.orbit() > 0 && radar.angle() > 0 && bar.phase() > 0);
  m_portal.setLessMotion(true);
  QTRY_VERIFY(!bar.isSweeping());
  QVERIFY(radar.isRunning()); // it only waits
}

int main(int argc, char** argv) { return uitest::run<TestStillness>(argc, argv); }

#include "tst_stillness.moc"
