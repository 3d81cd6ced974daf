// The drill of the objective units.
#include "objectives/ObjectiveUnits.h"
#include "support/UnitDrill.h"

namespace mortane::test {
namespace {

UnitDrillData Nosepiece() {
  UnitDrillData data;
  data.name = "Nosepiece";
  data.bench = "Harbour";
  data.unit = OperationsOf(&ObjectiveUnits::curNosepiece);
  data.edits = {
      {"first address",
       [](ObjectiveUnits& units) { units.curNosepiece.code(1, 5); },
       "Nosepiece[1] Plan A 20x",
       {"NosepieceDevice.Positions(1).Code = 5"}},
      {"nothing in the middle",
       [](ObjectiveUnits& units) { units.curNosepiece.code(3, 0); },
       "Nosepiece[3] ",
       {"NosepieceDevice.Positions(3).Code = 0"}},
      {"the user's objective at the last address",
       [](ObjectiveUnits& units) { units.curNosepiece.code(6, 241); },
       "Nosepiece[6] Clinic 25x",
       {"NosepieceDevice.Positions(6).Code = 241"}},
  };
  data.readFailure = data.modifyFailure = "Nosepiece (";
  data.writeFailures = {"Nosepiece[", "Nosepiece ("};
  data.refused = {
      {R"(<ITEM POSITION="0" CODE="5"/>)", "Nosepiece[0]"},
      {R"(<ITEM POSITION="11" CODE="5"/>)", "Nosepiece[11]"},
      {R"(<ITEM POSITION="-3" CODE="5"/>)", "Nosepiece[-3]"},
      {R"(<ITEM POSITION="one" CODE="5"/>)", "Nosepiece[0]"},
      {R"(<ITEM POSITION="4294967297" CODE="5"/>)", "Nosepiece[0]"},
      {R"(<ITEM CODE="5"/>)", "Nosepiece[-1]"},
      {R"(<ITEM POSITION="2"/>)", "Nosepiece[2]"},
      {R"(<ITEM POSITION="2" CODE="250"/>)", "Nosepiece[2]"},
      {R"(<ITEM POSITION="2" CODE="-1"/>)", "Nosepiece[2]"},
      {"<ITEM/>", "Nosepiece[-1]"},
  };
  return data;
}

UnitDrillData Database() {
  UnitDrillData data;
  data.name = "DbNosepiece";
  data.bench = "Harbour";
  data.unit = OperationsOf(&ObjectiveUnits::DbNosepiece);
  data.edits = {
      {"name",
       [](ObjectiveUnits& units) {
         units.DbNosepiece.Set_DbNosepiece(1, "Clinic 26x", 2, 3, "25", "1.98", "0.95", 3);
       },
       "Nosepiece Optional[1] Clinic 26x",
       {"AccessoryDatabase.Nosepieces.Item(27).Name = \"Clinic 26x\"",
        "AccessoryDatabase.Nosepieces.Item(27).SetProperties(2, 3, 25, 1.98, 0.95)"}},
      {"condenser",
       [](ObjectiveUnits& units) {
         units.DbNosepiece.Set_DbNosepiece(2, "Loan 63x Oil", 3, 2, "63", "0.19", "1.4", 7);
       },
       "Nosepiece Optional[2] Loan 63x Oil",
       {"SendCommand(\"cONS2322760135787\")"}},
      {"all",
       [](ObjectiveUnits& units) {
         units.DbNosepiece.Set_DbNosepiece(9, "New", 1, 7, "10", "1", "0.25", 4);
       },
       "Nosepiece Optional[9] New\r\nNosepiece Optional[9] New",
       {"AccessoryDatabase.Nosepieces.Item(35).Name = \"New\"",
        "AccessoryDatabase.Nosepieces.Item(35).SetProperties(1, 7, 10, 1, 0.25)",
        "SendCommand(\"cONS9170640640FA4\")"}},
  };
  // The condensers' digits.
  data.undoKept = [](ObjectiveUnits& units) {
    units.DbNosepiece.Set_DbNosepiece(2, "", 0, 0, "", "", "", 5);
    units.DbNosepiece.Set_DbNosepiece(9, "", 0, 0, "", "", "", 0);
  };
  data.readFailure = "Nosepieces Optional (";
  data.modifyFailure = "Nosepiece Optional (";
  data.writeFailures = {"Nosepiece Optional[", "Nosepiece Optional ("};
  // The rest of the bad elements: ObjectiveDatabaseFileTest.
  data.refused = {
      {R"(<OPTION POSITION="0" CODE="110640640FA4" NAME="x"/>)", "Nosepiece Optional[0]"},
      {R"(<OPTION POSITION="10" CODE="110640640FA4" NAME="x"/>)", "Nosepiece Optional[10]"},
      {R"(<OPTION POSITION="1" CODE="110640640FA" NAME="x"/>)", "Nosepiece Optional[1]"},
      {R"(<OPTION POSITION="1" NAME="x"/>)", "Nosepiece Optional[1]"},
      {R"(<OPTION CODE="110640640FA4" NAME="x"/>)", "Nosepiece Optional[-1]"},
      {"<OPTION/>", "Nosepiece Optional[-1]"},
  };
  return data;
}

UnitDrillData Limits() {
  UnitDrillData data;
  data.name = "Limitation";
  data.bench = "Harbour";
  data.unit = OperationsOf(&ObjectiveUnits::curLimit);
  data.edits = {
      {"increase",
       [](ObjectiveUnits& units) { units.curLimit.curIncrease = 2; },
       "Nosepiece Limit[LowerMagnification]",
       {"NosepieceDevice.Limitation = 5"}},
      {"skip",
       [](ObjectiveUnits& units) { units.curLimit.curSkip = 1; },
       "Nosepiece Limit[Skip]",
       {"NosepieceDevice.Limitation = 2"}},
      {"immersion",
       [](ObjectiveUnits& units) { units.curLimit.curImmersion = 1; },
       "Nosepiece Limit[Immersion Type]",
       {"NosepieceDevice.Limitation = 7"}},
  };
  data.marksUnknown = true;
  data.alwaysWritten = {"NosepieceDevice.Limitation = 1"};
  data.readFailure = "Nosepiece Limit (";
  data.writeFailures = {"Nosepiece Limit"};
  data.refused = {
      {R"(<LIMIT POSITION="Skip" CODE="Maybe"/>)", "Nosepiece Limit"},
      {R"(<LIMIT POSITION="Skip" CODE="1"/>)", "Nosepiece Limit"},
      {R"(<LIMIT POSITION="Skip" CODE=" On"/>)", "Nosepiece Limit"},
      {R"(<LIMIT POSITION="Skip"/>)", "Nosepiece Limit"},
      {R"(<LIMIT POSITION="Nobody" CODE="Maybe"/>)", "Nosepiece Limit"},
      {R"(<LIMIT POSITION="Nobody" CODE="On"/>)", ""},
      {R"(<LIMIT CODE="On"/>)", ""},
      {R"(<LIMIT POSITION="Skip" CODE="Unknown"/>)", ""},
      {R"(<LIMIT POSITION="Skip" CODE="uNKNOWN"/>)", ""},
  };
  return data;
}

INSTANTIATE_TEST_SUITE_P(Objectives, UnitDrill, testing::Values(Nosepiece(), Database(), Limits()),
                         DrillName);

}  // namespace
}  // namespace mortane::test
