#include "widgets/ContainerPage.h"

#include <QLineEdit>
#include <array>
#include <vector>

#include <QScrollArea>
#include "gui/support/TestWindow.h"
#include "widgets/PageHeader.h"
#include "widgets/SectionBar.h"
#include "widgets/Theme.h"

namespace mortane {
namespace {

class Recorder : public Page {
 public:
  Recorder(QString name, QStringList& log) : name_(std::move(name)), log_(log) {}
  void LoadData() override {
    log_ << "load " + name_ + (isVisible() ? " shown" : "");
    if (onLoad) onLoad();
  }
  void SaveData() override { log_ << "save " + name_; }
  void ShowStored() override { log_ << "stored " + name_; }

  std::function<void()> onLoad;

 private:
  QString name_;
  QStringList& log_;
};

// Three sub-pages, of which the middle one is always there and the last one keeps what it shows.
class Area : public ContainerPage {
 public:
  Area(QStringList& log, NotOffered notOffered, QWidget* parent)
      : ContainerPage(IconName::Objective, "Objectives", parent, notOffered),
        left(new Recorder("left", log)),
        middle(new Recorder("middle", log)),
        right(new Recorder("right", log)) {
    sections()->setObjectName("optArea");
    const auto offers = [this, &log](int index) {
      return [this, &log, index] {
        log << "ask " + QString::number(index);
        return offered[static_cast<std::size_t>(index)];
      };
    };
    SetSections(
        {{"Left", left, offers(0)}, {"Middle", middle}, {"Right", right, offers(2), KeepAsLoaded}},
        {1, 2, 0});
  }

  std::array<bool, 3> offered{true, true, true};
  Recorder* left;
  Recorder* middle;
  Recorder* right;
};

class ContainerPageTest : public ::testing::Test {
 protected:
  ContainerPageTest() { Make(ContainerPage::NotOffered::Disabled); }

  void Make(ContainerPage::NotOffered notOffered) {
    delete area;
    area = new Area(log, notOffered, &window.widget());
    window.widget().layout()->addWidget(area);
    window.Show();
    QApplication::processEvents();
    log.clear();
  }
  QAbstractButton& option(int index) { return *area->sections()->option(index); }
  void Click(int index) { QTest::mouseClick(&option(index), Qt::LeftButton); }

