#include "cli/json.h"

#include "core/platform.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <array>

using namespace Qt::StringLiterals;

namespace cli {
namespace {

constexpr std::array kSafetyWords = {"safe", "review", "permanent"};
/// By SystemDataItem::Action.
constexpr std::array kActionWords = {
    "none", "reveal", "moveToTrash", "removeSnapshots", "deleteUnavailable", "cleanInCleanup", "openXcode"};

QJsonObject object(const CleanItem& item) {
  return {{u"path"_s, item.path},        {u"name"_s, item.name},   {u"wholeRoot"_s, item.wholeRoot},
          {u"owner"_s, item.owner},      {u"bytes"_s, item.bytes}, {u"files"_s, item.files},
          {u"modified"_s, item.modified}};
}

QJsonObject object(const CategoryResult& category) {
  QJsonArray items;
  for (const CleanItem& item : category.items) items << object(item);
  return {{u"id"_s, category.def.id},
          {u"title"_s, category.def.title},
          {u"safety"_s, QLatin1String(kSafetyWords.at(category.def.safety))},
          {u"bytes"_s, category.bytes},
          {u"files"_s, category.files},
          {u"accessDenied"_s, category.accessDenied},
          {u"items"_s, items}};
}

QJsonObject object(const LargeFile& file) {
  return {{u"path"_s, file.path}, {u"name"_s, file.name}, {u"dir"_s, file.dir},
          {u"kind"_s, file.kind}, {u"size"_s, file.size}, {u"lastUsed"_s, file.lastUsed.toMSecsSinceEpoch()}};
}

QJsonObject object(const SystemDataItem& item) {
  return {{u"id"_s, item.id},
          {u"title"_s, item.title},
          {u"actionable"_s, item.actionable},
          {u"action"_s, QLatin1String(kActionWords.at(static_cast<size_t>(item.action)))},
          {u"bytes"_s, item.bytes},
          {u"files"_s, item.files},
          {u"denied"_s, item.denied},
          {u"count"_s, item.count},
          {u"detail"_s, item.detail}};
}

QString line(const QJsonObject& object) {
  return QString::fromUtf8(QJsonDocument(object).toJson(QJsonDocument::Compact)) + u'\n';
}

} // namespace

QString json::text(const Scan& scan) {
  QJsonArray categories;
  qint64 bytes = 0;
  qint64 files = 0;
  for (const CategoryResult& one : scan.categories) {
    categories << object(one);
    bytes += one.bytes;
    files += one.files;
  }
  return line({{u"host"_s, platform::host() == platform::Host::Mac ? u"mac"_s : u"linux"_s},
               {u"cancelled"_s, scan.cancelled},
               {u"bytes"_s, bytes},
               {u"files"_s, files},
               {u"elapsedMs"_s, scan.elapsedMs},
               {u"categories"_s, categories}});
}

QString json::text(const Clean& clean) {
  const CleanReport& report = clean.report;
  return line({{u"dryRun"_s, clean.dryRun},
               {u"mode"_s, clean.toTrash ? u"trash"_s : u"delete"_s},
               {u"freedBytes"_s, report.freedBytes},
               {u"removedFiles"_s, report.removedFiles},
               {u"skipped"_s, report.skipped},
               {u"skippedSamples"_s, QJsonArray::fromStringList(report.skippedSamples)},
               {u"cleanedIds"_s, QJsonArray::fromStringList(report.cleanedIds)},
               {u"logPath"_s, report.logPath},
               {u"needsAdmin"_s, report.needsAdmin},
               {u"runningApps"_s, QJsonArray::fromStringList(report.runningApps)}});
}

QString json::text(const Large& large) {
  QJsonArray files;
  for (const LargeFile& one : large.files) files << object(one);
  return line({{u"cancelled"_s, large.cancelled},
               {u"filesSeen"_s, large.summary.filesSeen},
               {u"found"_s, large.summary.found},
               {u"bytesFound"_s, large.summary.bytesFound},
               {u"files"_s, files}});
}

QString json::text(const SystemData& data) {
  QJsonArray items;
  qint64 bytes = 0;
  for (const SystemDataItem& one : data.items) {
    items << object(one);
    bytes += one.bytes;
  }
  return line({{u"cancelled"_s, data.cancelled}, {u"bytes"_s, bytes}, {u"items"_s, items}});
}

} // namespace cli
