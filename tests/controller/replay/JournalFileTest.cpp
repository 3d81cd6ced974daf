// The files of a journal: sessions behind each other, the change to a new file, what cannot be
// written, and what cannot be read.
#include "controller/replay/JournalFile.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "common/Failure.h"
#include "controller/replay/JournalReader.h"
#include "support/TempFolder.h"

namespace mortane::controller::test {
namespace {

using mortane::test::TempFolder;

std::string LineOf(int number) {
  return FormatSessionLine({}, {"#1 get Count", std::int32_t{number}, {}});
}

class Journals : public testing::Test {
 protected:
  // Writes a session of numbered lines.
  void WriteSession(const std::string& name, int first, int count,
                    std::uint64_t largest = kLargestJournal) {
    JournalFile file(path_, Header(name), Notice(), largest);
    for (int i = 0; i < count; ++i) file.Write(LineOf(first + i));
  }

  static SessionHeader Header(const std::string& name) {
    return {"mortane 1.0", "Debian", "LIB.Microscope", "2.1", name, 1};
  }

  JournalFile::Notice Notice() {
    return [this](const std::string& text) { notices_.push_back(text); };
  }

  // The numbers of the last session.
  std::vector<int> Numbers() const {
    JournalReader reader(path_);
    std::vector<int> numbers;
    while (const auto line = reader.Next()) numbers.push_back(std::get<std::int32_t>(line->result));
    return numbers;
  }

  static std::string Problem(const std::string& path) {
    try {
      JournalReader reader(path);
      while (reader.Next()) {
      }
    } catch (const Failure& failure) {
      return failure.Description();
    }
    return "none";
  }

