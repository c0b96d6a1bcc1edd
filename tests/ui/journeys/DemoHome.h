/// A demo home of a host, made by the tool that also makes those of ./dev run --demo, with the list of what is in it.
#pragma once

#include "support/FixtureHome.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>

struct DemoItem {
  QString path;
  bool wholeRoot = false; ///< what it holds can go, and the folder stays
};

class DemoHome {
 public:
  /// Makes it in a folder of @p around, and puts this process in its environment.
  /// @param host  "linux" or "mac"
  DemoHome(const FixtureHome& around, const QString& host) : m_top(around.outside(QStringLiteral("demo"))) {
    QProcess maker;
    maker.start(QStringLiteral(TARNWICK_PYTHON),
                {QStringLiteral("-B"), QStringLiteral(TARNWICK_DEMO_HOME), m_top, QStringLiteral("--host"), host});
    if (!maker.waitForFinished(kPatienceMs) || maker.exitCode() != 0)
      qFatal("no demo home: %s", maker.readAllStandardError().constData());
    for (const QByteArray& line : maker.readAllStandardOutput().split('\n'))
      if (const qsizetype at = line.indexOf('='); at > 0) qputenv(line.left(at).constData(), line.mid(at + 1));
    QFile list(m_top + QStringLiteral("/demo-home.json"));
    if (!list.open(QIODevice::ReadOnly)) qFatal("the demo home has no list");
    m_list = QJsonDocument::fromJson(list.readAll()).object();
  }
  ~DemoHome() {
    for (const char* name : {"XDG_CACHE_HOME", "XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_STATE_HOME", "TARNWICK_HOST"})
      qunsetenv(name);
  }
  DemoHome(const DemoHome&) = delete;
  DemoHome& operator=(const DemoHome&) = delete;

  [[nodiscard]] QString top() const { return m_top; }
  [[nodiscard]] static QString path(const QString& relative) {
    return QFile::decodeName(qgetenv("HOME")) + u'/' + relative;
  }
  /// What a scan finds in a category.
  [[nodiscard]] QList<DemoItem> items(const QString& category) const {
    QList<DemoItem> found;
    for (const QJsonValue& one : m_list[QStringLiteral("items")][category].toArray())
      found << DemoItem{one[QStringLiteral("path")].toString(), one[QStringLiteral("wholeRoot")].toBool()};
    return found;
  }
  /// What must stay below items, with all below it.
  [[nodiscard]] QStringList stays() const { return m_list[QStringLiteral("stays")].toObject().keys(); }

 private:
  static constexpr int kPatienceMs = 100'000; // for what takes half a second

  QString m_top;
  QJsonObject m_list;
};
