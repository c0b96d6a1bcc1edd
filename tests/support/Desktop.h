/// Stands in for the desktop that files, folders and addresses are opened with.
#pragma once

#include <QList>
#include <QObject>
#include <QStringList>
#include <QUrl>

/// Takes what the program has the desktop open, as long as it lives; nothing of it is shown anywhere.
class Desktop : public QObject {
  Q_OBJECT

 public:
  /// @param schemes  the kinds of addresses that it takes; one of them can only be taken by one desktop at a time
  explicit Desktop(const QStringList& schemes = {QStringLiteral("file")});
  ~Desktop() override;

  QList<QUrl> urls;   ///< what was opened, in that order
  QStringList opened; ///< the same, each as the path in it

 public slots:
  void open(const QUrl& url);

 private:
  QStringList m_schemes;
};
