// The drill of the condenser units.
#include "condensers/CondenserUnits.h"
#include "support/UnitDrill.h"

namespace mortane::test {
namespace {

UnitDrillData Cassette() {
  UnitDrillData data;
  data.name = "Condenser";
  data.bench = "Harbour";
  data.unit = OperationsOf(&CondenserUnits::curCondenser);
  data.edits = {
      {"first address",
       [](CondenserUnits& units) { units.curCondenser.code(1, 9); },
       "Condenser[1] Ph 3",
       {"CondenserDevice.Positions(1).Code = 9"}},
      {"nothing in the middle",
       [](CondenserUnits& units) { units.curCondenser.code(4, 0); },
       "Condenser[4] ",
       {"CondenserDevice.Positions(4).Code = 0"}},
      {"the user's condenser at the last address",
       [](CondenserUnits& units) { units.curCondenser.code(7, 141); },
       "Condenser[7] Slit",
       {"CondenserDevice.Positions(7).Code = 141"}},
  };
  data.readFailure = data.modifyFailure = "Condenser Casset (";
  data.writeFailures = {"Condenser Casset[", "Condenser Casset ("};
  data.refused = {
      {R"(<ITEM POSITION="0" CODE="5"/>)", "Condenser Caset[0] CODE=5"},
      {R"(<ITEM POSITION="11" CODE="5"/>)", "Condenser Caset[11] CODE=5"},
      {R"(<ITEM POSITION="2" CODE="150"/>)", "Condenser Caset[2] CODE=150"},
      {R"(<ITEM POSITION="x" CODE="150"/>)", "Condenser Caset[0] CODE=150"},
      {R"(<ITEM POSITION="2" CODE="-1"/>)", "Condenser Caset[2] CODE=-1"},
      {R"(<ITEM POSITION="12" CODE="x"/>)", "Condenser Caset[12] CODE=0"},
      {R"(<ITEM CODE="5"/>)", "Condenser Caset[-1] CODE=5"},
      {R"(<ITEM POSITION="2"/>)", "Condenser Caset[2] CODE=-1"},
      {"<ITEM/>", "Condenser Caset[-1] CODE=-1"},
  };
  return data;
}

UnitDrillData Names() {
  UnitDrillData data;
  data.name = "DbCondenser";
  data.bench = "Harbour";
  data.unit = OperationsOf(&CondenserUnits::dbcon);
  data.edits = {
      {"first option",
       [](CondenserUnits& units) { units.dbcon.Name(141, "Slot"); },
       "Optional Condenser[1] Slot",
       {"AccessoryDatabase.Condensers.Item(10).Name = \"Slot\""}},
      {"no name",
       [](CondenserUnits& units) { units.dbcon.Name(142, ""); },
       "Optional Condenser[2] ",
       {"AccessoryDatabase.Condensers.Item(11).Name = \"\""}},
      {"last option",
       [](CondenserUnits& units) { units.dbcon.Name(149, "Ten chars!"); },
       "Optional Condenser[9] Ten chars!",
       {"AccessoryDatabase.Condensers.Item(18).Name = \"Ten chars!\""}},
  };
  data.readFailure = data.modifyFailure = "Condenser Option (";
  data.writeFailures = {"Condenser Option[", "Condenser Option ("};
  data.refused = {
      {R"(<OPTION POSITION="0" NAME="x"/>)", "Condenser Option[0]"},
      {R"(<OPTION POSITION="10" NAME="x"/>)", "Condenser Option[10]"},
      {R"(<OPTION POSITION="x" NAME="x"/>)", "Condenser Option[0]"},
      {R"(<OPTION POSITION="1" NAME="Eleven char"/>)", "Condenser Option[1]"},
      {R"(<OPTION NAME="x"/>)", "Condenser Option[-1]"},
      {"<OPTION/>", "Condenser Option[-1]"},
  };
  return data;
}

INSTANTIATE_TEST_SUITE_P(Condensers, UnitDrill, testing::Values(Cassette(), Names()), DrillName);

}  // namespace
}  // namespace mortane::test
