// The record and the export as the programs see them that people open them with.
#include <gtest/gtest.h>
#include <sys/wait.h>

#include <array>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <regex>
#include <string>

#include "platform/AtomicFile.h"
#include "record/HostileNames.h"
#include "record/OmeExport.h"
#include "record/ReceivedRig.h"
#include "record/Report.h"
#include "support/TempFolder.h"
#include "switches/clsDbSwitch.h"

namespace mortane::test {
namespace {

struct Ended {
  int code;
  std::string output;  // of both streams
};

Ended Execute(const std::string& command) {
  Ended ended{-1, {}};
  FILE* pipe = ::popen((command + " 2>&1").c_str(), "r");
  if (pipe == nullptr) return ended;
  std::array<char, 4096> buffer{};
  for (std::size_t count = 0; (count = std::fread(buffer.data(), 1, buffer.size(), pipe)) > 0;) {
    ended.output.append(buffer.data(), count);
  }
  const int status = ::pclose(pipe);
  ended.code = WIFEXITED(status) ? WEXITSTATUS(status) : -1;
  return ended;
}

std::string Quoted(const std::string& path) {
  return "'" + path + "'";
}

ReportContent ContentOf(const std::string& bench) {
  ReceivedRig rig(bench);
  ReportContent content{
      StateOf(rig.k70),      {}, bench, LocalTime(std::chrono::system_clock::now()), "1.0",
      AccessoriesOf(rig.k70)};
  rig.k70.SystemName = "Changed";
  rig.k70.curSwitch.Func(1, 5);
  content.before = StateOf(rig.k70);
  return content;
}

TEST(TheRecordsPage, PassesTheValidatorWithoutAWarning) {
  const TempFolder folder;
  for (const std::string& bench : benches::Names()) {
    const std::string path = folder.Write(bench + ".html", ReportAsHtml(ContentOf(bench)));
    const Ended tidy = Execute("tidy -q -e -utf8 " + Quoted(path));
    EXPECT_EQ(tidy.code, 0) << bench << ": " << tidy.output;
    EXPECT_EQ(tidy.output, "") << bench;
  }
}

TEST(TheRecordsPage, WithHostileNamesPassesTheValidator) {
  const TempFolder folder;
  int number = 0;
  for (const std::string& name : HostileNames()) {
    ReportContent content = ContentOf("Quay");
    for (ConfigurationItem& item : content.state.items) {
      if (item.key.attribute == "NAME") item.value = name;
    }
    content.device = name;
    const std::string path =
        folder.Write(std::to_string(++number) + ".html", ReportAsHtml(content));
    const Ended tidy = Execute("tidy -q -e -utf8 " + Quoted(path));
    EXPECT_EQ(tidy.code, 0) << name.substr(0, 40) << ": " << tidy.output;
  }
}

// A browser's own folder for each start, and nothing that would ask the network.
Ended Print(const TempFolder& folder, const std::string& page, const std::string& pdf) {
  return Execute(
      "timeout 50 chromium --headless --no-sandbox --disable-gpu --disable-quic "
      "--no-first-run --disable-background-networking --disable-component-update "
      "--disable-sync --no-pdf-header-footer --user-data-dir=" +
      Quoted(folder.Path("profile")) + " --print-to-pdf=" + Quoted(pdf) + " " +
      Quoted("file://" + page));
}

TEST(TheRecordsPage, IsPrintedWithAllItsRows) {
  const TempFolder folder;
  ReportContent content = ContentOf("Quay");
  content.device = "<script>document.title='x'</script> Lab & Co";
  const std::string page = folder.Write("record.html", ReportAsHtml(content));
  const std::string pdf = folder.Path("record.pdf");
  const Ended printed = Print(folder, page, pdf);
  ASSERT_TRUE(std::filesystem::exists(pdf)) << printed.output;
  const Ended info = Execute("pdfinfo " + Quoted(pdf));
  std::smatch pages;
  ASSERT_TRUE(std::regex_search(info.output, pages, std::regex(R"(Pages:\s+(\d+))")))
      << info.output;
  EXPECT_GE(std::stoi(pages[1]), 4);
  EXPECT_LE(std::stoi(pages[1]), 9);
  EXPECT_NE(info.output.find("Microscope configuration"), std::string::npos) << "the title";
  const Ended text = Execute("pdftotext -layout " + Quoted(pdf) + " -");
  for (const char* part :
       {"Lab 2 East", "<script>document.title='x'</script> Lab & Co", "Plan A 20x", "100x",
        "Nosepiece Control", "Immersion Objective IN/OUT Control", "Tactor Switch 3 (B)",
        "Darkfield <-> Brightfield"}) {
    EXPECT_NE(text.output.find(part), std::string::npos) << part;
  }
  // The head of a table stands on each page that it goes on to.
  std::size_t heads = 0;
  static const std::regex kHead(R"(Item\s+Value)");
  for (std::sregex_iterator head(text.output.begin(), text.output.end(), kHead), end; head != end;
       ++head) {
    ++heads;
  }
  EXPECT_GE(heads, 6U);
}

// The schema lies beside the checkout where somebody has put it; MORTANE_OME_SCHEMA names another.
std::string SchemaPath() {
  if (const char* named = std::getenv("MORTANE_OME_SCHEMA")) return named;
  return (std::filesystem::path(MORTANE_SOURCE_FOLDER).parent_path() / "shared/ome/ome.xsd")
      .string();
}

// Without the schema the files are only checked to be well formed.
TEST(TheExport, IsWhatTheSchemaAllows) {
  const TempFolder folder;
  const std::string schema = SchemaPath();
  const bool hasSchema = std::filesystem::exists(schema);
  for (const std::string& bench : benches::Names()) {
    ReceivedRig rig(bench);
    const std::string path = folder.Write(bench + ".ome.xml", OmeXml(rig.k70));
    const Ended checked =
        Execute("xmllint --nonet --noout " + (hasSchema ? "--schema " + Quoted(schema) + " " : "") +
                Quoted(path));
    EXPECT_EQ(checked.code, 0) << bench << ": " << checked.output;
  }
}

}  // namespace
}  // namespace mortane::test
