// Receive, Send and Modify as far as the microscope object itself goes.
#include <gtest/gtest.h>

#include "common/Failure.h"
#include "condensers/clsDbCondenser.h"
#include "controller/ControllerError.h"
#include "support/Rig.h"
#include "support/Sample.h"

namespace mortane::test {
namespace {

constexpr const char* kFifteen = "ABCDEFGHIJKLMNO";
constexpr const char* kTwenty = "ABCDEFGHIJKLMNOPQRST";

// "progress 0/n" to "progress n/n" and nothing else.
void ExpectWholeProgress(const std::vector<std::string>& log) {
  ASSERT_GE(log.size(), 2U);
  const std::string total = std::to_string(log.size() - 1);
  for (std::size_t done = 0; done < log.size(); ++done) {
    EXPECT_EQ(log[done], "progress " + std::to_string(done) + "/" + total);
  }
}

TEST(Receive, TakesTheSystemName) {
  Rig rig("Harbour");
  rig.Connect();
  rig.instrument().name = "Bench 12";
  rig.k70.Receive();
  EXPECT_EQ(rig.k70.SystemName, "Bench 12");
}

TEST(Receive, ANameThatFailsIsALineAndTheOldNameStays) {
  Rig rig("Harbour");
  rig.Connect();
  rig.k70.SystemName = "Kept";
  rig.faults.Add({"DeviceList.Item(1).Name"});
  rig.prompts.ExpectBox("System Name", box::kCritical, Answer::Ok);
  rig.k70.Receive();
  EXPECT_EQ(rig.k70.SystemName, "Kept");
}

struct CountCase {
  const char* call;
  const char* line;
};

class TurretCountFailures : public testing::TestWithParam<CountCase> {};

TEST_P(TurretCountFailures, AreLinesOfTheirOwn) {
  Rig rig("Harbour");
  rig.Connect();
  rig.faults.Add({GetParam().call});
  rig.prompts.ExpectBox(GetParam().line, box::kCritical, Answer::Ok);
  rig.k70.Receive();
}

INSTANTIATE_TEST_SUITE_P(
    Turrets, TurretCountFailures,
    testing::Values(CountCase{"NosepieceDevice.Positions.Count", "Nosepiece Count"},
                    CountCase{"FilterCubeDevice.Positions.Count", "Filter Cube Count"},
                    CountCase{"CondenserDevice.Positions.Count", "Condenser Count"}));

TEST(Receive, FailuresAreJoinedInTheOrderOfTheTransfer) {
  Rig rig("Harbour");
  rig.Connect();
  rig.faults.Add({"DeviceList.Item(1).Name"});
  rig.faults.Add({"NosepieceDevice.Positions.Count"});
  rig.faults.Add({"FilterCubeDevice.Positions.Count"});
  rig.faults.Add({"CondenserDevice.Positions.Count"});
  rig.prompts.ExpectBox("System Name\r\nNosepiece Count\r\nFilter Cube Count\r\nCondenser Count",
                        box::kCritical, Answer::Ok);
  rig.k70.Receive();
}

TEST(Receive, ATurretThatIsNotMountedIsNotAskedAndGivesNoLine) {
  Rig rig("Shell");
  rig.Connect();
  rig.k70.Receive();
  ASSERT_FALSE(rig.journal.Lines().empty());
  for (const std::string& line : rig.journal.Lines()) {
    EXPECT_EQ(line.find("Positions"), std::string::npos) << line;
  }
}

TEST(Receive, ChangesNoMountedValue) {
  Rig rig("Harbour");
  rig.Connect();
  rig.instrument().nosepiece.clear();
  rig.k70.Receive();
  EXPECT_EQ(rig.k70.IsMounted(accessory::kNosepiece), 2);
}

TEST(Receive, WithoutAConnectionSaysSystemName) {
  Rig rig("Harbour");
  rig.prompts.ExpectBox("*** DbNosepiece.ReadDB Error!!(80004005)", box::kOk);
  rig.prompts.ExpectBox("System Name", box::kCritical, Answer::Ok);
  rig.k70.Receive();
}

TEST(Send, WithoutAConnectionSaysSystemNameAndWritesNothing) {
  Rig rig("Harbour");
  rig.prompts.ExpectBox("System Name", box::kCritical, Answer::Ok, "Send");
  rig.k70.Send();
  EXPECT_TRUE(rig.journal.Writes().empty());
}

TEST(Modify, WithoutAConnectionGoesToTheCaller) {
  Rig rig("Harbour");
  EXPECT_THROW(rig.k70.Modify(), controller::ControllerError);
}

TEST(Receive, ShowsItsProgressFromZeroToTheEnd) {
  Rig rig("Harbour");
  rig.Connect();
  rig.k70.Receive();
  ExpectWholeProgress(rig.prompts.Log());
}

TEST(Send, ShowsItsProgressFromZeroToTheEnd) {
  Rig rig("Harbour");
  rig.ConnectAndReceive();
  rig.prompts.ClearRecords();
  rig.k70.Send();
  ExpectWholeProgress(rig.prompts.Log());
}

TEST(Send, AnUnchangedNameIsNotWritten) {
  Rig rig("Harbour");
  rig.ConnectAndReceive();
  rig.k70.Send();
  ASSERT_FALSE(rig.journal.Lines().empty());
  for (const std::string& line : rig.journal.Writes()) {
    EXPECT_FALSE(line.starts_with("SystemName")) << line;
  }
}

TEST(Send, WritesAChangedName) {
  Rig rig("Harbour");
  rig.ConnectAndReceive();
  rig.k70.SystemName = "harbour 2";
  rig.k70.Send();
  EXPECT_EQ(rig.journal.Writes().at(0), "SystemName = \"harbour 2\"");
  EXPECT_EQ(rig.instrument().name, "harbour 2");
}

TEST(Send, CaseAndBlanksCountAsAChange) {
  for (const char* name : {"LAB", "Lab ", " Lab", ""}) {
    Rig rig("Harbour");
    rig.instrument().name = "Lab";
    rig.ConnectAndReceive();
    rig.k70.SystemName = name;
    rig.k70.Send();
    EXPECT_EQ(rig.instrument().name, name);
  }
}

TEST(Send, WritesANameOfFifteenCharactersInFull) {
  Rig rig("Harbour");
  rig.ConnectAndReceive();
  rig.k70.SystemName = kFifteen;
  rig.k70.Send();
  EXPECT_EQ(rig.instrument().name, kFifteen);
}

TEST(Send, WritesTheFirstFifteenOfTwentyCharactersAndReceiveBringsThemBack) {
  Rig rig("Harbour");
  rig.ConnectAndReceive();
  rig.k70.SystemName = kTwenty;
  rig.k70.Send();
  EXPECT_EQ(rig.instrument().name, kFifteen);
  EXPECT_EQ(rig.k70.Modify(), std::string("SystemName:") + kTwenty);
  rig.k70.Receive();
  EXPECT_EQ(rig.k70.SystemName, kFifteen);
  EXPECT_EQ(rig.k70.Modify(), "");
}

TEST(Send, CutsTheNameByCharactersAndNotByBytes) {
  Rig rig("Harbour");
  rig.ConnectAndReceive();
  rig.k70.SystemName = "äöüäöüäöüäöüäöüX";
  rig.k70.Send();
  EXPECT_EQ(rig.instrument().name, "äöüäöüäöüäöüäöü");
}

TEST(Send, ANameThatCannotBeReadIsNotWritten) {
  Rig rig("Harbour");
  rig.ConnectAndReceive();
  rig.k70.SystemName = "New";
  rig.faults.Add({"DeviceList.Item(1).Name"});
  rig.prompts.ExpectBox("System Name", box::kCritical, Answer::Ok, "Send");
  rig.k70.Send();
  for (const std::string& line : rig.journal.Writes()) {
    EXPECT_FALSE(line.starts_with("SystemName")) << line;
  }
}

TEST(Send, ANameThatCannotBeWrittenIsALineUnderTheCaptionSend) {
  Rig rig("Harbour");
  rig.ConnectAndReceive();
  rig.k70.SystemName = "New";
  rig.faults.Add({"put SystemName"});
  rig.prompts.ExpectBox("System Name", box::kCritical, Answer::Ok, "Send");
  rig.k70.Send();
}

TEST(Send, WithNothingEnabledAndNothingChangedSendsNothingAndShowsNoBox) {
  Rig rig("Shell");
  rig.ConnectAndReceive();
  rig.k70.Send();
  EXPECT_TRUE(rig.journal.Writes().empty());
}

TEST(Modify, OfAnUnchangedConfigurationIsEmpty) {
  for (const char* bench : {"Quay", "Harbour"}) {
    Rig rig(bench);
    rig.ConnectAndReceive();
    EXPECT_EQ(rig.k70.Modify(), "") << bench;
  }
}

TEST(Modify, ListsTheNameInFullWithoutABlank) {
  Rig rig("Harbour");
  rig.ConnectAndReceive();
  rig.k70.SystemName = kTwenty;
  EXPECT_EQ(rig.k70.Modify(), std::string("SystemName:") + kTwenty);
}

TEST(Modify, ChangesNeitherTheControllerNorTheModel) {
  Rig rig("Harbour");
  rig.ConnectAndReceive();
  rig.k70.SystemName = "Other";
  rig.k70.Modify();
  EXPECT_TRUE(rig.journal.Writes().empty());
  EXPECT_EQ(rig.k70.SystemName, "Other");
}

TEST(Modify, ANameThatFailsGoesToTheCaller) {
  Rig rig("Harbour");
  rig.ConnectAndReceive();
  rig.faults.Add({"DeviceList.Item(1).Name"});
  EXPECT_THROW(rig.k70.Modify(), controller::ControllerError);
}

TEST(Modify, GivesTheDifferencesAfterTheBoxOfItsFailures) {
  Rig rig("Harbour");
  rig.ConnectAndReceive();
  rig.k70.SystemName = "Other";
  rig.k70.dbcon.Name(141, "Slot");
  rig.faults.Add({"AccessoryDatabase.FilterCubes"});
  rig.faults.Add({"get NDFilterDevice.OffsetCode"});
  rig.prompts.ExpectBox(
      "Filter Cube Optional Cube(LIB:80004005)\r\nInterLock Offset (LIB:80004005)", box::kCritical,
      Answer::Ok, "Modify");
  EXPECT_EQ(rig.k70.Modify(), "SystemName:Other\r\nOptional Condenser[1] Slot");
}

// Every controller call that a transfer makes fails in turn: nothing leaves the transfer, and
// all that it says stands in one critical box. Calls before the one numbered `first` are left out.

void FailEachCall(const std::string& caption, const std::function<void(clsK70&)>& transfer,
                  std::size_t first = 1) {
  Rig rig("Harbour");
  rig.ConnectAndReceive();
  rig.prompts.AcceptAnyBox();
  const std::string name = rig.instrument().name;
  const auto runFromTheStart = [&] {
    rig.instrument().name = name;
    rig.k70.SystemName = "Changed";
    rig.journal.Clear();
    rig.prompts.ClearRecords();
  };
  runFromTheStart();
  transfer(rig.k70);
  const std::size_t calls = rig.journal.CallCount();
  ASSERT_GT(calls, 0U);
  for (const std::size_t k : SampleOf(calls, 7)) {
    if (k < first) continue;
    runFromTheStart();
    rig.faults.FailCall(k);
    transfer(rig.k70);
    EXPECT_EQ(rig.faults.Hits(), 1U) << "call " << k;
    ASSERT_EQ(rig.prompts.Boxes().size(), 1U) << "call " << k;
    EXPECT_EQ(rig.prompts.Boxes()[0].style, box::kCritical) << "call " << k;
    EXPECT_EQ(rig.prompts.Boxes()[0].caption, caption) << "call " << k;
    EXPECT_EQ(rig.k70.lConnectDevice, 1);
    rig.faults.Clear();
  }
}

TEST(Receive, EachControllerCallThatFailsIsReportedOnce) {
  FailEachCall("", [](clsK70& k70) { k70.Receive(); });
}

TEST(Send, EachControllerCallThatFailsIsReportedOnce) {
  FailEachCall("Send", [](clsK70& k70) { k70.Send(); });
}

TEST(Modify, EachControllerCallOfAUnitThatFailsIsReportedOnce) {
  const std::size_t first = 4;  // behind the device list, its item and the name
  FailEachCall(
      "Modify", [](clsK70& k70) { EXPECT_TRUE(k70.Modify().starts_with("SystemName:Changed")); },
      first);
}

TEST(UnitOperation, GivesTheUnitsReport) {
  EXPECT_EQ(ReportOf("curFilter", [] { return std::string("Filter Cube[1]"); }), "Filter Cube[1]");
  EXPECT_EQ(ReportOf("curFilter", [] { return std::string(); }), "");
}

TEST(UnitOperation, TurnsWhatTheUnitLetPassIntoALineWithItsName) {
  EXPECT_EQ(ReportOf("curFilter", []() -> std::string { throw Failure("LIB", 55, "broken"); }),
            "Unit curFilter (LIB:37)");
  EXPECT_EQ(ReportOf("curFilter", []() -> std::string { throw std::out_of_range("beyond"); }),
            "Unit curFilter (beyond)");
}

// Raises what no unit catches, in place of the calls that the units' readings make.
class BrokenLibrary : public controller::DecoratedLibrary {
 public:
  using DecoratedLibrary::DecoratedLibrary;
  bool broken = false;

