#include "controller/simulator/FactRows.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <map>
#include <optional>
#include <utility>

#include "common/DigitCode.h"
#include "common/Numbers.h"
#include "controller/simulator/AccessoryRows.h"
#include "controller/simulator/CassetteAddresses.h"
#include "controller/simulator/CodeRows.h"
#include "controller/simulator/DriveRows.h"

namespace mortane::controller {
namespace {

using Rows = std::vector<FactRow>;
using Expected = std::function<std::size_t(const Instrument&)>;

std::optional<double> RealOf(const SessionValue& value) {
  if (const auto* whole = std::get_if<std::int32_t>(&value)) return *whole;
  if (const auto* small = std::get_if<std::int16_t>(&value)) return *small;
  if (const auto* flag = std::get_if<bool>(&value)) return *flag ? -1 : 0;
  if (const auto* real = std::get_if<double>(&value)) return *real;
  return std::nullopt;
}

// An argument; nothing when the path has no such number.
std::optional<std::int32_t> NumberAt(const Fact& fact, std::size_t place) {
  if (place >= fact.args.size()) return std::nullopt;
  const auto real = RealOf(fact.args[place]);
  return real ? RoundToLong(*real) : std::nullopt;
}

// The entry of a list that the path's first argument names, counted from 1. The list grows for it.
template <typename Entry>
Entry* EntryOf(std::vector<Entry>& list, const Fact& fact) {
  const auto number = NumberAt(fact, 0);
  if (!number || *number < 1 || static_cast<std::size_t>(*number) > kLongestList) return nullptr;
  const auto place = static_cast<std::size_t>(*number);
  if (list.size() < place) list.resize(place);
  return &list[place - 1];
}

template <typename Entry>
bool SetSize(std::vector<Entry>& list, const SessionValue& value) {
  std::int32_t count = 0;
  if (!SetField(count, value) || count < 0 || static_cast<std::size_t>(count) > kLongestList) {
    return false;
  }
  list.resize(std::max(list.size(), static_cast<std::size_t>(count)));
  return true;
}

std::size_t One(const Instrument& /*instrument*/) {
  return 1;
}

Expected OneIfFitted(int number) {
  return [number](const Instrument& instrument) -> std::size_t {
    return instrument.accessories.at(static_cast<std::size_t>(number) - 1).state == 0 ? 0 : 1;
  };
}

Expected Many(std::size_t count) {
  return [count](const Instrument&) { return count; };
}

std::string Joined(std::string_view object, std::string_view member) {
  return std::string(object).append(".").append(member);
}

// A row for the field that `find` gives, which is null for arguments out of range.
template <typename Find>
void Add(Rows& rows, std::string name, Expected expected, Find find) {
  rows.push_back({std::move(name),
                  [find](Instrument& instrument, const Fact& fact) {
                    auto* field = find(instrument, fact);
                    return field != nullptr && SetField(*field, fact.value);
                  },
                  std::move(expected)});
}

// The member that every accessory device has.
void AddAccessory(Rows& rows, std::string_view object, int number) {
  Add(rows, Joined(object, "AccessoryState.State"), One,
      [number](Instrument& device, const Fact&) { return &device.Accessory(number).state; });
}

void AddReadOnly(Rows& rows, const std::string& state, int number) {
  Add(rows, state + ".IsReadOnly", OneIfFitted(number),
      [number](Instrument& device, const Fact&) { return &device.Accessory(number).readOnly; });
}

void AddPlaces(Rows& rows, const AccessoryRow& row) {
  const auto places = row.places;
  const std::string positions = Joined(row.member, "Positions");
  const auto fitted = OneIfFitted(row.number);
  const auto each = [places, fitted](const Instrument& device) {
    return fitted(device) == 0 ? 0 : (device.*places).size();
  };
  rows.push_back({positions + ".Count",
                  [places](Instrument& device, const Fact& fact) {
                    return SetSize(device.*places, fact.value);
                  },
                  fitted});
  Add(rows, positions + ".Position", each, [places](Instrument& device, const Fact& fact) {
    TurretPlace* place = EntryOf(device.*places, fact);
    return place == nullptr ? nullptr : &place->position;
  });
  Add(rows, positions + ".Code", each, [places](Instrument& device, const Fact& fact) {
    TurretPlace* place = EntryOf(device.*places, fact);
    return place == nullptr ? nullptr : &place->code;
  });
}

void AddAccessories(Rows& rows) {
  for (const AccessoryRow& row : kAccessoryRows) {
    const int number = row.number;
    AddAccessory(rows, row.member, number);
    const std::string state = Joined(row.member, row.stateMember);
    Add(rows, state, OneIfFitted(number),
        [number](Instrument& device, const Fact&) { return &device.Accessory(number).value; });
    AddReadOnly(rows, state, number);
    if (row.hasOffset) {
      Add(rows, Joined(row.member, "OffsetCode"), OneIfFitted(number),
          [number](Instrument& device, const Fact&) {
            return &device.Accessory(number).offsetCode;
          });
    }
    if (row.places != nullptr) AddPlaces(rows, row);
  }
  Add(rows, "NosepieceDevice.Limitation", OneIfFitted(accessory::kNosepiece),
      [](Instrument& device, const Fact&) { return &device.limitation; });
}

template <typename Drive, typename Number>
void AddDriveField(Rows& rows, std::string name, int accessory, Drive Instrument::*drive,
                   Number Drive::*field) {
  Add(rows, std::move(name), OneIfFitted(accessory),
      [drive, field](Instrument& device, const Fact&) { return &(device.*drive.*field); });
}

template <typename Drive, std::size_t Count>
void AddDrive(Rows& rows, std::string_view object, int accessory, Drive Instrument::*drive,
              const std::array<DriveRow<Drive>, Count>& fields) {
  AddAccessory(rows, object, accessory);
  for (const DriveRow<Drive>& row : fields) {
    if (row.access == Access::Order) continue;
    AddDriveField(rows, Joined(object, row.member), accessory, drive, row.field);
  }
}

void AddDrives(Rows& rows) {
  constexpr int kZ = accessory::kZFocusDrive;
  constexpr int kXY = accessory::kXYStage;
  AddDrive(rows, "ZDriveDevice", kZ, &Instrument::zDrive, kZRows);
  AddDriveField(rows, "ZDriveDevice.Position", kZ, &Instrument::zDrive, &ZDriveData::position);
  AddReadOnly(rows, "ZDriveDevice.Position", kZ);
  AddDrive(rows, "XYDriveDevice", kXY, &Instrument::xyDrive, kXYRows);
  AddDriveField(rows, "XYDriveDevice.PositionX", kXY, &Instrument::xyDrive,
                &XYDriveData::positionX);
  AddDriveField(rows, "XYDriveDevice.PositionY", kXY, &Instrument::xyDrive,
                &XYDriveData::positionY);
  AddDriveField(rows, "XYDriveDevice.HandleMode", kXY, &Instrument::xyDrive,
                &XYDriveData::handleMode);
  AddReadOnly(rows, "XYDriveDevice.PositionX", kXY);
}

template <typename Record, typename Field>
void AddRecordField(Rows& rows, std::string_view list, std::string_view member,
                    std::vector<Record> DatabaseData::*records, Field Record::*field) {
  Add(
      rows, "AccessoryDatabase." + std::string(list) + ".Item." + std::string(member),
      [records](const Instrument& device) { return (device.database.*records).size(); },
      [records, field](Instrument& device, const Fact& fact) {
        Record* record = EntryOf(device.database.*records, fact);
        return record == nullptr ? nullptr : &(record->*field);
      });
}

template <typename Record>
void AddCount(Rows& rows, std::string_view member, std::vector<Record> DatabaseData::*records) {
  rows.push_back({Joined("AccessoryDatabase", member),
                  [records](Instrument& device, const Fact& fact) {
                    return SetSize(device.database.*records, fact.value);
                  },
                  One});
}

template <typename Record>
void AddRecords(Rows& rows, std::string_view list, std::vector<Record> DatabaseData::*records) {
  AddCount(rows, Joined(list, "Count"), records);
  AddRecordField(rows, list, "IsOption", records, &Record::option);
  AddRecordField(rows, list, "Name", records, &Record::name);
  AddRecordField(rows, list, "Code", records, &Record::code);
}

bool SetSuits(Instrument& device, const Fact& fact) {
  CondenserData* record = EntryOf(device.database.condensers, fact);
  const auto address = NumberAt(fact, 1);
  std::int32_t suits = 0;
  if (record == nullptr || !address || *address < 1 || !SetField(suits, fact.value)) return false;
  const auto place = static_cast<std::size_t>(*address);
  if (place > kCassetteAddresses) return false;
  if (record->suits.size() < place) record->suits.resize(place, '0');
  record->suits[place - 1] = suits == 0 ? '0' : '1';
  return true;
}

void AddDatabase(Rows& rows) {
  using Data = DatabaseData;
  AddRecords(rows, "Nosepieces", &Data::objectives);
  const auto objective = [&rows](std::string_view member, auto field) {
    AddRecordField(rows, "Nosepieces", member, &Data::objectives, field);
  };
  objective("Magnification", &ObjectiveData::magnification);
  objective("NumericalAperture", &ObjectiveData::numericalAperture);
  objective("WorkingDistance", &ObjectiveData::workingDistance);
  objective("TypeCode", &ObjectiveData::type);
  objective("SeriesCode", &ObjectiveData::series);
  AddRecords(rows, "Condensers", &Data::condensers);
  rows.push_back(
      {"AccessoryDatabase.Condensers.Item.SuitsAddress", SetSuits, [](const Instrument& device) {
         return device.database.condensers.size() * kCassetteAddresses;
       }});
  AddRecords(rows, "Exciters", &Data::exciters);
  AddRecords(rows, "Dichroics", &Data::dichroics);
  AddRecords(rows, "Barriers", &Data::barriers);
  AddRecords(rows, "FilterCubes", &Data::cubes);
  const auto cube = [&rows](std::string_view member, auto field) {
    AddRecordField(rows, "FilterCubes", member, &Data::cubes, field);
  };
  cube("ExciterCode", &CubeData::exciter);
  cube("DichroicCode", &CubeData::dichroic);
  cube("BarrierCode", &CubeData::barrier);
  AddCount(rows, "ObjectiveSeriesCount", &Data::series);
  AddCount(rows, "ObjectiveTypeCount", &Data::types);
  AddRecordField(rows, "ObjectiveSeries", "Name", &Data::series, &ListedName::name);
  AddRecordField(rows, "ObjectiveTypes", "Name", &Data::types, &ListedName::name);
}

// The field of the code that the path's first argument names; null for another code.
template <typename Data, std::size_t Count>
std::int32_t* FieldOfFact(const std::array<CodeRow<Data>, Count>& rows, Data& data,
                          const Fact& fact) {
  const auto code = NumberAt(fact, 0);
  return code ? FieldOfCode(rows, data, *code) : nullptr;
}

ControllerUnit* UnitOf(Instrument& device, const Fact& fact) {
  const auto number = NumberAt(fact, 0);
  return number && *number >= 1 && *number <= controllerunit::kCount ? &device.Unit(*number)
                                                                     : nullptr;
}

void AddUnits(Rows& rows) {
  Add(rows, "ControllerPresent", Many(controllerunit::kCount),
      [](Instrument& device, const Fact& fact) {
        ControllerUnit* unit = UnitOf(device, fact);
        return unit == nullptr ? nullptr : &unit->present;
      });
  Add(
      rows, "ControllerVersion",
      [](const Instrument& device) {
        return static_cast<std::size_t>(
            std::count_if(device.units.begin(), device.units.end(),
                          [](const ControllerUnit& unit) { return unit.present != 0; }));
      },
      [](Instrument& device, const Fact& fact) {
        ControllerUnit* unit = UnitOf(device, fact);
        return unit == nullptr ? nullptr : &unit->version;
      });
  Add(rows, "BuzzerEnabled", Many(kBuzzerRows.size()), [](Instrument& device, const Fact& fact) {
    return FieldOfFact(kBuzzerRows, device.buzzers, fact);
  });
  Add(rows, "SwitchEnabled", Many(kSwitchRows.size()), [](Instrument& device, const Fact& fact) {
    return FieldOfFact(kSwitchRows, device.switches, fact);
  });
  Add(rows, "RemoteLED", One,
      [](Instrument& device, const Fact&) { return &device.switches.remoteLed; });
}

std::string* SwitchOf(Instrument& device, const Fact& fact) {
  const auto unit = NumberAt(fact, 0);
  const auto* key = fact.args.size() < 2 ? nullptr : std::get_if<std::string>(&fact.args[1]);
  const std::int32_t digit = key != nullptr && key->size() == 1 ? CharToDigit(*key) : -1;
  if (unit == switchunit::kBody && digit >= 1 && digit <= std::int32_t{kBodySwitches}) {
    return &device.bodySwitches.at(static_cast<std::size_t>(digit) - 1);
  }
  if (unit == switchunit::kHandController && digit >= 0 && digit < std::int32_t{kHandSwitches}) {
    return &device.handSwitches.at(static_cast<std::size_t>(digit));
  }
  return nullptr;
}

void AddSettings(Rows& rows) {
  Add(rows, "ControllerSettings.EscapeMode", One,
      [](Instrument& device, const Fact&) { return &device.escapeMode; });
  Add(rows, "ControllerSettings.Interlock", Many(accessory::kCount * kTriggers.size()),
      [](Instrument& device, const Fact& fact) -> std::int32_t* {
        const auto item = NumberAt(fact, 0);
        const auto trigger = NumberAt(fact, 1);
        if (!item || *item < 1 || *item > accessory::kCount || !trigger || *trigger < 1 ||
            *trigger > std::int32_t{kTriggers.size()}) {
          return nullptr;
        }
        return &device.Interlock(*item, *trigger);
      });
  Add(rows, "ControllerSettings.SwitchFunction", Many(kBodySwitches + kHandSwitches), SwitchOf);
}

Rows MakeRows() {
  Rows rows;
  AddUnits(rows);
  AddAccessories(rows);
  AddDrives(rows);
  AddSettings(rows);
  AddDatabase(rows);
  return rows;
}

}  // namespace

bool SetField(double& field, const SessionValue& value) {
  const auto real = RealOf(value);
  if (!real || !std::isfinite(*real)) return false;
  field = *real;
  return true;
}

bool SetField(std::int32_t& field, const SessionValue& value) {
  const auto real = RealOf(value);
  const auto whole = real ? RoundToLong(*real) : std::nullopt;
  if (whole) field = *whole;
  return whole.has_value();
}

bool SetField(std::int16_t& field, const SessionValue& value) {
  std::int32_t whole = 0;
  if (!SetField(whole, value) || whole < std::numeric_limits<std::int16_t>::min() ||
      whole > std::numeric_limits<std::int16_t>::max()) {
    return false;
  }
  field = static_cast<std::int16_t>(whole);
  return true;
}

bool SetField(bool& field, const SessionValue& value) {
  const auto real = RealOf(value);
  if (real) field = *real != 0;
  return real.has_value();
}

bool SetField(std::string& field, const SessionValue& value) {
  const auto* text = std::get_if<std::string>(&value);
  if (text != nullptr) field = *text;
  return text != nullptr;
}

const std::vector<FactRow>& FactRows() {
  static const Rows rows = MakeRows();
  return rows;
}

const FactRow* FindFactRow(std::string_view name) {
  static const std::map<std::string_view, const FactRow*> byName = [] {
    std::map<std::string_view, const FactRow*> all;
    for (const FactRow& row : FactRows()) all.emplace(row.name, &row);
    return all;
  }();
  const auto found = byName.find(name);
  return found == byName.end() ? nullptr : found->second;
}

}  // namespace mortane::controller
