// What a comparison calls changed is what a Send then writes.
#include "record/Comparison.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <random>
#include <string>
#include <vector>

#include "common/Text.h"
#include "drives/clsControlOther.h"
#include "filters/FilterItemNames.h"
#include "record/ItemIndex.h"
#include "record/ReceivedRig.h"
#include "support/RandomModel.h"
#include "support/Sample.h"

namespace mortane::test {
namespace {

// Compares, sends and looks at what was written. `read` brings the model to what is wanted.
template <typename Read>
void ExpectToTellWhatASendWrites(ReceivedRig& rig, const DomDocument* file, Read&& read) {
  const ConfigurationState held = StateOf(rig.k70);
  read();
  const Comparison comparison = Compare(rig.k70, held, file);
  const Keys changed = KeysOf(comparison.changed);
  const Keys unknown = KeysOf(comparison.unknown);
  const Keys written = rig.Send();
  EXPECT_EQ(Without(changed, written), Keys()) << "called changed and not written";
  EXPECT_EQ(Without(Without(written, unknown), changed), Keys())
      << "written and not called changed";
  rig.k70.Receive();
  EXPECT_EQ(KeysOf(NotTaken(comparison, rig.k70)), Keys());
  const ConfigurationState after = StateOf(rig.k70);
  read();
  EXPECT_EQ(KeysOf(Compare(rig.k70, after).changed), Keys());
}

// Every item of a file is sent, held already, refused, not known or not on the microscope.
void ExpectNothingDropped(const std::vector<ConfigurationItem>& file, const Comparison& comparison,
                          const ConfigurationState& wanted, const ConfigurationState& after) {
  const ItemIndex read(wanted.items);
  const ItemIndex held(after.items);
  const Keys missing = KeysOf(comparison.notOnMicroscope);
  const Keys unknown = KeysOf(comparison.unknown);
  const auto isAmong = [](const Keys& keys, const ConfigurationItem& item) {
    return std::binary_search(keys.begin(), keys.end(), KeyText(item.key));
  };
  for (const ConfigurationItem& item : file) {
    const std::string key = KeyText(item.key);
    EXPECT_FALSE(isAmong(missing, item) && isAmong(unknown, item)) << key;
    EXPECT_FALSE(isAmong(missing, item) && isAmong(KeysOf(comparison.changed), item)) << key;
    if (!IsKnown(item) || isAmong(missing, item) || isAmong(unknown, item)) continue;
    const ConfigurationItem* taken = read.Find(item.key);
    const bool refused = taken == nullptr || RightTrim(taken->value) != RightTrim(item.value);
    if (refused || item.kind == ItemKind::Buzzer) continue;
    const ConfigurationItem* now = held.Find(item.key);
    // What repeats another item, and what a Receive does not read back.
    if (now == nullptr || item.key.element == "OTHER") continue;
    EXPECT_EQ(RightTrim(now->value), RightTrim(item.value)) << key;
  }
}

// What a microscope's own file says, received once for all tests.
const DomDocument& FileOf(const std::string& bench) {
  static std::map<std::string, DomDocument> files;
  const auto found = files.find(bench);
  if (found != files.end()) return found->second;
  return files.emplace(bench, ReceivedRig(bench).File()).first->second;
}

// Some of the benches for each, so that every one is the source and the target of some.
std::vector<std::string> SourcesFor(const std::string& bench) {
  const std::vector<std::string> names = benches::Names();
  const auto row = std::find(names.begin(), names.end(), bench) - names.begin();
  return ColumnsOfRow(static_cast<std::size_t>(row), names, 5);
}

class ASend : public ::testing::TestWithParam<std::string> {};

TEST_P(ASend, OfEveryBenchsFileWritesWhatTheComparisonCallsChanged) {
  for (const std::string& source : SourcesFor(GetParam())) {
    SCOPED_TRACE("the file of " + source);
    const DomDocument& file = FileOf(source);
    ReceivedRig rig(GetParam());
    ExpectToTellWhatASendWrites(rig, &file, [&] { rig.Read(file); });
  }
}

TEST_P(ASend, OfRandomModelsWritesWhatTheComparisonCallsChanged) {
  std::mt19937 random(20261122);
  ReceivedRig rig(GetParam());
  const int models = CountOf(3, 72);  // on each of fourteen benches
  for (int i = 0; i < models; ++i) {
    SCOPED_TRACE("model " + std::to_string(i));
    const std::mt19937 before = random;
    ExpectToTellWhatASendWrites(rig, nullptr, [&] {
      random = before;
      MakeRandom(rig.k70, random);
    });
    if (HasFailure()) return;
  }
}

TEST_P(ASend, OfEveryBenchsFileDropsNoItemSilently) {
  for (const std::string& source : SourcesFor(GetParam())) {
    SCOPED_TRACE("the file of " + source);
    const DomDocument& file = FileOf(source);
    ReceivedRig rig(GetParam());
    const ConfigurationState held = StateOf(rig.k70);
    rig.Read(file);
    const Comparison comparison = Compare(rig.k70, held, &file);
    const ConfigurationState wanted = StateOf(rig.k70);
    rig.k70.Send();
    rig.k70.Receive();
    ExpectNothingDropped(ItemsOf(file), comparison, wanted, StateOf(rig.k70));
  }
}

// A file of the microscope itself says nothing of what it has not.
TEST_P(ASend, OfTheMicroscopesOwnFileLeavesNothingOut) {
  ReceivedRig rig(GetParam());
  const ConfigurationState held = StateOf(rig.k70);
  const DomDocument file = rig.File();
  rig.Read(file);
  EXPECT_EQ(KeysOf(Compare(rig.k70, held, &file).notOnMicroscope), Keys());
}

INSTANTIATE_TEST_SUITE_P(Benches, ASend, ::testing::ValuesIn(benches::Names()),
                         [](const auto& bench) { return bench.param; });

std::string Text(const ItemChange& change) {
  const auto value = [](const ConfigurationItem& item) {
    return item.exact.empty() ? item.value : item.value + "(" + item.exact + ")";
  };
  return KeyText(change.to.key) + ": " + value(change.from) + " > " + value(change.to);
}

std::vector<std::string> Texts(const std::vector<ItemChange>& changes) {
  std::vector<std::string> texts;
  texts.reserve(changes.size());
  for (const ItemChange& change : changes) texts.push_back(Text(change));
  return texts;
}

std::vector<std::string> Texts(const std::vector<ConfigurationItem>& items) {
  std::vector<std::string> texts;
  texts.reserve(items.size());
  for (const ConfigurationItem& item : items) texts.push_back(KeyText(item.key) + "=" + item.value);
  return texts;
}

using Lines = std::vector<std::string>;

struct Compared {
  explicit Compared(const std::string& bench) : rig(bench) {}

