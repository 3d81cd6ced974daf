// The cube codes at the addresses of the filter turret.
#include <gtest/gtest.h>

#include "support/UnitDrill.h"

namespace mortane::test {
namespace {

std::vector<std::int32_t> CodesOf(const clsFilter& turret) {
  std::vector<std::int32_t> codes;
  for (std::int32_t address = 1; address <= 10; ++address) codes.push_back(turret.code(address));
  return codes;
}

TEST(FilterTurret, HoldsACodeForTenAddressesAndNoOthers) {
  Rig rig("Shell");
  for (const std::int32_t address : {-1, 0, 11}) {
    rig.k70.curFilter.code(address, 5);
    EXPECT_EQ(rig.k70.curFilter.code(address), -1) << address;
  }
  EXPECT_EQ(CodesOf(rig.k70.curFilter), std::vector<std::int32_t>(10, 0));
  rig.k70.curFilter.code(1, 241);
  rig.k70.curFilter.code(10, 7);
  EXPECT_EQ(CodesOf(rig.k70.curFilter),
            (std::vector<std::int32_t>{241, 0, 0, 0, 0, 0, 0, 0, 0, 7}));
}

TEST(FilterTurret, IsReadAddressByAddress) {
  Rig rig("Harbour");
  rig.ConnectAndReceive();
  EXPECT_EQ(CodesOf(rig.k70.curFilter), (std::vector<std::int32_t>{2, 3, 5, 7, 8, 1, 0, 0, 0, 0}));
}

TEST(FilterTurret, AReadOfTheUnitAloneLeavesItsCount) {
  Rig rig("Harbour");
  rig.Connect();
  EXPECT_EQ(rig.k70.curFilter.Count, 6);
  rig.k70.curFilter.Count = 3;
  EXPECT_EQ(rig.k70.curFilter.ReadSdk(), "");
  EXPECT_EQ(rig.k70.curFilter.Count, 3);
}

TEST(FilterTurret, ItsCountIsToldOnConnectingAndByEachReceive) {
  Rig rig("Hub");
  rig.Connect();
  EXPECT_EQ(rig.k70.curFilter.Count, 10);
  rig.instrument().filterCubes.resize(5);
  rig.k70.Receive();
  EXPECT_EQ(rig.k70.curFilter.Count, 5);
  rig.faults.Add({"FilterCubeDevice.Positions.Count"});
  rig.prompts.ExpectBox("Filter Cube Count", box::kCritical);
  rig.k70.Receive();
  EXPECT_EQ(rig.k70.curFilter.Count, 0);
}

TEST(FilterTurret, WithoutAddressesCountsAsNotMounted) {
  Rig rig("Hollow");
  rig.Connect();
  EXPECT_EQ(rig.k70.curFilter.Count, 0);
  EXPECT_EQ(rig.k70.curFilter.ReadSdk(), "");
  EXPECT_EQ(rig.journal.CallCount(), 0U);
}

TEST(FilterTurret, ThatIsNotMountedIsNeverAskedAndItsCodesAreForgotten) {
  Rig rig("Harbour");
  rig.ConnectAndReceive();
  rig.instrument().Accessory(accessory::kFilterCube).state = 0;
  rig.Connect();
  rig.k70.curFilter.code(1, 5);
  std::string list = "Before";
  EXPECT_EQ(rig.k70.curFilter.ModifySdk(list), "");
  EXPECT_EQ(list, "Before");
  EXPECT_EQ(rig.k70.curFilter.WriteSdk(), "");
  EXPECT_EQ(rig.k70.curFilter.ReadSdk(), "");
  EXPECT_EQ(CodesOf(rig.k70.curFilter), std::vector<std::int32_t>(10, 0));
  EXPECT_EQ(rig.journal.CallCount(), 0U);
}

TEST(FilterTurret, ThatOnlyHasASensorIsReadComparedAndWritten) {
  Rig rig("Watch");
  rig.ConnectAndReceive();
  ASSERT_EQ(rig.k70.IsMounted(accessory::kFilterCube), kSensorOnly);
  rig.k70.curFilter.code(2, 9);
  std::string list;
  EXPECT_EQ(rig.k70.curFilter.ModifySdk(list), "");
  EXPECT_EQ(list, "Filter Cube[2] Red");
  EXPECT_EQ(rig.k70.curFilter.WriteSdk(), "");
  EXPECT_EQ(rig.instrument().filterCubes[1].code, 9);
}

TEST(FilterTurret, WithACountOfZeroWritesNoElementAlthoughCodesAreSet) {
  Rig rig("Harbour");
  rig.ConnectAndReceive();
  rig.k70.curFilter.Count = 0;
  EXPECT_EQ(rig.k70.curFilter.code(1), 2);
  EXPECT_EQ(FileTextOf(rig.k70.curFilter), "<SECTION/>");
}

TEST(FilterTurret, WritesOneElementForEachAddressUpToItsCount) {
  Rig rig("Harbour");
  rig.ConnectAndReceive();
  rig.k70.curFilter.Count = 2;
  EXPECT_EQ(FileTextOf(rig.k70.curFilter),
            R"(<SECTION><ITEM POSITION="1" CODE="2"/><ITEM POSITION="2" CODE="3"/></SECTION>)");
}

TEST(FilterTurret, KeepsAnAddressBeyondItsCountAndNeitherSendsNorWritesIt) {
  Rig rig("Harbour");
  rig.ConnectAndReceive();
  const std::string before = FileTextOf(rig.k70.curFilter);
  EXPECT_EQ(ReadElement(rig.k70.curFilter, R"(<ITEM POSITION="7" CODE="9"/>)"), "");
  EXPECT_EQ(rig.k70.curFilter.code(7), 9);
  EXPECT_EQ(FileTextOf(rig.k70.curFilter), before);
  EXPECT_EQ(rig.k70.curFilter.WriteSdk(), "");
  EXPECT_TRUE(rig.journal.Writes().empty());
}

TEST(FilterTurret, TakesEveryAddressAndEveryCodeOfAFile) {
  Rig rig("Shell");
  for (const std::int32_t address : {1, 10}) {
    for (const std::int32_t code : {0, 249}) {
      EXPECT_EQ(
          ReadElement(rig.k70.curFilter, "<ITEM CODE=\"" + std::to_string(code) + "\" POSITION=\"" +
                                             std::to_string(address) + "\"/>"),
          "");
      EXPECT_EQ(rig.k70.curFilter.code(address), code);
    }
  }
  EXPECT_EQ(ReadElement(rig.k70.curFilter, R"(<ITEM POSITION="10" CODE="none"/>)"), "");
  EXPECT_EQ(rig.k70.curFilter.code(10), 0);
}

TEST(FilterTurret, ShowsTenCharactersOfACubesNameInItsLine) {
  Rig rig("Harbour");
  rig.ConnectAndReceive();
  ReadElement(rig.k70.dbFilter, R"(<OPTION POSITION="1" CODE="100120023003" NAME="ÄÖÜ eleven!"/>)");
  rig.k70.curFilter.code(1, 241);
  std::string list;
  EXPECT_EQ(rig.k70.curFilter.ModifySdk(list), "");
  EXPECT_EQ(list, "Filter Cube[1] ÄÖÜ eleven");
}

TEST(FilterTurret, AnAddressThatIsNoneEndsReadAndComparisonAndIsALineOfTheWrite) {
  for (const std::int32_t address : {0, 11}) {
    Rig rig("Harbour");
    rig.ConnectAndReceive();
    rig.instrument().filterCubes[2].position = address;
    rig.k70.curFilter.code(1, 9);
    rig.k70.curFilter.code(6, 9);
    std::string list;
    EXPECT_EQ(rig.k70.curFilter.ModifySdk(list), "Filter Cube (Mortane:9)");
    EXPECT_EQ(list, "Filter Cube[1] Red");
    EXPECT_EQ(rig.k70.curFilter.WriteSdk(), "Filter Cube[" + std::to_string(address) + "]");
    EXPECT_EQ(rig.instrument().filterCubes[5].code, 9);
    EXPECT_EQ(rig.k70.curFilter.ReadSdk(), "Filter Cube (Mortane:9)");
    EXPECT_EQ(CodesOf(rig.k70.curFilter),
              (std::vector<std::int32_t>{9, 3, 0, 0, 0, 0, 0, 0, 0, 0}));
  }
}

TEST(FilterTurret, AReadThatFailsKeepsTheCodesBeforeTheFailure) {
  Rig rig("Harbour");
  rig.Connect();
  rig.faults.Add({"FilterCubeDevice.Positions(3)"});
  EXPECT_EQ(rig.k70.curFilter.ReadSdk(), "Filter Cube (LIB:80004005)");
  EXPECT_EQ(CodesOf(rig.k70.curFilter), (std::vector<std::int32_t>{2, 3, 0, 0, 0, 0, 0, 0, 0, 0}));
  EXPECT_EQ(rig.k70.curFilter.Count, 6);
}

TEST(FilterTurret, ACodeThatCannotBeReadOrWrittenIsALineAndTheNextIsWritten) {
  for (const char* kind : {"get ", "put "}) {
    Rig rig("Harbour");
    rig.ConnectAndReceive();
    rig.k70.curFilter.code(2, 9);
    rig.k70.curFilter.code(5, 9);
    rig.faults.Add({kind + std::string("FilterCubeDevice.Positions(2).Code")});
    EXPECT_EQ(rig.k70.curFilter.WriteSdk(), "Filter Cube[2]") << kind;
    EXPECT_EQ(rig.instrument().filterCubes[1].code, 3) << kind;
    EXPECT_EQ(rig.instrument().filterCubes[4].code, 9) << kind;
  }
}

}  // namespace
}  // namespace mortane::test
