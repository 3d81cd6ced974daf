#include "support/UnitDrill.h"

#include <algorithm>

#include "common/Text.h"

namespace mortane::test {
namespace {

constexpr const char* kFailed = "LIB:80004005)";

// How many controller calls an operation makes on a rig that is ready for it.
template <typename Prepare, typename Operation>
std::size_t CallsOf(const std::string& bench, Prepare&& prepare, Operation&& operation) {
  Rig rig(bench);
  rig.ConnectAndReceive();
  prepare(rig.k70);
  operation(rig.k70);
  return rig.journal.CallCount();
}

// The same element as another hand might write it: attribute names in small letters, and an
// attribute that nobody knows.
std::string InOtherWriting(const DomNode& element) {
  std::string xml = "<" + element.Name() + " colour=\"blue\"";
  for (DomAttribute attribute : element.Attributes()) {
    std::transform(attribute.name.begin(), attribute.name.end(), attribute.name.begin(),
                   [](char c) { return static_cast<char>(c >= 'A' && c <= 'Z' ? c + 32 : c); });
    xml += " " + attribute.name + "=\"" + attribute.value + "\"";
  }
  return xml + "/>";
}

std::string InOwnWriting(const DomNode& element) {
  std::string xml = "<" + element.Name();
  for (const DomAttribute& attribute : element.Attributes()) {
    xml += " " + attribute.name + "=\"" + attribute.value + "\"";
  }
  return xml + "/>";
}

}  // namespace

void UnitDrill::MakeAllEdits(clsK70& k70) {
  for (const UnitEdit& edit : GetParam().edits) edit.change(k70);
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
  Rig rig(GetParam().bench);
  rig.ConnectAndReceive();
  std::string list = "Before";
  EXPECT_EQ(GetParam().unit.read(rig.k70), "");
  EXPECT_EQ(GetParam().unit.modify(rig.k70, list), "");
  EXPECT_EQ(list, "Before");
  EXPECT_TRUE(rig.journal.Writes().empty());
}

TEST_P(UnitDrill, AReadTakesBackWhatWasNotSent) {
  Rig rig(GetParam().bench);
  rig.ConnectAndReceive();
  const std::string before = GetParam().unit.fileText(rig.k70);
  MakeAllEdits(rig.k70);
  EXPECT_NE(GetParam().unit.fileText(rig.k70), before);
  EXPECT_EQ(GetParam().unit.read(rig.k70), "");
  EXPECT_EQ(GetParam().unit.fileText(rig.k70), before);
}

TEST_P(UnitDrill, WritesNothingMoreThanAlwaysWhenEqual) {
  Rig rig(GetParam().bench);
  rig.ConnectAndReceive();
  EXPECT_EQ(GetParam().unit.write(rig.k70), "");
  EXPECT_EQ(rig.journal.Writes(), GetParam().alwaysWritten);
}

TEST_P(UnitDrill, NamesEachDifferenceAndChangesNothing) {
  for (const UnitEdit& edit : GetParam().edits) {
    Rig rig(GetParam().bench);
    rig.ConnectAndReceive();
    const Bench bench = rig.simulated.bench();
    edit.change(rig.k70);
    const std::string text = GetParam().unit.fileText(rig.k70);
    std::string list = "Before";
    EXPECT_EQ(GetParam().unit.modify(rig.k70, list), "") << edit.what;
    EXPECT_EQ(list, "Before\r\n" + edit.differences) << edit.what;
    EXPECT_TRUE(rig.journal.Writes().empty()) << edit.what;
    EXPECT_TRUE(rig.simulated.bench() == bench) << edit.what;
    EXPECT_EQ(GetParam().unit.fileText(rig.k70), text) << edit.what;
  }
}

TEST_P(UnitDrill, NamesAllDifferencesInOrder) {
  Rig rig(GetParam().bench);
  rig.ConnectAndReceive();
  MakeAllEdits(rig.k70);
  std::string expected;
  for (const UnitEdit& edit : GetParam().edits) expected = AppendLine(expected, edit.differences);
  std::string list;
  EXPECT_EQ(GetParam().unit.modify(rig.k70, list), "");
  EXPECT_EQ(list, expected);
}

TEST_P(UnitDrill, WritesOnlyWhatDiffersAndTheControllerHoldsIt) {
  for (const UnitEdit& edit : GetParam().edits) {
    Rig rig(GetParam().bench);
    rig.ConnectAndReceive();
    edit.change(rig.k70);
    const std::string wanted = GetParam().unit.fileText(rig.k70);
    EXPECT_EQ(GetParam().unit.write(rig.k70), "") << edit.what;
    EXPECT_EQ(rig.journal.Writes(), edit.writes) << edit.what;
    EXPECT_EQ(GetParam().unit.read(rig.k70), "") << edit.what;
    EXPECT_EQ(GetParam().unit.fileText(rig.k70), wanted) << edit.what;
  }
}

TEST_P(UnitDrill, EachCallOfAReadThatFailsIsTheUnitsLine) {
  const UnitOperations& unit = GetParam().unit;
  const std::size_t calls = CallsOf(
      GetParam().bench, [](clsK70&) {}, unit.read);
  ASSERT_GT(calls, 0U);
  for (std::size_t k = 1; k <= calls; ++k) {
    Rig rig(GetParam().bench);
    rig.ConnectAndReceive();
    const std::string before = unit.fileText(rig.k70);
    rig.faults.FailCall(k);
    EXPECT_EQ(unit.read(rig.k70), GetParam().readFailure + kFailed) << "call " << k;
    EXPECT_EQ(unit.read(rig.k70), "") << "call " << k;
    EXPECT_EQ(unit.fileText(rig.k70), before) << "call " << k;
  }
}

TEST_P(UnitDrill, EachCallOfAComparisonThatFailsKeepsTheLinesBeforeIt) {
  const UnitOperations& unit = GetParam().unit;
  std::string all = "Before";
  const std::size_t calls =
      CallsOf(GetParam().bench, MakeAllEdits, [&](clsK70& k70) { unit.modify(k70, all); });
  ASSERT_EQ(calls == 0, GetParam().modifyFailure.empty());
  std::string longest;
  for (std::size_t k = 1; k <= calls; ++k) {
    Rig rig(GetParam().bench);
    rig.ConnectAndReceive();
    MakeAllEdits(rig.k70);
    rig.faults.FailCall(k);
    std::string list = "Before";
    EXPECT_EQ(unit.modify(rig.k70, list), GetParam().modifyFailure + kFailed) << "call " << k;
    EXPECT_TRUE(all.starts_with(list)) << "call " << k << ": " << list;
    EXPECT_GE(list.size(), longest.size()) << "call " << k;
    longest = list;
    EXPECT_TRUE(rig.journal.Writes().empty()) << "call " << k;
  }
}

TEST_P(UnitDrill, EachCallOfAWriteThatFailsIsALineAndASecondWriteMendsIt) {
  const UnitOperations& unit = GetParam().unit;
  const std::size_t calls = CallsOf(GetParam().bench, MakeAllEdits, unit.write);
  ASSERT_GT(calls, 0U);
  for (std::size_t k = 1; k <= calls; ++k) {
    Rig rig(GetParam().bench);
    rig.ConnectAndReceive();
    MakeAllEdits(rig.k70);
    const std::string wanted = unit.fileText(rig.k70);
    rig.faults.FailCall(k);
    for (const std::string& line : LinesOf(unit.write(rig.k70))) {
      const auto& known = GetParam().writeFailures;
      EXPECT_TRUE(!line.empty() &&
                  std::any_of(known.begin(), known.end(),
                              [&](const auto& opening) { return line.starts_with(opening); }))
          << "call " << k << ": \"" << line << '"';
    }
    EXPECT_EQ(unit.write(rig.k70), "") << "call " << k;
    EXPECT_EQ(unit.read(rig.k70), "") << "call " << k;
    EXPECT_EQ(unit.fileText(rig.k70), wanted) << "call " << k;
  }
}

TEST_P(UnitDrill, GoesToAFileAndBackWithoutTheController) {
  const UnitOperations& unit = GetParam().unit;
  for (const auto writing : {InOwnWriting, InOtherWriting}) {
    Rig source(GetParam().bench);
    source.ConnectAndReceive();
    MakeAllEdits(source.k70);
    const std::string text = unit.fileText(source.k70);
    DomDocument document;
    ASSERT_TRUE(document.LoadText(text));

    Rig target(GetParam().bench);
    target.ConnectAndReceive();
    for (const DomNode& element : document.Children().at(0).Children()) {
      EXPECT_EQ(unit.readElement(target.k70, writing(element)), "");
    }
    EXPECT_EQ(unit.fileText(target.k70), text);
    EXPECT_EQ(target.journal.CallCount(), 0U);
  }
}

TEST_P(UnitDrill, ElementsThatAreRefusedGiveTheirLineAndChangeNothing) {
  for (const RefusedElement& refused : GetParam().refused) {
    Rig rig(GetParam().bench);
    rig.ConnectAndReceive();
    const std::string before = GetParam().unit.fileText(rig.k70);
    EXPECT_EQ(GetParam().unit.readElement(rig.k70, refused.xml), refused.line) << refused.xml;
    EXPECT_EQ(GetParam().unit.fileText(rig.k70), before) << refused.xml;
  }
}

}  // namespace mortane::test
