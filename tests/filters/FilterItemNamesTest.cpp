// The names of excitation filters, dichroic mirrors and barrier filters: each test for all three.
#include <gtest/gtest.h>

#include "filters/FilterUnits.h"
#include "support/UnitDrill.h"

namespace mortane::test {
namespace {

using controller::DatabaseData;
using controller::FilterData;

struct ItemList {
  std::string list;  // the controller's
  std::string label;
  std::string element;
  std::vector<FilterData> DatabaseData::*records;
  std::size_t firstOption;  // its place in Harbour's list
  std::string fixedName;    // of code 2 there
  UnitOperations unit;
  std::function<std::string(const FilterUnits&, std::int32_t)> name;
  std::function<void(FilterUnits&, std::int32_t, const std::string&)> setName;
};

void PrintTo(const ItemList& item, std::ostream* stream) {
  *stream << item.list;
}

template <typename Unit>
ItemList ListOf(Unit FilterUnits::*unit, std::string list, const std::string& itemName,
                std::string element, std::vector<FilterData> DatabaseData::*records,
                std::size_t firstOption, std::string fixedName) {
  return {std::move(list),
          "Filter Cube Optional Item " + itemName,
          std::move(element),
          records,
          firstOption,
          std::move(fixedName),
          OperationsOf(unit),
          [unit](const FilterUnits& units, std::int32_t code) { return (units.*unit).Name(code); },
          [unit](FilterUnits& units, std::int32_t code, const std::string& text) {
            (units.*unit).Name(code, text);
          }};
}

class FilterItems : public testing::TestWithParam<ItemList> {
 protected:
  FilterItems() : rig_("Harbour") {}

  std::string NameOf(std::int32_t code) const { return GetParam().name(rig_.units, code); }
  void SetName(std::int32_t code, const std::string& name) {
    GetParam().setName(rig_.units, code, name);
  }
  FilterData& OptionRecord(std::size_t position) {
    return Records()[GetParam().firstOption + position - 1];
  }
  std::vector<FilterData>& Records() { return rig_.instrument().database.*GetParam().records; }
  std::string OptionCall(int position) const {
    return "AccessoryDatabase." + GetParam().list + ".Item(" +
           std::to_string(GetParam().firstOption + static_cast<std::size_t>(position)) + ").";
  }
  std::string Differences() {
    std::string list;
    EXPECT_EQ(GetParam().unit.modify(rig_.units, list), "");
    return list;
  }
  std::string ReadFile(const std::string& attributes) {
    return GetParam().unit.readElement(rig_.units,
                                       "<" + GetParam().element + " " + attributes + "/>");
  }

