#include "support/UnitDrill.h"

#include <algorithm>

#include "common/Text.h"
#include "support/Sample.h"

namespace mortane::test {
namespace {

constexpr const char* kFailed = "LIB:80004005)";

// A rig for many rounds. Each round begins with the instrument and the unit as they were at first.
// A new rig for each round would be slow: it connects and reads all other units, too.
class RoundRig : public DrillRig {
 public:
  explicit RoundRig(const UnitDrillData& data)
      : DrillRig(data),
        unit_(data.unit),
        bench_(simulated.bench()),
        text_(unit_.fileText(*units)) {}

  const std::string& TextAtFirst() const { return text_; }

  void BeginRound() {
    faults.Clear();
    simulated.bench() = bench_;
    ASSERT_EQ(unit_.read(*units), "");
    ASSERT_EQ(unit_.fileText(*units), text_);
    journal.Clear();
  }

 private:
  const UnitOperations& unit_;
  Bench bench_;
  std::string text_;
};

enum class Hand { Own, Other };

// An element as text. Hand::Other writes attribute names in small letters, and an unknown
// attribute.
std::string Written(const DomNode& element, Hand hand) {
  std::string xml = "<" + element.Name();
  if (hand == Hand::Other) xml += " colour=\"blue\"";
  std::vector<DomAttribute> attributes = element.Attributes();
  for (DomAttribute& attribute : attributes) {
    if (hand == Hand::Other) {
      std::transform(attribute.name.begin(), attribute.name.end(), attribute.name.begin(),
                     [](char c) { return static_cast<char>(c >= 'A' && c <= 'Z' ? c + 32 : c); });
    }
    xml += " " + attribute.name + "=\"" + attribute.value + "\"";
  }
  xml += ">";
  for (const DomNode& child : element.Children()) xml += Written(child, hand);
  return xml + "</" + element.Name() + ">";
}

}  // namespace

DrillRig::DrillRig(const UnitDrillData& data)
    : RigLibrary(benches::Named(data.bench)), units(data.unit.make(*this)) {
  units->Connect(LastDevice());
  EXPECT_EQ(units->Receive(), "");
  journal.Clear();
}

// A drill over an empty table would pass without checking anything.
void UnitDrill::SetUp() {
  const auto& edits = GetParam().edits;
  ASSERT_TRUE(std::any_of(edits.begin(), edits.end(),
                          [](const UnitEdit& edit) { return !edit.differences.empty(); }));
  ASSERT_TRUE(std::any_of(edits.begin(), edits.end(),
                          [](const UnitEdit& edit) { return !edit.writes.empty(); }));
  ASSERT_FALSE(GetParam().readFailure.empty());
  ASSERT_FALSE(GetParam().writeFailures.empty());
  ASSERT_FALSE(GetParam().refused.empty());
}

void UnitDrill::MakeAllEdits(BenchMicroscope& units) {
  for (const UnitEdit& edit : GetParam().edits) edit.change(units);
}

std::vector<std::string> UnitDrill::LinesOf(const std::string& report) {
  std::vector<std::string> lines;
  std::size_t start = 0;
  for (std::size_t end = report.find(kLineBreak); end != std::string::npos;
       end = report.find(kLineBreak, start)) {
    lines.push_back(report.substr(start, end - start));
    start = end + kLineBreak.size();
  }
  lines.push_back(report.substr(start));
  return lines;
}

TEST_P(UnitDrill, AgreesWithTheControllerAfterARead) {
  DrillRig rig(GetParam());
  std::string list = "Before";
  EXPECT_EQ(GetParam().unit.read(*rig.units), "");
  EXPECT_EQ(GetParam().unit.modify(*rig.units, list), "");
  EXPECT_EQ(list, "Before");
  EXPECT_TRUE(rig.journal.Writes().empty());
}

TEST_P(UnitDrill, AReadTakesBackWhatWasNotSent) {
  DrillRig rig(GetParam());
  const std::string before = GetParam().unit.fileText(*rig.units);
  MakeAllEdits(*rig.units);
  EXPECT_NE(GetParam().unit.fileText(*rig.units), before);
  EXPECT_EQ(GetParam().unit.read(*rig.units), "");
  EXPECT_EQ(GetParam().unit.fileText(*rig.units), before);
}

TEST_P(UnitDrill, WritesNothingMoreThanAlwaysWhenEqual) {
  DrillRig rig(GetParam());
  EXPECT_EQ(GetParam().unit.write(*rig.units), "");
  EXPECT_EQ(rig.journal.Writes(), GetParam().alwaysWritten);
}

TEST_P(UnitDrill, NamesEachDifferenceAndChangesNothing) {
  RoundRig rig(GetParam());
  for (const UnitEdit& edit : GetParam().edits) {
    rig.BeginRound();
    const Bench bench = rig.simulated.bench();
    edit.change(*rig.units);
    const std::string text = GetParam().unit.fileText(*rig.units);
    std::string list = "Before";
    EXPECT_EQ(GetParam().unit.modify(*rig.units, list), "") << edit.what;
    EXPECT_EQ(list, AppendLine("Before", edit.differences)) << edit.what;
    EXPECT_TRUE(rig.journal.Writes().empty()) << edit.what;
    EXPECT_TRUE(rig.simulated.bench() == bench) << edit.what;
    EXPECT_EQ(GetParam().unit.fileText(*rig.units), text) << edit.what;
  }
}

TEST_P(UnitDrill, NamesAllDifferencesInOrder) {
  DrillRig rig(GetParam());
  MakeAllEdits(*rig.units);
  std::string expected;
  for (const UnitEdit& edit : GetParam().edits) expected = AppendLine(expected, edit.differences);
  std::string list;
  EXPECT_EQ(GetParam().unit.modify(*rig.units, list), "");
  EXPECT_EQ(list, expected);
}

TEST_P(UnitDrill, WritesOnlyWhatDiffersAndTheControllerHoldsIt) {
  RoundRig rig(GetParam());
  for (const UnitEdit& edit : GetParam().edits) {
    rig.BeginRound();
    edit.change(*rig.units);
    const std::string wanted = GetParam().unit.fileText(*rig.units);
    EXPECT_EQ(GetParam().unit.write(*rig.units), "") << edit.what;
    EXPECT_EQ(rig.journal.Writes(), edit.writes) << edit.what;
    EXPECT_EQ(GetParam().unit.read(*rig.units), "") << edit.what;
    EXPECT_EQ(GetParam().unit.fileText(*rig.units), wanted) << edit.what;
  }
}

TEST_P(UnitDrill, EachCallOfAReadThatFailsIsTheUnitsLine) {
  const UnitOperations& unit = GetParam().unit;
  RoundRig rig(GetParam());
  unit.read(*rig.units);
  const std::size_t calls = rig.journal.CallCount();
  ASSERT_GT(calls, 0U);
  for (std::size_t k = 1; k <= calls; ++k) {
    rig.BeginRound();
    rig.faults.FailCall(k);
    EXPECT_EQ(unit.read(*rig.units), GetParam().readFailure + GetParam().readFailed)
        << "call " << k;
    EXPECT_EQ(rig.faults.Hits(), 1U) << "call " << k;
    EXPECT_EQ(unit.read(*rig.units), "") << "call " << k;
    EXPECT_EQ(unit.fileText(*rig.units), rig.TextAtFirst()) << "call " << k;
  }
}

// What was not read is unknown, and not what the unit held before.
TEST_P(UnitDrill, AReadThatFailsLeavesTheSameWhateverTheUnitHeldBefore) {
  const UnitOperations& unit = GetParam().unit;
  RoundRig rig(GetParam());
  unit.read(*rig.units);
  const auto textAfterFailure = [&](std::size_t call) {
    rig.faults.FailCall(call);
    EXPECT_NE(unit.read(*rig.units), "") << "call " << call;
    return unit.fileText(*rig.units);
  };
  const std::size_t calls = rig.journal.CallCount();
  ASSERT_GT(calls, 0U);
  for (const std::size_t k : SampleOf(calls, 5, 5)) {
    rig.BeginRound();
    const std::string expected = textAfterFailure(k);
    rig.BeginRound();
    MakeAllEdits(*rig.units);
    if (GetParam().undoKept) (*GetParam().undoKept)(*rig.units);
    EXPECT_EQ(textAfterFailure(k), expected) << "call " << k;
  }
}

TEST_P(UnitDrill, WhatIsMarkedAsUnknownAfterAReadThatFailedIsNeitherListedNorWritten) {
  const UnitOperations& unit = GetParam().unit;
  const auto& always = GetParam().alwaysWritten;
  RoundRig rig(GetParam());
  unit.read(*rig.units);
  const std::size_t calls = GetParam().marksUnknown ? rig.journal.CallCount() : 0;
  for (std::size_t k = 1; k <= calls; ++k) {
    rig.BeginRound();
    rig.faults.FailCall(k);
    EXPECT_NE(unit.read(*rig.units), "") << "call " << k;
    rig.journal.Clear();
    std::string list;
    EXPECT_EQ(unit.modify(*rig.units, list), "") << "call " << k;
    EXPECT_EQ(list, "") << "call " << k;
    EXPECT_EQ(unit.write(*rig.units), "") << "call " << k;
    for (const std::string& line : rig.journal.Writes()) {
      EXPECT_NE(std::find(always.begin(), always.end(), line), always.end()) << k << ": " << line;
    }
  }
}

TEST_P(UnitDrill, EachCallOfAComparisonThatFailsKeepsTheLinesBeforeIt) {
  const UnitOperations& unit = GetParam().unit;
  RoundRig rig(GetParam());
  MakeAllEdits(*rig.units);
  std::string all = "Before";
  EXPECT_EQ(unit.modify(*rig.units, all), "");
  const std::size_t calls = rig.journal.CallCount();
  ASSERT_EQ(calls == 0, GetParam().modifyFailure.empty());
  std::string longest;
  for (std::size_t k = 1; k <= calls; ++k) {
    rig.BeginRound();
    MakeAllEdits(*rig.units);
    rig.faults.FailCall(k);
    std::string list = "Before";
    EXPECT_EQ(unit.modify(*rig.units, list), GetParam().modifyFailure + kFailed) << "call " << k;
    EXPECT_EQ(rig.faults.Hits(), 1U) << "call " << k;
    EXPECT_TRUE(all.starts_with(list)) << "call " << k << ": " << list;
    EXPECT_GE(list.size(), longest.size()) << "call " << k;
    longest = list;
    EXPECT_TRUE(rig.journal.Writes().empty()) << "call " << k;
  }
}

TEST_P(UnitDrill, EachCallOfAWriteThatFailsIsALineAndASecondWriteMendsIt) {
  const UnitOperations& unit = GetParam().unit;
  RoundRig rig(GetParam());
  MakeAllEdits(*rig.units);
  const std::string wanted = unit.fileText(*rig.units);
  EXPECT_EQ(unit.write(*rig.units), "");
  const std::size_t calls = rig.journal.CallCount();
  ASSERT_GT(calls, 0U);
  for (std::size_t k = 1; k <= calls; ++k) {
    rig.BeginRound();
    rig.prompts.AcceptAnyBox();
    MakeAllEdits(*rig.units);
    rig.faults.FailCall(k);
    for (const std::string& line : LinesOf(unit.write(*rig.units))) {
      const auto& known = GetParam().writeFailures;
      EXPECT_TRUE(!line.empty() &&
                  std::any_of(known.begin(), known.end(),
                              [&](const auto& opening) { return line.starts_with(opening); }))
          << "call " << k << ": \"" << line << '"';
    }
    EXPECT_EQ(rig.faults.Hits(), 1U) << "call " << k;
    EXPECT_EQ(unit.write(*rig.units), "") << "call " << k;
    EXPECT_EQ(unit.read(*rig.units), "") << "call " << k;
    EXPECT_EQ(unit.fileText(*rig.units), wanted) << "call " << k;
  }
}

TEST_P(UnitDrill, GoesToAFileAndBackWithoutTheController) {
  const UnitOperations& unit = GetParam().unit;
  for (const Hand hand : {Hand::Own, Hand::Other}) {
    DrillRig source(GetParam());
    MakeAllEdits(*source.units);
    const std::string text = unit.fileText(*source.units);
    DomDocument document;
    ASSERT_TRUE(document.LoadText(text));

    DrillRig target(GetParam());
    ASSERT_FALSE(document.Children().at(0).Children().empty());
    for (const DomNode& element : document.Children().at(0).Children()) {
      EXPECT_EQ(unit.readElement(*target.units, Written(element, hand)), "");
    }
    EXPECT_EQ(unit.fileText(*target.units), text);
    EXPECT_EQ(target.journal.CallCount(), 0U);
  }
}

TEST_P(UnitDrill, ElementsThatAreRefusedGiveTheirLineAndChangeNothing) {
  RoundRig rig(GetParam());
  for (const RefusedElement& refused : GetParam().refused) {
    rig.BeginRound();
    EXPECT_EQ(GetParam().unit.readElement(*rig.units, refused.xml), refused.line) << refused.xml;
    EXPECT_EQ(GetParam().unit.fileText(*rig.units), rig.TextAtFirst()) << refused.xml;
  }
}

}  // namespace mortane::test
