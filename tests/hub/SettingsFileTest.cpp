// The frame of the settings file: its sections, its choice of sections, its failures.
#include <gtest/gtest.h>

#include <chrono>
#include <filesystem>

#include "support/Rig.h"
#include "support/TempFolder.h"

namespace mortane::test {
namespace {

std::vector<int> FileItems(const clsK70& k70) {
  std::vector<int> items;
  for (std::int16_t i = 0; i < 10; ++i) items.push_back(k70.FileItem(i));
  return items;
}

std::string NameFile(std::string_view name) {
  return "<Setup><SYSTEM><QHRMNAME NAME=\"" + std::string(name) + "\"/></SYSTEM></Setup>";
}

// A model with one name in it, connected to nothing.
class SettingsFile : public testing::Test {
 protected:
  SettingsFile() { rig.k70.SystemName = "Before"; }

  void Open(const std::string& path) {
    rig.k70.ReadXMLItems(path);
    rig.k70.ReadXML(path);
  }

  // All that the model would save.
  std::string Model() {
    rig.k70.WriteXML(folder.Path("model.xml"));
    return TempFolder::Read(folder.Path("model.xml"));
  }

  TempFolder folder;
  Rig rig{"Quay"};
};

TEST_F(SettingsFile, IsWrittenWithAllSectionsInOrderAndNoWhiteSpace) {
  rig.k70.SystemName = "Lab & \"2\"";
  const std::string path = folder.Path("all.xml");
  rig.k70.WriteXML(path);
  DomDocument document;
  ASSERT_TRUE(document.Load(path));
  ASSERT_EQ(document.Children().size(), 1U);
  const DomNode root = document.Children()[0];
  EXPECT_EQ(root.Name(), "Setup");
  std::vector<std::string> names;
  for (const DomNode& section : root.Children()) {
    EXPECT_TRUE(section.IsElement());
    names.push_back(section.Name());
  }
  EXPECT_EQ(names, (std::vector<std::string>{"SYSTEM", "NOSEPIECE", "FILTER", "CONDENSER",
                                             "INTERLOCK", "CONTROL", "SWITCH", "TACTOR"}));
  EXPECT_TRUE(TempFolder::Read(path).starts_with(
      "<Setup><SYSTEM><QHRMNAME NAME=\"Lab &amp; &quot;2&quot;\"/></SYSTEM><NOSEPIECE"));
}

TEST_F(SettingsFile, TheSameModelGivesTheSameBytes) {
  rig.k70.WriteXML(folder.Path("a.xml"));
  rig.k70.WriteXML(folder.Path("b.xml"));
  EXPECT_EQ(TempFolder::Read(folder.Path("a.xml")), TempFolder::Read(folder.Path("b.xml")));
}

TEST_F(SettingsFile, ReadsItsOwnFileInSilence) {
  const std::string path = folder.Path("own.xml");
  rig.k70.SystemName = "  K70 äöü ";
  rig.k70.WriteXML(path);
  rig.k70.SystemName = "Other";
  Open(path);
  EXPECT_EQ(rig.k70.SystemName, "  K70 äöü ");
}

TEST_F(SettingsFile, FlagsTheSectionsThatAreThere) {
  const std::string path = folder.Write(
      "some.xml", "<Setup><filter/><x/><!--SYSTEM--><Tactor/><NOSEPIECE/>SYSTEM</Setup>");
  rig.k70.FileItem(9, -1);
  rig.k70.ReadXMLItems(path);
  EXPECT_EQ(FileItems(rig.k70), (std::vector<int>{0, -1, -1, 0, 0, 0, 0, -1, 0, 0}));
}

TEST_F(SettingsFile, EachSectionHasItsFileItem) {
  const char* names[] = {"SYSTEM",    "NOSEPIECE", "FILTER", "CONDENSER",
                         "INTERLOCK", "CONTROL",   "SWITCH", "TACTOR"};
  for (std::size_t i = 0; i < 8; ++i) {
    const std::string path =
        folder.Write("one.xml", "<Setup><" + std::string(names[i]) + "/></Setup>");
    rig.k70.ReadXMLItems(path);
    std::vector<int> expected(10, 0);
    expected[i] = -1;
    EXPECT_EQ(FileItems(rig.k70), expected) << names[i];
  }
}

TEST_F(SettingsFile, ARootInLowerCaseIsAccepted) {
  Open(folder.Write("lower.xml", "<setup><system><QHRMNAME name=\"Small\"/></system></setup>"));
  EXPECT_EQ(rig.k70.SystemName, "Small");
}

TEST_F(SettingsFile, ARootBehindCommentsAndInstructionsIsFound) {
  Open(folder.Write("comment.xml",
                    "<?xml version=\"1.0\"?><!--Setup--><?Setup x?>" + NameFile("Found")));
  EXPECT_EQ(rig.k70.SystemName, "Found");
}

TEST_F(SettingsFile, AnotherRootGivesItsBoxFromBothReaders) {
  const std::string path = folder.Write("other.xml", "<Settings><SYSTEM/></Settings>");
  rig.k70.FileItem(3, -1);
  rig.prompts.ExpectBox(path + " Other Format", box::kOk);
  rig.k70.ReadXMLItems(path);
  rig.prompts.ExpectBox(path + " Other Format", box::kOk);
  rig.k70.ReadXML(path);
  rig.prompts.ExpectBox(path + " Other Format", box::kOk);
  rig.k70.Tactor_ReadXML(path);
  EXPECT_EQ(FileItems(rig.k70), std::vector<int>(10, 0));
}

TEST_F(SettingsFile, ElementsNotSpelledExactlyAreNoSystemName) {
  for (const char* element : {"qhrmname", "QhrmName", "QHRMNAMES"}) {
    Open(folder.Write(
        "odd.xml", "<Setup><SYSTEM><" + std::string(element) + " NAME=\"Odd\"/></SYSTEM></Setup>"));
    EXPECT_EQ(rig.k70.SystemName, "Before") << element;
  }
}

TEST_F(SettingsFile, AnElementWithoutANameKeepsTheName) {
  Open(folder.Write("none.xml", "<Setup><SYSTEM><QHRMNAME OTHER=\"x\"/></SYSTEM></Setup>"));
  EXPECT_EQ(rig.k70.SystemName, "Before");
}

TEST_F(SettingsFile, OfSeveralNamesEachIsLookedAt) {
  rig.prompts.ExpectBox("SystemName = AAAAAAAAAAAAAAA", box::kOk, Answer::Ok, "XML Read");
  Open(folder.Write("names.xml",
                    "<Setup><SYSTEM><QHRMNAME NAME=\"One\" Name=\"Two\"/>"
                    "<QHRMNAME name=\"Three\" NAME=\"AAAAAAAAAAAAAAA\"/></SYSTEM></Setup>"));
  EXPECT_EQ(rig.k70.SystemName, "Three");
}

TEST_F(SettingsFile, EmptyBlankAndAccentedNamesAreTakenAsTheyStand) {
  for (const char* name : {"", "  x  ", "äöüäöüäöüäöüäö"}) {
    Open(folder.Write("name.xml", NameFile(name)));
    EXPECT_EQ(rig.k70.SystemName, name);
  }
}

TEST_F(SettingsFile, ANameOfFourteenCharactersIsTaken) {
  Open(folder.Write("14.xml", NameFile("ABCDEFGHIJKLMN")));
  EXPECT_EQ(rig.k70.SystemName, "ABCDEFGHIJKLMN");
}

TEST_F(SettingsFile, ALongerNameIsWrittenWholeAndRefusedWithItsLine) {
  for (const char* text : {"ABCDEFGHIJKLMNO", "ABCDEFGHIJKLMNOPQRST"}) {
    const std::string name = text;
    rig.k70.SystemName = name;
    rig.k70.WriteXML(folder.Path("long.xml"));
    rig.k70.SystemName = "Before";
    rig.prompts.ExpectBox("SystemName = " + name, box::kOk, Answer::Ok, "XML Read");
    Open(folder.Path("long.xml"));
    EXPECT_EQ(rig.k70.SystemName, "Before");
  }
}

TEST_F(SettingsFile, ASectionThatOccursTwiceIsReadTwice) {
  Open(folder.Write("twice.xml",
                    "<Setup><SYSTEM><QHRMNAME NAME=\"One\"/></SYSTEM><FILTER/>"
                    "<SYSTEM><QHRMNAME NAME=\"Two\"/></SYSTEM></Setup>"));
  EXPECT_EQ(rig.k70.SystemName, "Two");
}

TEST_F(SettingsFile, SectionOrderDoesNotMatter) {
  Open(folder.Write(
      "order.xml", "<Setup><TACTOR/><CONTROL/><SYSTEM><QHRMNAME NAME=\"Last\"/></SYSTEM></Setup>"));
  EXPECT_EQ(rig.k70.SystemName, "Last");
}

TEST_F(SettingsFile, UnknownElementsInSectionsArePassedOverInSilence) {
  std::string text = "<Setup><UNKNOWN><QHRMNAME NAME=\"No\"/></UNKNOWN>";
  for (const FileSection& section : kFileSections) {
    text += "<" + std::string(section.element) + "><WHATEVER POSITION=\"1\"/>text</" +
            std::string(section.element) + ">";
  }
  const std::string before = Model();
  Open(folder.Write("unknown.xml", text + "</Setup>"));
  EXPECT_EQ(Model(), before);
}

TEST_F(SettingsFile, ASectionIsReadUnlessItsFlagIsZero) {
  const std::string path = folder.Write("flag.xml", NameFile("New"));
  rig.k70.ReadXMLItems(path);
  for (const std::int16_t flag : {std::int16_t{0}, std::int16_t{1}, std::int16_t{-2}}) {
    rig.k70.FileItem(0, flag);
    rig.k70.ReadXML(path);
    EXPECT_EQ(rig.k70.SystemName, flag == 0 ? "Before" : "New") << flag;
  }
}

TEST_F(SettingsFile, WithNoSectionWantedABadFileIsStillTold) {
  const std::string path = folder.Write("bad.xml", "<Setup>");
  rig.prompts.ExpectBox("Can't Load Xml", box::kOk);
  rig.k70.ReadXML(path);
}

TEST_F(SettingsFile, FailuresOfSeveralSectionsStandInOneBox) {
  rig.prompts.ExpectBox("SystemName = AAAAAAAAAAAAAAA\r\nSystemName = BBBBBBBBBBBBBBB", box::kOk,
                        Answer::Ok, "XML Read");
  Open(folder.Write("two.xml",
                    "<Setup><SYSTEM><QHRMNAME NAME=\"AAAAAAAAAAAAAAA\"/></SYSTEM>"
                    "<SYSTEM><QHRMNAME NAME=\"BBBBBBBBBBBBBBB\"/></SYSTEM></Setup>"));
}

TEST_F(SettingsFile, ATactorFileHoldsOneSectionAndIsASettingsFileToo) {
  const std::string path = folder.Path("tactor.xml");
  rig.k70.Tactor_WriteXML(path);
  rig.k70.ReadXMLItems(path);
  EXPECT_EQ(FileItems(rig.k70), (std::vector<int>{0, 0, 0, 0, 0, 0, 0, -1, 0, 0}));
  DomDocument document;
  ASSERT_TRUE(document.Load(path));
  EXPECT_EQ(document.Children()[0].Name(), "Setup");
  ASSERT_EQ(document.Children()[0].Children().size(), 1U);
}

TEST_F(SettingsFile, TheTactorReaderLeavesTheOtherSectionsAndTheFlagsAlone) {
  const std::string path =
      folder.Write("full.xml", "<Setup><SYSTEM><QHRMNAME NAME=\"New\"/></SYSTEM><TACTOR/></Setup>");
  rig.k70.FileItem(0, -1);
  rig.k70.Tactor_ReadXML(path);
  EXPECT_EQ(rig.k70.SystemName, "Before");
  EXPECT_EQ(rig.k70.FileItem(0), -1);
  EXPECT_EQ(rig.k70.FileItem(7), 0);
}

TEST_F(SettingsFile, ReadingAndWritingReachNoController) {
  Rig source("Harbour");
  source.ConnectAndReceive();
  const std::string path = folder.Path("full.xml");
  source.k70.WriteXML(path);
  EXPECT_EQ(source.journal.CallCount(), 0U);
  source.k70.SystemName = "Other";
  source.k70.ReadXMLItems(path);
  source.k70.ReadXML(path);
  EXPECT_EQ(source.k70.SystemName, "Harbour");
  EXPECT_EQ(source.journal.CallCount(), 0U);
}

struct BadFile {
  const char* what;
  std::string bytes;
};

std::vector<BadFile> BadFiles() {
  const std::string good = NameFile("New");
  std::string nul = good;
  nul[20] = '\0';
  std::string deep = "<Setup>";
  for (int i = 0; i < 5000; ++i) deep += "<SYSTEM>";
  std::string bomb = "<!DOCTYPE Setup [<!ENTITY a \"aaaaaaaaaa\">";
  for (char c = 'b'; c <= 'k'; ++c) {
    bomb += "<!ENTITY " + std::string(1, c) + " \"";
    for (int i = 0; i < 10; ++i) bomb += "&" + std::string(1, static_cast<char>(c - 1)) + ";";
    bomb += "\">";
  }
  bomb += "]><Setup><SYSTEM><QHRMNAME NAME=\"&k;\"/></SYSTEM></Setup>";
  return {
      {"empty", ""},
      {"truncated", good.substr(0, good.size() / 2)},
      {"text", "hello"},
      {"two roots", good + good},
      {"doubled attribute", "<Setup><SYSTEM><QHRMNAME NAME=\"a\" NAME=\"b\"/></SYSTEM></Setup>"},
      {"unclosed tag", "<Setup><SYSTEM></Setup>"},
      {"nul byte", nul},
      {"wrong encoding", "<?xml version=\"1.0\" encoding=\"UTF-8\"?>" + NameFile("\xE4\xF6")},
      {"unknown encoding", "<?xml version=\"1.0\" encoding=\"martian\"?>" + good},
      {"deep", deep},
      {"entity bomb", bomb},
      {"binary", std::string("\x7F"
                             "ELF\x02\x01\x00\x00",
                             8)},
  };
}

TEST_F(SettingsFile, WhatCannotBeParsedGivesItsBoxAndLeavesTheModel) {
  const std::string before = Model();
  for (const BadFile& bad : BadFiles()) {
    const std::string path = folder.Write("bad.xml", bad.bytes);
    rig.prompts.ExpectBox("Can't Load Xml", box::kOk);
    rig.k70.ReadXMLItems(path);
    rig.prompts.ExpectBox("Can't Load Xml", box::kOk);
    rig.k70.FileItem(0, -1);
    rig.k70.ReadXML(path);
    EXPECT_EQ(Model(), before) << bad.what;
    EXPECT_TRUE(rig.prompts.AllAnswersUsed()) << bad.what;
  }
}

TEST_F(SettingsFile, AFileThatIsNotThereOrAFolderCannotBeLoaded) {
  for (const std::string& path : {folder.Path("missing.xml"), folder.Path("")}) {
    rig.prompts.ExpectBox("Can't Load Xml", box::kOk);
    rig.k70.ReadXMLItems(path);
    rig.prompts.ExpectBox("Can't Load Xml", box::kOk);
    rig.k70.Tactor_ReadXML(path);
  }
}

TEST_F(SettingsFile, AFailedLoadClearsTheFlags) {
  rig.k70.FileItem(3, -1);
  rig.prompts.ExpectBox("Can't Load Xml", box::kOk);
  rig.k70.ReadXMLItems(folder.Path("missing.xml"));
  EXPECT_EQ(FileItems(rig.k70), std::vector<int>(10, 0));
}

TEST_F(SettingsFile, OtherEncodingsThatAreDeclaredAreRead) {
  Open(folder.Write("latin.xml",
                    "<?xml version=\"1.0\" encoding=\"ISO-8859-1\"?>" + NameFile("\xE4")));
  EXPECT_EQ(rig.k70.SystemName, "ä");
  Open(folder.Write("bom.xml", "\xEF\xBB\xBF" + NameFile("bom")));
  EXPECT_EQ(rig.k70.SystemName, "bom");
  std::string wide = "\xFF\xFE";
  for (const char c : NameFile("wide")) wide += {c, '\0'};
  Open(folder.Write("utf16.xml", wide));
  EXPECT_EQ(rig.k70.SystemName, "wide");
}

TEST_F(SettingsFile, AHugeFileIsReadWhole) {
  std::string text = "<Setup><FILTER>";
  for (int i = 0; i < 50000; ++i) text += "<WHATEVER POSITION=\"1\" CODE=\"2\"/>";
  Open(folder.Write("huge.xml",
                    text + "</FILTER><SYSTEM><QHRMNAME NAME=\"Big\"/></SYSTEM></Setup>"));
  EXPECT_EQ(rig.k70.SystemName, "Big");
}

TEST_F(SettingsFile, AReportOfManyLinesTakesItsTimeOncePerLine) {
  constexpr std::size_t kElements = 100000;
  std::string text = "<Setup><FILTER>";
  std::string report;
  for (std::size_t i = 0; i < kElements; ++i) {
    text += "<ITEM POSITION=\"0\"/>";
    report += "Filter Cube[0]\r\n";
  }
  report.resize(report.size() - 2);
  const std::string path = folder.Write("refused.xml", text + "</FILTER></Setup>");
  rig.prompts.AcceptAnyBox();
  const auto start = std::chrono::steady_clock::now();
  Open(path);
  // One or two seconds where everything is instrumented; with a copy of the report for each line
  // it would be twenty.
  EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(10));
  ASSERT_EQ(rig.prompts.Boxes().size(), 1U);
  EXPECT_TRUE(rig.prompts.Boxes()[0].text == report) << "the whole report, in the file's order";
}

TEST_F(SettingsFile, ACharacterThatXmlCannotHoldMakesTheSaveFailAndKeepsTheOldFile) {
  const std::string path = folder.Write("old.xml", "old");
  rig.k70.SystemName =
      "a\x01"
      "b";
  rig.prompts.AcceptAnyBox();
  rig.k70.WriteXML(path);
  ASSERT_EQ(rig.prompts.Boxes().size(), 1U);
  EXPECT_TRUE(rig.prompts.Boxes()[0].text.starts_with("XML File Write Error\r\n"));
  EXPECT_GT(rig.prompts.Boxes()[0].text.size(), std::string("XML File Write Error\r\n").size());
  EXPECT_EQ(rig.prompts.Boxes()[0].style, box::kCritical);
  EXPECT_EQ(rig.prompts.Boxes()[0].caption, "");
  EXPECT_EQ(TempFolder::Read(path), "old");
}

TEST_F(SettingsFile, ATargetThatCannotBeWrittenGivesItsBoxAndLeavesNothingBehind) {
  std::filesystem::create_directory(folder.Path("taken.xml"));
  rig.prompts.AcceptAnyBox();
  rig.k70.WriteXML(folder.Path("taken.xml"));
  rig.k70.Tactor_WriteXML(folder.Path("nowhere/tactor.xml"));
  ASSERT_EQ(rig.prompts.Boxes().size(), 2U);
  EXPECT_TRUE(rig.prompts.Boxes()[0].text.starts_with("XML File Write Error\r\n"));
  EXPECT_TRUE(rig.prompts.Boxes()[1].text.starts_with("XML Tactor DataFile Write Error\r\n"));
  EXPECT_EQ(rig.prompts.Boxes()[1].style, box::kCritical);
  std::size_t entries = 0;
  for ([[maybe_unused]] const auto& entry : std::filesystem::directory_iterator(folder.Path(""))) {
    ++entries;
  }
  EXPECT_EQ(entries, 1U);
}

TEST_F(SettingsFile, SavingReplacesAnExistingFile) {
  const std::string path = folder.Write("existing.xml", std::string(100000, 'x'));
  rig.k70.WriteXML(path);
  EXPECT_TRUE(TempFolder::Read(path).starts_with("<Setup>"));
  EXPECT_LT(TempFolder::Read(path).size(), 100000U);
}

}  // namespace
}  // namespace mortane::test