  TestWindow window;
  QStringList log;
  Area* area = nullptr;
};

TEST_F(ContainerPageTest, ShowsNothingBeforeTheFirstSelection) {
  EXPECT_EQ(area->CurrentItem(), -1);
  EXPECT_EQ(area->shownSubPage(), nullptr);
  for (const Recorder* page : {area->left, area->middle, area->right})
    EXPECT_FALSE(page->isVisible());
}

TEST_F(ContainerPageTest, AnotherSectionTakesTheFocusFromTheHiddenPageAlone) {
  auto* inside = new QLineEdit(area->left);
  auto* outside = new QLineEdit(&window.widget());
  area->LoadData();
  inside->show();
  outside->show();
  outside->setFocus();
  area->sections()->select(1);
  EXPECT_TRUE(outside->hasFocus());
  area->sections()->select(0);
  inside->setFocus();
  ASSERT_TRUE(inside->hasFocus());
  area->sections()->select(1);
  EXPECT_FALSE(inside->hasFocus());
}

TEST_F(ContainerPageTest, NamesHeaderAndOptions) {
  EXPECT_EQ(area->Header->objectName(), "Header");
  EXPECT_EQ(area->Header->title(), "Objectives");
  EXPECT_EQ(option(1).objectName(), "optArea_1");
  EXPECT_EQ(option(1).text(), "Middle");
}

TEST_F(ContainerPageTest, LoadingAsksAllSectionsThenLoadsInItsOrderAndSelectsTheLowest) {
  area->LoadData();
  EXPECT_EQ(log,
            QStringList({"ask 0", "ask 2", "load middle", "load right", "load left", "load left"}))
      << "the last one by the selection";
  EXPECT_EQ(area->CurrentItem(), 0);
  EXPECT_TRUE(area->left->isVisible());
}

TEST_F(ContainerPageTest, LoadingAgainOnTheSameSectionSelectsNothing) {
  area->LoadData();
  log.clear();
  QSignalSpy changes(area, &ContainerPage::Change);
  area->LoadData();
  EXPECT_EQ(log, QStringList({"ask 0", "ask 2", "load middle", "load right", "load left shown"}));
  EXPECT_EQ(changes.count(), 0);
}

TEST_F(ContainerPageTest, WhatASubPageChangesWhileLoadingDecidesNothing) {
  area->middle->onLoad = [this] { area->offered = {false, true, false}; };
  area->LoadData();
  EXPECT_EQ(area->CurrentItem(), 0);
  EXPECT_TRUE(log.contains("load right"));
}

struct OfferRow {
  std::array<bool, 3> offered;
  int first;
  QStringList loaded;
  QStringList saved;
};

TEST_F(ContainerPageTest, WhatIsNotOfferedIsNeitherLoadedNorSavedNorOpenedFirst) {
  for (const OfferRow& row :
       {OfferRow{
            {false, true, true}, 1, {"load middle", "load right"}, {"save middle", "save right"}},
        OfferRow{
            {true, true, false}, 0, {"load middle", "load left"}, {"save middle", "save left"}},
        OfferRow{{false, true, false}, 1, {"load middle"}, {"save middle"}}}) {
    Make(ContainerPage::NotOffered::Disabled);
    area->offered = row.offered;
    area->LoadData();
    EXPECT_EQ(log.mid(2, row.loaded.size()), row.loaded);
    EXPECT_EQ(area->CurrentItem(), row.first);
    for (int i = 0; i < 3; ++i)
      EXPECT_EQ(option(i).isEnabled(), row.offered[static_cast<std::size_t>(i)]);
    log.clear();
    area->SaveData();
    log.removeAll("ask 0");
    log.removeAll("ask 2");
    EXPECT_EQ(log, row.saved);
  }
}

TEST_F(ContainerPageTest, OpensASectionThatCanBeChosenAndNoOther) {
  area->offered[2] = false;
  area->LoadData();
  ASSERT_EQ(area->CurrentItem(), 0);
  for (const int section : {2, 3, -1}) {
    EXPECT_FALSE(area->OpenSection(section)) << section;
    EXPECT_EQ(area->CurrentItem(), 0) << section;
  }
  EXPECT_TRUE(area->OpenSection(1));
  EXPECT_EQ(area->CurrentItem(), 1);
}

TEST_F(ContainerPageTest, WhatWasStoredIsShownByTheSectionsThatTheLastLoadingFound) {
  area->ShowStored();
  EXPECT_EQ(log, (QStringList{"stored left", "stored middle", "stored right"}));
  area->offered = {false, true, true};
  area->LoadData();
  log.clear();
  area->ShowStored();
  EXPECT_EQ(log, (QStringList{"stored middle", "stored right"}));
}

TEST_F(ContainerPageTest, SavingGoesByWhatIsOfferedNow) {
  area->LoadData();
  area->offered = {false, true, true};
  log.clear();
  area->SaveData();
  EXPECT_EQ(log, QStringList({"save middle", "ask 2", "save right", "ask 0"}));
}

TEST_F(ContainerPageTest, SectionsThatAreNotOfferedCanBeHiddenAndComeBack) {
  Make(ContainerPage::NotOffered::Hidden);
  area->offered = {false, true, true};
  area->LoadData();
  EXPECT_FALSE(option(0).isVisible());
  EXPECT_TRUE(option(0).isEnabled());
  EXPECT_TRUE(option(2).isVisible());
  area->offered = {true, true, true};
  area->LoadData();
  EXPECT_TRUE(option(0).isVisible());
}

// Without any section 0 is selected, hidden or disabled as it is.
class Optional : public ContainerPage {
 public:
  explicit Optional(QStringList& log)
      : ContainerPage(IconName::Control, "Controls", nullptr, NotOffered::Hidden) {
    const auto no = [] { return false; };
    SetSections({{"A", new Recorder("A", log), no}, {"B", new Recorder("B", log), no}}, {1, 0});
  }
};

TEST_F(ContainerPageTest, WithNoSectionOfferedTheFirstOneIsSelectedAllTheSame) {
  Optional page(log);
  page.LoadData();
  EXPECT_EQ(page.CurrentItem(), 0);
  EXPECT_EQ(log, QStringList({"load A"}));
}

class RightFirst : public Area {
 public:
  using Area::Area;

