// The nosepiece, beyond the drill.
#include <gtest/gtest.h>

#include <algorithm>

#include "support/UnitDrill.h"

namespace mortane::test {
namespace {

using Lines = std::vector<std::string>;

std::vector<std::int32_t> Codes(const clsNosepiece& nosepiece) {
  std::vector<std::int32_t> codes;
  for (std::int32_t address = 1; address <= 10; ++address) codes.push_back(nosepiece.code(address));
  return codes;
}

std::size_t ItemsIn(const std::string& text) {
  std::size_t count = 0;
  for (std::size_t at = text.find("<ITEM"); at != std::string::npos;
       at = text.find("<ITEM", at + 1))
    ++count;
  return count;
}

TEST(Nosepiece, AnswersAndStoresAtTenAddressesOnly) {
  Rig rig("Harbour");
  clsNosepiece& nosepiece = rig.k70.curNosepiece;
  for (std::int32_t address = 1; address <= 10; ++address) {
    EXPECT_EQ(nosepiece.code(address), 0);
    nosepiece.code(address, 100 + address);
  }
  for (const std::int32_t address : {0, 11, -1, 2147483647}) {
    nosepiece.code(address, 5);
    EXPECT_EQ(nosepiece.code(address), -1);
  }
  EXPECT_EQ(nosepiece.code(1), 101);
  EXPECT_EQ(nosepiece.code(10), 110);
}

TEST(Nosepiece, OfFivePositionsStoresFiveCodesAndWritesFiveElements) {
  Rig rig("Lantern");
  rig.k70.curNosepiece.code(6, 9);
  rig.ConnectAndReceive();
  EXPECT_EQ(Codes(rig.k70.curNosepiece),
            (std::vector<std::int32_t>{1, 4, 7, 10, 14, 0, 0, 0, 0, 0}));
  EXPECT_EQ(rig.k70.curNosepiece.Count, 5);
  EXPECT_EQ(FileTextOf(rig.k70.curNosepiece),
            "<SECTION><ITEM POSITION=\"1\" CODE=\"1\"/><ITEM POSITION=\"2\" CODE=\"4\"/>"
            "<ITEM POSITION=\"3\" CODE=\"7\"/><ITEM POSITION=\"4\" CODE=\"10\"/>"
            "<ITEM POSITION=\"5\" CODE=\"14\"/></SECTION>");
}

TEST(Nosepiece, ReadsByPositionWhateverTheOrder) {
  Rig rig("Harbour");
  rig.instrument().nosepiece = {{3, 30}, {1, 10}, {10, 100}};
  rig.Connect();
  rig.k70.curNosepiece.Count = 77;
  EXPECT_EQ(rig.k70.curNosepiece.ReadSdk(), "");
  EXPECT_EQ(rig.k70.curNosepiece.Count, 3);
  EXPECT_EQ(Codes(rig.k70.curNosepiece),
            (std::vector<std::int32_t>{10, 0, 30, 0, 0, 0, 0, 0, 0, 100}));
}

TEST(Nosepiece, CountsItsItemsAndDoesNotAskForTheirCount) {
  Rig rig("Harbour");
  rig.Connect();
  rig.k70.curNosepiece.ReadSdk();
  for (const std::string& line : rig.journal.Lines()) {
    EXPECT_EQ(line.find("Count"), std::string::npos) << line;
  }
}

TEST(Nosepiece, NotMountedIsNotAskedAndKeepsTheCountOfBefore) {
  Rig rig(List({"Quay", "Harbour", "Hub"}));
  ASSERT_TRUE(rig.k70.Connect(1));
  rig.k70.Receive();
  ASSERT_TRUE(rig.k70.Connect(2));
  rig.k70.curNosepiece.Count = 6;
  rig.journal.Clear();
  EXPECT_EQ(rig.k70.curNosepiece.ReadSdk(), "");
  EXPECT_EQ(Codes(rig.k70.curNosepiece), std::vector<std::int32_t>(10, 0));
  EXPECT_EQ(rig.k70.curNosepiece.Count, 6);
  rig.k70.curNosepiece.code(1, 5);
  std::string list = "Before";
  EXPECT_EQ(rig.k70.curNosepiece.ModifySdk(list), "");
  EXPECT_EQ(list, "Before");
  EXPECT_EQ(rig.k70.curNosepiece.WriteSdk(), "");
  EXPECT_EQ(rig.journal.CallCount(), 0U);
  rig.k70.Receive();
  EXPECT_EQ(rig.k70.curNosepiece.Count, 0);
}

TEST(Nosepiece, ASensorIsEnoughToReadCompareAndWrite) {
  Rig rig("Watch");
  rig.ConnectAndReceive();
  rig.k70.curNosepiece.code(2, 5);
  std::string list;
  EXPECT_EQ(rig.k70.curNosepiece.ModifySdk(list), "");
  EXPECT_EQ(list, "Nosepiece[2] Plan A 20x");
  EXPECT_EQ(rig.k70.curNosepiece.WriteSdk(), "");
  EXPECT_EQ(rig.journal.Writes(), Lines{"NosepieceDevice.Positions(2).Code = 5"});
}

struct BadPosition {
  std::int32_t position;
  const char* line;
};

TEST(Nosepiece, APositionOutsideTheTenEndsAReadAndAComparison) {
  for (const BadPosition& bad : {BadPosition{0, "Nosepiece[0]"}, BadPosition{11, "Nosepiece[11]"},
                                 BadPosition{-5, "Nosepiece[-5]"}}) {
    Rig rig("Harbour");
    rig.ConnectAndReceive();
    rig.instrument().nosepiece[2].position = bad.position;
    EXPECT_EQ(rig.k70.curNosepiece.ReadSdk(), "Nosepiece (Mortane:9)");
    EXPECT_EQ(Codes(rig.k70.curNosepiece),
              (std::vector<std::int32_t>{1, 4, 0, 0, 0, 0, 0, 0, 0, 0}));
    EXPECT_EQ(rig.k70.curNosepiece.Count, 6);

    rig.k70.curNosepiece.code(1, 3);
    rig.k70.curNosepiece.code(4, 10);
    rig.k70.curNosepiece.code(5, 14);
    std::string list;
    EXPECT_EQ(rig.k70.curNosepiece.ModifySdk(list), "Nosepiece (Mortane:9)");
    EXPECT_EQ(list, "Nosepiece[1] Plan A 10x");
    EXPECT_EQ(rig.k70.curNosepiece.WriteSdk(), bad.line);
    EXPECT_EQ(rig.journal.Writes(), (Lines{"NosepieceDevice.Positions(1).Code = 3",
                                           "NosepieceDevice.Positions(6).Code = 0"}));
  }
}

TEST(Nosepiece, AWalkThatFailsAtTheThirdItemKeepsTheTwoBeforeIt) {
  Rig rig("Harbour");
  rig.ConnectAndReceive();
  rig.faults.Add({"NosepieceDevice.Positions(3)"});
  EXPECT_EQ(rig.k70.curNosepiece.ReadSdk(), "Nosepiece (LIB:80004005)");
  EXPECT_EQ(Codes(rig.k70.curNosepiece), (std::vector<std::int32_t>{1, 4, 0, 0, 0, 0, 0, 0, 0, 0}));
  EXPECT_EQ(rig.k70.curNosepiece.Count, 6);
  EXPECT_EQ(rig.k70.curNosepiece.WriteSdk(), "Nosepiece (LIB:80004005)");
  EXPECT_TRUE(rig.journal.Writes().empty());
}

TEST(Nosepiece, AWriteGoesOnAfterEachFailure) {
  Rig rig("Harbour");
  rig.ConnectAndReceive();
  for (std::int32_t address = 1; address <= 6; ++address) rig.k70.curNosepiece.code(address, 3);
  rig.faults.Add({"put NosepieceDevice.Positions(2).Code"});
  rig.faults.Add({"get NosepieceDevice.Positions(4).Code"});
  EXPECT_EQ(rig.k70.curNosepiece.WriteSdk(), "Nosepiece[2]\r\nNosepiece[4]");
  EXPECT_EQ(rig.journal.Writes(),
            (Lines{"NosepieceDevice.Positions(1).Code = 3",
                   "NosepieceDevice.Positions(2).Code = 3 ! LIB:80004005",
                   "NosepieceDevice.Positions(3).Code = 3", "NosepieceDevice.Positions(5).Code = 3",
                   "NosepieceDevice.Positions(6).Code = 3"}));
}

TEST(Nosepiece, AnItemThatCannotBeNamedIsTheUnitsLineOnce) {
  Rig rig("Harbour");
  rig.ConnectAndReceive();
  rig.k70.curNosepiece.code(6, 3);
  rig.faults.Add({"NosepieceDevice.Positions(1).Position"});
  rig.faults.Add({"NosepieceDevice.Positions(2).Position"});
  EXPECT_EQ(rig.k70.curNosepiece.WriteSdk(), "Nosepiece (LIB:80004005)");
  EXPECT_EQ(rig.journal.Writes(), Lines{"NosepieceDevice.Positions(6).Code = 3"});
}

TEST(Nosepiece, LinesHaveTwentyCharactersOfTheName) {
  Rig rig("Harbour");
  rig.instrument().database.objectives[2].name = "äöüäöüäöüäöüäöüäöüäöüäöü";
  rig.ConnectAndReceive();
  rig.k70.curNosepiece.code(1, 3);
  std::string list;
  EXPECT_EQ(rig.k70.curNosepiece.ModifySdk(list), "");
  EXPECT_EQ(list, "Nosepiece[1] äöüäöüäöüäöüäöüäöüäö");
}

TEST(Nosepiece, ACodeThatIsNoneIsComparedAndWrittenAsItStands) {
  Rig rig("Harbour");
  rig.ConnectAndReceive();
  rig.instrument().nosepiece[0].code = 250;
  rig.k70.curNosepiece.ReadSdk();
  EXPECT_EQ(rig.k70.curNosepiece.code(1), 250);
  rig.instrument().nosepiece[0].code = 1;
  std::string list;
  EXPECT_EQ(rig.k70.curNosepiece.ModifySdk(list), "");
  EXPECT_EQ(list, "Nosepiece[1] ");
}

TEST(Nosepiece, AFileMaySetAnAddressBeyondTheCountWhichIsNeitherSentNorWrittenBack) {
  Rig rig("Lantern");
  rig.ConnectAndReceive();
  EXPECT_EQ(ReadElement(rig.k70.curNosepiece, "<ITEM POSITION=\"10\" CODE=\"249\"/>"), "");
  EXPECT_EQ(rig.k70.curNosepiece.code(10), 249);
  EXPECT_EQ(rig.k70.curNosepiece.WriteSdk(), "");
  EXPECT_TRUE(rig.journal.Writes().empty());
  EXPECT_EQ(ItemsIn(FileTextOf(rig.k70.curNosepiece)), 5U);
}

TEST(Nosepiece, BothEndsOfPositionsAndCodesAreTaken) {
  Rig rig("Harbour");
  clsNosepiece& nosepiece = rig.k70.curNosepiece;
  nosepiece.code(1, 5);
  EXPECT_EQ(ReadElement(nosepiece, "<ITEM POSITION=\"1\" CODE=\"0\"/>"), "");
  EXPECT_EQ(nosepiece.code(1), 0);
  EXPECT_EQ(ReadElement(nosepiece, "<ITEM POSITION=\"10\" CODE=\"249\"/>"), "");
  EXPECT_EQ(nosepiece.code(10), 249);
  nosepiece.code(2, 5);
  EXPECT_EQ(ReadElement(nosepiece, "<ITEM POSITION=\"2\" CODE=\"many\"/>"), "");
  EXPECT_EQ(nosepiece.code(2), 0);
}

TEST(Nosepiece, ACountAboveTenNeverLeavesTheTable) {
  Rig rig("Harbour");
  rig.k70.curNosepiece.Count = 12;
  const std::string text = FileTextOf(rig.k70.curNosepiece);
  EXPECT_EQ(ItemsIn(text), 12U);
  EXPECT_NE(text.find("<ITEM POSITION=\"12\" CODE=\"-1\"/>"), std::string::npos);
}

TEST(Nosepiece, SeriesIsTheNumberThatTheListHoldsAtTheCode) {
  Rig rig("Harbour");
  rig.instrument().database.series[3].name = " 20 ";
  rig.instrument().database.series[4].name = "3000000000";
  rig.ConnectAndReceive();
  rig.k70.curNosepiece.code(1, 4);
  EXPECT_EQ(rig.k70.curNosepiece.Series(1), 20);
  EXPECT_EQ(rig.k70.curNosepiece.Series(0), -1);
  EXPECT_EQ(rig.k70.curNosepiece.Series(11), -1);
  struct Bad {
    std::int32_t code;
    std::int32_t number;
  };
  for (const Bad& bad : {Bad{0, kConversionError}, Bad{1, kConversionError},
                         Bad{200, kConversionError}, Bad{5, kOverflowError}}) {
    rig.k70.curNosepiece.code(1, bad.code);
    try {
      rig.k70.curNosepiece.Series(1);
      FAIL() << "nothing was raised for code " << bad.code;
    } catch (const Failure& failure) {
      EXPECT_EQ(failure.Number(), bad.number) << bad.code;
    }
  }
}

}  // namespace
}  // namespace mortane::test
