#include "controller/simulator/DatabaseObjects.h"

#include <algorithm>
#include <string_view>

namespace mortane::controller {
namespace {

// One record of a list, looked up at every use.
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

template <typename Record>
using RecordMembers = MemberTable<RecordLink<Record>>;

template <typename Record, typename Field>
void AddField(RecordMembers<Record>& table, std::string_view member, Field Record::*field) {
  table.OnGet(member, 0,
              [field](const RecordLink<Record>& link, Args) -> Value { return link.Use().*field; });
}

void AddItemCode(RecordMembers<CubeData>& table, std::string_view member,
                 std::int32_t CubeData::*field) {
  AddField(table, member, field);
  table.OnPut(member, 0, [field](const RecordLink<CubeData>& link, const Value& value, Args) {
    link.device.Assign(link.UseToWrite().*field, LongArgument(value));
  });
}

// What every record of the database has.
template <typename Record>
RecordMembers<Record> BaseMembers() {
  RecordMembers<Record> table;
  AddField(table, "IsOption", &Record::option);
  AddField(table, "Name", &Record::name);
  AddField(table, "Code", &Record::code);
  table.OnPut("Name", 0, [](const RecordLink<Record>& link, const Value& value, Args) {
    link.device.Assign(link.UseToWrite().name, TextArgument(value));
  });
  return table;
}

template <typename Record>
RecordMembers<Record> MembersOf() {
  return BaseMembers<Record>();
}

Value SetProperties(const RecordLink<ObjectiveData>& link, Args args) {
  ObjectiveData& record = link.UseToWrite();
  ObjectiveData written = record;
  written.series = LongArgument(args[0]);
  written.type = LongArgument(args[1]);
  written.magnification = DoubleArgument(args[2]);
  written.workingDistance = DoubleArgument(args[3]);
  written.numericalAperture = DoubleArgument(args[4]);
  link.device.Assign(record, written);
  return {};
}

template <>
RecordMembers<ObjectiveData> MembersOf<ObjectiveData>() {
  auto table = BaseMembers<ObjectiveData>();
  AddField(table, "Magnification", &ObjectiveData::magnification);
  AddField(table, "NumericalAperture", &ObjectiveData::numericalAperture);
  AddField(table, "WorkingDistance", &ObjectiveData::workingDistance);
  AddField(table, "TypeCode", &ObjectiveData::type);
  AddField(table, "SeriesCode", &ObjectiveData::series);
  table.OnCall("SetProperties", 5, SetProperties);
  return table;
}

template <>
RecordMembers<CondenserData> MembersOf<CondenserData>() {
  auto table = BaseMembers<CondenserData>();
  table.OnGet("SuitsAddress", 1, [](const RecordLink<CondenserData>& link, Args args) -> Value {
    const std::string& suits = link.Use().suits;
    const std::int32_t address = LongArgument(args[0]);
    const bool known = address >= 1 && static_cast<std::size_t>(address) <= suits.size();
    return std::int32_t{known && suits[static_cast<std::size_t>(address) - 1] == '1'};
  });
  return table;
}

template <>
RecordMembers<CubeData> MembersOf<CubeData>() {
  auto table = BaseMembers<CubeData>();
  AddItemCode(table, "ExciterCode", &CubeData::exciter);
  AddItemCode(table, "DichroicCode", &CubeData::dichroic);
  AddItemCode(table, "BarrierCode", &CubeData::barrier);
  return table;
}

template <>
RecordMembers<ListedName> MembersOf<ListedName>() {
  RecordMembers<ListedName> table;
  AddField(table, "Name", &ListedName::name);
  return table;
}

template <typename Record>
struct ListLink {
  DeviceLink device;
  std::vector<Record> DatabaseData::*list;

  std::size_t Count() const { return (device.Connected().database.*list).size(); }
};

template <typename Record>
Value ItemOf(const ListLink<Record>& link, Args args) {
  static const RecordMembers<Record> members = MembersOf<Record>();
  const std::int32_t index = LongArgument(args[0]);
  if (index < 1 || static_cast<std::size_t>(index) > link.Count()) {
    RaiseSimulated("No item " + std::to_string(index) + " in the list.");
  }
  return MakeObject(
      members, RecordLink<Record>{link.device, link.list, static_cast<std::size_t>(index) - 1});
}

template <typename Record>
Value CountOf(const ListLink<Record>& link, Args) {
  return static_cast<std::int32_t>(link.Count());
}

using DatabaseMembers = MemberTable<DeviceLink>;

// The lists of names have no count of their own: it is a member of the database.
void AddNames(DatabaseMembers& table, std::string_view listMember, std::string_view countMember,
              std::vector<ListedName> DatabaseData::*list) {
  using Names = ListLink<ListedName>;
  static const MemberTable<Names> members =
      MemberTable<Names>().OnGet("Item", 1, ItemOf<ListedName>);
  table.OnGet(listMember, 0, [list](const DeviceLink& link, Args) -> Value {
    link.Connected();
    return MakeObject(members, Names{link, list});
  });
  table.OnGet(countMember, 0, [list](const DeviceLink& link, Args) -> Value {
    return static_cast<std::int32_t>(Names{link, list}.Count());
  });
}

template <typename Record>
void AddRecords(DatabaseMembers& table, std::string_view listMember,
                std::vector<Record> DatabaseData::*list) {
  using Records = ListLink<Record>;
  static const MemberTable<Records> members =
      MemberTable<Records>().OnGet("Item", 1, ItemOf<Record>).OnGet("Count", 0, CountOf<Record>);
  table.OnGet(listMember, 0, [list](const DeviceLink& link, Args) -> Value {
    link.Connected();
    return MakeObject(members, Records{link, list});
  });
}

template <typename Record>
void AddFixedCount(DatabaseMembers& table, std::string_view member,
                   std::vector<Record> DatabaseData::*list, std::int32_t firstOption) {
  table.OnGet(member, 0, [list, firstOption](const DeviceLink& link, Args) -> Value {
    const std::vector<Record>& records = link.Connected().database.*list;
    const auto count = std::count_if(records.begin(), records.end(), [&](const Record& record) {
      return record.code >= 1 && record.code < firstOption;
    });
    return static_cast<std::int32_t>(count);
  });
}

DatabaseMembers MakeMembers() {
  using Data = DatabaseData;
  DatabaseMembers table;
  AddRecords(table, "Nosepieces", &Data::objectives);
  AddRecords(table, "Condensers", &Data::condensers);
  AddRecords(table, "Exciters", &Data::exciters);
  AddRecords(table, "Barriers", &Data::barriers);
  AddRecords(table, "Dichroics", &Data::dichroics);
  AddRecords(table, "FilterCubes", &Data::cubes);
  AddFixedCount(table, "CondenserCount", &Data::condensers, kFirstCondenserOption);
  AddFixedCount(table, "ExciterCount", &Data::exciters, kFirstOption);
  AddFixedCount(table, "DichroicCount", &Data::dichroics, kFirstOption);
  AddFixedCount(table, "BarrierCount", &Data::barriers, kFirstOption);
  AddFixedCount(table, "FilterCubeCount", &Data::cubes, kFirstOption);
  AddNames(table, "ObjectiveSeries", "ObjectiveSeriesCount", &Data::series);
  AddNames(table, "ObjectiveTypes", "ObjectiveTypeCount", &Data::types);
  return table;
}

}  // namespace

ObjectRef MakeDatabase(const DeviceLink& link) {
  static const DatabaseMembers members = MakeMembers();
  return MakeObject(members, link);
}

}  // namespace mortane::controller
