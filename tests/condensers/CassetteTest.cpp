// The condenser cassette, beyond the drill.
#include <gtest/gtest.h>

#include "support/UnitDrill.h"

namespace mortane::test {
namespace {

using Lines = std::vector<std::string>;

TEST(Cassette, AnswersAndStoresAtTenAddressesOnly) {
  Rig rig("Harbour");
  clsCondenser& cassette = rig.k70.curCondenser;
  for (std::int32_t address = 1; address <= 10; ++address) cassette.code(address, 100 + address);
  for (const std::int32_t address : {0, 11, -1}) {
    cassette.code(address, 5);
    EXPECT_EQ(cassette.code(address), -1);
  }
  EXPECT_EQ(cassette.code(1), 101);
  EXPECT_EQ(cassette.code(10), 110);
}

TEST(Cassette, ReadsCodesAndCountsThem) {
  Rig rig("Pair");
  rig.k70.curCondenser.code(9, 9);
  rig.Connect();
  rig.k70.curCondenser.Count = 77;
  EXPECT_EQ(rig.k70.curCondenser.ReadSdk(), "");
  EXPECT_EQ(rig.k70.curCondenser.Count, 5);
  EXPECT_EQ(rig.k70.curCondenser.code(5), 5);
  EXPECT_EQ(rig.k70.curCondenser.code(9), 0);
}

TEST(Cassette, AReadThatFailsMakesTheCountZeroUntilTheCountCanBeAsked) {
  Rig rig("Harbour");
  rig.ConnectAndReceive();
  rig.faults.Add({"CondenserDevice.Positions(3)"});
  EXPECT_EQ(rig.k70.curCondenser.ReadSdk(), "Condenser Casset (LIB:80004005)");
  EXPECT_EQ(rig.k70.curCondenser.Count, 0);
  EXPECT_EQ(rig.k70.curCondenser.code(2), 2);
  EXPECT_EQ(rig.k70.curCondenser.code(3), 0);
  EXPECT_EQ(FileTextOf(rig.k70.curCondenser), "<SECTION/>");
  rig.prompts.ExpectBox("Condenser Casset (LIB:80004005)", box::kCritical);
  rig.k70.Receive();
  EXPECT_EQ(rig.k70.curCondenser.Count, 7);
}

TEST(Cassette, APositionOutsideTheTenIsSuchAFailure) {
  for (const std::int32_t position : {0, 11}) {
    Rig rig("Harbour");
    rig.ConnectAndReceive();
    rig.instrument().condensers[6].position = position;
    std::string list = "Before";
    EXPECT_EQ(rig.k70.curCondenser.ModifySdk(list), "Condenser Casset (Mortane:9)");
    EXPECT_EQ(list, "Before");
    EXPECT_EQ(rig.k70.curCondenser.Count, 7);
    EXPECT_EQ(rig.k70.curCondenser.WriteSdk(),
              "Condenser Casset[" + std::to_string(position) + "]");
    EXPECT_TRUE(rig.journal.Writes().empty());
    EXPECT_EQ(rig.k70.curCondenser.ReadSdk(), "Condenser Casset (Mortane:9)");
    EXPECT_EQ(rig.k70.curCondenser.Count, 0);
  }
}

TEST(Cassette, NotMountedIsNotAskedAndKeepsTheCountOfBefore) {
  Rig rig("Lantern");
  rig.ConnectAndReceive();
  rig.k70.curCondenser.Count = 7;
  rig.k70.curCondenser.code(1, 5);
  std::string list = "Before";
  EXPECT_EQ(rig.k70.curCondenser.ModifySdk(list), "");
  EXPECT_EQ(list, "Before");
  EXPECT_EQ(rig.k70.curCondenser.WriteSdk(), "");
  EXPECT_EQ(rig.k70.curCondenser.ReadSdk(), "");
  EXPECT_EQ(rig.k70.curCondenser.code(1), 0);
  EXPECT_EQ(rig.k70.curCondenser.Count, 7);
  EXPECT_EQ(rig.journal.CallCount(), 0U);
}

TEST(Cassette, AWriteThatFailsIsALineAndTheScanGoesOn) {
  Rig rig("Harbour");
  rig.ConnectAndReceive();
  for (std::int32_t address = 1; address <= 3; ++address) rig.k70.curCondenser.code(address, 9);
  rig.faults.Add({"put CondenserDevice.Positions(2).Code"});
  EXPECT_EQ(rig.k70.curCondenser.WriteSdk(), "Condenser Casset[2]");
  EXPECT_EQ(rig.journal.Writes(), (Lines{"CondenserDevice.Positions(1).Code = 9",
                                         "CondenserDevice.Positions(2).Code = 9 ! LIB:80004005",
                                         "CondenserDevice.Positions(3).Code = 9"}));
}

TEST(Cassette, LinesHaveTheWholeName) {
  Rig rig("Harbour");
  rig.instrument().database.condensers[8].name = "A condenser of a very long name indeed";
  rig.ConnectAndReceive();
  rig.k70.curCondenser.code(1, 9);
  std::string list;
  EXPECT_EQ(rig.k70.curCondenser.ModifySdk(list), "");
  EXPECT_EQ(list, "Condenser[1] A condenser of a very long name indeed");
}

TEST(Cassette, BothEndsOfPositionsAndCodesAreTaken) {
  Rig rig("Harbour");
  clsCondenser& cassette = rig.k70.curCondenser;
  cassette.code(1, 5);
  EXPECT_EQ(ReadElement(cassette, "<ITEM POSITION=\"1\" CODE=\"0\"/>"), "");
  EXPECT_EQ(cassette.code(1), 0);
  EXPECT_EQ(ReadElement(cassette, "<ITEM POSITION=\"10\" CODE=\"149\"/>"), "");
  EXPECT_EQ(cassette.code(10), 149);
}

}  // namespace
}  // namespace mortane::test
