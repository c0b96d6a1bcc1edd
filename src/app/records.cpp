#include "app/records.h"

void records::registerMetaTypes() {
  qRegisterMetaType<CategoryResult>("CategoryResult");
  qRegisterMetaType<QList<CategoryResult>>("QList<CategoryResult>");
  qRegisterMetaType<QList<CategoryDef>>("QList<CategoryDef>");
  qRegisterMetaType<CleanReport>("CleanReport");
  qRegisterMetaType<QList<LargeFile>>("QList<LargeFile>");
}
