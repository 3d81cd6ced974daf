#include "widgets/ContainerPage.h"

#include "gui/widgets/TestWindow.h"
#include "widgets/PageHeader.h"
#include "widgets/SectionBar.h"

namespace mortane {
namespace {

class Recorder : public Page {
 public:
  Recorder(QString name, QStringList& log) : name_(std::move(name)), log_(log) {}
  void LoadData() override { log_ << "load " + name_ + (isVisible() ? " shown" : " hidden"); }
  void SaveData() override { log_ << "save " + name_; }

 private:
  QString name_;
  QStringList& log_;
};

class Area : public ContainerPage {
 public:
  using ContainerPage::ContainerPage;
  void LoadData() override {}
  void SaveData() override {}
};

class ContainerPageTest : public ::testing::Test {
 protected:
  void SetUp() override {
    area = new Area(IconName::Objective, "Objectives", 200, &window.widget());
    window.widget().layout()->addWidget(area);
    first = new Recorder("first", log);
    second = new Recorder("second", log);
    area->AddSubPage("Nosepiece", first);
    area->AddSubPage("Optional Obj.", second);
    window.Show();
  }

  TestWindow window;
  QStringList log;
  Area* area = nullptr;
  Recorder* first = nullptr;
  Recorder* second = nullptr;
};

TEST_F(ContainerPageTest, ShowsNothingBeforeTheFirstSelection) {
  EXPECT_EQ(area->CurrentItem(), -1);
  EXPECT_EQ(area->shownSubPage(), nullptr);
  EXPECT_FALSE(first->isVisible());
  EXPECT_FALSE(second->isVisible());
}

TEST_F(ContainerPageTest, ASelectionLoadsItsSubPageAndThenShowsItAlone) {
  area->sections()->select(0);
  EXPECT_TRUE(first->isVisible());
  area->sections()->select(1);
  EXPECT_FALSE(first->isVisible());
  EXPECT_TRUE(second->isVisible());
  EXPECT_EQ(area->CurrentItem(), 1);
  EXPECT_EQ(log, QStringList({"load first hidden", "load second hidden"}));
}

TEST_F(ContainerPageTest, AClickOnTheShownSectionLoadsItAgain) {
  area->sections()->select(0);
  log.clear();
  QTest::mouseClick(area->sections()->option(0), Qt::LeftButton);
  EXPECT_EQ(log, QStringList({"load first hidden"}));
  EXPECT_TRUE(first->isVisible());
}

TEST_F(ContainerPageTest, TheProgramSelectingTheShownSectionLoadsNothing) {
  area->sections()->select(0);
  log.clear();
  area->sections()->select(0);
  EXPECT_TRUE(log.isEmpty());
}

TEST_F(ContainerPageTest, SectionsBeginAtTheSamePlaceUnlessTheTitleIsWider) {
  const int left = area->sections()->mapTo(area, QPoint(0, 0)).x();
  EXPECT_EQ(left, 200);
  Area wide(IconName::Control, "A title that is a good deal wider than two hundred");
  wide.resize(1000, 400);
  wide.show();
  EXPECT_GT(wide.sections()->mapTo(&wide, QPoint(0, 0)).x(), 180);
}

}  // namespace
}  // namespace mortane
