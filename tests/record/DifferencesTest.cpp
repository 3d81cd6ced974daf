#include "record/Differences.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace mortane::test {
namespace {

std::vector<ConfigurationItem> Read(const std::string& items) {
  DomDocument document;
  EXPECT_TRUE(document.LoadText("<Setup>" + items + "</Setup>")) << document.Problem();
  return ItemsOf(document);
}

std::string TextOf(const Differences& differences) {
  std::string text;
  for (const ItemChange& change : differences.changed) {
    text += KeyText(change.to.key) + ":" + change.from.value + ">" + change.to.value + ";";
  }
  for (const ConfigurationItem& item : differences.onlyFirst) text += "-" + KeyText(item.key) + ";";
  for (const ConfigurationItem& item : differences.onlySecond)
    text += "+" + KeyText(item.key) + ";";
  return text;
}

struct Row {
  const char* first;
  const char* second;
  const char* differences;
};

TEST(DifferencesOfLists, AreChangedAndOnlyHereAndOnlyThere) {
  const Row rows[] = {
      {"", "", ""},
      {"<NOSEPIECE><ITEM POSITION='1' CODE='1'/></NOSEPIECE>",
       "<nosepiece><item position='1.0' code='1'/></nosepiece>", ""},
      {"<NOSEPIECE><ITEM POSITION='1' CODE='1'/><ITEM POSITION='2' CODE='2'/></NOSEPIECE>",
       "<NOSEPIECE><ITEM POSITION='3' CODE='1'/><ITEM POSITION='2' CODE='5'/></NOSEPIECE>",
       "NOSEPIECE ITEM 2 CODE:2>5;-NOSEPIECE ITEM 1 CODE;+NOSEPIECE ITEM 3 CODE;"},
      // The last of one key counts.
      {"<NOSEPIECE><ITEM POSITION='1' CODE='1'/><ITEM POSITION='1' CODE='2'/></NOSEPIECE>",
       "<NOSEPIECE><ITEM POSITION='1' CODE='2'/></NOSEPIECE>", ""},
      {"<NOSEPIECE><ITEM POSITION='1' CODE='1'/></NOSEPIECE>",
       "<NOSEPIECE><ITEM POSITION='1' CODE='1'/><ITEM POSITION='1' CODE='2'/></NOSEPIECE>",
       "NOSEPIECE ITEM 1 CODE:1>2;"},
      {"<FILTER><ITEM POSITION='1' CODE='1'/></FILTER>",
       "<CONDENSER><ITEM POSITION='1' CODE='1'/></CONDENSER>",
       "-FILTER ITEM 1 CODE;+CONDENSER ITEM 1 CODE;"},
      {"<FILTER><OPTION POSITION='1' CODE='1' NAME='A'/></FILTER>",
       "<FILTER><OPTION POSITION='1' CODE='1' NAME='B'/></FILTER>", "FILTER OPTION 1 NAME:A>B;"},
  };
  for (const Row& row : rows) {
    const Differences differences = DifferencesOf(Read(row.first), Read(row.second));
    EXPECT_EQ(TextOf(differences), row.differences) << row.first << row.second;
    EXPECT_EQ(differences.IsEmpty(), *row.differences == '\0');
  }
}

TEST(DifferencesOfLists, StandInTheOrderOfTheirFile) {
  EXPECT_EQ(TextOf(DifferencesOf(
                Read("<SWITCH><SWITCH POSITION='1' FUNCTION='1'/><SWITCH POSITION='2' "
                     "FUNCTION='1'/><SWITCH POSITION='9' FUNCTION='1'/><SWITCH POSITION='8' "
                     "FUNCTION='1'/></SWITCH>"),
                Read("<SWITCH><SWITCH POSITION='2' FUNCTION='2'/><SWITCH POSITION='1' "
                     "FUNCTION='2'/><SWITCH POSITION='6' FUNCTION='1'/><SWITCH POSITION='5' "
                     "FUNCTION='1'/></SWITCH>"))),
            "SWITCH SWITCH 2 FUNCTION:1>2;SWITCH SWITCH 1 FUNCTION:1>2;"
            "-SWITCH SWITCH 9 FUNCTION;-SWITCH SWITCH 8 FUNCTION;"
            "+SWITCH SWITCH 6 FUNCTION;+SWITCH SWITCH 5 FUNCTION;");
}

}  // namespace
}  // namespace mortane::test