 protected:
  int FirstSection() const override { return IsOffered(2) ? 2 : 1; }
};

TEST_F(ContainerPageTest, AnAreaMayHaveItsOwnRuleOfTheFirstSection) {
  RightFirst first(log, ContainerPage::NotOffered::Disabled, nullptr);
  first.LoadData();
  EXPECT_EQ(first.CurrentItem(), 2);
  first.offered = {true, true, false};
  first.LoadData();
  EXPECT_EQ(first.CurrentItem(), 1);
}

TEST_F(ContainerPageTest, ASelectionLoadsItsSubPageAndThenShowsItAlone) {
  area->sections()->select(0);
  EXPECT_TRUE(area->left->isVisible());
  area->sections()->select(1);
  EXPECT_FALSE(area->left->isVisible());
  EXPECT_TRUE(area->middle->isVisible());
  EXPECT_EQ(area->shownSubPage(), area->middle);
  EXPECT_EQ(log, QStringList({"load left", "load middle"}));
}

TEST_F(ContainerPageTest, AHiddenSubPageKeepsNoFocusInAWindowThatIsNotActive) {
  auto* field = new QLineEdit(area->left);
  area->LoadData();
  field->setFocus();
  ASSERT_EQ(window.widget().focusWidget(), field);
  TestWindow other;
  other.Show();
  ASSERT_FALSE(window.widget().isActiveWindow());
  area->sections()->select(1);
  EXPECT_EQ(window.widget().focusWidget(), nullptr);
}

TEST_F(ContainerPageTest, TheSubPageTakesTheWidthOfThePage) {
  area->LoadData();
  window.widget().resize(900, 500);
  QApplication::processEvents();
  EXPECT_EQ(area->left->width(), area->width() - 2 * grid::kPageMargin);
}

TEST_F(ContainerPageTest, ASectionMayOpenWithoutLoading) {
  Click(2);
  EXPECT_TRUE(area->right->isVisible());
  EXPECT_TRUE(log.isEmpty());
}

TEST_F(ContainerPageTest, AClickOnTheShownSectionLoadsItAgain) {
  Click(0);
  log.clear();
  Click(0);
  EXPECT_EQ(log, QStringList({"load left"}));
  EXPECT_TRUE(area->left->isVisible());
}

TEST_F(ContainerPageTest, TheProgramSelectingTheShownSectionLoadsNothing) {
  area->sections()->select(0);
  log.clear();
  area->sections()->select(0);
  EXPECT_TRUE(log.isEmpty());
}

TEST_F(ContainerPageTest, EverySelectionIsToldWhenItsSubPageIsShown) {
  QStringList shown;
  const QObject listener;
  QObject::connect(area, &ContainerPage::Change, &listener, [&](int index) {
    shown << QString::number(index) + (area->shownSubPage()->isVisible() ? " shown" : " hidden");
  });
  area->sections()->select(1);
  Click(2);
  Click(2);
  EXPECT_EQ(shown, QStringList({"1 shown", "2 shown", "2 shown"}));
}

TEST_F(ContainerPageTest, SubPagesAreScrolledWithoutAFrameAndWithoutAFocus) {
  const auto* scroll = area->findChild<QScrollArea*>();
  ASSERT_NE(scroll, nullptr);
  EXPECT_EQ(scroll->frameShape(), QFrame::NoFrame);
  EXPECT_TRUE(scroll->widgetResizable());
  EXPECT_EQ(scroll->focusPolicy(), Qt::NoFocus);
  EXPECT_EQ(scroll->widget()->layout()->contentsMargins(), QMargins());
}

}  // namespace
}  // namespace mortane
