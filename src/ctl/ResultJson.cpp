#include "ctl/ResultJson.h"

#include <nlohmann/json.hpp>

namespace mortane::ctl {
namespace {

using Json = nlohmann::ordered_json;

std::string Line(const Json& object) {
  return object.dump(-1, ' ', false, Json::error_handler_t::replace);
}

const char* UseWord(DeviceUse use) {
  switch (use) {
    case DeviceUse::Free:
      return "free";
    case DeviceUse::InUse:
      return "in use";
    default:
      return "not available";
  }
}

Json KeyOf(const NamedItem& item) {
  return {{"item", item.name},
          {"section", item.key.section},
          {"element", item.key.element},
          {"position", item.key.position},
          {"attribute", item.key.attribute}};
}

Json ValueOf(const NamedItem& item) {
  return {{"value", item.value}, {"words", item.words}};
}

Json ListOf(const std::vector<NamedItem>& items) {
  Json list = Json::array();
  for (const NamedItem& item : items) {
    Json entry = KeyOf(item);
    entry.update(ValueOf(item));
    list.push_back(std::move(entry));
  }
  return list;
}

Json ListOf(const std::vector<NamedChange>& changes) {
  Json list = Json::array();
  for (const NamedChange& change : changes) {
    Json entry = KeyOf(change.to);
    entry["from"] = ValueOf(change.from);
    entry["to"] = ValueOf(change.to);
    list.push_back(std::move(entry));
  }
  return list;
}

Json ObjectOf(const ComparisonResult& result) {
  Json object = {{"changes", result.changed.size()}};
  if (!result.device.empty()) object["device"] = result.device;
  object["files"] = result.files;
  object["changed"] = ListOf(result.changed);
  if (result.device.empty()) {
    object["onlyFirst"] = ListOf(result.onlyFirst);
    object["onlySecond"] = ListOf(result.onlySecond);
  } else {
    object["unknown"] = ListOf(result.unknown);
    object["notOnMicroscope"] = ListOf(result.notOnMicroscope);
    object["refused"] = result.refused;
    object["unread"] = result.unread;
  }
  return object;
}

const char* SendingWord(Sending sending) {
  switch (sending) {
    case Sending::NothingToDo:
      return "nothing to do";
    case Sending::DryRun:
      return "dry run";
    case Sending::Declined:
      return "declined";
    case Sending::Done:
      return "done";
    default:
      return "partly";
  }
}

}  // namespace

std::string ToJson(const std::vector<DeviceRow>& devices) {
  Json list = Json::array();
  for (const DeviceRow& row : devices) {
    list.push_back({{"index", row.index}, {"name", row.name}, {"use", UseWord(row.use)}});
  }
  return Line({{"devices", std::move(list)}});
}

std::string ToJson(const ComparisonResult& result) {
  return Line(ObjectOf(result));
}

std::string ToJson(const SendResult& result) {
  Json object = ObjectOf(result.comparison);
  object["result"] = SendingWord(result.sending);
  object["backup"] = result.backup.empty() ? Json() : Json(result.backup);
  object["written"] = ListOf(result.written);
  object["notWritten"] = ListOf(result.notWritten);
  object["notKnown"] = ListOf(result.notKnown);
  object["failures"] = result.failures;
  object["interrupted"] = result.endAsked;
  return Line(object);
}

std::string ToJson(const std::vector<BackupRow>& backups, std::size_t removed) {
  Json list = Json::array();
  for (const BackupRow& row : backups) {
    list.push_back({{"device", row.device},
                    {"number", row.number},
                    {"time", TimeInFileName(row.backup.time)},
                    {"file", row.backup.path}});
  }
  return Line({{"backups", std::move(list)}, {"removed", removed}});
}

std::string ToJson(const CheckedFile& file) {
  return Line({{"file", file.file},
               {"problem", file.problem.empty() ? Json() : Json(file.problem)},
               {"refused", file.refused}});
}

std::string WatchedToJson(const std::string& time, const ComparisonResult& changes) {
  return Line({{"time", time},
               {"device", changes.device},
               {"changed", ListOf(changes.changed)},
               {"gone", ListOf(changes.onlyFirst)},
               {"new", ListOf(changes.onlySecond)}});
}

}  // namespace mortane::ctl
