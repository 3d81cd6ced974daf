// Command lines as another program writes them.
#include "platform/CommandLine.h"

#include <gtest/gtest.h>

#include "platform/AtomicFile.h"
#include "support/SecondProcess.h"
#include "support/TempFolder.h"
#include "support/windows/StartedProgram.h"

namespace mortane {
namespace {

using test::SecondProcess;
using test::StartedProgram;
using test::TempFolder;
using test::Words;

// Writes the arguments after the first one into the file that this names, one in each line.
const SecondProcess::Part kWriteArguments{
    "write arguments", [](const SecondProcess::Side&, const Words& words) {
      const std::vector<std::string> arguments = GetCommandLineArray(0, nullptr);
      std::string lines;
      for (std::size_t i = 3; i < arguments.size(); ++i) lines += arguments[i] + "\n";
      WriteFileAtomically(words.at(0), lines);
      return 0;
    }};

struct Row {
  const wchar_t* written;
  const char* arguments;
};

TEST(GetCommandLineArray, TakesArgumentsApartAsWindowsDoes) {
  const TempFolder folder;
  const std::string file = folder.Path("arguments \xE6\x97\xA5");
  const Row rows[] = {
      {L"", ""},
      {L"   ", ""},
      {L"/SIM", "/SIM\n"},
      {L"  /SIM \t /sim ", "/SIM\n/sim\n"},
      {L"\"Quay North\"", "Quay North\n"},
      {L"Quay\" \"North", "Quay North\n"},
      {L"Quay North", "Quay\nNorth\n"},
      {L"\" blanks at the ends \"", " blanks at the ends \n"},
      {L"\"\" a", "\na\n"},
      {L"a \"\"", "a\n\n"},
      {L"\\\"a\\\" b", "\"a\"\nb\n"},
      {L"\"a \\\"b\\\" c\"", "a \"b\" c\n"},
      {L"C:\\a\\b\\ \"C:\\a b\\\\\" c", "C:\\a\\b\\\nC:\\a b\\\nc\n"},
      {L"Gr\u00FC\u00DFe \"\u65E5\u672C \u9855\u5FAE\u93E1\"",
       "Gr\xC3\xBC\xC3\x9F"
       "e\n\xE6\x97\xA5\xE6\x9C\xAC \xE9\xA1\x95\xE5\xBE\xAE\xE9\x8F\xA1\n"},
      {L"\u03BCm \U0001F52C", "\xCE\xBCm\n\xF0\x9F\x94\xAC\n"},
  };
  for (const Row& row : rows) {
    StartedProgram program(kWriteArguments.name,
                           test::Quoted(test::PathOf(file).native()) + L" " + row.written);
    ASSERT_EQ(program.Wait(), 0);
    EXPECT_EQ(ReadWholeFile(file), row.arguments) << test::Utf8Of(row.written);
  }
}

TEST(GetCommandLineArray, GivesBackWhatWasQuoted) {
  const TempFolder folder;
  const std::string file = folder.Path("arguments");
  const Words words = {file,          " Quay North ", "", "a\"b", "a\\\"b\\", "\\\\server\\share\\",
                       "\xE6\x97\xA5"};
  ASSERT_EQ(SecondProcess(kWriteArguments, words).Wait(), 0);
  std::string lines;
  for (std::size_t i = 1; i < words.size(); ++i) lines += words[i] + "\n";
  EXPECT_EQ(ReadWholeFile(file), lines);
}

// What `argv` says is in a code page that cannot hold every name.
TEST(GetCommandLineArray, LooksAtNoOtherArguments) {
  char name[] = "made-up";
  char simulator[] = "/SIM";
  char* arguments[] = {name, simulator, nullptr};
  EXPECT_EQ(GetCommandLineArray(2, arguments), GetCommandLineArray(0, nullptr));
}

}  // namespace
}  // namespace mortane
