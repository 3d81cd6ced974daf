#include "model/ElementFields.h"

#include <gtest/gtest.h>

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

}  // namespace
}  // namespace mortane::test
