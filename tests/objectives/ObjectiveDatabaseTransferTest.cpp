// The objective database against the controller: what differs, what is written, and what fails.
#include <gtest/gtest.h>

#include <functional>

#include "objectives/ObjectiveUnits.h"

namespace mortane::test {
namespace {

std::string Modified(const ObjectiveUnits& units) {
  std::string list;
  EXPECT_EQ(units.DbNosepiece.ModifySdk(list), "");
  return list;
}

// The journal's lines that are no plain questions about records.
Lines Commands(const Rig& rig) {
  Lines lines;
  for (const std::string& line : rig.journal.Lines()) {
    const bool question = line.find(" -> ") != std::string::npos && !line.starts_with("Query");
    if (!question) lines.push_back(line);
  }
  return lines;
}

struct AnswerRow {
  const char* answer;
  const char* command;  // when condenser 4 is to be written
};

TEST(ObjectiveWrite, EchoesTheElevenCharactersBeforeTheDigitAsTheyCame) {
  for (const AnswerRow& row :
       {AnswerRow{"ONR1230FA0C63B63", "SendCommand(\"cONS1230FA0C63B64\")"},
        AnswerRow{"230FA0C63B63", "SendCommand(\"cONS1230FA0C63B64\")"},
        AnswerRow{"  ONR1 abcdefghijk3  ", "SendCommand(\"cONS1abcdefghijk4\")"},
        AnswerRow{"ONR1 2 4567890A3", "SendCommand(\"cONS1 2 4567890A4\")"},
        AnswerRow{"éöü4567890A3", "SendCommand(\"cONS1éöü4567890A4\")"}}) {
    Rig rig("Harbour");
    rig.ConnectAndReceive();
    Record(rig, 241).answer = row.answer;
    rig.units.DbNosepiece.Set_DbNosepiece(1, "Clinic 25x", 2, 3, "25", "1.98", "0.95", 4);
    rig.units.DbNosepiece.WriteSdk();
    ASSERT_EQ(rig.journal.Writes().size(), 1U) << row.answer;
    EXPECT_TRUE(rig.journal.Writes()[0].starts_with(row.command)) << rig.journal.Writes()[0];
  }
}

TEST(ObjectiveWrite, AsksTheCodeAfterTheValuesAreWritten) {
  Rig rig("Harbour");
  rig.ConnectAndReceive();
  rig.units.DbNosepiece.Set_DbNosepiece(1, "New", 1, 1, "40", "0.56", "0.65", 9);
  EXPECT_EQ(rig.units.DbNosepiece.WriteSdk(), "");
  const Lines lines = Commands(rig);
  ASSERT_GE(lines.size(), 4U);
  EXPECT_EQ(lines[0], "AccessoryDatabase.Nosepieces.Item(27).Name = \"New\"");
  EXPECT_EQ(lines[1], "AccessoryDatabase.Nosepieces.Item(27).SetProperties(1, 1, 40, 0.56, 0.65)");
  EXPECT_EQ(lines[2], "QueryCommand(\"rONR1\") -> \"ONR11119003828A3\"");
  EXPECT_EQ(lines[3], "SendCommand(\"cONS11119003828A9\")");
  EXPECT_EQ(Record(rig, 241).adoptive, 9);
}

TEST(ObjectiveWrite, WithNothingChangedSendsOnlyTheQueries) {
  Rig rig("Harbour");
  rig.ConnectAndReceive();
  EXPECT_EQ(rig.units.DbNosepiece.WriteSdk(), "");
  const Lines lines = Commands(rig);
  ASSERT_EQ(lines.size(), 9U);
  for (std::size_t i = 0; i < 9; ++i) {
    EXPECT_TRUE(lines[i].starts_with("QueryCommand(\"rONR" + std::to_string(i + 1) + "\")"));
  }
}

TEST(ObjectiveWrite, NeverTouchesAFixedObjective) {
  Rig rig("Harbour");
  rig.ConnectAndReceive();
  rig.units.DbNosepiece.Set_DbNosepiece(0, "Pocket", 1, 2, "10", "1", "0.3", 6);
  Record(rig, 1).name = "Renamed behind us";
  EXPECT_EQ(Modified(rig.units), "");
  EXPECT_EQ(rig.units.DbNosepiece.WriteSdk(), "");
  EXPECT_TRUE(rig.journal.Writes().empty());
}

TEST(ObjectiveCompare, EachValueCounts) {
  const std::vector<std::function<void(controller::ObjectiveData&)>> changes{
      [](auto& record) { record.name = "Other"; },
      [](auto& record) { record.series = 1; },
      [](auto& record) { record.type = 1; },
      [](auto& record) { record.magnification = 25.1; },
      [](auto& record) { record.workingDistance = 1.99; },
      [](auto& record) { record.numericalAperture = 0.951; }};
  for (std::size_t i = 0; i < changes.size(); ++i) {
    Rig rig("Harbour");
    rig.ConnectAndReceive();
    changes[i](Record(rig, 241));
    EXPECT_EQ(Modified(rig.units), "Nosepiece Optional[1] Clinic 25x") << i;
    EXPECT_EQ(rig.units.DbNosepiece.WriteSdk(), "") << i;
    EXPECT_EQ(rig.journal.Writes().size(), 2U) << i;
    EXPECT_EQ(Modified(rig.units), "") << i;
  }
}

TEST(ObjectiveCompare, BlanksBehindANameDoNotCountOthersDo) {
  Rig rig("Harbour");
  rig.ConnectAndReceive();
  Record(rig, 241).name = "Clinic 25x   ";
  EXPECT_EQ(Modified(rig.units), "");
  Record(rig, 241).name = " Clinic 25x";
  EXPECT_EQ(Modified(rig.units), "Nosepiece Optional[1] Clinic 25x");
  Record(rig, 241).name = "Clinic 25x\t";
  EXPECT_EQ(Modified(rig.units), "Nosepiece Optional[1] Clinic 25x");
}

TEST(ObjectiveCompare, ALineHasTwentyCharactersOfTheName) {
  Rig rig("Harbour");
  Record(rig, 241).name = "äöüäöüäöüäöüäöüäöüäöüäöü";
  rig.ConnectAndReceive();
  Record(rig, 241).series = 1;
  EXPECT_EQ(Modified(rig.units), "Nosepiece Optional[1] äöüäöüäöüäöüäöüäöüäö");
}

TEST(ObjectiveCompare, AnEmptyNameLeavesTheBlankBehindTheBracket) {
  Rig rig("Harbour");
  rig.ConnectAndReceive();
  rig.units.DbNosepiece.Set_DbNosepiece(1, "", 2, 3, "25", "1.98", "0.95", 8);
  EXPECT_EQ(Modified(rig.units), "Nosepiece Optional[1] \r\nNosepiece Optional[1] ");
}

TEST(ObjectiveCompare, AnOptionOutsideTheNineIsComparedAndWrittenWithoutItsCode) {
  Rig rig("Harbour");
  Record(rig, 26).option = true;
  rig.ConnectAndReceive();
  Record(rig, 26).name = "Changed";
  EXPECT_EQ(Modified(rig.units), "Nosepiece Optional[-214] Epi 150x");
  EXPECT_EQ(rig.units.DbNosepiece.WriteSdk(), "");
  EXPECT_EQ(rig.journal.Writes(),
            (Lines{"AccessoryDatabase.Nosepieces.Item(26).Name = \"Epi 150x\"",
                   "AccessoryDatabase.Nosepieces.Item(26).SetProperties(6, 1, 150, 0.42, 0.9)"}));
  for (const std::string& line : rig.journal.Lines()) {
    EXPECT_EQ(line.find("rONR-"), std::string::npos) << line;
  }
}

TEST(ObjectiveCompare, IsNotGatedByTheNosepiece) {
  Rig rig("Harbour");
  rig.instrument().Accessory(accessory::kNosepiece).state = 0;
  rig.Connect();
  EXPECT_EQ(rig.units.DbNosepiece.ReadSdk(), "");
  std::string list;
  EXPECT_EQ(rig.units.DbNosepiece.ModifySdk(list), "");
  EXPECT_TRUE(list.starts_with("Nosepiece Optional[1] \r\nNosepiece Optional[1] \r\n")) << list;
  EXPECT_EQ(rig.units.DbNosepiece.WriteSdk(), "");
  EXPECT_EQ(Record(rig, 241).name, "");
  EXPECT_EQ(Modified(rig.units), "");
}

TEST(ObjectiveCompare, LinesBeforeAFailureStay) {
  Rig rig("Harbour");
  rig.ConnectAndReceive();
  rig.units.DbNosepiece.Set_DbNosepiece(1, "New", 2, 3, "25", "1.98", "0.95", 3);
  rig.faults.Add({"QueryCommand(\"rONR2\")"});
  std::string list = "Before";
  EXPECT_EQ(rig.units.DbNosepiece.ModifySdk(list), "Nosepiece Optional (LIB:80004005)");
  EXPECT_EQ(list, "Before\r\nNosepiece Optional[1] New");
}

struct WriteFault {
  const char* call;
  const char* lines;
  Lines writes;
};

// Position 1 differs in all that it has, and so does position 3.
TEST(ObjectiveWrite, AFailureIsALineAndStopsNeitherTheRecordNorTheScan) {
  const std::string item = "AccessoryDatabase.Nosepieces.Item(27).";
  const std::string name1 = item + "Name = \"One\"";
  const std::string values1 = item + "SetProperties(1, 1, 10, 1, 0.25)";
  const std::string condenser1 = "SendCommand(\"cONS1110640640FA7\")";
  const Lines third{"AccessoryDatabase.Nosepieces.Item(29).Name = \"Three\"",
                    "AccessoryDatabase.Nosepieces.Item(29).SetProperties(1, 1, 20, 1, 0.25)",
                    "SendCommand(\"cONS3110C80640FA8\")"};
  const std::string failed = " ! LIB:80004005";
  for (const WriteFault& fault : {
           WriteFault{"put AccessoryDatabase.Nosepieces.Item(27).Name",
                      "Nosepiece Optional[1]",
                      {name1 + failed, values1, condenser1}},
           WriteFault{"AccessoryDatabase.Nosepieces.Item(27).SetProperties",
                      "Nosepiece Optional[1]",
                      {name1, values1 + failed, "SendCommand(\"cONS1230FA0C63B67\")"}},
           WriteFault{"SendCommand(\"cONS1110640640FA7\")",
                      "Nosepiece Optional[1]",
                      {name1, values1, condenser1 + failed}},
           WriteFault{"QueryCommand(\"rONR1\")", "Nosepiece Optional[1]", {name1, values1}},
           WriteFault{"get AccessoryDatabase.Nosepieces.Item(27).Name",
                      "Nosepiece Optional[1]",
                      {"SendCommand(\"cONS1230FA0C63B67\")"}},
           WriteFault{"AccessoryDatabase.Nosepieces.Item(27).NumericalAperture",
                      "Nosepiece Optional[1]",
                      {"SendCommand(\"cONS1230FA0C63B67\")"}},
           WriteFault{"AccessoryDatabase.Nosepieces.Item(27).Code",
                      "Nosepiece Optional (LIB:80004005)",
                      {}},
           WriteFault{"AccessoryDatabase.Nosepieces.Item(27).IsOption",
                      "Nosepiece Optional (LIB:80004005)",
                      {}},
       }) {
    Rig rig("Harbour");
    rig.ConnectAndReceive();
    rig.units.DbNosepiece.Set_DbNosepiece(1, "One", 1, 1, "10", "1", "0.25", 7);
    rig.units.DbNosepiece.Set_DbNosepiece(3, "Three", 1, 1, "20", "1", "0.25", 8);
    rig.faults.Add({fault.call});
    EXPECT_EQ(rig.units.DbNosepiece.WriteSdk(), fault.lines) << fault.call;
    Lines expected = fault.writes;
    expected.insert(expected.end(), third.begin(), third.end());
    EXPECT_EQ(rig.journal.Writes(), expected) << fault.call;
  }
}

TEST(ObjectiveWrite, ARecordThatFailsInBothStepsHasTwoLines) {
  Rig rig("Harbour");
  rig.ConnectAndReceive();
  rig.units.DbNosepiece.Set_DbNosepiece(1, "One", 1, 1, "10", "1", "0.25", 7);
  rig.faults.Add({"put AccessoryDatabase.Nosepieces.Item.Name"});
  rig.faults.Add({"AccessoryDatabase.Nosepieces.Item.SetProperties"});
  rig.faults.Add({"SendCommand"});
  EXPECT_EQ(rig.units.DbNosepiece.WriteSdk(), "Nosepiece Optional[1]\r\nNosepiece Optional[1]");
  EXPECT_EQ(rig.journal.Writes().size(), 3U);
}

TEST(ObjectiveWrite, AnAnswerWithoutADigitIsTheRecordsLine) {
  Rig rig("Harbour");
  rig.ConnectAndReceive();
  Record(rig, 242).answer = "ONR232276013578x";
  EXPECT_EQ(rig.units.DbNosepiece.WriteSdk(), "Nosepiece Optional[2]");
  EXPECT_TRUE(rig.journal.Writes().empty());
}

// Each answer has a digit at its end, and none of them the eleven characters that a write repeats.
TEST(ObjectiveWrite, AnAnswerOfLessThanTwelveCharactersIsTheRecordsLineAndNothingIsSent) {
  for (const char* answer : {"3", "8A3", "30FA0C63B63", "  0FA0C63B63  ", "é0FA0C63B63"}) {
    Rig rig("Harbour");
    rig.ConnectAndReceive();
    Record(rig, 241).answer = answer;
    rig.units.DbNosepiece.Set_DbNosepiece(1, "Clinic 25x", 2, 3, "25", "1.98", "0.95", 4);
    EXPECT_EQ(rig.units.DbNosepiece.WriteSdk(), "Nosepiece Optional[1]") << answer;
    EXPECT_TRUE(rig.journal.Writes().empty()) << answer;
  }
}

TEST(ObjectiveWrite, AShortAnswerThatNamesTheStoredCondenserIsNoLine) {
  Rig rig("Harbour");
  Record(rig, 241).answer = "8A3";
  rig.ConnectAndReceive();
  EXPECT_EQ(rig.units.DbNosepiece.AdoptiveCondenser(241), 3);
  EXPECT_EQ(rig.units.DbNosepiece.WriteSdk(), "");
  EXPECT_TRUE(rig.journal.Writes().empty());
}

TEST(ObjectiveWrite, ACodeBeyondTheTableIsTheRecordsLineAndWritesNothing) {
  Rig rig("Harbour");
  rig.ConnectAndReceive();
  Record(rig, 249).code = 250;
  EXPECT_EQ(rig.units.DbNosepiece.WriteSdk(), "Nosepiece Optional[10]");
  EXPECT_TRUE(rig.journal.Writes().empty());
}

TEST(ObjectiveWrite, AControllerThatWentAwayFillsOneLine) {
  Rig rig("Harbour");
  rig.ConnectAndReceive();
  rig.faults.Add({"AccessoryDatabase.Nosepieces.Item"});
  EXPECT_EQ(rig.units.DbNosepiece.WriteSdk(), "Nosepiece Optional (LIB:80004005)");
}

}  // namespace
}  // namespace mortane::test
