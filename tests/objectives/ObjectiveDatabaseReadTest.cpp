// Reading the objective database from the controller, beyond the drill.
#include <gtest/gtest.h>

#include "objectives/ObjectiveUnits.h"
#include "support/UnitText.h"

namespace mortane::test {
namespace {

TEST(ObjectiveRead, AsksTheListsOnceAndOnlyTheUsersObjectivesForTheirCodes) {
  Rig rig("Harbour");
  rig.Connect();
  EXPECT_EQ(rig.units.DbNosepiece.ReadSdk(), "");
  const Lines first = rig.journal.Lines();
  ASSERT_GE(first.size(), 15U);
  EXPECT_EQ(first[0], "AccessoryDatabase.ObjectiveSeriesCount -> 6");
  EXPECT_EQ(first[1], "AccessoryDatabase.ObjectiveTypeCount -> 7");
  EXPECT_EQ(first[2], "AccessoryDatabase.ObjectiveSeries.Item(1).Name -> \"Plan A\"");
  EXPECT_EQ(first[8], "AccessoryDatabase.ObjectiveTypes.Item(1).Name -> \"Dry\"");
  rig.journal.Clear();
  EXPECT_EQ(rig.units.DbNosepiece.ReadSdk(), "");
  Lines queries;
  for (const std::string& line : rig.journal.Lines()) {
    EXPECT_EQ(line.find("ObjectiveSeries"), std::string::npos) << line;
    if (line.starts_with("QueryCommand")) queries.push_back(line);
  }
  ASSERT_EQ(queries.size(), 9U);
  EXPECT_EQ(queries[0], "QueryCommand(\"rONR1\") -> \"ONR1230FA0C63B63\"");
  EXPECT_EQ(queries[8], "QueryCommand(\"rONR9\") -> \"ONR9000000000000\"");
}

TEST(ObjectiveRead, AFixedObjectiveAmongTheNineCodesIsNotAskedForItsCode) {
  Rig rig("Harbour");
  Record(rig, 242).option = false;
  rig.Connect();
  EXPECT_EQ(rig.units.DbNosepiece.ReadSdk(), "");
  EXPECT_EQ(rig.units.DbNosepiece.Name(242), "Loan 63x Oil");
  EXPECT_EQ(rig.units.DbNosepiece.AdoptiveCondenser(242), 0);
  for (const std::string& line : rig.journal.Lines()) {
    EXPECT_EQ(line.find("rONR2"), std::string::npos) << line;
  }
}

TEST(ObjectiveRead, WithoutANosepieceLeavesTheTableEmptyButLoadsTheLists) {
  Rig rig("Harbour");
  rig.instrument().Accessory(accessory::kNosepiece).state = 0;
  rig.Connect();
  EXPECT_EQ(rig.units.DbNosepiece.ReadSdk(), "");
  EXPECT_EQ(rig.units.DbNosepiece.SeriesCount(), 6);
  EXPECT_EQ(rig.units.DbNosepiece.Types(7), "Macro");
  for (std::int32_t code = 0; code < 250; ++code) {
    EXPECT_EQ(rig.units.DbNosepiece.Name(code), "");
    EXPECT_EQ(rig.units.DbNosepiece.SeriesCode(code), 0);
  }
}

TEST(ObjectiveRead, TheCondensersSurviveAReadWithoutANosepiece) {
  Rig rig(List({"Quay", "Harbour", "Hub"}));
  rig.units.Connect(1);
  EXPECT_EQ(rig.units.Receive(), "");
  ASSERT_EQ(rig.units.DbNosepiece.AdoptiveCondenser(242), 5);
  rig.units.Connect(2);
  EXPECT_EQ(rig.units.DbNosepiece.ReadSdk(), "");
  EXPECT_EQ(rig.units.DbNosepiece.AdoptiveCondenser(242), 5);
  EXPECT_NE(FileTextOf(rig.units.DbNosepiece)
                .find("<OPTION POSITION=\"2\" CODE=\"000000000005\" NAME=\"\"/>"),
            std::string::npos);
}

TEST(ObjectiveRead, ListsOfTheFirstControllerStay) {
  Rig rig(List({"Quay", "Harbour", "Attic"}));
  rig.units.Connect(1);
  EXPECT_EQ(rig.units.Receive(), "");
  rig.prompts.AcceptAnyBox();
  rig.units.Connect(2);
  rig.units.Receive();
  EXPECT_EQ(rig.units.DbNosepiece.SeriesCount(), 6);
  EXPECT_EQ(rig.units.DbNosepiece.Series(1), "Plan A");
}

TEST(ObjectiveRead, ListsThatFailBeforeTheyAreSizedAreAskedAgain) {
  for (const char* call :
       {"AccessoryDatabase.ObjectiveSeriesCount", "AccessoryDatabase.ObjectiveTypeCount"}) {
    Rig rig("Harbour");
    rig.Connect();
    rig.faults.Add({call, 1});
    rig.prompts.ExpectBox("*** DbNosepiece.ReadDB Error!!(80004005)", box::kOk);
    EXPECT_EQ(rig.units.DbNosepiece.ReadSdk(), "");
    EXPECT_EQ(rig.units.DbNosepiece.SeriesCount(), 0);
    EXPECT_EQ(rig.units.DbNosepiece.Series(0), "-----------");
    EXPECT_EQ(rig.units.DbNosepiece.Name(1), "Plan A 2x");
    EXPECT_EQ(rig.units.DbNosepiece.ReadSdk(), "");
    EXPECT_EQ(rig.units.DbNosepiece.SeriesCount(), 6);
    EXPECT_EQ(rig.units.DbNosepiece.TypesCount(), 7);
  }
}

TEST(ObjectiveRead, ListsThatFailLaterStayAsFarAsTheyWereFilled) {
  Rig rig("Harbour");
  rig.Connect();
  rig.faults.Add({"AccessoryDatabase.ObjectiveSeries.Item(3)", 1});
  rig.prompts.ExpectBox("*** DbNosepiece.ReadDB Error!!(80004005)", box::kOk);
  EXPECT_EQ(rig.units.DbNosepiece.ReadSdk(), "");
  EXPECT_EQ(rig.units.DbNosepiece.ReadSdk(), "");
  EXPECT_EQ(rig.units.DbNosepiece.SeriesCount(), 6);
  EXPECT_EQ(rig.units.DbNosepiece.Series(0), "-----------");
  EXPECT_EQ(rig.units.DbNosepiece.Series(2), "Plan F");
  EXPECT_EQ(rig.units.DbNosepiece.Series(3), "");
  EXPECT_EQ(rig.units.DbNosepiece.TypesCount(), 7);
  EXPECT_EQ(rig.units.DbNosepiece.Types(1), "");
}

struct ListFault {
  const char* call;
  const char* lastSeries;
  const char* firstType;
};

// The row of dashes stands before the first name is asked for.
TEST(ObjectiveRead, AListWhoseNamesCannotBeAskedForHasItsRowOfDashes) {
  for (const ListFault& fault :
       {ListFault{"AccessoryDatabase.ObjectiveSeries", "", ""},
        ListFault{"AccessoryDatabase.ObjectiveTypes", "Epi", "--------"}}) {
    Rig rig("Harbour");
    rig.Connect();
    rig.faults.Add({fault.call, 1});
    rig.prompts.ExpectBox("*** DbNosepiece.ReadDB Error!!(80004005)", box::kOk);
    EXPECT_EQ(rig.units.DbNosepiece.ReadSdk(), "");
    EXPECT_EQ(rig.units.DbNosepiece.SeriesCount(), 6) << fault.call;
    EXPECT_EQ(rig.units.DbNosepiece.Series(0), "-----------") << fault.call;
    EXPECT_EQ(rig.units.DbNosepiece.Series(6), fault.lastSeries) << fault.call;
    EXPECT_EQ(rig.units.DbNosepiece.Types(0), fault.firstType) << fault.call;
    EXPECT_EQ(rig.units.DbNosepiece.Types(1), "") << fault.call;
  }
}

TEST(ObjectiveRead, ListsWithoutASeriesAreAskedForAgain) {
  Rig rig("Harbour");
  rig.instrument().database.series.clear();
  rig.Connect();
  EXPECT_EQ(rig.units.DbNosepiece.ReadSdk(), "");
  EXPECT_EQ(rig.units.DbNosepiece.TypesCount(), 7);
  rig.instrument().database.series.push_back({"Late"});
  rig.instrument().database.types.pop_back();
  EXPECT_EQ(rig.units.DbNosepiece.ReadSdk(), "");
  EXPECT_EQ(rig.units.DbNosepiece.SeriesCount(), 1);
  EXPECT_EQ(rig.units.DbNosepiece.Series(1), "Late");
  EXPECT_EQ(rig.units.DbNosepiece.TypesCount(), 6);
}

TEST(ObjectiveRead, AListWithoutNamesIsNotAskedForThem) {
  Rig rig("Harbour");
  rig.instrument().database.series.clear();
  rig.instrument().database.types.clear();
  rig.Connect();
  rig.faults.Add({"AccessoryDatabase.ObjectiveSeries"});
  rig.faults.Add({"AccessoryDatabase.ObjectiveTypes"});
  EXPECT_EQ(rig.units.DbNosepiece.ReadSdk(), "");
  EXPECT_EQ(rig.faults.Hits(), 0U);
  EXPECT_EQ(rig.units.DbNosepiece.Series(0), "-----------");
  EXPECT_EQ(rig.units.DbNosepiece.Types(0), "--------");
}

TEST(ObjectiveRead, ACodeBeyondTheTableEndsIt) {
  for (const std::int32_t code : {250, -1, 2147483647}) {
    Rig rig("Harbour");
    Record(rig, 3).code = code;
    rig.Connect();
    EXPECT_EQ(rig.units.DbNosepiece.ReadSdk(), "Nosepieces Optional (Mortane:9)") << code;
    EXPECT_EQ(rig.units.DbNosepiece.Name(2), "Plan A 4x");
    EXPECT_EQ(rig.units.DbNosepiece.Name(4), "");
  }
}

TEST(ObjectiveRead, AnAnswerThatEndsWithNoDigitEndsIt) {
  for (const char* answer : {"", "   ", "ONR1120640640FAx"}) {
    Rig rig("Harbour");
    Record(rig, 241).answer = answer;
    rig.Connect();
    EXPECT_EQ(rig.units.DbNosepiece.ReadSdk(), "Nosepieces Optional (Mortane:D)") << answer;
    std::string list = "Before";
    EXPECT_EQ(rig.units.DbNosepiece.ModifySdk(list), "Nosepiece Optional (Mortane:D)") << answer;
    EXPECT_EQ(list, "Before");
  }
}

}  // namespace
}  // namespace mortane::test
