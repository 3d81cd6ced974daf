#include "controller/simulator/DatabaseObjects.h"

#include <algorithm>
#include <string_view>

namespace mortane::controller {
namespace {

// One record by its place in the database; the record is looked up anew at every use.
template <typename Record>
struct RecordLink {
  DeviceLink device;
  std::vector<Record> DatabaseData::*list;
  std::size_t index;

  Record& Use() const {
    std::vector<Record>& records = device.Connected().database.*list;
    if (index >= records.size()) RaiseSimulated("The database has lost this record.");
    return records[index];
  }

  Record& UseToWrite() const {
    Record& record = Use();
    if (!record.option) {
      RaiseSimulated("Record " + std::to_string(record.code) + " is fixed.");
    }
    return record;
  }
};

template <typename Record, typename Field>
void AddField(MemberObject& object, const RecordLink<Record>& link, std::string_view member,
              Field Record::*field) {
  object.OnGet(member, 0, [link, field](Args) -> Value { return link.Use().*field; });
}

void AddItemCode(MemberObject& object, const RecordLink<CubeData>& link, std::string_view member,
                 std::int32_t CubeData::*field) {
  AddField(object, link, member, field);
  object.OnPut(member, 0, [link, field](const Value& value, Args) {
    link.device.Assign(link.UseToWrite().*field, LongArgument(value));
  });
}

template <typename Record>
std::shared_ptr<MemberObject> MakeRecordBase(const RecordLink<Record>& link) {
  auto object = std::make_shared<MemberObject>();
  AddField(*object, link, "IsOption", &Record::option);
  AddField(*object, link, "Name", &Record::name);
  AddField(*object, link, "Code", &Record::code);
  object->OnPut("Name", 0, [link](const Value& value, Args) {
    link.device.Assign(link.UseToWrite().name, TextArgument(value));
  });
  return object;
}

ObjectRef MakeRecord(const RecordLink<FilterData>& link) {
  return MakeRecordBase(link);
}

ObjectRef MakeRecord(const RecordLink<ObjectiveData>& link) {
  auto object = MakeRecordBase(link);
  AddField(*object, link, "Magnification", &ObjectiveData::magnification);
  AddField(*object, link, "NumericalAperture", &ObjectiveData::numericalAperture);
  AddField(*object, link, "WorkingDistance", &ObjectiveData::workingDistance);
  AddField(*object, link, "TypeCode", &ObjectiveData::type);
  AddField(*object, link, "SeriesCode", &ObjectiveData::series);
  object->OnCall("SetProperties", 5, [link](Args args) -> Value {
    ObjectiveData& record = link.UseToWrite();
    ObjectiveData written = record;
    written.series = LongArgument(args[0]);
    written.type = LongArgument(args[1]);
    written.magnification = DoubleArgument(args[2]);
    written.workingDistance = DoubleArgument(args[3]);
    written.numericalAperture = DoubleArgument(args[4]);
    link.device.Assign(record, written);
    return {};
  });
  return object;
}

ObjectRef MakeRecord(const RecordLink<CondenserData>& link) {
  auto object = MakeRecordBase(link);
  object->OnGet("SuitsAddress", 1, [link](Args args) -> Value {
    const std::string& suits = link.Use().suits;
    const std::int32_t address = LongArgument(args[0]);
    const bool known = address >= 1 && static_cast<std::size_t>(address) <= suits.size();
    return std::int32_t{known && suits[static_cast<std::size_t>(address) - 1] == '1'};
  });
  return object;
}

ObjectRef MakeRecord(const RecordLink<CubeData>& link) {
  auto object = MakeRecordBase(link);
  AddItemCode(*object, link, "ExciterCode", &CubeData::exciter);
  AddItemCode(*object, link, "DichroicCode", &CubeData::dichroic);
  AddItemCode(*object, link, "BarrierCode", &CubeData::barrier);
  return object;
}

ObjectRef MakeRecord(const RecordLink<ListedName>& link) {
  auto object = std::make_shared<MemberObject>();
  AddField(*object, link, "Name", &ListedName::name);
  return object;
}

template <typename Record>
std::shared_ptr<MemberObject> MakeList(const DeviceLink& link,
                                       std::vector<Record> DatabaseData::*list) {
  auto object = std::make_shared<MemberObject>();
  object->OnGet("Item", 1, [link, list](Args args) -> Value {
    const std::int32_t index = LongArgument(args[0]);
    const auto count = (link.Connected().database.*list).size();
    if (index < 1 || static_cast<std::size_t>(index) > count) {
      RaiseSimulated("No item " + std::to_string(index) + " in the list.");
    }
    return MakeRecord(RecordLink<Record>{link, list, static_cast<std::size_t>(index) - 1});
  });
  return object;
}

// The lists of names have no count of their own: it is a member of the database.
void AddNames(MemberObject& database, const DeviceLink& link, std::string_view listMember,
              std::string_view countMember, std::vector<ListedName> DatabaseData::*list) {
  database.OnGet(listMember, 0, [link, list](Args) -> Value {
    link.Connected();
    return MakeList(link, list);
  });
  database.OnGet(countMember, 0, [link, list](Args) -> Value {
    return static_cast<std::int32_t>((link.Connected().database.*list).size());
  });
}

template <typename Record>
void AddRecords(MemberObject& database, const DeviceLink& link, std::string_view listMember,
                std::vector<Record> DatabaseData::*list) {
  database.OnGet(listMember, 0, [link, list](Args) -> Value {
    link.Connected();
    auto object = MakeList(link, list);
    object->OnGet("Count", 0, [link, list](Args) -> Value {
      return static_cast<std::int32_t>((link.Connected().database.*list).size());
    });
    return object;
  });
}

template <typename Record>
void AddFixedCount(MemberObject& database, const DeviceLink& link, std::string_view member,
                   std::vector<Record> DatabaseData::*list, std::int32_t firstOption) {
  database.OnGet(member, 0, [link, list, firstOption](Args) -> Value {
    const std::vector<Record>& records = link.Connected().database.*list;
    const auto count = std::count_if(records.begin(), records.end(), [&](const Record& record) {
      return record.code >= 1 && record.code < firstOption;
    });
    return static_cast<std::int32_t>(count);
  });
}

}  // namespace

ObjectRef MakeDatabase(const DeviceLink& link) {
  using Data = DatabaseData;
  auto database = std::make_shared<MemberObject>();
  AddRecords(*database, link, "Nosepieces", &Data::objectives);
  AddRecords(*database, link, "Condensers", &Data::condensers);
  AddRecords(*database, link, "Exciters", &Data::exciters);
  AddRecords(*database, link, "Barriers", &Data::barriers);
  AddRecords(*database, link, "Dichroics", &Data::dichroics);
  AddRecords(*database, link, "FilterCubes", &Data::cubes);
  AddFixedCount(*database, link, "CondenserCount", &Data::condensers, kFirstCondenserOption);
  AddFixedCount(*database, link, "ExciterCount", &Data::exciters, kFirstOption);
  AddFixedCount(*database, link, "DichroicCount", &Data::dichroics, kFirstOption);
  AddFixedCount(*database, link, "BarrierCount", &Data::barriers, kFirstOption);
  AddFixedCount(*database, link, "FilterCubeCount", &Data::cubes, kFirstOption);
  AddNames(*database, link, "ObjectiveSeries", "ObjectiveSeriesCount", &Data::series);
  AddNames(*database, link, "ObjectiveTypes", "ObjectiveTypeCount", &Data::types);
  return database;
}

}  // namespace mortane::controller
