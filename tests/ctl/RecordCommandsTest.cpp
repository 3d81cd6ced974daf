// report and export: which form, from which state, and where it goes.
#include "CtlRig.h"

namespace mortane::test {
namespace {

TEST(Report, IsHtmlOrTextByTheEndingOfTheOutput) {
  CtlRig rig("Harbour");
  const std::string html = rig.folder.Path("a.HTML");
  const std::string text = rig.folder.Path("a.txt");
  ASSERT_EQ(rig.Run({"report", "-o", html}), Outcome::Done) << rig.Err();
  EXPECT_NE(TempFolder::Read(html).find("<!DOCTYPE html>"), std::string::npos);
  ASSERT_EQ(rig.Run({"report", "-o", text}), Outcome::Done) << rig.Err();
  EXPECT_NE(TempFolder::Read(text).find("Harbour"), std::string::npos);
  EXPECT_EQ(TempFolder::Read(text).find('<'), std::string::npos);
  EXPECT_EQ(rig.Out(), "");
  ASSERT_EQ(rig.Run({"report"}), Outcome::Done);
  EXPECT_EQ(rig.Out(), TempFolder::Read(text));
}

TEST(Report, AnyOtherEndingIsRefusedBeforeTheMicroscopeIsAsked) {
  for (const char* name : {"a.pdf", "a", "html"}) {
    CtlRig rig("Harbour");
    EXPECT_EQ(rig.Run({"report", "-o", rig.folder.Path(name)}), Outcome::Failed);
    EXPECT_NE(rig.Err().find(rig.folder.Path(name)), std::string::npos) << rig.Err();
    EXPECT_EQ(rig.journal.CallCount(), 0U);
  }
}

TEST(Report, OfAFileNeedsNoMicroscope) {
  CtlRig rig("Harbour");
  const std::string file = rig.Received("file.xml");
  rig.journal.Clear();
  EXPECT_EQ(rig.Run({"report", file}), Outcome::Done);
  EXPECT_NE(rig.Out().find("Harbour"), std::string::npos) << rig.Out();
  EXPECT_EQ(rig.journal.CallCount(), 0U);
}

TEST(Report, ShowsWhatChangedSinceAnEarlierState) {
  CtlRig rig("Harbour");
  const std::string file = rig.Received("file.xml");
  rig.instrument().name = "Bay 7";
  EXPECT_EQ(rig.Run({"report", "--since", file}), Outcome::Done);
  const std::string since = rig.Out();
  EXPECT_EQ(rig.Run({"report"}), Outcome::Done);
  EXPECT_NE(since, rig.Out());
  EXPECT_NE(since.find("Harbour"), std::string::npos) << since;
  EXPECT_EQ(rig.Run({"report", "--since", rig.folder.Path("missing.xml")}), Outcome::Failed);
  EXPECT_NE(rig.Err().find("missing.xml"), std::string::npos);
}

TEST(Report, OfWhatCouldNotBeReadIsWrittenAndAFailure) {
  CtlRig rig("Harbour");
  rig.faults.Add({"NosepieceDevice.Positions(2).Code"});
  EXPECT_EQ(rig.Run({"report"}), Outcome::Failed);
  EXPECT_EQ(rig.ErrLines(), 1) << rig.Err();
  EXPECT_NE(rig.Out().find("Harbour"), std::string::npos);
}

TEST(Export, WritesTheInstrumentToAFileOrTheStandardOutput) {
  CtlRig rig("Harbour");
  const std::string path = rig.folder.Path("a.ome.xml");
  ASSERT_EQ(rig.Run({"export", "--ome", path}), Outcome::Done) << rig.Err();
  EXPECT_EQ(rig.Out(), "");
  EXPECT_NE(TempFolder::Read(path).find("<Instrument"), std::string::npos);
  ASSERT_EQ(rig.Run({"export", "--ome", "-"}), Outcome::Done);
  EXPECT_EQ(rig.Out(), TempFolder::Read(path));
}

TEST(Export, OfWhatCouldNotBeReadIsWrittenAndAFailure) {
  CtlRig rig("Harbour");
  rig.faults.Add({"NosepieceDevice.Positions(2).Code"});
  EXPECT_EQ(rig.Run({"export", "--ome", "-"}), Outcome::Failed);
  EXPECT_EQ(rig.ErrLines(), 1) << rig.Err();
  EXPECT_NE(rig.Out().find("<Instrument"), std::string::npos);
}

}  // namespace
}  // namespace mortane::test
