#include "widgets/Control.h"

#include <gtest/gtest.h>

#include <QLabel>

namespace mortane {

using namespace Qt::StringLiterals;
namespace {

class Panel : public QWidget {
 public:
  Control<QLabel> Label1{"Label1"};
  Controls<QLabel, 3> lblAddress{"lblAddress"};
};

TEST(ControlTest, IsNothingBeforeItsWidgetIsMade) {
  const Panel panel;
  EXPECT_EQ(panel.Label1, nullptr);
  EXPECT_EQ(panel.lblAddress[2], nullptr);
}

TEST(ControlTest, GivesItsWidgetTheNameOfTheMember) {
  Panel panel;
  auto* made = new QLabel(u"text"_s, &panel);
  panel.Label1 = made;
  EXPECT_EQ(panel.Label1, made);
  EXPECT_EQ(&*panel.Label1, made);
  EXPECT_EQ(panel.Label1->text(), u"text"_s);
  EXPECT_EQ(made->objectName(), u"Label1"_s);
}

TEST(ControlTest, NumbersTheElementsOfAnArrayFromZero) {
  Panel panel;
  auto* made = new QLabel(&panel);
  panel.lblAddress.Set(2, made);
  EXPECT_EQ(panel.lblAddress[2], made);
  EXPECT_EQ(made->objectName(), u"lblAddress_2"_s);
  EXPECT_EQ(panel.lblAddress.size(), 3U);
  EXPECT_EQ(*(panel.lblAddress.end() - 1), made);
}

TEST(ControlTest, IsReachedThroughAMember) {
  Panel panel;
  Control<QLabel> Panel::*member = &Panel::Label1;
  panel.*member = new QLabel(&panel);
  EXPECT_EQ((panel.*member)->parentWidget(), &panel);
}

}  // namespace
}  // namespace mortane
