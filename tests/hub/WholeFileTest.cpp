// The settings file with the sections of all units.
#include <gtest/gtest.h>

#include <algorithm>
#include <clocale>
#include <cstdlib>
#include <locale>

#include "common/Numbers.h"
#include "common/Text.h"
#include "drives/clsControlOther.h"
#include "platform/AtomicFile.h"
#include "support/RandomModel.h"
#include "support/Rig.h"
#include "support/Sample.h"
#include "support/TempFolder.h"
#include "support/ThisSystem.h"

namespace mortane::test {
namespace {

std::string TextOf(const clsK70& k70) {
  DomDocument document;
  k70.WriteSections(document);
  return document.ToText();
}

void Read(clsK70& k70, const std::string& text) {
  DomDocument document;
  ASSERT_TRUE(document.LoadText(text)) << document.Problem();
  k70.ReadItems(document, "test.xml");
  k70.ReadSections(document, "test.xml");
}

// An element on each line, so that a difference can be seen.
std::string Split(const std::string& text) {
  std::string lines;
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (i > 0 && text[i] == '<' && text[i - 1] == '>') lines += '\n';
    lines += text[i];
  }
  return lines + '\n';
}

// This bench's instrument holds values that no settings file may hold.
constexpr std::string_view kOddValues = "Attic";
constexpr const char* kRefused =
    "Nosepiece Optional[3]\r\nFilter Cube Optional Item Exciter[1]\r\n"
    "Filter Cube Optional Item Dichroic[1]\r\nFilter Cube Optional Item Barrier[1]\r\n"
    "Condenser Option[2]\r\nTactor[2]\r\nTactor[3]\r\nTactor[4]\r\nTactor[7]\r\nTactor[9]\r\n"
    "Tactor[ Mode ]Tactor[ Handle ]Tactor[2]Tactor[3]";

// Names lose the blanks at their ends when they are read.
std::string WithoutBlanksAtEnds(std::string text) {
  for (std::size_t end = text.find(" \""); end != std::string::npos; end = text.find(" \"")) {
    text.erase(end, 1);
  }
  return text;
}

// Receiving from the instrument with odd values shows boxes.
void ConnectAndReceive(Rig& rig, const std::string& bench) {
  if (bench == kOddValues) rig.prompts.AcceptAnyBox();
  rig.ConnectAndReceive();
  rig.prompts.ClearRecords();
}

class WholeFile : public ::testing::TestWithParam<std::string> {};

TEST_P(WholeFile, HasTheseBytes) {
  Rig rig(GetParam());
  ConnectAndReceive(rig, GetParam());
  const std::string golden = std::string(MORTANE_GOLDEN_FILES) + "/" + GetParam() + ".xml";
  // After a change that is meant: MORTANE_WRITE_GOLDEN=1 writes the files anew, for review.
  if (std::getenv("MORTANE_WRITE_GOLDEN") != nullptr) {
    WriteFileAtomically(golden, Split(TextOf(rig.k70)));
  }
  EXPECT_EQ(Split(TextOf(rig.k70)), ReadWholeFile(golden));
}

// Numbers with a comma and groups, in everything that could ask for the user's way to write them.
class CommaEverywhere {
 public:
  CommaEverywhere() : before_(std::locale::global({std::locale::classic(), new Comma})) {
    SetSystemNumberFormat({",", "."});
    for (const char* name : {"de_DE.UTF-8", "German_Germany"})
      inC_ = inC_ || std::setlocale(LC_ALL, name) != nullptr;
  }
  ~CommaEverywhere() {
    std::setlocale(LC_ALL, "C");
    std::locale::global(before_);
    SetSystemNumberFormat(PointFormat());
  }
  CommaEverywhere(const CommaEverywhere&) = delete;
  CommaEverywhere& operator=(const CommaEverywhere&) = delete;

  // Whether the machine has such a locale for the C library, as every Windows has.
  bool IsInC() const { return inC_; }

