// The drill of the condenser pages.
#include "gui/condensers/CondenserPages.h"
#include "gui/support/PageActs.h"
#include "gui/support/PageDrill.h"

namespace mortane::test {
namespace {

std::function<std::string(CondenserUnits&)> CodeAt(std::int32_t address) {
  return [address](CondenserUnits& k70) { return std::to_string(k70.curCondenser.code(address)); };
}

std::function<void(CondenserUnits&)> PutCode(std::int32_t address, std::int32_t code) {
  return [=](CondenserUnits& k70) { k70.curCondenser.code(address, code); };
}

std::function<std::string(CondenserUnits&)> NameOf(std::int32_t code) {
  return [code](CondenserUnits& k70) { return k70.dbcon.Name(code); };
}

std::function<void(CondenserUnits&)> PutName(std::int32_t code, const char* name) {
  return [=](CondenserUnits& k70) { k70.dbcon.Name(code, name); };
}

std::vector<AccessibleControl> AccessibleCassette() {
  std::vector<AccessibleControl> told{
      told::Group("Set Condenser Data to Each Address"),
      told::Label("Set Condenser Data to Each Address"),
      told::Group("Condenser Turret"),
      told::Chosen("Address 1, Bright"),
      told::NotChosen("Address 2, Ph 1"),
      told::NotChosen("Address 3, Ph 2"),
      told::NotChosen("Address 4, Darkfield"),
      told::NotChosen("Address 5, DIC L"),
      told::NotChosen("Address 6, DIC M"),
      told::NotChosen("Address 7, DIC H"),
  };
  int address = 0;
  for (const char* module : {"Bright", "Ph 1", "Ph 2", "Darkfield", "DIC L", "DIC M", "DIC H"}) {
    const std::string number = std::to_string(++address);
    told.push_back(told::Label(number));
    told.push_back(told::Combo("Address " + number, module));
  }
  return told;
}

PageDrillData Cassette() {
  PageDrillData data;
  data.name = "Cassette";
  data.without = {DrillTable::Refused, DrillTable::Enabling};
  data.bench = "Harbour";
  data.make = MakeCondenserCassetteCtl;
  data.controls = {{"FrameBase", "Set Condenser Data to Each Address"},
                   {"turret", "Condenser Turret"}};
  data.tabOrder = {"place_1"};
  for (int row = 0; row < 7; ++row) {
    const std::string number = std::to_string(row + 1);
    data.controls.push_back({Numbered("Label1", row), number});
    data.controls.push_back({Numbered("Combo1", row), "Address " + number});
    data.tabOrder.push_back(Numbered("Combo1", row));
  }
  data.shown = {
      {"Combo1_0", PutCode(1, 8), CodeAt(1), "Polar"},
      {"Combo1_0", PutCode(1, 4), CodeAt(1), ""},
      {"Combo1_1", PutCode(2, 0), CodeAt(2), ""},
      {"Combo1_3", PutCode(4, 141), CodeAt(4), "Slit"},
      {"Combo1_3", PutCode(4, 142), CodeAt(4), ""},
      {"Combo1_6", PutCode(7, 149), CodeAt(7), ""},
  };
  data.edits = {
      {"Combo1_0", "Ph 3", CodeAt(1), "9"},
      {"Combo1_2", "", CodeAt(3), "0"},
      {"Combo1_6", "Slit", CodeAt(7), "141"},
  };
  data.accessible = AccessibleCassette();
  return data;
}

PageDrillData Names() {
  PageDrillData data;
  data.name = "Names";
  data.without = {DrillTable::Refused, DrillTable::Enabling};
  data.bench = "Harbour";
  data.make = MakeCondenserOptionCtl;
  data.controls = {{"FrameBase", "Add Optional Condenser Data to the List"}};
  data.accessible = {told::Group("Add Optional Condenser Data to the List"),
                     told::Label("Add Optional Condenser Data to the List")};
  for (int row = 0; row < 9; ++row) {
    const std::string number = std::to_string(row + 1);
    data.controls.push_back({Numbered("Label11", row), number});
    data.controls.push_back({Numbered("TextName", row), "Optional Condenser " + number});
    data.tabOrder.push_back(Numbered("TextName", row));
    data.accessible.push_back(told::Label(number));
    data.accessible.push_back(
        told::Field("Optional Condenser " + number, row == 0 ? "Slit" : "----------"));
  }
  data.shown = {
      {"TextName_0", PutName(141, "Ring"), NameOf(141), "Ring"},
      {"TextName_0", PutName(141, " Ring "), NameOf(141), " Ring "},
      {"TextName_1", PutName(142, ""), NameOf(142), "----------"},
      {"TextName_2", PutName(143, "    "), NameOf(143), "----------"},
      {"TextName_3", PutName(144, "---------"), NameOf(144), "---------"},
      {"TextName_4", PutName(145, "\t"), NameOf(145), "\t"},
      {"TextName_8", PutName(149, "M\xC3\xBCnchen 25"), NameOf(149), "M\xC3\xBCnchen 25"},
  };
  data.edits = {
      {"TextName_0", "Ring", NameOf(141), "Ring"},
      {"TextName_0", "", NameOf(141), ""},
      {"TextName_4", "  two", NameOf(145), "  two"},
      {"TextName_8", "Ten chars.", NameOf(149), "Ten chars."},
      {"TextName_8", "Eleven char", NameOf(149), "Eleven cha"},
  };
  return data;
}

PageDrillData Settings() {
  PageDrillData data;
  data.name = "Settings";
  data.without = {DrillTable::Refused};
  data.bench = "Harbour";
  data.make = MakeCondenserSettingsCtl;
  data.controls = {
      {"Header", ""},
      {"optCondenserSetting_0", "Condenser"},
      {"optCondenserSetting_1", "Optional"},
      {"CondenserCassetteCtl1", ""},
      {"CondenserOptionCtl1", ""},
  };
  data.shown = {
      {"Combo1_4", PutCode(5, 6), CodeAt(5), "DIC M"},
      {"TextName_1", PutName(142, "Lens"), NameOf(142), "Lens"},
  };
  data.edits = {{"Combo1_4", "Slit", CodeAt(5), "141"}};
  data.enabling = {
      {"optCondenserSetting_0", "Harbour", {}, true},
      {"optCondenserSetting_0", "Pair", {}, true},
      {"optCondenserSetting_0", "Harbour", Without<accessory::kCondenser>, false},
      {"optCondenserSetting_1", "Harbour", Without<accessory::kCondenser>, true},
      {"optCondenserSetting_0", "Lantern", {}, false},
      {"optCondenserSetting_1", "Lantern", {}, true},
  };
  data.tabOrder = {"optCondenserSetting_0",
                   "place_1",
                   "Combo1_0",
                   "Combo1_1",
                   "Combo1_2",
                   "Combo1_3",
                   "Combo1_4",
                   "Combo1_5",
                   "Combo1_6"};
  data.accessible = {told::Heading("Condensers"), told::Group("Condensers"),
                     told::Chosen("Condenser"), told::NotChosen("Optional")};
  for (AccessibleControl& control : AccessibleCassette()) {
    data.accessible.push_back(std::move(control));
  }
  return data;
}

INSTANTIATE_TEST_SUITE_P(Condensers, PageDrill, testing::Values(Cassette(), Names(), Settings()),
                         PageDrillName);

}  // namespace
}  // namespace mortane::test
