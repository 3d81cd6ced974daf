// What transfers and files answer: whether anything went wrong.
#include <gtest/gtest.h>

#include <array>
#include <string>
#include <string_view>
#include <vector>

#include "support/Rig.h"
#include "support/TempFolder.h"

namespace mortane::test {
namespace {

struct OutcomeRow {
  const char* fault;  // empty: none
  bool complete;
};

class TransferOutcome : public testing::TestWithParam<OutcomeRow> {
 protected:
  TransferOutcome() {
    rig.Connect();
    rig.prompts.AcceptAnyBox();
    if (*GetParam().fault != 0) rig.faults.Add({GetParam().fault});
  }
  Rig rig{"Harbour"};
};

TEST_P(TransferOutcome, OfAReceiveTellsWhetherAllWasRead) {
  EXPECT_EQ(rig.k70.Receive(), GetParam().complete);
}

TEST_P(TransferOutcome, OfASendTellsWhetherAllWasWritten) {
  EXPECT_EQ(rig.k70.Send(), GetParam().complete);
}

INSTANTIATE_TEST_SUITE_P(Faults, TransferOutcome,
                         testing::Values(OutcomeRow{"", true},
                                         OutcomeRow{"DeviceList.Item(1).Name", false}));

constexpr std::array<const char*, 19> kTransfers{
    "SystemName", "curNosepiece",  "DbNosepiece", "curLimit", "curFilter",
    "dbFilter",   "Exciter",       "Dichroic",    "Barrier",  "curCondenser",
    "dbcon",      "ILObservation", "ILOther",     "ILOffset", "CZDrive",
    "CXYDrive",   "COther",        "curSwitch",   "curTactor"};

using Asked = bool (clsK70::*)(std::string_view) const;

// The transfers for which `asked` answers false.
std::vector<std::string> AllBut(const clsK70& k70, Asked asked) {
  EXPECT_FALSE((k70.*asked)("none of them"));
  std::vector<std::string> others;
  for (const char* transfer : kTransfers) {
    if (!(k70.*asked)(transfer)) others.emplace_back(transfer);
  }
  return others;
}

struct FaultRow {
  const char* fault;
  std::vector<std::string> transfers;  // that were not carried out
};

TEST(WasRead, IsSoOfEveryTransferThatTheLastReceiveRead) {
  const FaultRow rows[] = {{"DeviceList.Item(1).Name", {"SystemName"}},
                           {"NosepieceDevice.Positions.Count", {"curNosepiece"}},
                           {"FilterCubeDevice.Positions.Count", {"curFilter"}},
                           {"CondenserDevice.Positions.Count", {"curCondenser"}},
                           {"NosepieceDevice.Limitation", {"curLimit"}},
                           {"ControllerSettings.Interlock(1, 1)", {"ILObservation"}},
                           {"get NDFilterDevice.OffsetCode", {"ILOffset"}},
                           {"BuzzerEnabled(1)", {"COther"}}};
  Rig rig("Harbour");
  rig.prompts.AcceptAnyBox();
  EXPECT_EQ(AllBut(rig.k70, &clsK70::WasRead).size(), kTransfers.size());
  rig.Connect();
  for (const FaultRow& row : rows) {
    rig.faults.Add({row.fault});
    EXPECT_FALSE(rig.k70.Receive());
    EXPECT_EQ(AllBut(rig.k70, &clsK70::WasRead), row.transfers) << row.fault;
    rig.faults.Clear();
    EXPECT_TRUE(rig.k70.Receive());
    EXPECT_TRUE(AllBut(rig.k70, &clsK70::WasRead).empty());
  }
  rig.Connect();
  EXPECT_EQ(AllBut(rig.k70, &clsK70::WasRead).size(), kTransfers.size());
}

TEST(WasSent, IsSoOfEveryTransferThatTheLastSendWrote) {
  const FaultRow rows[] = {{"DeviceList.Item(1).Name", {"SystemName"}},
                           {"put NosepieceDevice.Limitation", {"curLimit"}},
                           {"put ControllerSettings.EscapeMode", {"CZDrive"}},
                           {"BuzzerOn(1)", {"COther"}}};
  Rig rig("Harbour");
  rig.prompts.AcceptAnyBox();
  rig.ConnectAndReceive();
  EXPECT_EQ(AllBut(rig.k70, &clsK70::WasSent).size(), kTransfers.size());
  for (const FaultRow& row : rows) {
    rig.faults.Add({row.fault});
    EXPECT_FALSE(rig.k70.Send());
    EXPECT_EQ(AllBut(rig.k70, &clsK70::WasSent), row.transfers) << row.fault;
    rig.faults.Clear();
    EXPECT_TRUE(rig.k70.Send());
    EXPECT_TRUE(AllBut(rig.k70, &clsK70::WasSent).empty());
  }
}

TEST(IsSent, IsSoOfEveryTransferWhoseAccessoryIsThere) {
  struct Row {
    std::int32_t accessory;
    std::vector<std::string> transfers;
  };
  const Row rows[] = {
      {accessory::kFilterCube, {"curFilter", "dbFilter", "Exciter", "Dichroic", "Barrier"}},
      {accessory::kCondenser, {"curCondenser", "dbcon"}},
      {accessory::kZFocusDrive, {"CZDrive"}},
  };
  {
    Rig rig("Harbour");
    rig.ConnectAndReceive();
    EXPECT_TRUE(AllBut(rig.k70, &clsK70::IsSent).empty());
  }
  for (const Row& row : rows) {
    Rig rig("Harbour");
    rig.instrument().Accessory(row.accessory).state = 0;
    rig.ConnectAndReceive();
    EXPECT_EQ(AllBut(rig.k70, &clsK70::IsSent), row.transfers) << row.accessory;
    rig.k70.Send();
    EXPECT_EQ(AllBut(rig.k70, &clsK70::WasSent), row.transfers) << row.accessory;
  }
}

TEST(ReadXML, AnswersWhetherAllThatWasWantedWasRead) {
  const TempFolder folder;
  Rig rig("Harbour");
  rig.prompts.AcceptAnyBox();
  const auto read = [&](const std::string& content) {
    const std::string path = folder.Write("a.xml", content);
    rig.k70.ReadXMLItems(path);
    return rig.k70.ReadXML(path);
  };
  EXPECT_TRUE(read("<Setup><SYSTEM><QHRMNAME NAME=\"Bay 4\"/></SYSTEM></Setup>"));
  EXPECT_FALSE(read("<Setup><SYSTEM><QHRMNAME NAME=\"fifteen letters\"/></SYSTEM></Setup>"));
  EXPECT_FALSE(read("<Other/>"));
  EXPECT_FALSE(read("no xml"));
}

TEST(WriteXML, AnswersWhetherTheFileIsThere) {
  const TempFolder folder;
  Rig rig("Harbour");
  rig.prompts.AcceptAnyBox();
  EXPECT_TRUE(rig.k70.WriteXML(folder.Path("a.xml")));
  EXPECT_FALSE(rig.k70.WriteXML(folder.Path("missing/a.xml")));
}

}  // namespace
}  // namespace mortane::test