 private:
  struct Comma : std::numpunct<char> {
    char do_decimal_point() const override { return ','; }
    char do_thousands_sep() const override { return '.'; }
    std::string do_grouping() const override { return "\3"; }
  };

  std::locale before_;
  bool inC_ = false;
};

TEST_P(WholeFile, HasTheSameBytesOnTheDiskWhereNumbersHaveAComma) {
  const TempFolder folder;
  const std::string path = folder.Path("a.xml");
  Rig rig(GetParam());
  const CommaEverywhere comma;
  EXPECT_TRUE(comma.IsInC() || !kOnWindows);
  ConnectAndReceive(rig, GetParam());
  rig.k70.WriteXML(path);
  EXPECT_EQ(Split(TempFolder::Read(path)),
            ReadWholeFile(std::string(MORTANE_GOLDEN_FILES) + "/" + GetParam() + ".xml"));
  if (GetParam() == kOddValues) return;
  const std::int32_t led = rig.k70.COther.curR_TLPOLED;
  rig.k70.ReadXMLItems(path);
  EXPECT_TRUE(rig.k70.ReadXML(path));
  // The LED's words change their meaning on the way.
  rig.k70.COther.curR_TLPOLED = led;
  rig.k70.WriteXML(folder.Path("b.xml"));
  EXPECT_EQ(Split(TempFolder::Read(folder.Path("b.xml"))), Split(TempFolder::Read(path)));
}

TEST_P(WholeFile, SaysTheSameAgainAfterTheModelThatWroteItHasReadIt) {
  Rig rig(GetParam());
  ConnectAndReceive(rig, GetParam());
  rig.k70.COther.curR_TLPOLED = -1;
  std::string text = TextOf(rig.k70);
  Read(rig.k70, text);
  if (GetParam() == kOddValues) {
    ASSERT_EQ(rig.prompts.Boxes().size(), 1U);
    EXPECT_EQ(rig.prompts.Boxes()[0].text, kRefused);
    text = WithoutBlanksAtEnds(text);
  }
  EXPECT_EQ(Split(TextOf(rig.k70)), Split(text));
  EXPECT_EQ(rig.journal.CallCount(), 0U);
}

INSTANTIATE_TEST_SUITE_P(Benches, WholeFile, ::testing::ValuesIn(benches::Names()),
                         [](const auto& row) { return row.param; });

// A file cannot hold odd values.
std::vector<std::string> BenchesWithLegalValues() {
  std::vector<std::string> names = benches::Names();
  std::erase(names, std::string(kOddValues));
  return names;
}

class LegalFile : public ::testing::TestWithParam<std::string> {};

TEST_P(LegalFile, BringsBackWhatWasChanged) {
  Rig untouched(GetParam());
  ConnectAndReceive(untouched, GetParam());
  untouched.k70.Send();

  Rig rig(GetParam());
  ConnectAndReceive(rig, GetParam());
  const std::string text = TextOf(rig.k70);
  const std::int32_t led = rig.k70.COther.curR_TLPOLED;
  const std::int32_t buzzer = rig.k70.COther.curBuzzer;
  std::mt19937 random(1);
  MakeRandom(rig.k70, random);
  Read(rig.k70, text);
  // The LED's words change their meaning on the way, and there is none for buzzers that differ.
  rig.k70.COther.curR_TLPOLED = led;
  if (buzzer == 2) rig.k70.COther.curBuzzer = buzzer;
  EXPECT_EQ(rig.k70.Modify(), "");
  rig.journal.Clear();
  rig.k70.Send();
  EXPECT_EQ(rig.journal.Writes(), untouched.journal.Writes());
}

INSTANTIATE_TEST_SUITE_P(Benches, LegalFile, ::testing::ValuesIn(BenchesWithLegalValues()),
                         [](const auto& row) { return row.param; });

// What is shown, or still differs, after the file of one instrument was read on another. The first
// row that fits counts; an empty list of benches stands for all.
struct OtherFileRow {
  std::vector<std::string_view> from;
  std::vector<std::string_view> to;
  std::string text;
};

std::string Find(const std::vector<OtherFileRow>& rows, const std::string& from,
                 const std::string& to) {
  const auto holds = [](const std::vector<std::string_view>& names, const std::string& name) {
    return names.empty() || std::find(names.begin(), names.end(), name) != names.end();
  };
  const auto row = std::find_if(rows.begin(), rows.end(), [&](const OtherFileRow& known) {
    return holds(known.from, from) && holds(known.to, to);
  });
  return row == rows.end() ? std::string() : row->text;
}

// The shell knows no series, so an objective of one is refused.
const std::string kNoSeries = "Nosepiece Optional[1]\r\nNosepiece Optional[2]";
const std::vector<OtherFileRow> kReading{
    {{"Attic"},
     {"Shell"},
     kNoSeries +
         "\r\nNosepiece Optional[3]\r\nNosepiece Optional[7]\r\nNosepiece Optional[8]\r\n"
         "Nosepiece Optional[9]" +
         std::string(kRefused).substr(std::string_view("Nosepiece Optional[3]").size())},
    {{"Attic"}, {}, kRefused},
    {{"Quay", "Harbour", "Lantern", "Pair", "Outpost", "Deck", "DeckRemote", "Watch"},
     {"Shell"},
     kNoSeries}};

// Three records of the attic refuse to be written.
const std::vector<OtherFileRow> kSending{
    {{"Attic"}, {"Attic"}, "Nosepiece Optional[9]"},
    {{}, {"Attic"}, "Nosepiece Optional[7]\r\nNosepiece Optional[8]\r\nNosepiece Optional[9]"},
    {{"Lantern"}, {"Outpost", "Hollow"}, "Upper Limit lower than Lower Limit."}};

// No buzzer command goes to controller unit 5.
const std::vector<OtherFileRow> kRemaining{
    {{"Attic"}, {"Attic"}, "Control FocusDrive[EscapeMode]Z:OFF XY:OFF"},
    {{"Hub", "Relay", "Shell", "Hollow", "Crowd"},
     {"Attic"},
     "Nosepiece Optional[7] \r\nNosepiece Optional[8] "},
    {{},
     {"Attic"},
     "Nosepiece Optional[7] ---------------\r\nNosepiece Optional[8] ---------------"},
    {{"Lantern", "Hub", "Relay", "Watch", "Hollow", "Attic", "Crowd"},
     {"Deck", "DeckRemote"},
     "Control Other[Buzzer]"}};

// Some of the benches for each, and the first pair that a row names.
std::vector<std::string> TargetsOf(const std::string& from) {
  const std::vector<std::string> names = benches::Names();
  const auto own = std::find(names.begin(), names.end(), from) - names.begin();
  std::vector<std::string> targets = ColumnsOfRow(static_cast<std::size_t>(own), names, 5);
  for (const auto* rows : {&kReading, &kSending, &kRemaining}) {
    for (const OtherFileRow& row : *rows) {
      if (row.from.empty() || row.to.empty() || row.from.front() != from) continue;
      const std::string to(row.to.front());
      if (std::find(targets.begin(), targets.end(), to) == targets.end()) targets.push_back(to);
    }
  }
  return targets;
}

// The texts of all boxes since the last call.
std::string Boxes(Rig& rig) {
  std::string texts;
  for (const auto& box : rig.prompts.Boxes()) texts = AppendLine(texts, box.text);
  rig.prompts.ClearRecords();
  return texts;
}

class FileOfOther : public ::testing::TestWithParam<std::string> {};

TEST_P(FileOfOther, GoesIntoEveryInstrumentAsFarAsThatHoldsIt) {
  const std::string& from = GetParam();
  Rig source(from);
  ConnectAndReceive(source, from);
  const std::string text = TextOf(source.k70);
  for (const std::string& to : TargetsOf(from)) {
    Rig target(to);
    target.prompts.AcceptAnyBox();
    target.ConnectAndReceive();
    target.prompts.ClearRecords();
    Read(target.k70, text);
    EXPECT_EQ(target.journal.CallCount(), 0U) << to;
    EXPECT_EQ(Boxes(target), Find(kReading, from, to)) << to;
    target.k70.Send();
    EXPECT_EQ(Boxes(target), Find(kSending, from, to)) << to;
    // What was sent stays: after a new receive the same file changes nothing more.
    target.k70.Receive();
    Read(target.k70, text);
    EXPECT_EQ(target.k70.Modify(), Find(kRemaining, from, to)) << to;
  }
}

INSTANTIATE_TEST_SUITE_P(Benches, FileOfOther, ::testing::ValuesIn(benches::Names()),
                         [](const auto& row) { return row.param; });

class RandomModels : public ::testing::TestWithParam<std::string> {};

TEST_P(RandomModels, AreEqualAfterAFile) {
  Rig source(GetParam());
  ConnectAndReceive(source, GetParam());
  Rig target(GetParam());
  ConnectAndReceive(target, GetParam());
  source.k70.COther.curR_TLPOLED = target.k70.COther.curR_TLPOLED = -1;
  std::mt19937 random(1);
  // All of them are 2800 on fourteen benches: of the widest range, 250 codes, a value is then left
  // out with a probability of one in 70000.
  const int models = CountOf(20, 200);
  for (int i = 0; i < models; ++i) {
    MakeRandom(source.k70, random);
    const std::string text = TextOf(source.k70);
    Read(target.k70, text);
    ASSERT_EQ(TextOf(target.k70), text) << i;
  }
  EXPECT_TRUE(target.prompts.Boxes().empty());
}

INSTANTIATE_TEST_SUITE_P(Benches, RandomModels, ::testing::ValuesIn(benches::Names()),
                         [](const auto& row) { return row.param; });

// The sections of a file, as it has them one after the other.
std::vector<std::string> SectionsOf(const std::string& text) {
  std::vector<std::string> sections;
  std::size_t begin = text.find("<SYSTEM");
  for (std::size_t i = 1; i <= kFileSections.size(); ++i) {
    const std::string next =
        i < kFileSections.size() ? "<" + std::string(kFileSections[i].element) : "</Setup>";
    const std::size_t end = text.find(next, begin);
    sections.push_back(text.substr(begin, end - begin));
    begin = end;
  }
  return sections;
}

std::string Joined(const std::vector<std::string>& sections) {
  std::string text = "<Setup>";
  for (const std::string& section : sections) text += section;
  return text + "</Setup>";
}

// Two models of one instrument, neither with the LED's words.
class OrderOfSections : public ::testing::Test {
 protected:
  OrderOfSections() {
    rig.ConnectAndReceive();
    rig.k70.COther.curR_TLPOLED = -1;
    first = RandomText();
    second = RandomText();
  }

  std::string RandomText() {
    MakeRandom(rig.k70, random);
    return TextOf(rig.k70);
  }

  Rig rig{"Quay"};
  std::mt19937 random{3};
  std::string first;
  std::string second;
};

TEST_F(OrderOfSections, DoesNotMatter) {
  std::vector<std::string> sections = SectionsOf(first);
  ASSERT_EQ(Joined(sections), first);
  std::reverse(sections.begin(), sections.end());
  Read(rig.k70, Joined(sections));
  EXPECT_EQ(Split(TextOf(rig.k70)), Split(first));
}

TEST_F(OrderOfSections, LetsTheLastOfTwoCount) {
  std::vector<std::string> sections = SectionsOf(second);
  const std::vector<std::string> later = SectionsOf(first);
  sections.insert(sections.end(), later.begin(), later.end());
  Read(rig.k70, Joined(sections));
  EXPECT_EQ(Split(TextOf(rig.k70)), Split(first));
}

}  // namespace
}  // namespace mortane::test
