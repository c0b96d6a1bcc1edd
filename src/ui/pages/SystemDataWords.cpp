#include "ui/pages/SystemDataWords.h"

#include "core/fmt.h"
#include "core/platform.h"

using namespace Qt::StringLiterals;

namespace ui {

namespace {

bool isMac() { return platform::host() == platform::Host::Mac; }

/// What the system holds back of its snapshots can't be measured, only counted.
bool isCounted(const SystemDataItem& item) { return item.id == "snapshots"_L1; }

QString questionBody(const SystemDataItem& item) {
  switch (item.action) {
  case SystemDataItem::RemoveSnapshots:
    return SystemDataWords::tr(
        "macOS will remove its local Time Machine snapshots on this disk. Your Time Machine backups on other drives "
        "aren't affected. macOS will ask for your administrator password.");
  case SystemDataItem::DeleteUnavailable:
    return SystemDataWords::tr(
        "Simulator devices whose iOS runtime is no longer installed will be deleted, with their apps and data.");
  case SystemDataItem::MoveToTrash:
    return SystemDataWords::tr("%1 will be moved to the Trash. Xcode recreates it when you connect a device again.")
        .arg(fmt::bytes(item.bytes));
  default:
    return {};
  }
}

} // namespace

QString SystemDataWords::sizeOf(const SystemDataItem& item) {
  if (isCounted(item)) return item.detail;
  if (!item.denied) return fmt::bytes(item.bytes);
  if (item.bytes == 0) return isMac() ? tr("Needs Full Disk Access") : tr("No permission to read");
  //: %1: a size; not everything could be measured
  return tr("at least %1").arg(fmt::bytes(item.bytes));
}

QString SystemDataWords::detailOf(const SystemDataItem& item) {
  if (isCounted(item) || item.detail.isEmpty()) return {};
  //: %1: names of folders, with commas
  return item.id == "hidden"_L1 ? tr("Largest: %1").arg(item.detail) : item.detail;
}

//: Heading over the rows that the user can do nothing about
QString SystemDataWords::managed() { return isMac() ? tr("Managed by macOS") : tr("Managed by the system"); }

QString SystemDataWords::explanation() {
  if (!isMac())
    return tr("Only what you may read is counted. Folders that belong to the system or to other users are left out, "
              "and folders shared by several rows are counted once.");
  return tr("<b>Why Storage settings shows a bigger number</b><br>macOS works out System Data as whatever is left on "
            "the disk after Apps, Documents, Photos and its other categories. That remainder also includes things no "
            "app can measure: the Spotlight index, APFS snapshots, purgeable space and root-only system files. Without "
            "Full Disk Access, Tarnwick also can't see protected folders, so its total is lower than what macOS "
            "reports.");
}

SystemDataWords::Question SystemDataWords::questionFor(const SystemDataItem& item) {
  const QString label = item.actionLabel();
  //: A question made of what a button says, such as “Remove snapshots”
  return {.title = tr("%1?").arg(label), .body = questionBody(item), .confirm = label};
}

} // namespace ui
