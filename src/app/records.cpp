#include "app/records.h"

#include "core/platform.h"

#include <QCoreApplication>

namespace {

/// Holds the words' context.
struct SystemData {
  Q_DECLARE_TR_FUNCTIONS(SystemData)
};

} // namespace

QString SystemDataItem::actionLabel() const {
  switch (action) {
  case RevealInFinder:
    //: Button of a row on the page System Data
    return platform::host() == platform::Host::Mac ? SystemData::tr("Review in Finder")
                                                   : SystemData::tr("Show in Files");
  case MoveToTrash:
    return SystemData::tr("Move to Trash");
  case RemoveSnapshots:
    return SystemData::tr("Remove snapshots");
  case DeleteUnavailable:
    //: Button: delete the simulator devices that can not be used any more
    return SystemData::tr("Delete unavailable");
  case CleanInCleanup:
    //: Button: go to the page Cleanup to clean it there
    return SystemData::tr("Clean in Cleanup");
  case OpenXcode:
    return SystemData::tr("Open Xcode");
  case None:
    break;
  }
  return {};
}

bool SystemDataItem::destructive() const {
  return action == MoveToTrash || action == RemoveSnapshots || action == DeleteUnavailable;
}

void records::registerMetaTypes() {
  qRegisterMetaType<CategoryResult>("CategoryResult");
  qRegisterMetaType<QList<CategoryResult>>("QList<CategoryResult>");
  qRegisterMetaType<QList<CategoryDef>>("QList<CategoryDef>");
  qRegisterMetaType<CleanReport>("CleanReport");
  qRegisterMetaType<QList<LargeFile>>("QList<LargeFile>");
  qRegisterMetaType<QList<SystemDataItem>>("QList<SystemDataItem>");
}
