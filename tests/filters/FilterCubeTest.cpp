// The filter cubes: what is asked of them, how they are read, and their elements in a file.
#include <gtest/gtest.h>

#include "filters/FilterUnits.h"
#include "support/UnitText.h"

namespace mortane::test {
namespace {

using controller::CubeData;

constexpr std::size_t kFirstOption = 10;  // place of the first option in Harbour's list of cubes

// The four texts of a cube, as Get_DbFilter gives them.
std::vector<std::string> Shown(const clsDbFilter& cubes, std::int32_t code) {
  std::vector<std::string> texts(4, "as before");
  cubes.Get_DbFilter(code, texts[0], texts[1], texts[2], texts[3]);
  return texts;
}

struct Option {
  std::string name = "as before";
  std::int32_t exciter = 77;
  std::int32_t dichroic = 77;
  std::int32_t barrier = 77;

  bool operator==(const Option&) const = default;
};

std::ostream& operator<<(std::ostream& stream, const Option& option) {
  return stream << '"' << option.name << "\" " << option.exciter << ' ' << option.dichroic << ' '
                << option.barrier;
}

Option OptionAt(const clsDbFilter& cubes, std::int32_t position) {
  Option option;
  cubes.Get_DbFilterOption(position, option.name, option.exciter, option.dichroic, option.barrier);
  return option;
}

// Harbour with its cubes changed before the program reads them.
template <typename Change>
void ReadHarbour(Rig& rig, Change&& change) {
  rig.Connect();
  change(rig.instrument().database);
  EXPECT_EQ(rig.units.Receive(), "");
  rig.journal.Clear();
}

TEST(FilterCube, HasANameForEveryCodeAndNoneBeyond) {
  Rig rig("Harbour");
  rig.ConnectAndReceive();
  EXPECT_EQ(rig.units.dbFilter.Name(2), "UV Blue");
  EXPECT_EQ(rig.units.dbFilter.Name(241), "Ratio");
  for (const std::int32_t code : {-1, 0, 11, 250, 2147483647}) {
    EXPECT_EQ(rig.units.dbFilter.Name(code), "") << code;
  }
}

TEST(FilterCube, IsShownWithTheNamesOfItsItems) {
  Rig rig("Harbour");
  rig.ConnectAndReceive();
  EXPECT_EQ(Shown(rig.units.dbFilter, 2),
            (std::vector<std::string>{"UV Blue", "365/10", "DM 400", "460/50"}));
  EXPECT_EQ(Shown(rig.units.dbFilter, 241),
            (std::vector<std::string>{"Ratio", "387/11", "DM 495", "525/50"}));
}

TEST(FilterCube, OfCodeZeroIsShownLikeTheOthers) {
  Rig rig("Harbour");
  ReadHarbour(rig, [](controller::DatabaseData& database) {
    database.cubes.push_back({0, false, "Zero", 2, 1, 3});
  });
  EXPECT_EQ(rig.units.dbFilter.Name(0), "Zero");
  EXPECT_EQ(Shown(rig.units.dbFilter, 0),
            (std::vector<std::string>{"Zero", "365/10", "DM 400", "480/40"}));
}

TEST(FilterCube, OfACodeBeyondTheListIsShownAsFourEmptyTexts) {
  Rig rig("Harbour");
  rig.ConnectAndReceive();
  for (const std::int32_t code : {-1, 11, 250}) {
    EXPECT_EQ(Shown(rig.units.dbFilter, code), std::vector<std::string>(4)) << code;
  }
}

TEST(FilterCube, AnItemOfCodeZeroIsEmptyAlsoWhenTheControllerHasANameForIt) {
  Rig rig("Harbour");
  ReadHarbour(rig, [](controller::DatabaseData& database) {
    for (auto* list : {&database.exciters, &database.dichroics, &database.barriers}) {
      list->push_back({0, false, "Nothing"});
    }
  });
  EXPECT_EQ(rig.units.Exciter.Name(0), "Nothing");
  EXPECT_EQ(Shown(rig.units.dbFilter, 1), (std::vector<std::string>{"Empty", "", "", ""}));
}

TEST(FilterCube, ShowsTenCharactersOfEachNameAndKeepsTheWhole) {
  Rig rig("Harbour");
  ReadHarbour(rig, [](controller::DatabaseData& database) {
    database.cubes[kFirstOption] = {241, true, "ÄÖÜ eleven!", 1, 1, 1};
    database.exciters[0].name = "1234567890";
    database.dichroics[0].name = "12345678901";
    database.barriers[0].name = "Barrier of length";
  });
  EXPECT_EQ(Shown(rig.units.dbFilter, 241),
            (std::vector<std::string>{"ÄÖÜ eleven", "1234567890", "1234567890", "Barrier of"}));
  EXPECT_EQ(OptionAt(rig.units.dbFilter, 1), (Option{"ÄÖÜ eleven!", 1, 1, 1}));
  EXPECT_EQ(rig.units.dbFilter.Name(241), "ÄÖÜ eleven!");
}

TEST(FilterCube, OfTheUserIsGivenByItsPosition) {
  Rig rig("Harbour");
  rig.ConnectAndReceive();
  EXPECT_EQ(OptionAt(rig.units.dbFilter, 1), (Option{"Ratio", 241, 4, 5}));
  EXPECT_EQ(OptionAt(rig.units.dbFilter, 9), (Option{"----------", 0, 0, 0}));
  for (const std::int32_t position : {-1, 0, 10, 241}) {
    EXPECT_EQ(OptionAt(rig.units.dbFilter, position), (Option{"", -1, -1, -1})) << position;
  }
}

TEST(FilterCube, OfTheUserKeepsTenCharactersOfItsNewName) {
  struct Row {
    const char* given;
    const char* kept;
  };
  for (const Row row : {Row{"", ""}, Row{"Ten chars!", "Ten chars!"},
                        Row{"Eleven char", "Eleven cha"}, Row{"äöüäöüäöüäö", "äöüäöüäöüä"}}) {
    Rig rig("Harbour");
    rig.ConnectAndReceive();
    rig.units.dbFilter.Set_DbFilterOption(4, row.given, 3, 0, 249);
    EXPECT_EQ(OptionAt(rig.units.dbFilter, 4), (Option{row.kept, 3, 0, 249})) << row.given;
    EXPECT_EQ(rig.units.dbFilter.Name(244), row.kept) << row.given;
  }
}

TEST(FilterCube, OfAPositionThatIsNoneIsNotStored) {
  for (const std::int32_t position : {-1, 0, 10}) {
    Rig rig("Harbour");
    rig.ConnectAndReceive();
    rig.units.dbFilter.Set_DbFilterOption(position, "New", 1, 2, 3);
    for (std::int32_t code = 0; code < 250; ++code) {
      EXPECT_NE(rig.units.dbFilter.Name(code), "New") << position;
    }
  }
}

TEST(FilterCube, WithABarrierBeyondTheListIsShownInOneBoxAndKeepsItsOtherItems) {
  Rig rig("Harbour");
  rig.prompts.ExpectBox("*** DbFilter.DataError 3", box::kOk);
  ReadHarbour(rig, [](controller::DatabaseData& database) { database.cubes[2].barrier = 300; });
  EXPECT_EQ(rig.prompts.Boxes().size(), 1U);
  EXPECT_EQ(Shown(rig.units.dbFilter, 3),
            (std::vector<std::string>{"Violet", "405/20", "DM 430", ""}));
}

TEST(FilterCube, LosesExactlyTheItemsBeyondTheList) {
  struct Row {
    CubeData given;
    Option kept;
    bool box;
  };
  const Row rows[] = {
      {{241, true, "A", 249, 249, 249}, {"A", 249, 249, 249}, false},
      {{241, true, "A", 250, 249, 1}, {"A", 0, 249, 1}, true},
      {{241, true, "A", 1, 250, 2}, {"A", 1, 0, 2}, true},
      {{241, true, "A", 1, 2, 250}, {"A", 1, 2, 0}, true},
      {{241, true, "A", 250, 300, 2147483647}, {"A", 0, 0, 0}, true},
      {{241, true, "A", -1, -2, -3}, {"A", -1, -2, -3}, false},
  };
  for (const Row& row : rows) {
    Rig rig("Harbour");
    if (row.box) rig.prompts.ExpectBox("*** DbFilter.DataError 241", box::kOk);
    ReadHarbour(
        rig, [&](controller::DatabaseData& database) { database.cubes[kFirstOption] = row.given; });
    EXPECT_EQ(OptionAt(rig.units.dbFilter, 1), row.kept);
    EXPECT_TRUE(rig.prompts.AllAnswersUsed());
  }
}

TEST(FilterCube, IsShownInItsBoxBeforeTheNextOneIsAskedFor) {
  Rig rig("Harbour");
  const auto lastLine = [&] { return rig.journal.Lines().back(); };
  rig.prompts.ExpectBox("*** DbFilter.DataError 2", box::kOk, Answer::Ok, "", [&] {
    EXPECT_EQ(lastLine(), "AccessoryDatabase.FilterCubes.Item(2).BarrierCode -> 2");
  });
  rig.prompts.ExpectBox("*** DbFilter.DataError 10", box::kOk, Answer::Ok, "", [&] {
    EXPECT_EQ(lastLine(), "AccessoryDatabase.FilterCubes.Item(10).BarrierCode -> 250");
  });
  ReadHarbour(rig, [](controller::DatabaseData& database) {
    database.cubes[1].exciter = 300;
    database.cubes[9].barrier = 250;
  });
}

TEST(FilterCube, OfACodeBeyondTheListEndsTheReadAndThoseBeforeItStay) {
  for (const std::int32_t code : {-1, 250}) {
    Rig rig("Harbour");
    rig.Connect();
    rig.instrument().database.cubes[2].code = code;
    EXPECT_EQ(rig.units.dbFilter.ReadSdk(), "Filter Cube Optional Cube (Mortane:9)") << code;
    EXPECT_EQ(rig.units.dbFilter.Name(2), "UV Blue");
    EXPECT_EQ(rig.units.dbFilter.Name(4), "");
    EXPECT_EQ(rig.units.dbFilter.Name(241), "");
  }
}

TEST(FilterCube, IsForgottenWhenTheReadFindsNoTurret) {
  Rig rig("Harbour");
  rig.ConnectAndReceive();
  rig.instrument().Accessory(accessory::kFilterCube).state = 0;
  rig.Connect();
  EXPECT_EQ(rig.units.dbFilter.ReadSdk(), "");
  EXPECT_EQ(rig.journal.CallCount(), 0U);
  EXPECT_EQ(rig.units.dbFilter.Name(2), "");
  EXPECT_EQ(OptionAt(rig.units.dbFilter, 1), (Option{"", 0, 0, 0}));
}

TEST(FilterCubeFile, HasNineElementsOfTwelveDigitsAndAName) {
  Rig rig("Harbour");
  rig.ConnectAndReceive();
  rig.units.dbFilter.Set_DbFilterOption(2, "A & B", 12, 33, 40);
  std::string expected = R"(<SECTION><OPTION POSITION="1" CODE="124120043005" NAME="Ratio"/>)"
                         R"(<OPTION POSITION="2" CODE="101220333040" NAME="A &amp; B"/>)";
  for (int position = 3; position <= 9; ++position) {
    expected += "<OPTION POSITION=\"" + std::to_string(position) +
                R"(" CODE="100020003000" NAME="----------"/>)";
  }
  EXPECT_EQ(FileTextOf(rig.units.dbFilter), expected + "</SECTION>");
}

TEST(FilterCubeFile, HasNineElementsAlsoWithoutATurret) {
  Rig rig("Shell");
  rig.Connect();
  DomDocument document;
  ASSERT_TRUE(document.LoadText(FileTextOf(rig.units.dbFilter)));
  EXPECT_EQ(document.Children().at(0).Children().size(), 9U);
}

TEST(FilterCubeFile, TakesTheDigitsWhateverTheMarksBetweenThem) {
  struct Row {
    const char* code;
    Option taken;
  };
  const Row rows[] = {
      {"x012y033z040", {"N", 12, 33, 40}},    {"101220333040", {"N", 12, 33, 40}},
      {"   1   2   3", {"N", 1, 2, 3}},       {"ä012ö033ü040", {"N", 12, 33, 40}},
      {"124922493249", {"N", 249, 249, 249}}, {"100020003000", {"N", 0, 0, 0}},
      {"1abc2d0430x1", {"N", 0, 0, 0}},       {"999999999999", {"", 0, 0, 0}},
  };
  for (const Row& row : rows) {
    Rig rig("Shell");
    rig.Connect();
    const bool taken = !row.taken.name.empty();
    EXPECT_EQ(ReadElement(rig.units.dbFilter, "<OPTION POSITION=\"3\" NAME=\"N\" CODE=\"" +
                                                  std::string(row.code) + "\"/>"),
              taken ? "" : "Filter Cube Optional Cube[3]")
        << row.code;
    EXPECT_EQ(OptionAt(rig.units.dbFilter, 3), row.taken) << row.code;
  }
}

TEST(FilterCubeFile, AlwaysWritesTheMarksOneTwoAndThree) {
  Rig rig("Shell");
  rig.Connect();
  ReadElement(rig.units.dbFilter, R"(<OPTION POSITION="1" NAME="N" CODE="x012y033z040"/>)");
  EXPECT_NE(FileTextOf(rig.units.dbFilter).find(R"(CODE="101220333040")"), std::string::npos);
}

TEST(FilterCubeFile, KeepsANameOfAnyLengthWithoutItsTrailingBlanks) {
  struct Row {
    const char* given;
    const char* kept;
    const char* shown;
  };
  const Row rows[] = {{"Ten chars!", "Ten chars!", "Ten chars!"},
                      {"Eleven char", "Eleven char", "Eleven cha"},
                      {" Blanks  ", " Blanks", " Blanks"},
                      {"", "", ""}};
  for (const Row& row : rows) {
    Rig rig("Harbour");
    rig.ConnectAndReceive();
    EXPECT_EQ(
        ReadElement(rig.units.dbFilter, "<OPTION POSITION=\"1\" CODE=\"100020003000\" NAME=\"" +
                                            std::string(row.given) + "\"/>"),
        "");
    EXPECT_EQ(rig.units.dbFilter.Name(241), row.kept);
    EXPECT_EQ(Shown(rig.units.dbFilter, 241).at(0), row.shown);
    EXPECT_EQ(OptionAt(rig.units.dbFilter, 1).name, row.kept);
  }
}

TEST(FilterCubeFile, WithoutANameMakesItEmpty) {
  Rig rig("Harbour");
  rig.ConnectAndReceive();
  EXPECT_EQ(ReadElement(rig.units.dbFilter, R"(<OPTION POSITION="1" CODE="100120023003"/>)"), "");
  EXPECT_EQ(OptionAt(rig.units.dbFilter, 1), (Option{"", 1, 2, 3}));
}

TEST(FilterCubeFile, ACodeBelowZeroKeepsTheLengthOfTheTextAndIsRefusedLater) {
  Rig rig("Harbour");
  rig.ConnectAndReceive();
  rig.units.dbFilter.Set_DbFilterOption(1, "N", -1, 2, -30);
  const std::string text = FileTextOf(rig.units.dbFilter);
  EXPECT_NE(text.find(R"(CODE="1-0120023-30")"), std::string::npos) << text;
  EXPECT_EQ(
      ReadElement(rig.units.dbFilter, R"(<OPTION POSITION="1" CODE="1-0120023-30" NAME="M"/>)"),
      "Filter Cube Optional Cube[1]");
}

}  // namespace
}  // namespace mortane::test
