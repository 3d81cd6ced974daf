#include <array>

#include "controller/simulator/CassetteAddresses.h"
#include "controller/simulator/DatabaseContent.h"
#include "controller/simulator/Instruments.h"

namespace mortane::controller {
namespace {

constexpr std::int32_t kSeriesCount = 12;
constexpr std::int32_t kTypeCount = 9;

// Every fourth entry is a number.
std::vector<ListedName> Names(std::string_view opening, std::int32_t count) {
  std::vector<ListedName> names;
  for (std::int32_t i = 1; i <= count; ++i) {
    names.push_back(
        {i % 4 == 0 ? std::to_string(i * 5) : std::string(opening) + std::to_string(i)});
  }
  return names;
}

// Codes 6 and 7 look the same in a list. Code 8 has a series that does not exist, code 9 has none.
// Code 30 is an option among the fixed codes. Series 11 and 12 are empty.
void AddFixedObjectives(std::vector<ObjectiveData>& records) {
  records.push_back({3, false, "Series 1 40x", 1, 2, 40, 0.6, 0.65, 0, {}});
  records.push_back({1, false, "Series 1 4x", 1, 1, 4, 30, 0.1, 0, {}});
  records.push_back({2, false, "A name of thirty characters...", 1, 1, 10, 10.5, 0.25, 0, {}});
  records.push_back({4, false, "Blanks behind   ", 2, 9, 20, 2.1, 0.5, 0, {}});
  records.push_back({5, false, "", 2, 3, 60, 0.35, 0.85, 0, {}});
  records.push_back({6, false, "Twin 20x", 3, 4, 20, 1.2, 0.4, 0, {}});
  records.push_back({7, false, "Twin 20x", 3, 4, 20, 1.2, 0.4, 0, {}});
  records.push_back({8, false, "Lost 50x", kSeriesCount + 1, 1, 50, 1, 0.8, 0, {}});
  records.push_back({9, false, "No series 5x", 0, 1, 5, 23.5, 0.15, 0, {}});
  for (std::int32_t series = 4; series <= 10; ++series) {
    records.push_back(
        {6 + series, false, "Only one 100x", series, kTypeCount, 100, 0.2, 1.3, 0, {}});
  }
  records.push_back({240, false, "The last fixed", 10, 1, 200, 40, 2, 0, {}});
  records.push_back({30, true, "Out of place", 1, 1, 10, 1, 0.3, 0, {}});
}

void AddOptionalObjectives(std::vector<ObjectiveData>& records) {
  records.push_back({241, true, "Twenty characters ok", 1, 1, 62.5, 12.34, 0.999, 2, {}});
  records.push_back({242, true, "-------", 1, 1, 10, 1, 0.3, 0, {}});
  records.push_back({243, true, "Twenty-five characters OK", 2, 2, 123.45, 12.345, 0.1234, 9, {}});
  records.push_back({244, true, "", 0, 0, 0, 0, 0, 0, {}});
  records.push_back({245, true, "---------------", 0, 0, 0, 0, 0, 0, {}});
  records.push_back({246, true, "----------", 0, 0, 0, 0, 0, 0, {}});
  records.push_back(
      {247, true, "Sixteen letters.", 3, 1, 40, 0.6, 0.65, 3, "  ONR731190 03C28A3  "});
  records.push_back({248, true, "Short answer", 3, 1, 40, 0.6, 0.65, 3, "8A3"});
  // The last character is no digit, which ends a read; therefore the record is the last one.
  records.push_back({249, true, "Bad answer", 3, 1, 40, 0.6, 0.65, 3, "ONR93119003C28Ax"});
}

// Twelve fixed condensers are more than the digit of a code text can name. The third looks unused,
// the fifth is marked as an option. Each fits address 1 and the multiples of its number.
std::vector<CondenserData> Condensers() {
  std::vector<CondenserData> records;
  for (std::int32_t code = 1; code <= 12; ++code) {
    std::string suits(kCassetteAddresses, '0');
    for (std::size_t address = 1; address <= suits.size(); ++address) {
      if (address == 1 || address % static_cast<std::size_t>(code) == 0) suits[address - 1] = '1';
    }
    records.push_back({code, code == 5, "Module " + std::to_string(code), suits});
  }
  records[2].name = "--";
  AddCondenserOptions(records, {"Ten chars.", "Twelve chars", "", "----------"});
  return records;
}

std::vector<FilterData> Filters(std::string_view opening, std::int32_t count) {
  std::vector<FilterData> records;
  for (std::int32_t code = 1; code <= count; ++code) {
    records.push_back({code, false, std::string(opening) + std::to_string(code)});
  }
  records[1].name = "----------";
  records[2].name = std::string(opening) + "of length";
  AddFilterOptions(records, {"Twelve chars", "", "----------", "Blank   "});
  return records;
}

std::vector<CubeData> Cubes() {
  std::vector<CubeData> records{
      {1, false, "Cube 1", 1, 1, 1},
      {2, false, "-------x", 1, 1, 1},
      {3, false, "Cube 3", 2, 2, 300},
      {4, false, "Cube 4", 250, 3, 4},
      {5, false, "Twelve chars", 3, 3, 3},
      {6, false, "", 0, 0, 0},
      {241, true, "Twelve chars", 241, 4, 5},
      {242, true, "----------", 0, 0, 0},
      {243, true, "", 0, 0, 0},
      {244, true, "Odd items", 243, 242, 30},
  };
  for (std::int32_t code = 245; code <= 249; ++code) records.push_back({code, true, "", 0, 0, 0});
  // Beyond the table, which ends a read; therefore the record is the last one.
  records.push_back({250, false, "Beyond", 1, 1, 1});
  return records;
}

}  // namespace

DatabaseData AwkwardDatabase() {
  DatabaseData database;
  database.series = Names("Series ", kSeriesCount);
  database.types = Names("Type ", kTypeCount);
  AddFixedObjectives(database.objectives);
  AddOptionalObjectives(database.objectives);
  database.condensers = Condensers();
  database.exciters = Filters("Ex ", 6);
  database.dichroics = Filters("Di ", 5);
  database.barriers = Filters("Ba ", 6);
  database.cubes = Cubes();
  return database;
}

namespace instruments {

Instrument Attic() {
  constexpr std::array kOffsets{accessory::kNDFilter, accessory::kDiaFieldStop,
                                accessory::kDiaApertureStop, accessory::kEpiFieldStop};
  Instrument attic;
  attic.name = "Attic";
  AddUnit(attic, controllerunit::kBody, "V1.30b");
  AddUnit(attic, controllerunit::kHandController, "V1.30b");
  FitAllAccessories(attic, Fit::Controllable);
  for (const int number : kOffsets) attic.Accessory(number).offsetCode = 12;
  attic.nosepiece = Places({7, 2, 4, 8, 9, 5, 240, 241, 247, 242});
  attic.filterCubes = Places({3, 4, 5, 6, 241, 244, 0, 1, 2, 3});
  attic.condensers = Places({1, 3, 5, 12, 141, 142, 0, 2, 4, 6});
  attic.limitation = 19;
  attic.escapeMode = -1;
  attic.zDrive.focusCompensation = 2;
  attic.Interlock(accessory::kZFocusDrive, trigger::kNosepiece) = 1;
  attic.xyDrive.handleMode = 3;
  attic.database = AwkwardDatabase();
  // The dials have the second half of a pair and no function; switches have characters that are no
  // digits.
  SetSwitches(attic.bodySwitches, "_ {q0z08 812AB");
  attic.bodySwitches[5] = "";
  attic.bodySwitches[6] = "\xC3\xA9";
  SetSwitches(attic.handSwitches, "2_ {qZ0800fghij");
  return attic;
}

}  // namespace instruments
}  // namespace mortane::controller