  Rig rig_;
};

TEST_P(FilterItems, HaveTheNamesThatTheControllerGivesAndNoneBeyondTheList) {
  rig_.ConnectAndReceive();
  EXPECT_EQ(NameOf(2), GetParam().fixedName);
  for (const std::int32_t code : {-1, 0, 40, 250, 2147483647}) EXPECT_EQ(NameOf(code), "") << code;
}

TEST_P(FilterItems, KeepTenCharactersOfANameThatThePersonGives) {
  struct Row {
    const char* given;
    const char* kept;
  };
  rig_.ConnectAndReceive();
  for (const Row row : {Row{"", ""}, Row{"Ten chars!", "Ten chars!"},
                        Row{"Eleven char", "Eleven cha"}, Row{"äöüäöüäöüäö", "äöüäöüäöüä"}}) {
    SetName(249, row.given);
    EXPECT_EQ(NameOf(249), row.kept);
  }
}

TEST_P(FilterItems, IgnoreANameBeyondTheList) {
  rig_.ConnectAndReceive();
  const std::string before = GetParam().unit.fileText(rig_.units);
  for (const std::int32_t code : {-1, 250}) {
    SetName(code, "New");
    EXPECT_EQ(NameOf(code), "");
  }
  EXPECT_EQ(GetParam().unit.fileText(rig_.units), before);
}

TEST_P(FilterItems, KeepANameOfTheControllerInFull) {
  rig_.Connect();
  OptionRecord(1).name = "Ten chars!";
  OptionRecord(2).name = "Eleven char";
  EXPECT_EQ(GetParam().unit.read(rig_.units), "");
  EXPECT_EQ(NameOf(241), "Ten chars!");
  EXPECT_EQ(NameOf(242), "Eleven char");
}

TEST_P(FilterItems, OfACodeBeyondTheListEndTheRead) {
  for (const std::int32_t code : {-1, 250}) {
    rig_.Connect();
    Records()[2].code = code;
    EXPECT_EQ(GetParam().unit.read(rig_.units), GetParam().label + " (Mortane:9)");
    EXPECT_EQ(NameOf(2), GetParam().fixedName);
    EXPECT_EQ(NameOf(4), "");
  }
}

TEST_P(FilterItems, AreForgottenWithoutATurretAndStillComparedAndWritten) {
  rig_.ConnectAndReceive();
  rig_.instrument().Accessory(accessory::kFilterCube).state = 0;
  rig_.Connect();
  EXPECT_EQ(GetParam().unit.read(rig_.units), "");
  EXPECT_EQ(rig_.journal.CallCount(), 0U);
  EXPECT_EQ(NameOf(2), "");
  std::string lines;
  for (int n = 1; n <= 9; ++n) {
    lines = AppendLine(lines, GetParam().label + "[" + std::to_string(n) + "] ");
  }
  EXPECT_EQ(Differences(), lines);
  EXPECT_EQ(GetParam().unit.write(rig_.units), "");
  EXPECT_EQ(rig_.journal.Writes().size(), 9U);
  EXPECT_EQ(Differences(), "");
}

TEST_P(FilterItems, ThatAreFixedAreNeitherComparedNorWritten) {
  rig_.ConnectAndReceive();
  Records()[0].name = "Renamed";
  EXPECT_EQ(Differences(), "");
  EXPECT_EQ(GetParam().unit.write(rig_.units), "");
  EXPECT_TRUE(rig_.journal.Writes().empty());
}

TEST_P(FilterItems, DifferByMoreThanTrailingBlanks) {
  rig_.ConnectAndReceive();
  SetName(243, "Name");
  OptionRecord(3).name = "Name   ";
  EXPECT_EQ(Differences(), "");
  OptionRecord(3).name = " Name";
  EXPECT_EQ(Differences(), GetParam().label + "[3] Name");
}

TEST_P(FilterItems, StandInFullInTheirLineAndAreWrittenAsTheyStand) {
  rig_.Connect();
  OptionRecord(2).name = "Twelve chars  ";
  EXPECT_EQ(GetParam().unit.read(rig_.units), "");
  OptionRecord(2).name = "Other";
  EXPECT_EQ(Differences(), GetParam().label + "[2] Twelve chars  ");
  EXPECT_EQ(GetParam().unit.write(rig_.units), "");
  EXPECT_EQ(OptionRecord(2).name, "Twelve chars  ");
}

TEST_P(FilterItems, FailAsALineOfEachOperation) {
  rig_.ConnectAndReceive();
  SetName(241, "New");
  rig_.faults.Add({"AccessoryDatabase." + GetParam().list});
  std::string list = "Before";
  EXPECT_EQ(GetParam().unit.modify(rig_.units, list), GetParam().label + " (LIB:80004005)");
  EXPECT_EQ(list, "Before");
  EXPECT_EQ(GetParam().unit.read(rig_.units), GetParam().label + " (LIB:80004005)");
}

TEST_P(FilterItems, AComparisonThatFailsLaterKeepsItsLines) {
  rig_.ConnectAndReceive();
  SetName(241, "New");
  SetName(249, "New");
  rig_.faults.Add({OptionCall(5) + "Name"});
  std::string list = "Before";
  EXPECT_EQ(GetParam().unit.modify(rig_.units, list), GetParam().label + " (LIB:80004005)");
  EXPECT_EQ(list, "Before\r\n" + GetParam().label + "[1] New");
}

TEST_P(FilterItems, ANameThatCannotBeReadOrWrittenIsALineAndTheNextIsWritten) {
  for (const char* kind : {"get ", "put "}) {
    rig_.ConnectAndReceive();
    SetName(248, std::string("New ") + kind);
    SetName(249, std::string("New ") + kind);
    rig_.faults.Clear();
    rig_.faults.Add({kind + OptionCall(8) + "Name"});
    EXPECT_EQ(GetParam().unit.write(rig_.units), GetParam().label + "[8]") << kind;
    EXPECT_NE(OptionRecord(8).name, OptionRecord(9).name) << kind;
    EXPECT_EQ(RightTrim(OptionRecord(9).name), RightTrim(std::string("New ") + kind)) << kind;
    rig_.faults.Clear();
  }
}

TEST_P(FilterItems, StandInAFileAsNineElements) {
  rig_.ConnectAndReceive();
  for (std::int32_t code = 241; code <= 249; ++code) SetName(code, "N" + std::to_string(code));
  std::string expected = "<SECTION>";
  for (int position = 1; position <= 9; ++position) {
    expected += "<" + GetParam().element + " POSITION=\"" + std::to_string(position) +
                "\" NAME=\"N24" + std::to_string(position) + "\"/>";
  }
  EXPECT_EQ(GetParam().unit.fileText(rig_.units), expected + "</SECTION>");
}

TEST_P(FilterItems, TakeANameOfTenCharactersFromAFileAndRefuseEleven) {
  struct Row {
    const char* given;
    const char* kept;
    bool taken;
  };
  for (const Row row : {Row{"Ten chars!", "Ten chars!", true}, Row{"Eleven char", "Before", false},
                        Row{"Ten chars!   ", "Ten chars!", true},
                        Row{" Ten chars!", "Before", false}, Row{"äöüäöüäöüä", "äöüäöüäöüä", true},
                        Row{"äöüäöüäöüäö", "Before", false}, Row{"", "", true}}) {
    rig_.ConnectAndReceive();
    SetName(246, "Before");
    EXPECT_EQ(ReadFile("POSITION=\"6\" NAME=\"" + std::string(row.given) + "\""),
              row.taken ? "" : GetParam().label + "[6]")
        << row.given;
    EXPECT_EQ(NameOf(246), row.kept) << row.given;
  }
}

TEST_P(FilterItems, WithoutANameInAFileBecomeNameless) {
  rig_.ConnectAndReceive();
  EXPECT_EQ(ReadFile("POSITION=\"1\""), "");
  EXPECT_EQ(NameOf(241), "");
}

INSTANTIATE_TEST_SUITE_P(Lists, FilterItems,
                         testing::Values(ListOf(&FilterUnits::Exciter, "Exciters", "Exciter",
                                                "EXCITER", &DatabaseData::exciters, 11, "365/10"),
                                         ListOf(&FilterUnits::Dichroic, "Dichroics", "Dichroic",
                                                "DICHROIC", &DatabaseData::dichroics, 9, "DM 430"),
                                         ListOf(&FilterUnits::Barrier, "Barriers", "Barrier",
                                                "BARRIER", &DatabaseData::barriers, 11, "460/50")),
                         [](const auto& row) { return row.param.list; });

}  // namespace
}  // namespace mortane::test
