#include <gtest/gtest.h>

#include <chrono>
#include <cstdio>
#include <string>

#include "document/Dom.h"
#include "platform/AtomicFile.h"
#include "support/TempFolder.h"

namespace mortane {
namespace {

using namespace std::string_literals;

struct Row {
  const char* meaning;
  std::string bytes;
};

// The bytes of an ASCII text in UTF-16, little end first unless asked otherwise.
std::string Utf16(const std::string& text, bool bigEnd = false) {
  std::string bytes = bigEnd ? "\xFE\xFF" : "\xFF\xFE";
  for (const char c : text) {
    if (bigEnd) bytes += '\0';
    bytes += c;
    if (!bigEnd) bytes += '\0';
  }
  return bytes;
}

// The same in UTF-32, little end first, without a mark.
std::string Utf32(const std::string& text) {
  std::string bytes;
  for (const char c : text) bytes += c + "\0\0\0"s;
  return bytes;
}

std::string Nested(int depth) {
  std::string text;
  for (int i = 0; i < depth; ++i) text += "<a>";
  for (int i = 0; i < depth; ++i) text += "</a>";
  return text;
}

std::string EntityBomb() {
  std::string text = "<!DOCTYPE Setup [<!ENTITY e0 \"ha\">";
  for (int i = 1; i < 40; ++i) {
    const std::string inner = "&e" + std::to_string(i - 1) + ";";
    text.append("<!ENTITY e" + std::to_string(i) + " \"").append(inner).append(inner).append("\">");
  }
  return text + "]><Setup a=\"&e39;\">&e39;</Setup>";
}

std::string AttributeBomb() {
  std::string text = "<!DOCTYPE a [<!ATTLIST b c CDATA \"" + std::string(100000, 'x') + "\">]><a>";
  for (int i = 0; i < 100000; ++i) text += "<b/>";
  return text + "</a>";
}

// Longer than the ten million bytes that libxml2 takes for one text.
std::string LongText() {
  std::string text;
  text.resize(std::size_t{11} * 1000 * 1000, 'x');
  return text;
}

TEST(LoadText, TakesEveryFormOfAWellFormedDocument) {
  const Row rows[] = {
      {"bare", "<Setup A=\"e\"/>"},
      {"declaration", "<?xml version=\"1.0\"?><Setup A=\"e\"/>"},
      {"standalone", "<?xml version=\"1.0\" standalone=\"yes\"?><Setup A=\"e\"/>"},
      {"UTF-8 with a mark", "\xEF\xBB\xBF<Setup A=\"e\"/>"},
      {"mark and declaration",
       "\xEF\xBB\xBF<?xml version=\"1.0\" encoding=\"utf-8\"?><Setup A='e'/>"},
      {"UTF-16, little end", Utf16("<Setup A='e'/>")},
      {"UTF-16, big end", Utf16("<Setup A='e'/>", true)},
      {"UTF-16 declared", Utf16("<?xml version=\"1.0\" encoding=\"UTF-16\"?><Setup A='e'/>")},
      {"Latin-1", "<?xml version=\"1.0\" encoding=\"ISO-8859-1\"?><Setup A='e'/>"},
      {"white space and comments", "\n<!-- x -->\r\n<Setup A='e'/>\n<!-- y -->\n"},
      {"document type", "<!DOCTYPE Setup><Setup A='e'/>"},
      {"element declaration", "<!DOCTYPE Setup [<!ELEMENT Setup EMPTY>]><Setup A='e'/>"},
      {"instruction", "<?style x?><Setup A='e'/>"},
      {"character reference", "<Setup A='&#101;'/>"},
      {"hexadecimal reference", "<Setup A='&#x65;'/>"},
  };
  for (const Row& row : rows) {
    DomDocument document;
    ASSERT_TRUE(document.LoadText(row.bytes)) << row.meaning << ": " << document.Problem();
    EXPECT_EQ(document.Problem(), "") << row.meaning;
    const DomNode root = document.Children().back().IsElement() ? document.Children().back()
                                                                : document.Children()[1];
    ASSERT_EQ(root.Attributes().size(), 1U) << row.meaning;
    EXPECT_EQ(root.Attributes()[0].value, "e") << row.meaning;
  }
}

TEST(LoadText, RefusesWhatIsNoWellFormedDocument) {
  const Row rows[] = {
      {"nothing", ""},
      {"blanks", "  \n"},
      {"not XML", "[JoyPad]\nRight=1\n"},
      {"binary", "\x89PNG\r\n\x1A\n"},
      {"two roots", "<Setup/><Setup/>"},
      {"text after the root", "<Setup/>x"},
      {"text before the root", "x<Setup/>"},
      {"doubled attribute", "<Setup A='1' A='2'/>"},
      {"unclosed tag", "<Setup><SYSTEM></Setup>"},
      {"truncated in a tag", "<Setup><SYSTEM NA"},
      {"truncated after a tag", "<Setup><SYSTEM/>"},
      {"no quotation marks", "<Setup A=1/>"},
      {"attribute without value", "<Setup A/>"},
      {"bare ampersand", "<Setup A='a&b'/>"},
      {"less-than in a value", "<Setup A='<'/>"},
      {"undeclared entity", "<Setup A='&nbsp;'/>"},
      {"NUL in a value", "<Setup A='\0'/>"s},
      {"NUL after the root", "<Setup/>\0"s},
      {"NUL in UTF-16", Utf16("<Setup/>\0<a/>"s)},
      {"control character", "<Setup A='\x01'/>"},
      {"reference to NUL", "<Setup A='&#0;'/>"},
      {"reference to a control character", "<Setup A='&#8;'/>"},
      {"reference to a surrogate", "<Setup A='&#xD800;'/>"},
      {"invalid UTF-8", "<Setup A='\xC3('/>"},
      {"Latin-1 without declaration", "<Setup A='\xE9t\xE9'/>"},
      {"UTF-16 declared, UTF-8 written", "<?xml version='1.0' encoding='UTF-16'?><Setup/>"},
      {"unknown encoding", "<?xml version='1.0' encoding='Klingon'?><Setup/>"},
      {"UTF-16 cut within a character", Utf16("<Setup/>") + "\n"},
      {"half a surrogate pair", Utf16("<Setup/>") + "\x3D\xD8 \0"s},
      {"declaration not first", " <?xml version='1.0'?><Setup/>"},
      {"bad name", "<1a/>"},
      {"end tag in another case", "<Setup></setup>"},
      {"cdata end in text", "<Setup>]]></Setup>"},
  };
  for (const Row& row : rows) {
    DomDocument document;
    EXPECT_FALSE(document.LoadText(row.bytes)) << row.meaning;
    EXPECT_NE(document.Problem(), "") << row.meaning;
    EXPECT_EQ(document.Problem().find_first_of("\r\n"), std::string::npos) << row.meaning;
    EXPECT_TRUE(document.Children().empty()) << row.meaning;
  }
}

TEST(LoadText, RefusesWhatCouldFillTheMemoryAtOnce) {
  const Row rows[] = {
      {"entity bomb", EntityBomb()},
      {"one entity", "<!DOCTYPE a [<!ENTITY b 'c'>]><a d='&b;'/>"},
      {"parameter entity", "<!DOCTYPE a [<!ENTITY % b 'c'> %b;]><a/>"},
      {"unparsed entity",
       "<!DOCTYPE a [<!NOTATION n SYSTEM 'n'><!ENTITY b SYSTEM 'c' NDATA n>]><a/>"},
      {"attribute bomb", AttributeBomb()},
      {"nested without end", Nested(100000)},
      {"one text without end", "<a b='" + LongText() + "'/>"},
  };
  for (const Row& row : rows) {
    const auto start = std::chrono::steady_clock::now();
    DomDocument document;
    EXPECT_FALSE(document.LoadText(row.bytes)) << row.meaning;
    EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(5)) << row.meaning;
  }
}

TEST(LoadText, TakesNestingThatIsDeepButSane) {
  DomDocument document;
  EXPECT_TRUE(document.LoadText(Nested(200))) << document.Problem();
}

TEST(LoadText, FollowsNothingOutsideTheDocument) {
  const test::TempFolder folder;
  const std::string secret = folder.Write("secret.txt", "secret");
  const std::string types = folder.Write("types.dtd", "<!ENTITY s 'secret'>");
  DomDocument document;
  EXPECT_FALSE(
      document.LoadText("<!DOCTYPE a [<!ENTITY s SYSTEM '" + secret + "'>]><a b=''>&s;</a>"));
  EXPECT_FALSE(document.LoadText("<!DOCTYPE a SYSTEM '" + types + "'><a b='&s;'/>"));
  EXPECT_TRUE(document.LoadText("<!DOCTYPE a SYSTEM '" + types + "'><a/>")) << document.Problem();
}

TEST(LoadText, WritesNothingToTheStandardError) {
  ::testing::internal::CaptureStderr();
  for (const std::string& bytes :
       {"<a"s, Utf16("<a/>") + "\x3D\xD8 \0"s, "<a:b/>"s, "<a b='\xC3'/>"s}) {
    DomDocument document;
    document.LoadText(bytes);
  }
  EXPECT_EQ(::testing::internal::GetCapturedStderr(), "");
}

TEST(LoadText, NamesTheLineOfTheFault) {
  DomDocument document;
  EXPECT_FALSE(document.LoadText("<Setup>\n<SYSTEM>\n</Setup>"));
  EXPECT_TRUE(document.Problem().starts_with("line 3: ")) << document.Problem();
}

TEST(LoadText, SaysWhatIsWrongWithTheWhole) {
  const std::string largest(kLargestFile, 'x');
  const Row rows[] = {
      {"the document is empty", ""},
      {"the document is too large", largest + "x"},
      {"the document holds a NUL character", "<a/>\0"s},
      {"the document ends within a character", Utf16("<a/>") + "\n"},
      {"the document ends within a character", Utf16("<a/>") + "\x3D\xD8"},
  };
  for (const Row& row : rows) {
    DomDocument document;
    EXPECT_FALSE(document.LoadText(row.bytes)) << row.meaning;
    EXPECT_EQ(document.Problem(), row.meaning);
  }
  DomDocument document;
  EXPECT_FALSE(document.LoadText(largest));
  EXPECT_NE(document.Problem(), "the document is too large");
}

TEST(LoadText, SaysInWhichLineWhatIsNotAllowed) {
  const Row rows[] = {
      {"line 2: entities are not allowed", "<!DOCTYPE a [\n<!ENTITY b 'c'>]><a/>"},
      {"line 4: entities are not allowed", "<a>\n\n\n<b c='&d;'/></a>"},
      {"line 3: entities are not allowed",
       "<!DOCTYPE a [<!NOTATION n SYSTEM 'n'>\n\n<!ENTITY b SYSTEM 'c' NDATA n>]><a/>"},
      {"line 2: attribute declarations are not allowed",
       "<!DOCTYPE a [\n<!ATTLIST b c CDATA 'd'>]><a/>"},
  };
  for (const Row& row : rows) {
    DomDocument document;
    EXPECT_FALSE(document.LoadText(row.bytes)) << row.meaning;
    EXPECT_EQ(document.Problem(), row.meaning);
  }
}

// A byte of 0 beside a byte of 0 of the next character is no NUL.
TEST(LoadText, FindsNoNulBetweenTwoWideCharacters) {
  const std::string little = Utf16("<a b='x") + "\0\x01"s + Utf16("'/>").substr(2);
  const std::string big = Utf16("<a b='", true) + "\x01\0"s + Utf16("x'/>", true).substr(2);
  for (const std::string& bytes : {little, big}) {
    DomDocument document;
    ASSERT_TRUE(document.LoadText(bytes)) << document.Problem();
    const std::string value = document.Children().at(0).Attributes().at(0).value;
    EXPECT_EQ(value.size(), 3U) << "x and the letter U+0100";
    EXPECT_NE(value.find("\xC4\x80"), std::string::npos);
  }
}

TEST(LoadText, FindsANulAmongWideCharacters) {
  for (const bool bigEnd : {false, true}) {
    DomDocument document;
    EXPECT_FALSE(document.LoadText(Utf16("<a/>\0"s, bigEnd)));
    EXPECT_EQ(document.Problem(), "the document holds a NUL character");
  }
}

TEST(LoadText, FindsANulAmongCharactersOfFourBytes) {
  for (const std::string& mark : {""s, "\xFF\xFE\0\0"s}) {
    DomDocument document;
    EXPECT_FALSE(document.LoadText(mark + Utf32("<\0a/>"s)));
    EXPECT_EQ(document.Problem(), "the document holds a NUL character");
    document.LoadText(mark + Utf32("<a/>"));
    EXPECT_NE(document.Problem(), "the document holds a NUL character");
  }
}

// The memory that a small file may take is bounded by its nodes. Some of each kind, and elements up
// to the most: a kind that did not count would let the last element in.
TEST(LoadText, RefusesMoreThanAMillionTwoHundredThousandNodesOfAnyKind) {
  constexpr int kMost = 1'200'000;
  constexpr int kOfAKind = 10;
  int nodes = 1;
  std::string text = "<a>\n";
  const auto add = [&](std::string_view kind, int count, int nodesOfOne) {
    for (int i = 0; i < count; ++i) text += kind;
    nodes += count * nodesOfOne;
  };
  nodes += 1;  // the text that is the line break
  add("<!---->", kOfAKind, 1);
  add("<?a?>", kOfAKind, 1);
  add("<![CDATA[]]>", kOfAKind, 1);
  add("<a xmlns='n'/>", kOfAKind, 2);
  add("<a b='c'/>", kOfAKind, 3);
  add("<a>b</a>", kOfAKind, 2);
  add("<a/>", kMost - nodes, 1);
  DomDocument document;
  EXPECT_TRUE(document.LoadText(text + "</a>")) << document.Problem();
  EXPECT_FALSE(document.LoadText(text + "<a/></a>"));
  EXPECT_EQ(document.Problem(), "line 2: too many elements");
  EXPECT_TRUE(document.Children().empty());
}

TEST(Load, NamesTheFileThatCannotBeRead) {
  const test::TempFolder folder;
  for (const std::string& path :
       {folder.Path("missing.xml"), folder.Path("."), "/dev/null"s, ""s}) {
    DomDocument document;
    EXPECT_FALSE(document.Load(path)) << path;
    EXPECT_NE(document.Problem().find(path), std::string::npos) << document.Problem();
    EXPECT_TRUE(document.Children().empty());
  }
}

TEST(Load, RefusesAFileOfMoreThanSixtyFourMebibytes) {
  const test::TempFolder folder;
  const std::string path = folder.Write("huge.xml", "<Setup/>");
  std::filesystem::resize_file(path, 64 * 1024 * 1024 + 1);
  DomDocument document;
  EXPECT_FALSE(document.Load(path));
  EXPECT_NE(document.Problem().find("Cannot read"), std::string::npos) << document.Problem();
}

TEST(Load, ForgetsTheContentOfTheFileBefore) {
  const test::TempFolder folder;
  const std::string good = folder.Path("good \xC3\xA9.xml");
  WriteFileAtomically(good, "<Setup/>");
  DomDocument document;
  ASSERT_TRUE(document.Load(good)) << document.Problem();
  EXPECT_EQ(document.Children().size(), 1U);
  EXPECT_FALSE(document.Load(folder.Write("bad.xml", "<Setup>")));
  EXPECT_TRUE(document.Children().empty());
  EXPECT_NE(document.Problem(), "");
  EXPECT_TRUE(document.Load(good));
  EXPECT_EQ(document.Problem(), "");
}

}  // namespace
}  // namespace mortane