  TempFolder folder_;
  std::string path_ = folder_.Path("journal.txt");
  std::vector<std::string> notices_;
};

TEST_F(Journals, BeginWithWhoWorkedWithWhatWhere) {
  WriteSession("a", 7, 1);
  EXPECT_EQ(TempFolder::Read(path_),
            "mortane-journal 1 program=\"mortane 1.0\" system=\"Debian\" "
            "library=\"LIB.Microscope\" library-version=\"2.1\" session=\"a\" part=\"1\"\n"
            "   seconds         ms   object  use     call\n" +
                LineOf(7) + "\n");
  EXPECT_EQ(JournalReader(path_).Header(), Header("a"));
  EXPECT_EQ(notices_, std::vector<std::string>());
}

TEST_F(Journals, AreReadFromTheBeginningOfTheirLastSession) {
  WriteSession("a", 1, 3);
  WriteSession("b", 11, 2);
  EXPECT_EQ(Numbers(), (std::vector{11, 12}));
  JournalReader reader(path_);
  EXPECT_EQ(reader.Header().session, "b");
  reader.Next();
  EXPECT_EQ(reader.Where(), path_ + ":8");
}

TEST_F(Journals, GoOnInANewFileAndKeepThreeFormerOnes) {
  WriteSession("a", 0, 28, 600);
  EXPECT_EQ(Numbers().size(), 28U);
  EXPECT_EQ(Numbers().back(), 27);
  for (const char* kept : {"", ".1", ".2", ".3"}) {
    ASSERT_TRUE(std::filesystem::exists(path_ + kept)) << kept;
    EXPECT_LE(std::filesystem::file_size(path_ + kept), 600U) << kept;
  }
  EXPECT_EQ(JournalReader(path_).Header(), Header("a"));
  WriteSession("b", 20, 50, 600);
  EXPECT_FALSE(std::filesystem::exists(path_ + ".4"));
  const std::string problem = Problem(path_);
  EXPECT_TRUE(problem.starts_with(path_ + ": the session began in another file, and its part "))
      << problem;
  EXPECT_TRUE(problem.ends_with(" is not at the end of " + path_ + ".4")) << problem;
}

TEST_F(Journals, AFileThatIsFullAlreadyIsLeftAsItIs) {
  WriteSession("a", 0, 4);
  const std::string before = TempFolder::Read(path_);
  WriteSession("b", 5, 1, before.size());
  EXPECT_EQ(TempFolder::Read(path_ + ".1"), before);
  EXPECT_EQ(Numbers(), std::vector{5});
}

TEST_F(Journals, ASessionWhoseFormerFileIsOfAnotherSessionIsRefused) {
  WriteSession("a", 0, 12, 600);
  ASSERT_TRUE(std::filesystem::exists(path_ + ".1"));
  std::filesystem::remove(path_ + ".1");
  EXPECT_EQ(Problem(path_), path_ +
                                ": the session began in another file, and its part 1 is not at "
                                "the end of " +
                                path_ + ".1");
  WriteSession("b", 0, 1);
  EXPECT_EQ(Numbers(), std::vector{0});
  std::filesystem::rename(path_, path_ + ".1");
  folder_.Write("journal.txt", FormatSessionHeader({"", "", "", "", "a", 2}) + "\n");
  EXPECT_TRUE(Problem(path_).starts_with(path_ + ": the session began in another file"));
}

TEST_F(Journals, AJournalThatCannotBeWrittenIsToldOnce) {
  path_ = folder_.Path("no such folder/journal.txt");
  WriteSession("a", 0, 3);
  ASSERT_EQ(notices_.size(), 1U);
  EXPECT_TRUE(notices_[0].starts_with("Cannot write the journal " + path_ + ": ")) << notices_[0];
}

TEST_F(Journals, AFolderIsNoJournal) {
  std::filesystem::create_directory(path_);
  WriteSession("a", 0, 3);
  EXPECT_EQ(notices_.size(), 1U);
  EXPECT_EQ(Problem(path_), "Cannot read " + path_);
}

TEST_F(Journals, ASecondProgramDoesNotWriteIntoOnesSession) {
  const JournalFile first(path_, Header("a"), Notice());
  WriteSession("b", 0, 1);
  EXPECT_EQ(notices_,
            std::vector{"Cannot write the journal " + path_ + ": another program is writing it"});
  EXPECT_EQ(JournalReader(path_).Header().session, "a");
}

TEST_F(Journals, ALineThatWasCutOffEndsTheSession) {
  WriteSession("a", 0, 3);
  std::filesystem::resize_file(path_, std::filesystem::file_size(path_) - 2);
  EXPECT_EQ(Numbers(), (std::vector{0, 1}));
  JournalReader reader(path_);
  while (reader.Next()) {
  }
  EXPECT_TRUE(reader.IsCut());
  EXPECT_EQ(reader.Where(), path_ + ":5");
  WriteSession("b", 5, 1);
  EXPECT_EQ(Numbers(), std::vector{5});
}

TEST_F(Journals, CutOffAnywhereAreReadOrRefusedWithOneLine) {
  WriteSession("a", 0, 3);
  const std::string whole = TempFolder::Read(path_);
  for (std::size_t length = 0; length < whole.size(); ++length) {
    folder_.Write("journal.txt", whole.substr(0, length));
    const std::string problem = Problem(path_);
    EXPECT_EQ(problem.find('\n'), std::string::npos) << problem;
    EXPECT_EQ(problem == "none", length > whole.find('\n')) << length << problem;
  }
}

struct BadFile {
  std::string content;
  std::string problem;  // behind the file's path
};

TEST_F(Journals, OfAnotherFormAreRefused) {
  const std::string header = FormatSessionHeader(Header("a")) + "\n";
  const std::string none =
      ": no journal of a session that could be replayed: no line begins with "
      "\"mortane-journal\"";
  const std::vector<BadFile> rows{
      {"", none},
      {"\n\n", none},
      {"   seconds         ms  call\n     0.019      0.011  Create(Microscope)\n", none},
      {"mortane-journal 2 part=\"1\"\n",
       ":1: the journal has form 2, and this program reads form 1"},
      {"mortane-journal one\n", ":1: the first line of the session cannot be read"},
      {"mortane-journal 1 part=\"0\"\n", ":1: the first line of the session cannot be read"},
      {"mortane-journal 1 part=\"x\"\n", ":1: the first line of the session cannot be read"},
      {"mortane-journal 1 part\n", ":1: the first line of the session cannot be read"},
      {"mortane-journal 1 part=\"1\n", ":1: the first line of the session cannot be read"},
      {header + "something else\n", "no line of a journal: something else"},
      {header + LineOf(1) + "\n\n", "no line of a journal: "},
      {header + std::string(JournalLines::kLongestLine + 1, 'x'),
       ":2: the line is too long for a journal"}};
  for (const BadFile& row : rows) {
    folder_.Write("journal.txt", row.content);
    EXPECT_EQ(Problem(path_), row.problem.starts_with(':') ? path_ + row.problem : row.problem);
  }
  EXPECT_EQ(Problem(folder_.Path("missing.txt")), "Cannot read " + folder_.Path("missing.txt"));
}

TEST_F(Journals, OfAnEditorThatMarksFilesAndEndsLinesInItsWayAreRead) {
  folder_.Write("journal.txt", "\xEF\xBB\xBF" + FormatSessionHeader(Header("a")) + "\r\n" +
                                   std::string(kColumnHeads) + "\r\n" + LineOf(4) + "\r\n");
  EXPECT_EQ(Numbers(), std::vector{4});
}

TEST_F(Journals, FieldsOfALaterProgramArePassedOver) {
  folder_.Write("journal.txt",
                "mortane-journal 1 colour=\"blue\" session=\"x\" part=\"1\"\n" + LineOf(4) + "\n");
  EXPECT_EQ(JournalReader(path_).Header().session, "x");
  EXPECT_EQ(Numbers(), std::vector{4});
}

}  // namespace
}  // namespace mortane::controller::test
