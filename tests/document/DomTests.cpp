#include "document/Dom.h"

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <utility>

#include "common/Failure.h"
#include "support/TempFolder.h"

namespace mortane {
namespace {

using namespace std::string_literals;

// "name=value;" for each attribute, in order.
std::string Listed(const DomNode& node) {
  std::string list;
  for (const DomAttribute& attribute : node.Attributes())
    list += attribute.name + "=" + attribute.value + ";";
  return list;
}

std::string ChildNames(const DomNode& node) {
  std::string list;
  for (const DomNode& child : node.Children()) list += child.Name() + ";";
  return list;
}

DomNode LoadedRoot(DomDocument& document, const std::string& text) {
  EXPECT_TRUE(document.LoadText(text)) << document.Problem();
  return document.Children().at(0);
}

TEST(DomNode, GivesAttributesInTheOrderOfTheFileAndWithTheirBlanks) {
  DomDocument document;
  EXPECT_EQ(Listed(LoadedRoot(document, "<a Z='  1 ' B='' a='x'/>")), "Z=  1 ;B=;a=x;");
}

TEST(DomNode, LosesNoPrefix) {
  DomDocument document;
  const DomNode root =
      LoadedRoot(document, "<a:b c:d='1' xmlns='n' xmlns:e='u' e:f='2' xml:lang='en'><e:g/></a:b>");
  EXPECT_EQ(root.Name(), "a:b");
  EXPECT_EQ(Listed(root), "xmlns=n;xmlns:e=u;c:d=1;e:f=2;xml:lang=en;");
  EXPECT_EQ(ChildNames(root), "e:g;");
}

TEST(DomNode, TellsElementsFromTextAndComments) {
  DomDocument document;
  const DomNode root = LoadedRoot(document, "<a>t<b/><!--c--><![CDATA[d]]><?p q?></a>");
  EXPECT_EQ(ChildNames(root), "#text;b;#comment;#cdata-section;p;");
  for (const DomNode& child : root.Children()) {
    EXPECT_EQ(child.IsElement(), child.Name() == "b");
    EXPECT_EQ(Listed(child), "");
    EXPECT_TRUE(child.Children().empty());
  }
}

TEST(DomNode, OfNothingIsNoElement) {
  const DomNode none;
  EXPECT_FALSE(none.IsElement());
  EXPECT_EQ(none.Name(), "");
  EXPECT_TRUE(none.Attributes().empty());
  EXPECT_TRUE(none.Children().empty());
}

TEST(DomDocument, DoesNotShowTheDocumentTypeAsAChild) {
  DomDocument document;
  EXPECT_EQ(LoadedRoot(document, "<!DOCTYPE Setup><Setup A='1'/>").Attributes().size(), 1U);
}

DomDocument SmallDocument() {
  DomDocument document;
  DomNode root = document.CreateElement("Setup");
  DomNode child = document.CreateElement("SYSTEM");
  child.SetAttribute("NAME", "Quay");
  child.SetAttribute("A", "1");
  root.Append(child);
  root.Append(document.CreateElement("NOSEPIECE"));
  document.Append(root);
  return document;
}

TEST(DomDocument, WritesNoDeclarationAndNoWhiteSpace) {
  EXPECT_EQ(SmallDocument().ToText(), "<Setup><SYSTEM NAME=\"Quay\" A=\"1\"/><NOSEPIECE/></Setup>");
}

TEST(DomDocument, OfTheSameContentGivesTheSameBytes) {
  EXPECT_EQ(SmallDocument().ToText(), SmallDocument().ToText());
}

TEST(DomDocument, WithoutARootIsAnEmptyText) {
  EXPECT_EQ(DomDocument().ToText(), "");
  EXPECT_TRUE(DomDocument().Children().empty());
}

TEST(DomDocument, KeepsAnAttributeInItsPlaceWhenItIsSetAgain) {
  DomDocument document;
  DomNode root = document.CreateElement("a");
  document.Append(root);
  root.SetAttribute("z", "1");
  root.SetAttribute("b", "2");
  root.SetAttribute("z", "3");
  root.SetAttribute("Z", "4");
  EXPECT_EQ(document.ToText(), "<a z=\"3\" b=\"2\" Z=\"4\"/>");
}

TEST(DomDocument, CarriesEveryValueThroughTextAndBack) {
  for (const std::string& value :
       {""s, " "s, "  a  "s, "\t"s, "\r\n"s, "a\rb\nc"s, "<&>\"'"s, "&amp;"s, "&#10;"s, "]]>"s,
        "µm 顕微鏡"s, "\U0001F52C"s, "\u00A0"s, "\xEF\xBF\xBD"s, "\u0080\u0800\U00010000"s,
        std::string(100000, 'x')}) {
    DomDocument written;
    DomNode root = written.CreateElement("a");
    root.SetAttribute("v", value);
    written.Append(root);
    DomDocument read;
    EXPECT_EQ(Listed(LoadedRoot(read, written.ToText())), "v=" + value + ";");
  }
}

TEST(DomDocument, WritesCharactersBeyondAsciiAsThemselves) {
  DomDocument document;
  DomNode root = document.CreateElement("a");
  root.SetAttribute("v", "µ");
  document.Append(root);
  EXPECT_EQ(document.ToText(), "<a v=\"µ\"/>");
}

TEST(DomDocument, WritesUtf8WhateverItWasReadFrom) {
  DomDocument document;
  LoadedRoot(document, "<?xml version='1.0' encoding='ISO-8859-1'?><a v='\xB5'/>");
  EXPECT_EQ(document.ToText(), "<a v=\"µ\"/>");
}

TEST(DomDocument, WritesAgainWhatItRead) {
  for (const char* text :
       {"<a/>", "<a>t&amp;&lt;&gt;\"&#13;\n</a>", "<!--c--><a><!-- d --></a><?p q?>",
        "<a><![CDATA[<&>]]></a>", "<?p?><a b=\"&amp;&lt;&gt;&quot;&#13;&#10;&#9;'\"/>"}) {
    DomDocument document;
    ASSERT_TRUE(document.LoadText(text)) << document.Problem();
    EXPECT_EQ(document.ToText(), text);
  }
}

TEST(DomDocument, RaisesAFailureForWhatXmlCannotHold) {
  struct Row {
    const char* meaning;
    std::string value;
  };
  const Row rows[] = {{"NUL", "a\0b"s},
                      {"control character", "a\x01"},
                      {"escape", "\x1B"},
                      {"no UTF-8", "\xFF"},
                      {"cut sequence", "\xE9\xA1"},
                      {"longer form than needed", "\xC1\x81"},
                      {"longer form of three bytes", "\xE0\x81\x81"},
                      {"surrogate", "\xED\xA0\x80"},
                      {"U+FFFE", "\xEF\xBF\xBE"},
                      {"U+FFFF", "\xEF\xBF\xBF"},
                      {"beyond Unicode", "\xF4\x90\x80\x80"}};
  DomDocument document;
  DomNode root = document.CreateElement("a");
  document.Append(root);
  root.SetAttribute("NAME", "old");
  for (const Row& row : rows) {
    try {
      root.SetAttribute("NAME", row.value);
      ADD_FAILURE() << row.meaning << " was taken";
    } catch (const Failure& failure) {
      EXPECT_NE(failure.Description().find("NAME"), std::string::npos) << failure.Description();
    }
  }
  EXPECT_EQ(document.ToText(), "<a NAME=\"old\"/>");
}

std::string DescriptionOf(const std::function<void()>& act) {
  try {
    act();
    return {};
  } catch (const Failure& failure) {
    EXPECT_EQ(failure.Number(), kConversionError);
    return failure.Description();
  }
}

TEST(DomDocument, SaysWhatItCannotHoldAndWhere) {
  DomDocument document;
  DomNode root = document.CreateElement("a");
  EXPECT_EQ(DescriptionOf([&] { root.SetAttribute("NAME", "µ顕\x01"); }),
            "XML cannot hold the character at position 3 of attribute NAME (byte 1)");
  EXPECT_EQ(DescriptionOf([&] { root.SetAttribute("a\xFF", "v"); }),
            "XML cannot hold the character at position 2 of a name (byte 255)");
  EXPECT_EQ(DescriptionOf([&] { root.SetAttribute("a b", "v"); }),
            "XML cannot hold the name \"a b\"");
  EXPECT_EQ(DescriptionOf([&] { document.CreateElement("1"); }), "XML cannot hold the name \"1\"");
  EXPECT_EQ(DescriptionOf([&] { document.CreateElement("\x02"); }),
            "XML cannot hold the character at position 1 of a name (byte 2)");
}

TEST(DomDocument, RaisesAFailureForNamesThatAreNone) {
  DomDocument document;
  DomNode root = document.CreateElement("a");
  document.Append(root);
  for (const char* name : {"", "1", "a b", "<", "a=", "-a", "\xFF"}) {
    EXPECT_THROW(document.CreateElement(name), Failure) << name;
    EXPECT_THROW(root.SetAttribute(name, "v"), Failure) << name;
  }
}

TEST(DomDocument, OwnsElementsThatWereNeverAppended) {
  DomDocument document;
  DomNode top = document.CreateElement("top");
  top.Append(document.CreateElement("inner"));
  document.CreateElement("alone");
  document.Append(document.CreateElement("root"));
  document = SmallDocument();
  document.CreateElement("again");
  EXPECT_EQ(document.Children().size(), 1U);
}

TEST(DomDocument, KeepsItsNodesWhenItIsMoved) {
  DomDocument first;
  DomNode root = first.CreateElement("root");
  DomDocument second = std::move(first);
  second.Append(root);
  EXPECT_EQ(second.ToText(), "<root/>");
}

TEST(DomDocument, SavesWhatItLoads) {
  const test::TempFolder folder;
  const std::string path = folder.Path("settings.xml");
  SmallDocument().Save(path);
  EXPECT_EQ(test::TempFolder::Read(path), SmallDocument().ToText());
  DomDocument loaded;
  ASSERT_TRUE(loaded.Load(path)) << loaded.Problem();
  EXPECT_EQ(loaded.ToText(), SmallDocument().ToText());
}

TEST(DomDocument, RaisesAFailureWhenTheFolderIsMissing) {
  const test::TempFolder folder;
  const std::string path = folder.Path("missing/settings.xml");
  try {
    SmallDocument().Save(path);
    ADD_FAILURE() << "nothing was raised";
  } catch (const Failure& failure) {
    EXPECT_TRUE(failure.Description().starts_with("Cannot write " + path + ": "))
        << failure.Description();
  }
}

}  // namespace
}  // namespace mortane
