// The drill of the filter units.
#include "filters/FilterUnits.h"
#include "support/UnitDrill.h"

namespace mortane::test {
namespace {

UnitDrillData Turret() {
  UnitDrillData data;
  data.name = "Filter";
  data.bench = "Harbour";
  data.unit = OperationsOf(&FilterUnits::curFilter);
  data.edits = {
      {"first address",
       [](FilterUnits& units) { units.curFilter.code(1, 6); },
       "Filter Cube[1] Green LP",
       {"FilterCubeDevice.Positions(1).Code = 6"}},
      {"nothing in the middle",
       [](FilterUnits& units) { units.curFilter.code(3, 0); },
       "Filter Cube[3] ",
       {"FilterCubeDevice.Positions(3).Code = 0"}},
      {"the user's cube at the last address",
       [](FilterUnits& units) { units.curFilter.code(6, 241); },
       "Filter Cube[6] Ratio",
       {"FilterCubeDevice.Positions(6).Code = 241"}},
  };
  data.readFailure = data.modifyFailure = "Filter Cube (";
  data.writeFailures = {"Filter Cube[", "Filter Cube ("};
  data.refused = {
      {R"(<ITEM POSITION="0" CODE="5"/>)", "Filter Cube[0]"},
      {R"(<ITEM POSITION="11" CODE="5"/>)", "Filter Cube[11]"},
      {R"(<ITEM POSITION="-3" CODE="5"/>)", "Filter Cube[-3]"},
      {R"(<ITEM POSITION="one" CODE="5"/>)", "Filter Cube[0]"},
      {R"(<ITEM CODE="5"/>)", "Filter Cube[-1]"},
      {R"(<ITEM POSITION="2"/>)", "Filter Cube[2]"},
      {R"(<ITEM POSITION="2" CODE="250"/>)", "Filter Cube[2]"},
      {R"(<ITEM POSITION="2" CODE="-1"/>)", "Filter Cube[2]"},
      {"<ITEM/>", "Filter Cube[-1]"},
  };
  return data;
}

UnitDrillData Cubes() {
  UnitDrillData data;
  data.name = "DbFilter";
  data.bench = "Harbour";
  data.unit = OperationsOf(&FilterUnits::dbFilter);
  data.edits = {
      {"name",
       [](FilterUnits& units) { units.dbFilter.Set_DbFilterOption(1, "Ratio 2", 241, 4, 5); },
       "Filter Cube Optional Cube[1] Ratio 2",
       {"AccessoryDatabase.FilterCubes.Item(11).Name = \"Ratio 2\"",
        "AccessoryDatabase.FilterCubes.Item(11).ExciterCode = 241",
        "AccessoryDatabase.FilterCubes.Item(11).DichroicCode = 4",
        "AccessoryDatabase.FilterCubes.Item(11).BarrierCode = 5"}},
      {"one item",
       [](FilterUnits& units) { units.dbFilter.Set_DbFilterOption(2, "----------", 0, 0, 11); },
       "Filter Cube Optional Cube[2] ----------",
       {"AccessoryDatabase.FilterCubes.Item(12).Name = \"----------\"",
        "AccessoryDatabase.FilterCubes.Item(12).ExciterCode = 0",
        "AccessoryDatabase.FilterCubes.Item(12).DichroicCode = 0",
        "AccessoryDatabase.FilterCubes.Item(12).BarrierCode = 11"}},
      {"all of the last, and no name",
       [](FilterUnits& units) { units.dbFilter.Set_DbFilterOption(9, "", 249, 241, 7); },
       "Filter Cube Optional Cube[9] ",
       {"AccessoryDatabase.FilterCubes.Item(19).Name = \"\"",
        "AccessoryDatabase.FilterCubes.Item(19).ExciterCode = 249",
        "AccessoryDatabase.FilterCubes.Item(19).DichroicCode = 241",
        "AccessoryDatabase.FilterCubes.Item(19).BarrierCode = 7"}},
  };
  data.readFailure = "Filter Cube Optional Cube (";
  data.modifyFailure = "Filter Cube Optional Cube(";
  data.writeFailures = {"Filter Cube Optional Cube[", "Filter Cube Optional Cube ("};
  data.refused = {
      {R"(<OPTION POSITION="0" CODE="100120023003" NAME="x"/>)", "Filter Cube Optional Cube[0]"},
      {R"(<OPTION POSITION="10" CODE="100120023003" NAME="x"/>)", "Filter Cube Optional Cube[10]"},
      {R"(<OPTION POSITION="-1" CODE="100120023003" NAME="x"/>)", "Filter Cube Optional Cube[-1]"},
      {R"(<OPTION POSITION="x" CODE="100120023003" NAME="x"/>)", "Filter Cube Optional Cube[0]"},
      {R"(<OPTION CODE="100120023003" NAME="x"/>)", "Filter Cube Optional Cube[-1]"},
      {R"(<OPTION POSITION="1" NAME="x"/>)", "Filter Cube Optional Cube[1]"},
      {R"(<OPTION POSITION="1" CODE="" NAME="x"/>)", "Filter Cube Optional Cube[1]"},
      {R"(<OPTION POSITION="1" CODE="10012002300" NAME="x"/>)", "Filter Cube Optional Cube[1]"},
      {R"(<OPTION POSITION="1" CODE="1001200230031" NAME="x"/>)", "Filter Cube Optional Cube[1]"},
      {R"(<OPTION POSITION="2" CODE="125020023003" NAME="x"/>)", "Filter Cube Optional Cube[2]"},
      {R"(<OPTION POSITION="2" CODE="100122503003" NAME="x"/>)", "Filter Cube Optional Cube[2]"},
      {R"(<OPTION POSITION="2" CODE="100120023250" NAME="x"/>)", "Filter Cube Optional Cube[2]"},
      {R"(<OPTION POSITION="2" CODE="1-0120023003" NAME="x"/>)", "Filter Cube Optional Cube[2]"},
      {R"(<OPTION POSITION="2" CODE="10012-013003" NAME="x"/>)", "Filter Cube Optional Cube[2]"},
      {R"(<OPTION POSITION="2" CODE="100120023-01" NAME="x"/>)", "Filter Cube Optional Cube[2]"},
      {"<OPTION/>", "Filter Cube Optional Cube[-1]"},
  };
  return data;
}

// `list` is the controller's, `firstOption` the place of its first option there.
template <typename Unit>
UnitDrillData Items(std::string name, Unit FilterUnits::*unit, const std::string& list,
                    int firstOption, const std::string& label, const std::string& element) {
  const auto write = [&](int position, const std::string& text) {
    return "AccessoryDatabase." + list + ".Item(" + std::to_string(firstOption + position - 1) +
           ").Name = \"" + text + "\"";
  };
  UnitDrillData data;
  data.name = std::move(name);
  data.bench = "Harbour";
  data.unit = OperationsOf(unit);
  data.edits = {
      {"first option",
       [unit](FilterUnits& units) { (units.*unit).Name(241, "Narrow"); },
       label + "[1] Narrow",
       {write(1, "Narrow")}},
      {"no name",
       [unit](FilterUnits& units) { (units.*unit).Name(242, ""); },
       label + "[2] ",
       {write(2, "")}},
      {"last option",
       [unit](FilterUnits& units) { (units.*unit).Name(249, "Ten chars!"); },
       label + "[9] Ten chars!",
       {write(9, "Ten chars!")}},
  };
  data.readFailure = data.modifyFailure = label + " (";
  data.writeFailures = {label + "[", label + " ("};
  data.refused = {
      {"<" + element + R"( POSITION="0" NAME="x"/>)", label + "[0]"},
      {"<" + element + R"( POSITION="10" NAME="x"/>)", label + "[10]"},
      {"<" + element + R"( POSITION="x" NAME="x"/>)", label + "[0]"},
      {"<" + element + R"( POSITION="1" NAME="Eleven char"/>)", label + "[1]"},
      {"<" + element + R"( NAME="x"/>)", label + "[-1]"},
      {"<" + element + "/>", label + "[-1]"},
  };
  return data;
}

INSTANTIATE_TEST_SUITE_P(Filters, UnitDrill,
                         testing::Values(Turret(), Cubes(),
                                         Items("Exciter", &FilterUnits::Exciter, "Exciters", 12,
                                               "Filter Cube Optional Item Exciter", "EXCITER"),
                                         Items("Dichroic", &FilterUnits::Dichroic, "Dichroics", 10,
                                               "Filter Cube Optional Item Dichroic", "DICHROIC"),
                                         Items("Barrier", &FilterUnits::Barrier, "Barriers", 12,
                                               "Filter Cube Optional Item Barrier", "BARRIER")),
                         DrillName);

}  // namespace
}  // namespace mortane::test
