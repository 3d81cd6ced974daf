#include "model/ElementFields.h"

#include <gtest/gtest.h>

#include "common/Numbers.h"

namespace mortane::test {
namespace {

TEST(ElementFields, AreFoundWithoutRegardToCaseAndTheLastOneCounts) {
  DomDocument document;
  ASSERT_TRUE(document.LoadText("<a CODE='1' Name=' x ' code='2' EMPTY='' TEXT='x' HALF='2.5'/>"));
  const ElementFields fields(document.Children().at(0));
  for (const char* name : {"CODE", "code", "Code"}) EXPECT_EQ(fields.Number(name), 2) << name;
  EXPECT_EQ(fields.Text("NAME"), " x ");
  EXPECT_TRUE(fields.Has("empty"));
  EXPECT_EQ(fields.Text("EMPTY"), "");
  EXPECT_EQ(fields.Number("EMPTY"), 0);
  EXPECT_EQ(fields.Number("TEXT"), 0);
  EXPECT_EQ(fields.Number("HALF"), 2);
  EXPECT_FALSE(fields.Has("OTHER"));
  EXPECT_EQ(fields.Text("OTHER"), "");
  EXPECT_EQ(fields.Number("OTHER"), -1);
}

TEST(ElementFields, HaveNumbersInOneFormWhateverTheUsersFormat) {
  struct Row {
    const char* text;
    std::int32_t number;
  };
  DomDocument document;
  DomNode element = document.CreateElement("a");
  document.Append(element);
  SetSystemNumberFormat({",", "."});
  for (const Row& row :
       {Row{" 12 ", 12}, Row{"-3", -3}, Row{"+4", 4}, Row{"007", 7}, Row{"1e2", 100}, Row{"2.5", 2},
        Row{"3.5", 4}, Row{"1.000", 1}, Row{"1,5", 0}, Row{"1.000.000", 0}, Row{"12 3", 0},
        Row{"12a", 0}, Row{"0x1F", 0}, Row{"&H1F", 0}, Row{"inf", 0}, Row{"2147483647", 2147483647},
        Row{"2147483648", 0}, Row{"1e300", 0}, Row{"1e999", 0}}) {
    element.SetAttribute("CODE", row.text);
    EXPECT_EQ(ElementFields(element).Number("CODE"), row.number) << row.text;
  }
  SetSystemNumberFormat(PointFormat());
}

}  // namespace
}  // namespace mortane::test
