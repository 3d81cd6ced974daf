#include <gtest/gtest.h>

#include "controller/ControllerError.h"
#include "controller/SimulatedRig.h"
#include "controller/simulator/ObjectiveCode.h"

namespace mortane::controller::test {
namespace {

ObjectiveData& Option(Instrument& instrument, std::int32_t code) {
  for (ObjectiveData& objective : instrument.database.objectives) {
    if (objective.code == code) return objective;
  }
  throw std::out_of_range("no objective " + std::to_string(code));
}

TEST(ObjectiveCode, HoldsAllValuesOfARecord) {
  struct Row {
    ObjectiveData record;
    const char* code;
  };
  const Row rows[] = {
      {{241, true, "", 0, 0, 0, 0, 0, 0, {}}, "000000000000"},
      {{241, true, "", 10, 36, 200, 40, 2, 9, {}}, "Aa7D0FA07D09"},
      {{241, true, "", 1, 2, 1.5, 0.17, 0.95, 3, {}}, "1200F0113B63"},
      {{241, true, "", 61, 9, 62.5, 12.34, 0.999, 1, {}}, "z92714D23E71"},
  };
  for (const Row& row : rows) {
    EXPECT_EQ(ObjectiveCode(row.record), row.code);
    ObjectiveData read{241, true, "", 7, 7, 7, 7, 7, 7, {}};
    EXPECT_TRUE(ApplyObjectiveCode(read, row.code)) << row.code;
    EXPECT_EQ(read, row.record) << row.code;
  }
}

TEST(ObjectiveCode, IsRefusedWholeWhenAnyCharacterIsBad) {
  for (const char* code :
       {"", "00000000000", "0000000000000", "?00000000000", "0?0000000000", "00G000000000",
        "00000G000000", "00000000G000", "00000000000x", "00-10000000", "00 10 0000000"}) {
    ObjectiveData record{241, true, "kept", 1, 2, 3, 4, 1, 5, {}};
    const ObjectiveData before = record;
    EXPECT_FALSE(ApplyObjectiveCode(record, code)) << code;
    EXPECT_EQ(record, before) << code;
  }
}

TEST(QueryCommand, AnswersTheCodeOfAnOption) {
  SimulatedRig rig("Quay");
  const std::string answer = rig.root.QueryCommand("rONR1");
  ASSERT_GE(answer.size(), 12U);
  EXPECT_EQ(answer.substr(answer.size() - 12), ObjectiveCode(Option(rig.instrument(), 241)));
  EXPECT_EQ(rig.root.QueryCommand("rONR9"), "ONR9000000000000");
}

TEST(QueryCommand, AnswersOddTextsWhenTheBenchHoldsThem) {
  SimulatedRig rig("Quay");
  for (const char* odd : {"", "x", "  ONR1000000000003  ", "ONR100000000000x"}) {
    Option(rig.instrument(), 241).answer = odd;
    EXPECT_EQ(rig.root.QueryCommand("rONR1"), odd);
  }
}

TEST(QueryCommand, FailsForTextsThatAreNoCommand) {
  SimulatedRig rig("Quay");
  for (const char* command : {"", "rONR", "rONR0", "rONR10", "rONRx", "ronr1", "cONS1", " rONR1"}) {
    EXPECT_THROW(rig.root.QueryCommand(command), ControllerError) << command;
  }
}

TEST(QueryCommand, FailsForAnOptionThatTheDatabaseDoesNotHave) {
  SimulatedRig rig("Shell");
  EXPECT_THROW(rig.root.QueryCommand("rONR1"), ControllerError);
}

TEST(SendCommand, WritesTheRecordSoThatAnswersAgree) {
  SimulatedRig rig("Quay");
  rig.CountChanges();
  rig.root.SendCommand("cONS3Aa7D0FA07D09");
  const ObjectiveData& record = Option(rig.instrument(), 243);
  EXPECT_EQ(record.series, 10);
  EXPECT_EQ(record.magnification, 200);
  EXPECT_EQ(record.adoptive, 9);
  EXPECT_EQ(rig.root.QueryCommand("rONR3"), "ONR3Aa7D0FA07D09");
  EXPECT_EQ(rig.changes, 1);
  rig.root.SendCommand("cONS3Aa7D0FA07D09");
  EXPECT_EQ(rig.changes, 1);
}

TEST(SendCommand, MakesAnOddAnswerOrdinary) {
  SimulatedRig rig("Attic");
  rig.root.SendCommand("cONS9311900000003");
  EXPECT_EQ(rig.root.QueryCommand("rONR9"), "ONR9311900000003");
}

TEST(SendCommand, FailsForTextsThatAreNoCommandAndChangesNothing) {
  SimulatedRig rig("Quay");
  for (const char* command :
       {"", "cONS", "cONS1", "cONS0Aa7D0FA07D09", "cONS3Aa7D0FA07D0", "cONS3Aa7D0FA07D012",
        "cONS3Aa7D0FA07D0x", "rONR1", "dONS3Aa7D0FA07D09"}) {
    EXPECT_THROW(rig.root.SendCommand(command), ControllerError) << command;
  }
  EXPECT_EQ(rig.instrument(), benches::InstrumentNamed("Quay"));
}

TEST(SendCommand, EchoingAnAnswerChangesNothing) {
  for (const char* name : {"Quay", "Harbour"}) {
    SimulatedRig rig(name);
    for (char n = '1'; n <= '9'; ++n) {
      const std::string answer = rig.root.QueryCommand(std::string("rONR") + n);
      rig.root.SendCommand(std::string("cONS") + n + answer.substr(answer.size() - 12));
    }
    EXPECT_EQ(rig.instrument(), benches::InstrumentNamed(name));
  }
}

}  // namespace
}  // namespace mortane::controller::test
