// check and diff, which need no microscope, and every file that is none.
#include <algorithm>
#include <filesystem>

#include "CtlRig.h"
#include "controller/Microscope.h"
#include "support/ThisSystem.h"

namespace mortane::test {
namespace {

constexpr char kGood[] = "<Setup><SYSTEM><QHRMNAME NAME='Bay 7'/></SYSTEM></Setup>";
constexpr char kOther[] = "<Setup><SYSTEM><QHRMNAME NAME='Bay 8'/></SYSTEM></Setup>";
constexpr char kRefused[] =
    "<Setup><NOSEPIECE><ITEM POSITION='1' CODE='900'/><ITEM POSITION='2' CODE='901'/></NOSEPIECE>"
    "</Setup>";

struct FileRig : CtlRig {
  FileRig() : CtlRig("Quay") {
    surroundings.library.openInstalled = []() -> std::unique_ptr<controller::ControllerLibrary> {
      ADD_FAILURE() << "a command that needs no microscope opened the controller library";
      return nullptr;
    };
  }
};

TEST(Diff, OfTheSameIsEmpty) {
  FileRig rig;
  const std::string a = rig.folder.Write("a.xml", kGood);
  EXPECT_EQ(rig.Run({"diff", a, a}), Outcome::Done);
  EXPECT_EQ(rig.Out(), a + " → " + a + ": 0 changes\n");
}

TEST(Diff, ShowsChangesAndWhatOnlyOneHas) {
  FileRig rig;
  const std::string a = rig.folder.Write("a.xml", kGood);
  const std::string b = rig.folder.Write(
      "b.xml",
      "<Setup><SYSTEM><QHRMNAME NAME='Bay 8'/></SYSTEM><NOSEPIECE><ITEM POSITION='1' CODE='2'/>"
      "</NOSEPIECE></Setup>");
  EXPECT_EQ(rig.Run({"diff", a, b}), Outcome::Different);
  EXPECT_EQ(rig.Out(), a + " → " + b + ": 1 change\n  System Name: Bay 7 → Bay 8\nOnly in " + b +
                           ": 1 item\n  Objective 1: code 2\n");
  EXPECT_EQ(rig.Run({"diff", b, a}), Outcome::Different);
  EXPECT_NE(rig.Out().find("Only in " + b + ": 1 item\n"), std::string::npos) << rig.Out();
}

TEST(Diff, AsJson) {
  FileRig rig;
  const std::string a = rig.folder.Write("a.xml", kGood);
  const std::string b = rig.folder.Write("b.xml", kOther);
  EXPECT_EQ(rig.Run({"diff", a, b, "--json"}), Outcome::Different);
  EXPECT_TRUE(rig.Out().starts_with("{\"changes\":1,\"files\":[\"" + InJson(a) + "\",\"" +
                                    InJson(b) + "\"],"))
      << rig.Out();
  EXPECT_NE(rig.Out().find("\"onlyFirst\":[],\"onlySecond\":[]}\n"), std::string::npos);
}

TEST(Diff, OneFileMayBeTheStandardInput) {
  FileRig rig;
  const std::string a = rig.folder.Write("a.xml", kGood);
  rig.in.str(kOther);
  EXPECT_EQ(rig.Run({"diff", a, "-"}), Outcome::Different);
  EXPECT_TRUE(rig.Out().starts_with(a + " → the standard input: 1 change\n")) << rig.Out();
  EXPECT_EQ(rig.Run({"diff", "-", "-"}), Outcome::Failed);
  EXPECT_EQ(rig.Err(), "mortanectl: only one of the files can be the standard input\n");
}

TEST(Diff, IsColouredWhereThatIsWanted) {
  FileRig rig;
  rig.surroundings.colour = true;
  const std::string a = rig.folder.Write("a.xml", kGood);
  const std::string b = rig.folder.Write("b.xml", kOther);
  rig.Run({"diff", a, b});
  EXPECT_NE(rig.Out().find("\x1B[31mBay 7\x1B[0m → \x1B[32mBay 8\x1B[0m"), std::string::npos)
      << rig.Out();
}

TEST(Check, AGoodFileHasNothingToTell) {
  FileRig rig;
  EXPECT_EQ(rig.Run({"check", rig.folder.Write("a.xml", kGood)}), Outcome::Done);
  EXPECT_EQ(rig.Out(), "1 file checked, 0 lines refused, 0 files not readable\n");
  EXPECT_EQ(rig.Err(), "");
}

TEST(Check, TellsEveryLineWithItsFile) {
  FileRig rig;
  const std::string bad = rig.folder.Write("bad.xml", kRefused);
  EXPECT_EQ(rig.Run({"check", bad, rig.folder.Write("a.xml", kGood)}), Outcome::Different);
  const std::string out = rig.Out();
  EXPECT_TRUE(out.starts_with(bad + ": ")) << out;
  EXPECT_NE(out.find("\n" + bad + ": "), std::string::npos) << out;
  EXPECT_TRUE(out.ends_with("2 files checked, 2 lines refused, 0 files not readable\n")) << out;
}

TEST(Check, AFileThatCannotBeReadDoesNotEndIt) {
  FileRig rig;
  const std::string missing = rig.folder.Path("missing.xml");
  EXPECT_EQ(rig.Run({"check", missing, rig.folder.Write("a.xml", kGood)}), Outcome::Failed);
  EXPECT_NE(rig.Err().find(missing), std::string::npos) << rig.Err();
  EXPECT_EQ(rig.Out(), "2 files checked, 0 lines refused, 1 file not readable\n");
}

TEST(Check, AFolderMeansItsSettingsFilesInTheOrderOfTheirNames) {
  FileRig rig;
  std::filesystem::create_directories(PathOf(rig.folder.Path("all/deep")));
  std::filesystem::create_directories(PathOf(rig.folder.Path("all/.git")));
  const std::string b = rig.folder.Write("all/b.XML", kRefused);
  const std::string a = rig.folder.Write("all/a.xml", kRefused);
  rig.folder.Write("all/deep/c.xml", kGood);
  rig.folder.Write("all/.git/d.xml", "none");
  rig.folder.Write("all/notes.txt", "none");
  EXPECT_EQ(rig.Run({"check", rig.folder.Path("all")}), Outcome::Different);
  const std::string out = rig.Out();
  EXPECT_TRUE(out.ends_with("3 files checked, 4 lines refused, 0 files not readable\n")) << out;
  EXPECT_LT(out.find(a), out.find(b)) << out;
}

TEST(Check, AFolderWithoutSettingsFilesIsTold) {
  FileRig rig;
  std::filesystem::create_directory(PathOf(rig.folder.Path("none")));
  EXPECT_EQ(rig.Run({"check", rig.folder.Path("none")}), Outcome::Failed);
  EXPECT_NE(rig.Err().find("the folder holds no file *.xml"), std::string::npos) << rig.Err();
}

// The models of all benches, one after the other and each alone.
TEST(Check, OneFileIsReadAsIfThereWereNoOther) {
  FileRig rig;
  std::vector<std::string> all{"check"};
  std::string alone;
  for (const std::string& name : benches::Names()) {
    if (name == "Crowd") continue;
    Rig microscope(name);
    microscope.prompts.AcceptAnyBox();
    microscope.ConnectAndReceive();
    all.push_back(rig.folder.Path(name + ".xml"));
    ASSERT_TRUE(microscope.k70.WriteXML(all.back()));
    rig.Run({"check", all.back()});
    alone += rig.Out().substr(0, rig.Out().find("1 file checked"));
  }
  std::reverse(all.begin() + 1, all.end());
  rig.Run(all);
  const std::string backwards = rig.Out();
  std::reverse(all.begin() + 1, all.end());
  rig.Run(all);
  EXPECT_TRUE(rig.Out().starts_with(alone)) << rig.Out();
  EXPECT_EQ(backwards.size(), rig.Out().size());
}

TEST(Check, AsJsonIsOneObject) {
  FileRig rig;
  const std::string a = rig.folder.Write("a.xml", kGood);
  const std::string missing = rig.folder.Path("missing.xml");
  EXPECT_EQ(rig.Run({"check", "--json", a, missing}), Outcome::Failed);
  EXPECT_TRUE(rig.Out().starts_with("{\"files\":[\n{\"file\":\"" + InJson(a) +
                                    "\",\"problem\":null,\"refused\":[]},\n{\"file\":\"" +
                                    InJson(missing) + "\",\"problem\":\""))
      << rig.Out();
  EXPECT_TRUE(rig.Out().ends_with("\n],\"checked\":2,\"refused\":0,\"unreadable\":1}\n"))
      << rig.Out();
  EXPECT_EQ(rig.Err(), "");
}

TEST(Check, EndsWhenThePersonAsks) {
  FileRig rig;
  const std::string a = rig.folder.Write("a.xml", kGood);
  rig.endAsked = [] { return true; };
  EXPECT_EQ(rig.Run({"check", a}), Outcome::Failed);
  EXPECT_EQ(rig.Out(), "");
}

// What every command that reads a file has to refuse.
struct BadFile {
  const char* name;
  std::string bytes;
  std::string says;
};

class BadFiles : public testing::TestWithParam<BadFile> {};

TEST_P(BadFiles, AreNamedWithTheReason) {
  for (const char* command : {"diff", "check", "compare", "send"}) {
    CtlRig rig("Harbour");
    const std::string good = rig.folder.Write("good.xml", kGood);
    const std::string bad = rig.folder.Write(GetParam().name, GetParam().bytes);
    std::vector<std::string> arguments{command, bad};
    if (arguments.front() == "diff") arguments.push_back(good);
    EXPECT_EQ(rig.Run(arguments), Outcome::Failed) << command;
    EXPECT_NE(rig.Err().find(bad + ": " + GetParam().says), std::string::npos) << rig.Err();
    EXPECT_EQ(rig.journal.CallCount(), 0U) << command;
  }
}

INSTANTIATE_TEST_SUITE_P(
    Rows, BadFiles,
    testing::Values(BadFile{"empty.xml", "", "the document is empty"},
                    BadFile{"text.xml", "plain text", "line 1"},
                    BadFile{"cut.xml", std::string(kGood).substr(0, 40), "line 1"},
                    BadFile{"root.xml", "<Bench/>", "no settings file"},
                    BadFile{"zero.xml", std::string("<Setup>\0</Setup>", 16), "the document holds"},
                    BadFile{"bomb.xml",
                            "<!DOCTYPE a [<!ENTITY b 'bb'><!ENTITY c '&b;&b;'>]><Setup>&c;</Setup>",
                            ""},
                    BadFile{"deep.xml",
                            [] {
                              std::string text = "<Setup>";
                              for (int i = 0; i < 100000; ++i) text += "<a>";
                              return text;
                            }(),
                            ""}));

TEST(BadInput, AFolderInPlaceOfAFile) {
  CtlRig rig("Harbour");
  const std::string folder = rig.folder.Path("");
  for (const char* command : {"compare", "send"}) {
    EXPECT_EQ(rig.Run({command, folder}), Outcome::Failed);
    EXPECT_NE(rig.Err().find(folder), std::string::npos) << rig.Err();
  }
  EXPECT_EQ(rig.journal.CallCount(), 0U);
}

TEST(BadInput, AnEmptyName) {
  CtlRig rig("Harbour");
  EXPECT_EQ(rig.Run({"compare", ""}), Outcome::Failed);
  EXPECT_EQ(rig.Err(), "mortanectl: the name of a file is empty\n");
}

TEST(BadInput, AMissingFileWithALineBreakInItsNameStaysOneLine) {
  CtlRig rig("Harbour");
  EXPECT_EQ(rig.Run({"compare", rig.folder.Path("a\nb.xml")}), Outcome::Failed);
  EXPECT_NE(rig.Err().find("a\\nb.xml"), std::string::npos) << rig.Err();
  EXPECT_EQ(rig.ErrLines(), 1) << rig.Err();
}

TEST(BadInput, AHugeStandardInputIsRefused) {
  FileRig rig;
  rig.in.str(std::string(std::size_t{65} * 1024 * 1024, ' '));
  EXPECT_EQ(rig.Run({"check", "-"}), Outcome::Failed);
  EXPECT_EQ(rig.Err(), "mortanectl: the standard input is too large\n");
}

TEST(BadInput, AClosedStandardOutputIsAFailure) {
  FileRig rig;
  std::ostream closed(nullptr);
  ctl::Surroundings surroundings{rig.in, closed, rig.err};
  EXPECT_EQ(ctl::Run({"check", rig.folder.Write("a.xml", kGood)}, surroundings), Outcome::Failed);
}

}  // namespace
}  // namespace mortane::test
