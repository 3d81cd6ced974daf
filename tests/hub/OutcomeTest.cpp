// What transfers and files answer: whether anything went wrong.
#include <gtest/gtest.h>

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