 protected:
  controller::Value Around(const controller::CallSite& site,
                           const controller::Proceed& proceed) override {
    const std::string path = site.Path();
    const bool ofUnits = path.find_first_of(".(") != std::string::npos &&
                         !path.starts_with("DeviceList") && !path.ends_with("Positions") &&
                         !path.ends_with("Positions.Count");
    if (broken && ofUnits) throw std::out_of_range("beyond");
    return proceed();
  }
};

TEST(Receive, NamesTheUnitWhoseFailureNoOneExpected) {
  RigLibrary inner(benches::Named("Harbour"));
  BrokenLibrary library(inner.library);
  clsK70 k70(library, inner.prompts);
  k70.Initialize();
  ASSERT_TRUE(k70.Connect(1));
  library.broken = true;
  std::string lines;
  for (const char* unit :
       {"curNosepiece", "DbNosepiece", "curLimit", "curFilter", "dbFilter", "Exciter", "Dichroic",
        "Barrier", "curCondenser", "dbcon", "ILObservation", "ILOther", "ILOffset", "CZDrive",
        "CXYDrive", "COther", "curSwitch", "curTactor"}) {
    lines += (lines.empty() ? "Unit " : "\r\nUnit ") + std::string(unit) + " (beyond)";
  }
  inner.prompts.ExpectBox(lines, box::kCritical);
  k70.Receive();
}

}  // namespace
}  // namespace mortane::test
