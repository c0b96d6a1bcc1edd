/// What the tests of a damaged store share: one that held rules, and what must be true of it whatever has become of it.
#pragma once

#include "app/AppSettings.h"
#include "app/identity.h"
#include "support/FixtureHome.h"
#include "support/settings.h"

#include <QDir>
#include <QTest>

#include <algorithm>

inline const QStringList kRules = {QStringLiteral("**/.git"), QStringLiteral("~/Documents/Prüfung, alt"),
                                   QStringLiteral("*.iso")};

class DamageTest : public QObject {
 protected:
  using Store = AppSettings::Store;

  DamageTest() {
    identity::apply();
    settings();
  }

  /// Before each case: a sound store with the rules and two further settings.
  void make() {
    settingsstore::forget();
    settings().setExclusions(kRules);
    settings().setThemeMode(AppSettings::Light);
    settings().setLargeFileMB(250);
    QCOMPARE(settings().look(), Store::Sound);
  }
  /// After it: nothing of the store is left, nor what was set aside.
  void drop() {
    QFile::setPermissions(path(), QFile::ReadOwner | QFile::WriteOwner);
    QFile::remove(path());
    QDir().rmdir(path());
    QDir(settings().memoryPath()).removeRecursively();
    QFile::remove(settings().memoryPath());
    for (const QString& name : aside()) {
      const QString whole = QFileInfo(path()).path() + QLatin1Char('/') + name;
      QFile::remove(whole);
      QDir().rmdir(whole);
    }
  }

  static AppSettings& settings() { return AppSettings::instance(); }
  static QString path() { return settings().path(); }
  static QByteArray bytes() { return settingsstore::bytes(path()); }
  static void write(const QByteArray& text) { settingsstore::write(path(), text); }
  /// Files of the store's folder that were set aside.
  static QStringList aside() {
    return QDir(QFileInfo(path()).path())
        .entryList({QStringLiteral("*.damaged*")},
                   QDir::AllEntries | QDir::System | QDir::Hidden | QDir::NoDotAndDotDot);
  }
  static bool keepsAllRules() {
    const QStringList rules = settings().exclusions();
    return std::all_of(kRules.cbegin(), kRules.cend(), [&](const QString& rule) { return rules.contains(rule); });
  }
  /// What must be true whatever has become of the store's bytes.
  static void checkNoRuleIsLost(const QByteArray& text) {
    write(text);
    const Store worth = settings().look();
    QVERIFY2(keepsAllRules(), text.constData());
    if (worth == Store::Sound) {
      const QStringList stored =
          QSettings(path(), QSettings::IniFormat).value(QStringLiteral("clean/exclusions")).toStringList();
      for (const QString& rule : kRules) QVERIFY2(stored.contains(rule), text.constData());
    }
    QCOMPARE(bytes(), text);
  }

 private:
  FixtureHome m_home;
};