  Comparison With(const std::string& sections) {
    const ConfigurationState held = StateOf(rig.k70);
    EXPECT_TRUE(file.LoadText("<Setup>" + sections + "</Setup>")) << file.Problem();
    rig.Read(file);
    return Compare(rig.k70, held, &file);
  }

  ReceivedRig rig;
  DomDocument file;
};

TEST(AComparison, StandsInTheOrderOfTheFileWithOldAndNew) {
  Compared compared("Quay");
  EXPECT_EQ(Texts(compared
                      .With("<SYSTEM><QHRMNAME NAME='New'/></SYSTEM><NOSEPIECE>"
                            "<ITEM POSITION='2' CODE='9'/><ITEM POSITION='1' CODE='2'/>"
                            "<LIMIT POSITION='Skip' CODE='Off'/></NOSEPIECE>")
                      .changed),
            (Lines{"SYSTEM QHRMNAME NAME: Lab 2 East > New", "NOSEPIECE ITEM 2 CODE: 5 > 9",
                   "NOSEPIECE LIMIT Skip CODE: On > Off"}));
}

TEST(AComparison, ListsWhatTheMicroscopeHasNot) {
  Compared compared("Quay");
  const Comparison comparison = compared.With(
      "<NOSEPIECE><ITEM POSITION='6' CODE='9'/><ITEM POSITION='7' CODE='9'/>"
      "<ITEM POSITION='two' CODE='9'/><LIMIT POSITION='Other' CODE='On'/></NOSEPIECE>"
      "<CONTROL><FOCUSDRIVE><DownLimitation CODE='-500000'/></FOCUSDRIVE>"
      "<OTHER><FocusDrive CODE='Fine'/><B_KM_RSwitch CODE='True'/></OTHER></CONTROL>"
      "<SWITCH><SWITCH POSITION='18' FUNCTION='1'/></SWITCH>"
      "<Extra><Thing Colour='red'/></Extra>");
  EXPECT_EQ(Texts(comparison.changed), (Lines{"NOSEPIECE ITEM 6 CODE: 241 > 9"}));
  EXPECT_EQ(
      Texts(comparison.notOnMicroscope),
      (Lines{"NOSEPIECE ITEM 7 CODE=9", "NOSEPIECE ITEM two CODE=9",
             "NOSEPIECE LIMIT Other CODE=On", "CONTROL FOCUSDRIVE/DownLimitation CODE=-500000",
             "CONTROL OTHER/FocusDrive CODE=Fine", "CONTROL OTHER/B_KM_RSwitch CODE=True",
             "SWITCH SWITCH 18 FUNCTION=1", "Extra Thing Colour=red"}));
  EXPECT_EQ(Texts(comparison.unknown), Lines());
}

TEST(AComparison, LeavesOutWhatTheFileDoesNotKnowAndSectionsThatAreNotWanted) {
  Compared compared("Quay");
  const ConfigurationState held = StateOf(compared.rig.k70);
  const std::string text =
      "<Setup><NOSEPIECE><ITEM POSITION='9' CODE='9'/></NOSEPIECE>"
      "<INTERLOCK><OFFSET POSITION='Other' CODE='-1'/></INTERLOCK>"
      "<CONTROL><OTHER><B_KM_RSwitch CODE='Unknown'/></OTHER></CONTROL></Setup>";
  ASSERT_TRUE(compared.file.LoadText(text));
  compared.rig.k70.ReadItems(compared.file, "test.xml");
  EXPECT_EQ(Texts(Compare(compared.rig.k70, held, &compared.file).notOnMicroscope),
            (Lines{"NOSEPIECE ITEM 9 CODE=9"}));
  compared.rig.k70.FileItem(fileitem::kNosepiece, 0);
  EXPECT_EQ(Texts(Compare(compared.rig.k70, held, &compared.file).notOnMicroscope), Lines());
  EXPECT_EQ(Texts(Compare(compared.rig.k70, held).notOnMicroscope), Lines());
}

// The controller has one number for the three; no number stands for this rule of empty positions.
TEST(AComparison, DoesNotCallLimitsChangedThatCannotBeSent) {
  Compared compared("Quay");
  const Comparison comparison = compared.With(
      "<NOSEPIECE><LIMIT POSITION='LowerMagnification' CODE='Off'/>"
      "<LIMIT POSITION='Skip' CODE='StageDown'/></NOSEPIECE>");
  EXPECT_EQ(Texts(comparison.changed), Lines());
  EXPECT_EQ(Texts(comparison.unknown),
            (Lines{"NOSEPIECE LIMIT LowerMagnification CODE: NotRotate > Off",
                   "NOSEPIECE LIMIT Skip CODE: On > Unknown(2)"}));
}

// The escapes are one number too, and this controller tells none.
TEST(AComparison, DoesNotCallAnEscapeChangedWhoseOtherHalfIsUnknown) {
  Compared compared("Attic");
  const auto escapes = [](const std::vector<ItemChange>& changes) {
    Lines lines;
    for (const ItemChange& change : changes) {
      if (change.to.key.element.find("Escape") != std::string::npos) lines.push_back(Text(change));
    }
    return lines;
  };
  const Comparison one =
      compared.With("<CONTROL><FOCUSDRIVE><Escape_ZDrive CODE='On'/></FOCUSDRIVE></CONTROL>");
  EXPECT_EQ(escapes(one.changed), Lines());
  EXPECT_EQ(escapes(one.unknown),
            (Lines{"CONTROL FOCUSDRIVE/Escape_ZDrive CODE: Unknown > On",
                   "CONTROL FOCUSDRIVE/Escape_XYStage CODE: Unknown > Unknown"}));
  compared.rig.k70.Receive();
  const Comparison both = compared.With(
      "<CONTROL><FOCUSDRIVE><Escape_ZDrive CODE='Off'/>"
      "<Escape_XYStage CODE='Off'/></FOCUSDRIVE></CONTROL>");
  EXPECT_EQ(escapes(both.changed),
            (Lines{"CONTROL FOCUSDRIVE/Escape_ZDrive CODE: Unknown > Off",
                   "CONTROL FOCUSDRIVE/Escape_XYStage CODE: Unknown > Off"}));
}

// An LED that is written "Off" comes back as a number that is neither off, dark nor bright.
TEST(AComparison, TellsAValueThatTheFileHasNoWordFor) {
  Compared compared("DeckRemote");
  const Comparison comparison = compared.With(
      "<CONTROL><OTHER><B_KM_RSwitchLED CODE='Off'/><Buzzer CODE='False'/></OTHER></CONTROL>");
  const Lines texts = Texts(comparison.changed);
  EXPECT_NE(std::find(texts.begin(), texts.end(),
                      "CONTROL OTHER/B_KM_RSwitchLED CODE: Bright > Unknown(3)"),
            texts.end());
}

// Body and hub are told apart by the model, the hand controller is not even read.
TEST(AComparison, LooksAtEveryBuzzerThatASendCommands) {
  ReceivedRig rig("Quay");
  rig.instrument().buzzers.handController = 0;
  rig.k70.Receive();
  const Comparison comparison = Compare(rig.k70, StateOf(rig.k70));
  EXPECT_EQ(Texts(comparison.changed), (Lines{"CONTROL OTHER/Buzzer CODE: Unknown(2) > False"}));
  EXPECT_EQ(rig.Send(), (Keys{"CONTROL OTHER/Buzzer CODE"}));
  rig.k70.Receive();
  EXPECT_EQ(Texts(Compare(rig.k70, StateOf(rig.k70)).changed), Lines());
}

TEST(AComparison, NeverCallsEqualWhatCouldNotBeRead) {
  struct Row {
    const char* fault;
    const char* unknown;  // one of the items
    const char* known;    // an item of another unit
  };
  const Row rows[] = {
      {"NosepieceDevice.Positions.Next", "NOSEPIECE ITEM 1 CODE", "FILTER ITEM 1 CODE"},
      {"AccessoryDatabase.Exciters", "FILTER EXCITER 1 NAME", "FILTER BARRIER 1 NAME"},
      {"NosepieceDevice.Limitation", "NOSEPIECE LIMIT Skip CODE", "NOSEPIECE ITEM 1 CODE"},
      {"ControllerSettings.Interlock", "INTERLOCK OTHER ND CODE", "SYSTEM QHRMNAME NAME"},
      {"NDFilterDevice.OffsetCode", "INTERLOCK OFFSET ND CODE", "NOSEPIECE ITEM 1 CODE"},
      {"ZDriveDevice.KnobAuto", "CONTROL OTHER/Buzzer CODE", "NOSEPIECE ITEM 1 CODE"},
      {"ControllerSettings.SwitchFunction", "SWITCH SWITCH 1 FUNCTION", "NOSEPIECE ITEM 1 CODE"},
  };
  for (const Row& row : rows) {
    ReceivedRig rig("Quay");
    rig.faults.Add({row.fault});
    rig.k70.Receive();
    rig.faults.Clear();
    const Comparison comparison = Compare(rig.k70, StateOf(rig.k70));
    const Keys unknown = KeysOf(comparison.unknown);
    EXPECT_TRUE(std::binary_search(unknown.begin(), unknown.end(), row.unknown)) << row.fault;
    EXPECT_FALSE(std::binary_search(unknown.begin(), unknown.end(), row.known)) << row.fault;
    EXPECT_TRUE(comparison.HasDifferences());
    EXPECT_EQ(Texts(comparison.changed), Lines()) << row.fault;
  }
}

TEST(AComparison, KnowsNothingBeforeAReceive) {
  Rig rig("Quay");
  rig.Connect();
  const Comparison comparison = Compare(rig.k70, StateOf(rig.k70));
  EXPECT_EQ(Texts(comparison.changed), Lines());
  EXPECT_FALSE(comparison.unknown.empty());
}

TEST(AComparison, CallsUnknownWhatTheControllerDoesNotTellWhenAsked) {
  ReceivedRig rig("Quay");
  const ConfigurationState held = StateOf(rig.k70);
  rig.k70.Exciter.Name(kOptionBase + 1, "New");
  rig.k70.COther.curBuzzer = 1;
  rig.faults.Add({"AccessoryDatabase.Exciters"});
  rig.faults.Add({"BuzzerEnabled"});
  EXPECT_EQ(Texts(Compare(rig.k70, held).changed), Lines());
  EXPECT_EQ(KeysOf(Compare(rig.k70, held).unknown),
            (Keys{"CONTROL OTHER/Buzzer CODE", "FILTER EXCITER 1 NAME"}));
  rig.faults.Clear();
  EXPECT_EQ(KeysOf(Compare(rig.k70, held).changed),
            (Keys{"CONTROL OTHER/Buzzer CODE", "FILTER EXCITER 1 NAME"}));
}

TEST(AComparison, WritesNothing) {
  Compared compared("Quay");
  compared.rig.journal.Clear();
  compared.With(
      "<SYSTEM><QHRMNAME NAME='New'/></SYSTEM>"
      "<FILTER><EXCITER POSITION='1' NAME='New'/></FILTER>");
  EXPECT_TRUE(compared.rig.journal.Writes().empty());
}

// The microscope keeps an old name, as one that cuts or refuses it.
TEST(ChangesNotTaken, AreThoseThatReadBackDiffers) {
  Compared compared("Quay");
  const Comparison comparison = compared.With(
      "<SYSTEM><QHRMNAME NAME='New'/></SYSTEM><NOSEPIECE><ITEM POSITION='1' CODE='9'/></NOSEPIECE>"
      "<SWITCH><SWITCH POSITION='1' FUNCTION='5'/></SWITCH>"
      "<CONTROL><OTHER><Buzzer CODE='True'/></OTHER></CONTROL>");
  ASSERT_EQ(comparison.changed.size(), 4U);
  compared.rig.faults.Add({"put NosepieceDevice.Positions.Code"});
  compared.rig.faults.Add({"call BuzzerOff(1)"});
  compared.rig.k70.Send();
  compared.rig.faults.Clear();
  compared.rig.faults.Add({"ControllerSettings.SwitchFunction"});
  compared.rig.k70.Receive();
  EXPECT_EQ(Texts(NotTaken(comparison, compared.rig.k70)),
            (Lines{"NOSEPIECE ITEM 1 CODE: 2 > 9", "CONTROL OTHER/Buzzer CODE: Unknown(2) > True",
                   "SWITCH SWITCH 1 FUNCTION: Unknown > 5"}));
}

}  // namespace
}  // namespace mortane::test
