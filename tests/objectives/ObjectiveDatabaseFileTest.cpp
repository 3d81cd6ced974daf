// The user's objectives in a settings file, beyond the drill.
#include <gtest/gtest.h>

#include "common/Failure.h"
#include "common/Numbers.h"
#include "objectives/ObjectiveUnits.h"
#include "support/UnitText.h"

namespace mortane::test {
namespace {

std::string Element(const std::string& code, const std::string& name = "New",
                    const std::string& position = "1") {
  return "<OPTION POSITION=\"" + position + "\" CODE=\"" + code + "\" NAME=\"" + name + "\"/>";
}

class ObjectiveFile : public testing::Test {
 protected:
  ObjectiveFile() {
    rig.ConnectAndReceive();
    before = FileTextOf(database);
  }
  // What position 1 looks like now.
  std::string First() const {
    const std::string text = FileTextOf(database);
    const std::size_t start = text.find("<OPTION");
    return text.substr(start, text.find("/>", start) + 2 - start);
  }

  Rig rig{"Harbour"};
  clsDbNosepiece& database = rig.units.DbNosepiece;
  std::string before;
};

TEST(ObjectiveFileText, UntouchedPositionsAreTwelveZerosAndNoName) {
  Rig rig("Harbour");
  std::string expected = "<SECTION>";
  for (int n = 1; n <= 9; ++n) {
    expected += "<OPTION POSITION=\"" + std::to_string(n) + "\" CODE=\"000000000000\" NAME=\"\"/>";
  }
  EXPECT_EQ(FileTextOf(rig.units.DbNosepiece), expected + "</SECTION>");
}

TEST_F(ObjectiveFile, BothEndsOfEachRangeAreTaken) {
  for (const char* code : {"000000000000", "677D0FA07D09", "67FFF0000000"}) {
    const bool taken = std::string(code) != "67FFF0000000";
    EXPECT_EQ(ReadElement(database, Element(code)), taken ? "" : "Nosepiece Optional[1]");
    if (taken) {
      EXPECT_EQ(First(), Element(code));
    }
  }
  EXPECT_EQ(database.AdoptiveCondenser(241), 9);
}

TEST_F(ObjectiveFile, WhatIsBeyondARangeIsRefusedAndTheRecordStays) {
  const char* what[][2] = {
      {"magnification 200.1", "117D10640FA1"},
      {"distance 40.01", "11064FA10FA1"},
      {"aperture 2.001", "110640647D11"},
      {"series 7 of 6", "7106406400F1"},
      {"type 8 of 7", "1806406400F1"},
      {"series of no digit", " 106406400F1"},
      {"type of no digit", "1/06406400F1"},
      {"series of a doubled character", "[106406400F1"},
      {"eleven characters", "11064064 FA"},
      {"thirteen characters", "110640640FA10"},
      {"nothing", ""},
      {"a condenser of two digits", "1106406400F10"},
  };
  for (const auto& row : what) {
    EXPECT_EQ(ReadElement(database, Element(row[1])), "Nosepiece Optional[1]") << row[0];
    EXPECT_EQ(FileTextOf(database), before) << row[0];
  }
}

TEST_F(ObjectiveFile, LettersWhereDigitsBelongEndTheNumber) {
  EXPECT_EQ(ReadElement(database, Element("110G406Zxyz1")), "");
  EXPECT_EQ(First(), Element("110000060001"));
}

TEST_F(ObjectiveFile, CodesAreCountedInCharacters) {
  EXPECT_EQ(ReadElement(database, Element("11064064é0A1")), "");
  EXPECT_EQ(First(), Element("110640640001"));
  EXPECT_EQ(ReadElement(database, Element("110640640é1")), "Nosepiece Optional[1]");
}

TEST_F(ObjectiveFile, NamesOfTwentyCharactersAreTakenLongerOnesRefused) {
  EXPECT_EQ(ReadElement(database, Element("110640640FA1", "äöüäöüäöüäöüäöüäöüäö")), "");
  EXPECT_EQ(database.Name(241), "äöüäöüäöüäöüäöüäöüäö");
  EXPECT_EQ(ReadElement(database, Element("110640640FA1", "äöüäöüäöüäöüäöüäöüäöü")),
            "Nosepiece Optional[1]");
  EXPECT_EQ(ReadElement(database, Element("110640640FA1", "  Blanks behind            ")), "");
  EXPECT_EQ(database.Name(241), "  Blanks behind");
}

TEST_F(ObjectiveFile, ALastCharacterThatIsNoDigitGoesToTheCallerAndTheRecordStays) {
  for (const char* code : {"110640640FAx", "110640640FA ", "110640640FAé"}) {
    try {
      ReadElement(database, Element(code));
      FAIL() << "nothing was raised for " << code;
    } catch (const Failure& failure) {
      EXPECT_EQ(failure.Number(), kConversionError);
    }
    EXPECT_EQ(FileTextOf(database), before) << code;
  }
}

TEST_F(ObjectiveFile, WhatIsRefusedAnywayRaisesNothing) {
  EXPECT_EQ(ReadElement(database, Element("110640640FAx", "New", "10")), "Nosepiece Optional[10]");
  EXPECT_EQ(ReadElement(database, Element("117D10640FAx")), "Nosepiece Optional[1]");
}

TEST(ObjectiveFileText, WithoutTheListsEverySeriesAndTypeButZeroIsRefused) {
  Rig rig("Harbour");
  EXPECT_EQ(ReadElement(rig.units.DbNosepiece, Element("100640640FA1")), "Nosepiece Optional[1]");
  EXPECT_EQ(ReadElement(rig.units.DbNosepiece, Element("010640640FA1")), "Nosepiece Optional[1]");
  EXPECT_EQ(ReadElement(rig.units.DbNosepiece, Element("000640640FA1")), "");
}

TEST_F(ObjectiveFile, DoesNotDependOnTheUsersNumberFormat) {
  SetSystemNumberFormat({",", "."});
  EXPECT_EQ(FileTextOf(database), before);
  EXPECT_EQ(ReadElement(database, Element("11019", "x", "1.0")), "Nosepiece Optional[1]");
  EXPECT_EQ(ReadElement(database, Element("11019", "x", "1,0")), "Nosepiece Optional[0]");
  SetSystemNumberFormat(PointFormat());
}

TEST_F(ObjectiveFile, ValuesFromAFileEqualTheControllersOwn) {
  DomDocument document;
  ASSERT_TRUE(document.LoadText(before));
  for (const DomNode& element : document.Children().at(0).Children()) {
    EXPECT_EQ(database.ReadDom(element), "");
  }
  std::string list;
  EXPECT_EQ(database.ModifySdk(list), "");
  EXPECT_EQ(list, "");
}

}  // namespace
}  // namespace mortane::test
