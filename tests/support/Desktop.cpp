#include "support/Desktop.h"

#include <QDesktopServices>

Desktop::Desktop(const QStringList& schemes) : m_schemes(schemes) {
  for (const QString& scheme : schemes) QDesktopServices::setUrlHandler(scheme, this, "open");
}

Desktop::~Desktop() {
  for (const QString& scheme : m_schemes) QDesktopServices::unsetUrlHandler(scheme);
}

void Desktop::open(const QUrl& url) {
  urls << url;
  opened << (url.isLocalFile() ? url.toLocalFile() : url.path());
}
