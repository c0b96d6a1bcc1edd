/// What the tests of the program share: the Linux host, and a new sample home for each case.
#pragma once

#include "support/CliRun.h"
#include "support/SampleHome.h"

#include <QObject>

#include <functional>
#include <memory>

class CliTest : public QObject {
  Q_OBJECT

 private slots:
  void initTestCase();
  void init() { make(); }
  void cleanup() { drop(); }

 protected:
  void make();
  void drop();

  /// Whether something stands at a path below the home folder.
  [[nodiscard]] bool there(const QString& relative) const;
  /// The lock that the program under test takes for a clean in this home.
  [[nodiscard]] QString cleanLock() const { return m_home->path(QString::fromLatin1(kCleanLock)); }

  /// A run that was told to stop.
  struct Interruption {
    QStringList arguments;
    int signal = 0;
    std::function<bool()> isMidway = [] { return true; };  ///< when to send the signal, once the program handles it
    std::function<bool()> wasInTime = [] { return true; }; ///< whether there was still something left to do
  };
  /// Makes new homes with ever more installers in them until the signal comes in time, however fast the machine is.
  /// @param installers  receives how many there were
  [[nodiscard]] CliRun interrupt(const Interruption& how, int* installers = nullptr);

  std::unique_ptr<FixtureHome> m_home;
};

/// All of a file; empty where there is none.
[[nodiscard]] QByteArray contents(const QString& path);
/// What stands at @p path takes on the disk, in bytes, without following a link; -1 where there is nothing.
[[nodiscard]] qint64 allocated(const QString& path);
