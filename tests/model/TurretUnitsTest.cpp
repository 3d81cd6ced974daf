// What the units of nosepiece, filter cubes and condensers have in common, beyond the drill.
#include <gtest/gtest.h>

#include <algorithm>

#include "common/Failure.h"
#include "model/TurretUnit.h"

namespace mortane::test {
namespace {

using Codes = std::vector<std::int32_t>;

std::size_t ItemsIn(const std::string& text) {
  std::size_t count = 0;
  for (std::size_t at = text.find("<ITEM"); at != std::string::npos;
       at = text.find("<ITEM", at + 1))
    ++count;
  return count;
}

std::string Item(std::int32_t position, const std::string& code) {
  return "<ITEM POSITION=\"" + std::to_string(position) + "\" CODE=\"" + code + "\"/>";
}

class Turrets : public testing::TestWithParam<TurretUnit> {
 protected:
  const TurretUnit& turret() const { return GetParam(); }
  const UnitOperations& unit() const { return GetParam().operations; }
  controller::TurretPlaces& Places(Rig& rig) const { return rig.instrument().*turret().places; }
  std::string Failure(const std::string& end) const { return turret().failure + end; }
  std::string ItemLine(std::int32_t address) const {
    return turret().item + std::to_string(address) + "]";
  }
  // The line of ModifySdk for an address that has `otherCode`.
  std::string Difference(std::int32_t address) const {
    return turret().difference + std::to_string(address) + "] " + turret().otherName;
  }
  // As the instrument has them, filled up to ten.
  Codes Held(Rig& rig, std::size_t count) const {
    Codes codes;
    for (std::size_t i = 0; i < 10; ++i) codes.push_back(i < count ? Places(rig)[i].code : 0);
    return codes;
  }
};

INSTANTIATE_TEST_SUITE_P(Units, Turrets, testing::ValuesIn(TurretUnits()),
                         [](const auto& test) { return test.param.name; });

TEST_P(Turrets, HoldACodeAtTenAddressesAndNoOthers) {
  Rig rig("Harbour");
  EXPECT_EQ(turret().Codes(rig.units), Codes(10, 0));
  for (std::int32_t address = 1; address <= 10; ++address) {
    turret().setCode(rig.units, address, 100 + address);
  }
  for (const std::int32_t address : {0, 11, -1, 2147483647, -2147483647 - 1}) {
    turret().setCode(rig.units, address, 5);
    EXPECT_EQ(turret().code(rig.units, address), -1) << address;
  }
  EXPECT_EQ(turret().Codes(rig.units), (Codes{101, 102, 103, 104, 105, 106, 107, 108, 109, 110}));
}

TEST_P(Turrets, AreReadByPositionWhateverTheOrder) {
  Rig rig("Harbour");
  Places(rig) = {{3, 30}, {1, 10}, {10, 100}};
  rig.Connect();
  turret().setCode(rig.units, 2, 9);
  turret().count(rig.units) = 77;
  EXPECT_EQ(unit().read(rig.units), "");
  EXPECT_EQ(turret().Codes(rig.units), (Codes{10, 0, 30, 0, 0, 0, 0, 0, 0, 100}));
  EXPECT_EQ(turret().count(rig.units), turret().countAfterRead);
}

TEST_P(Turrets, AreReadWithoutAskingForTheirCount) {
  Rig rig("Harbour");
  rig.Connect();
  unit().read(rig.units);
  ASSERT_FALSE(rig.journal.Lines().empty());
  for (const std::string& line : rig.journal.Lines()) {
    EXPECT_EQ(line.find("Count"), std::string::npos) << line;
  }
}

TEST_P(Turrets, ThatAreNotMountedAreNotAskedAndForgetTheirCodesButNotTheirCount) {
  Rig rig("Harbour");
  rig.ConnectAndReceive();
  rig.instrument().Accessory(turret().accessory).state = 0;
  rig.Connect();
  turret().count(rig.units) = 77;
  turret().setCode(rig.units, 1, 5);
  std::string list = "Before";
  EXPECT_EQ(unit().modify(rig.units, list), "");
  EXPECT_EQ(list, "Before");
  EXPECT_EQ(unit().write(rig.units), "");
  EXPECT_EQ(unit().read(rig.units), "");
  EXPECT_EQ(turret().Codes(rig.units), Codes(10, 0));
  EXPECT_EQ(turret().count(rig.units), 77);
  EXPECT_EQ(rig.journal.CallCount(), 0U);
}

TEST_P(Turrets, ThatAreSensedOnlyAreReadComparedAndWritten) {
  Rig rig("Harbour");
  rig.instrument().Accessory(turret().accessory).readOnly = true;
  rig.ConnectAndReceive();
  ASSERT_EQ(rig.units.IsMounted(turret().accessory), kSensorOnly);
  turret().setCode(rig.units, 2, turret().otherCode);
  std::string list;
  EXPECT_EQ(unit().modify(rig.units, list), "");
  EXPECT_EQ(list, Difference(2));
  EXPECT_EQ(unit().write(rig.units), "");
  EXPECT_EQ(rig.journal.Writes(), Lines{turret().Write(2, turret().otherCode)});
}

TEST_P(Turrets, APositionOutsideTheTenEndsAReadAndAComparisonAndIsALineOfAWrite) {
  for (const std::int32_t position : {0, 11, -5}) {
    Rig rig("Harbour");
    rig.ConnectAndReceive();
    Places(rig)[2].position = position;
    turret().setCode(rig.units, 1, turret().otherCode);
    turret().setCode(rig.units, 6, turret().otherCode);
    std::string list;
    EXPECT_EQ(unit().modify(rig.units, list), Failure("Mortane:9)")) << position;
    EXPECT_EQ(list, Difference(1));
    EXPECT_EQ(unit().write(rig.units), ItemLine(position));
    EXPECT_EQ(rig.journal.Writes(), (Lines{turret().Write(1, turret().otherCode),
                                           turret().Write(6, turret().otherCode)}));
    turret().count(rig.units) = 77;
    EXPECT_EQ(unit().read(rig.units), Failure("Mortane:9)"));
    EXPECT_EQ(turret().Codes(rig.units), Held(rig, 2));
    EXPECT_EQ(turret().count(rig.units), turret().countAfterFailure);
  }
}

TEST_P(Turrets, AnEnumeratorThatFailsAtTheThirdItemKeepsTheTwoBeforeIt) {
  Rig rig("Harbour");
  rig.ConnectAndReceive();
  turret().setCode(rig.units, 5, turret().otherCode);
  rig.faults.Add({turret().device + ".Positions(3)"});
  EXPECT_EQ(unit().write(rig.units), Failure("LIB:80004005)"));
  EXPECT_TRUE(rig.journal.Writes().empty());
  turret().count(rig.units) = 77;
  EXPECT_EQ(unit().read(rig.units), Failure("LIB:80004005)"));
  EXPECT_EQ(turret().Codes(rig.units), Held(rig, 2));
  EXPECT_EQ(turret().count(rig.units), turret().countAfterFailure);
}

TEST_P(Turrets, AWriteGoesOnAfterEachFailure) {
  Rig rig("Harbour");
  rig.ConnectAndReceive();
  const std::int32_t other = turret().otherCode;
  for (std::int32_t address = 1; address <= 5; ++address) {
    turret().setCode(rig.units, address, other);
  }
  rig.faults.Add({"put " + turret().device + ".Positions(2).Code"});
  rig.faults.Add({"get " + turret().device + ".Positions(4).Code"});
  EXPECT_EQ(unit().write(rig.units), ItemLine(2) + "\r\n" + ItemLine(4));
  EXPECT_EQ(rig.journal.Writes(),
            (Lines{turret().Write(1, other), turret().Write(2, other) + " ! LIB:80004005",
                   turret().Write(3, other), turret().Write(5, other)}));
}

TEST_P(Turrets, ItemsThatCannotBeNamedAreTheUnitsLineOnce) {
  Rig rig("Harbour");
  rig.ConnectAndReceive();
  turret().setCode(rig.units, 6, turret().otherCode);
  rig.faults.Add({turret().device + ".Positions(1).Position"});
  rig.faults.Add({turret().device + ".Positions(2).Position"});
  EXPECT_EQ(unit().write(rig.units), Failure("LIB:80004005)"));
  EXPECT_EQ(rig.journal.Writes(), Lines{turret().Write(6, turret().otherCode)});
}

TEST_P(Turrets, ACodeThatIsNoneIsComparedAndWrittenAsItStands) {
  Rig rig("Harbour");
  rig.ConnectAndReceive();
  const std::int32_t beyond = turret().highestCode + 1;
  Places(rig)[0].code = beyond;
  EXPECT_EQ(unit().read(rig.units), "");
  EXPECT_EQ(turret().code(rig.units, 1), beyond);
  Places(rig)[0].code = 1;
  std::string list;
  EXPECT_EQ(unit().modify(rig.units, list), "");
  EXPECT_EQ(list, turret().difference + "1] ") << "it has no name";
  EXPECT_EQ(unit().write(rig.units), "");
  EXPECT_EQ(rig.journal.Writes(), Lines{turret().Write(1, beyond)});
}

TEST_P(Turrets, TakeBothEndsOfPositionsAndCodesFromAFile) {
  Rig rig("Shell");
  for (const std::int32_t address : {1, 10}) {
    for (const std::int32_t code : {turret().highestCode, 0}) {
      EXPECT_EQ(unit().readElement(rig.units, Item(address, std::to_string(code))), "");
      EXPECT_EQ(turret().code(rig.units, address), code);
    }
  }
  turret().setCode(rig.units, 2, 5);
  EXPECT_EQ(unit().readElement(rig.units, Item(2, "many")), "");
  EXPECT_EQ(turret().code(rig.units, 2), 0);
}

TEST_P(Turrets, KeepAnAddressBeyondTheirCountAndNeitherSendItNorWriteItBack) {
  Rig rig("Harbour");
  Places(rig).resize(5);
  rig.ConnectAndReceive();
  const std::string before = unit().fileText(rig.units);
  EXPECT_EQ(ItemsIn(before), 5U);
  EXPECT_EQ(unit().readElement(rig.units, Item(10, "9")), "");
  EXPECT_EQ(turret().code(rig.units, 10), 9);
  EXPECT_EQ(unit().fileText(rig.units), before);
  EXPECT_EQ(unit().write(rig.units), "");
  EXPECT_TRUE(rig.journal.Writes().empty());
}

TEST_P(Turrets, WriteOneElementForEachAddressUpToTheirCount) {
  Rig rig("Shell");
  turret().setCode(rig.units, 1, 2);
  turret().setCode(rig.units, 2, 3);
  turret().count(rig.units) = 0;
  EXPECT_EQ(unit().fileText(rig.units), "<SECTION/>");
  turret().count(rig.units) = 2;
  EXPECT_EQ(unit().fileText(rig.units),
            R"(<SECTION><ITEM POSITION="1" CODE="2"/><ITEM POSITION="2" CODE="3"/></SECTION>)");
}

TEST_P(Turrets, NeverLeaveTheirTableWithACountAboveTen) {
  Rig rig("Shell");
  turret().count(rig.units) = 12;
  const std::string text = unit().fileText(rig.units);
  EXPECT_EQ(ItemsIn(text), 12U);
  EXPECT_NE(text.find(Item(12, "-1")), std::string::npos);
}

}  // namespace
}  // namespace mortane::test
