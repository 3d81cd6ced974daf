#include "record/Report.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <regex>
#include <sstream>
#include <string>
#include <vector>

#include "common/Text.h"
#include "record/HostileNames.h"
#include "record/ItemWords.h"
#include "record/ReceivedRig.h"
#include "record/ReportTables.h"
#include "record/SafeText.h"

namespace mortane::test {
namespace {

ReportContent ContentOf(const std::string& bench) {
  ReceivedRig rig(bench);
  return {StateOf(rig.k70),      {}, "Device 7", "2026-11-22 05:12:33 +0100", "1.2.3",
          AccessoriesOf(rig.k70)};
}

ConfigurationState FileState(const std::string& sections) {
  DomDocument document;
  EXPECT_TRUE(document.LoadText("<Setup>" + sections + "</Setup>")) << document.Problem();
  return StateOf(document);
}

std::vector<std::string> LinesOf(const std::string& text) {
  std::vector<std::string> lines;
  std::istringstream stream(text);
  for (std::string line; std::getline(stream, line);) lines.push_back(line);
  return lines;
}

std::size_t Count(const std::string& text, const std::string& part) {
  std::size_t count = 0;
  for (auto at = text.find(part); at != std::string::npos; at = text.find(part, at + 1)) ++count;
  return count;
}

bool Has(const std::string& text, const std::string& part) {
  return text.find(part) != std::string::npos;
}

TEST(TheRecord, BeginsWithWhoAndWhenAndWhat) {
  const ReportContent content = ContentOf("Quay");
  const std::string text = ReportAsText(content);
  EXPECT_TRUE(
      text.starts_with("Microscope configuration\n"
                       "========================\n"
                       "  System Name                         Lab 2 East\n"
                       "  Device                              Device 7\n"
                       "  Date                                2026-11-22 05:12:33 +0100\n"
                       "  Program                             1.2.3\n"
                       "\nAccessories\n-----------\n  Analyzer Control\n"))
      << text;
  const std::string html = ReportAsHtml(content);
  for (const char* part : {"Lab 2 East", "Device 7", "2026-11-22 05:12:33 +0100", "1.2.3"}) {
    EXPECT_TRUE(Has(html, "<td><bdi>" + std::string(part) + "</bdi></td>")) << part;
  }
  EXPECT_EQ(Count(html, "<li>"), 14U);
}

class TheRecordOf : public ::testing::TestWithParam<std::string> {};

// Every item stands in a row, its name and its value in words; free records stand together.
TEST_P(TheRecordOf, ABenchHoldsEveryItemInWords) {
  const ReportContent content = ContentOf(GetParam());
  std::vector<ReportRow> rows = HeadRows(content);
  for (const ReportSection& section : SectionsOf(content)) {
    rows.insert(rows.end(), section.rows.begin(), section.rows.end());
  }
  const std::string html = ReportAsHtml(content);
  for (const ConfigurationItem& item : content.state.items) {
    const std::string value = ValueInWords(item, content.state.names);
    const std::string name = NameInWords(item.key, item.kind);
    const bool isNameOfRecord =
        item.kind == ItemKind::ObjectiveName || item.kind == ItemKind::CubeName;
    const std::string rowName = isNameOfRecord ? name.substr(0, name.find(',')) : name;
    const bool found = std::any_of(rows.begin(), rows.end(), [&](const ReportRow& row) {
      const bool ownRow = row.name == rowName && Has(row.value, value);
      // "Optional Exciter 3, 4, 5"
      const bool sharedRow = row.value == "----" && Has(row.name + ",", item.key.position + ",");
      return ownRow || sharedRow;
    });
    EXPECT_TRUE(found) << name << ": " << value;
    EXPECT_TRUE(!found || item.key.position.empty() || isNameOfRecord ||
                Has(html, Escaped(value)) || value.starts_with("---"))
        << value;
  }
}

TEST_P(TheRecordOf, ABenchKeepsToEightyColumns) {
  for (const std::string& line : LinesOf(ReportAsText(ContentOf(GetParam())))) {
    EXPECT_LE(CharacterCount(line), 80U) << line;
    EXPECT_FALSE(line.ends_with(' ')) << line;
  }
}

// What a parser of XML takes has no tag that is not closed and no attribute twice.
TEST_P(TheRecordOf, ABenchIsWellFormed) {
  std::string html = ReportAsHtml(ContentOf(GetParam()));
  html.replace(html.find("<meta charset=\"utf-8\">"), 22, "<meta charset=\"utf-8\"/>");
  html.erase(0, html.find("<html"));
  DomDocument document;
  EXPECT_TRUE(document.LoadText(html)) << document.Problem();
}

INSTANTIATE_TEST_SUITE_P(Benches, TheRecordOf, ::testing::ValuesIn(benches::Names()),
                         [](const auto& bench) { return bench.param; });

TEST(TheRecord, ShowsTheTurretsThatAreThere) {
  const std::string html = ReportAsHtml(ContentOf("Quay"));
  EXPECT_EQ(Count(html, "<svg "), 3U);
  EXPECT_TRUE(Has(html, "aria-label=\"Nosepiece: 1 4x, Plan A 4x, 2 20x, Plan A 20x, "));
  EXPECT_TRUE(Has(html, "aria-label=\"Filter Turret: 1 UV Blue, 2 Violet, "));
  EXPECT_TRUE(Has(html, "aria-label=\"Condenser Turret: 1 Bright, 2 Ph 1, "));
  const ReportContent content{
      FileState("<CONTROL><OTHER><Buzzer CODE='True'/></OTHER></CONTROL>"), {}, "", "", "", {}};
  EXPECT_EQ(Count(ReportAsHtml(content), "<svg "), 0U);
}

// Two objectives and two exciters have names, and one of each other kind.
TEST(TheRecord, TellsTheFreeRecordsOfEachKindTogether) {
  const std::string html = ReportAsHtml(ContentOf("Quay"));
  EXPECT_EQ(Count(html, "3, 4, 5, 6, 7, 8, 9"), 6U);
  EXPECT_EQ(Count(html, "2, 3, 4, 5, 6, 7, 8, 9"), 4U);
}

TEST(TheRecord, OfAFileNamesWhatTheFileNames) {
  const ReportContent content{
      FileState("<NOSEPIECE><ITEM POSITION='1' CODE='9'/><ITEM POSITION='2' CODE='241'/>"
                "<ITEM POSITION='3' CODE='0'/>"
                "<OPTION POSITION='1' CODE='230FA0C63B63' NAME='Own'/></NOSEPIECE>"
                "<Extra><Thing Colour='red'/></Extra>"),
      {},
      "a.xml",
      "",
      "",
      {}};
  const std::string html = ReportAsHtml(content);
  EXPECT_TRUE(Has(html, "aria-label=\"Nosepiece: 1 code 9, 2 25x, Own, 3 ----\""));
  const std::string text = ReportAsText(content);
  EXPECT_TRUE(Has(text, "\n  Objective 1                         code 9\n")) << text;
  EXPECT_TRUE(Has(text, "\nOthers\n------\n  Extra Thing Colour                  red\n")) << text;
  EXPECT_FALSE(Has(text, "Accessories"));
  EXPECT_FALSE(Has(text, "Date"));
}

TEST(TheRecord, OfTwoStatesTellsWhatChangedOnTopAndMarksIt) {
  const ReportContent content{
      FileState("<NOSEPIECE><ITEM POSITION='1' CODE='9'/><ITEM POSITION='2' CODE='7'/>"
                "<ITEM POSITION='4' CODE='1'/>"
                "<OPTION POSITION='1' CODE='230FA0C63B63' NAME='New'/></NOSEPIECE>"),
      FileState("<NOSEPIECE><ITEM POSITION='1' CODE='8'/><ITEM POSITION='2' CODE='7'/>"
                "<ITEM POSITION='3' CODE='2'/>"
                "<OPTION POSITION='1' CODE='230FA0C63B63' NAME='Old'/></NOSEPIECE>"),
      "a.xml",
      "",
      "",
      {}};
  EXPECT_EQ(ReportAsText(content),
            "Microscope configuration\n"
            "========================\n"
            "  Device                              a.xml\n"
            "\n"
            "Changes\n"
            "-------\n"
            "  Objective 1                         code 8 -> code 9\n"
            "  Optional Objective 1, Name          Old -> New\n"
            "  Objective 3                         code 2 -> ----\n"
            "  Objective 4                         ---- -> code 1\n"
            "\n"
            "Objective\n"
            "---------\n"
            "* Objective 1                         code 9\n"
            "  Objective 2                         code 7\n"
            "* Objective 4                         code 1\n"
            "* Optional Objective 1                New: Series code 2, Type code 3, Mag. 25x,\n"
            "                                      W.D. 1.98, N.A. 0.95, DIC / Ph Condenser\n"
            "                                      code 3\n");
  const std::string html = ReportAsHtml(content);
  EXPECT_EQ(Count(html, "<tr class=\"changed\">"), 3U);
  EXPECT_EQ(Count(html, "\xE2\x97\x8F"), 3U);
  EXPECT_TRUE(Has(html,
                  "<tr><th scope=\"row\"><bdi>Objective 1</bdi></th><td><bdi>code 8</bdi>"
                  "</td><td><bdi>code 9</bdi></td></tr>"));
  EXPECT_LT(html.find("<h2>Changes</h2>"), html.find("<h2>Objective</h2>"));
}

TEST(TheRecord, OfTwoEqualStatesSaysSo) {
  ReportContent content = ContentOf("Quay");
  content.before = content.state;
  EXPECT_TRUE(Has(ReportAsText(content), "\nChanges\n-------\nNothing has changed.\n"));
  const std::string html = ReportAsHtml(content);
  EXPECT_TRUE(Has(html, "<p>Nothing has changed.</p>"));
  EXPECT_EQ(Count(html, "class=\"changed\""), 0U);
}

// The same page around every name, whatever the name holds.
TEST(TheRecord, StaysTheSameAroundHostileNames) {
  const auto skeleton = [](const std::string& name) {
    ReportContent content = ContentOf("Quay");
    for (ConfigurationItem& item : content.state.items) {
      if (item.key.attribute == "NAME") item.value = name;
    }
    content.device = content.time = content.version = name;
    content.accessories = {name};
    content.before = content.state;
    content.before->items.front().value = "Old";
    std::string html = ReportAsHtml(content);
    std::string tags;
    static const std::regex kTag("<[^>]*>");
    for (std::sregex_iterator tag(html.begin(), html.end(), kTag), end; tag != end; ++tag) {
      tags += tag->str();
    }
    EXPECT_EQ(Count(html, "<"), Count(html, ">")) << name.substr(0, 60);
    return tags;
  };
  const std::string usual = skeleton("Plain");
  for (const std::string& name : HostileNames())
    EXPECT_EQ(skeleton(name), usual) << name.substr(0, 60);
}

TEST(TheRecord, AsTextStaysWithinItsLinesAroundHostileNames) {
  for (const std::string& name : HostileNames()) {
    ReportContent content = ContentOf("Quay");
    content.device = name;
    const std::string text = ReportAsText(content);
    for (const std::string& line : LinesOf(text)) EXPECT_LE(CharacterCount(line), 80U);
    for (const char c : text) {
      EXPECT_TRUE(c == '\n' || static_cast<unsigned char>(c) >= 0x20) << static_cast<int>(c);
    }
    EXPECT_FALSE(Has(text, "\xE2\x80\xAE")) << "a mark that turns the direction of writing";
  }
}

TEST(TheLocalTime, HasItsZone) {
  const std::string time =
      LocalTime(std::chrono::sys_days(std::chrono::year(2026) / 1 / 15) + std::chrono::hours(12));
  EXPECT_TRUE(std::regex_match(time, std::regex(R"(2026-01-1[56] \d\d:\d\d:00 [+-]\d\d\d\d)")))
      << time;
}

}  // namespace
}  // namespace mortane::test
