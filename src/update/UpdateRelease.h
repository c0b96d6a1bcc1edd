/// One release as the update feed tells it.
#pragma once

#include <QString>
#include <QStringList>
#include <QUrl>

struct UpdateRelease {
  QString version;     ///< two to four dotted numbers
  QString size;        ///< to be shown, in the feed's own words; no number
  QString date;        ///< to be shown, in the feed's own words
  QString sha256;      ///< of the download: 64 hexadecimal digits in lower case
  QStringList changes; ///< what is new, a line each; plain text from the network
  QUrl url;            ///< of the download
};
