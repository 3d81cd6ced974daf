#include "widgets/Control.h"

#include <gtest/gtest.h>

#include <QLabel>

namespace mortane {
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
  auto* made = new QLabel(QStringLiteral("text"), &panel);
  panel.Label1 = made;
  EXPECT_EQ(panel.Label1, made);
  EXPECT_EQ(&*panel.Label1, made);
  EXPECT_EQ(panel.Label1->text(), QStringLiteral("text"));
  EXPECT_EQ(made->objectName(), QStringLiteral("Label1"));
}

TEST(ControlTest, NumbersTheElementsOfAnArrayFromZero) {
  Panel panel;
  auto* made = new QLabel(&panel);
  panel.lblAddress.Set(2, made);
  EXPECT_EQ(panel.lblAddress[2], made);
  EXPECT_EQ(made->objectName(), QStringLiteral("lblAddress_2"));
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
