#include "widgets/LatePage.h"

#include <QApplication>
#include <QPushButton>
#include <QVBoxLayout>

#include "gui/support/TestWindow.h"
#include "widgets/ContainerPage.h"
#include "widgets/SectionBar.h"
#include "widgets/TabOrder.h"

namespace mortane {
namespace {

class Recorder : public Page {
 public:
  explicit Recorder(QStringList& log) : log_(log) { log_ << "made"; }
  void LoadData() override { log_ << "load"; }
  void SaveData() override { log_ << "save"; }
  void ShowStored() override { log_ << "show stored"; }

 private:
  QStringList& log_;
};

class StoringNothing : public Page {};

class LatePageTest : public ::testing::Test {
 protected:
  void Plan(LatePlan plan) {
    plan.make = [this] { return new Recorder(log); };
    late.Plan(std::move(plan));
    late.SetPlace(window.widget(), [this](Page& page) {
      log << "placed";
      page.setParent(&window.widget());
    });
  }
  std::function<bool()> Act(const QString& name, bool enough) {
    return [this, name, enough] {
      log << name;
      return enough;
    };
  }

  QStringList log;
  TestWindow window;
  LateControl<Recorder> late{"Late1"};
};

TEST_F(LatePageTest, IsMadeOnceByWhoeverAsks) {
  Plan({});
  EXPECT_EQ(late.made(), nullptr);
  Recorder* page = late;
  EXPECT_EQ(log, QStringList({"made", "placed"}));
  EXPECT_EQ(page->objectName(), "Late1");
  EXPECT_EQ(late.made(), page);
  EXPECT_EQ(&late.get(), page);
  EXPECT_EQ(log.size(), 2);
}

TEST_F(LatePageTest, APageWithoutAPlanForLoadingIsMadeForIt) {
  Plan({});
  late.LoadData();
  EXPECT_EQ(log, QStringList({"made", "placed", "load"}));
  late.LoadData();
  EXPECT_EQ(log.mid(3), QStringList({"load"}));
}

TEST_F(LatePageTest, ThePlanLoadsInPlaceOfThePageAndFillsItLater) {
  Plan({.load = Act("plan loads", true), .fill = [this](Page&) { log << "fill"; }});
  late.LoadData();
  EXPECT_EQ(log, QStringList({"plan loads"}));
  EXPECT_TRUE(late.isLoadedUnmade());
  late.get();
  EXPECT_EQ(log, QStringList({"plan loads", "made", "placed", "fill"}));
  late.LoadData();
  EXPECT_EQ(log.mid(4), QStringList({"load"}));
}

TEST_F(LatePageTest, WhereThePlanIsNotEnoughThePageIsMadeAndFilledAtOnce) {
  Plan({.load = Act("plan loads", false), .fill = [this](Page&) { log << "fill"; }});
  late.LoadData();
  EXPECT_EQ(log, QStringList({"plan loads", "made", "placed", "fill"}));
}

TEST_F(LatePageTest, APageThatWasNotLoadedIsNotFilled) {
  Plan({.load = ChangesNothing});
  late.get();
  EXPECT_EQ(log, QStringList({"made", "placed"}));
}

TEST_F(LatePageTest, SavingMakesThePageUnlessThePlanSavesNothing) {
  Plan({.load = ChangesNothing, .save = Act("plan saves", true)});
  late.LoadData();
  late.SaveData();
  EXPECT_EQ(log, QStringList({"plan saves"}));
  Plan({.load = ChangesNothing, .save = Act("plan saves", false)});
  late.SaveData();
  EXPECT_EQ(log.mid(1), QStringList({"plan saves", "made", "placed", "load", "save"}));
}

TEST_F(LatePageTest, SavingMakesNoPageThatStoresNothing) {
  LateControl<StoringNothing> other("Other1");
  other.Plan({.make = [] { return new StoringNothing; }});
  other.SetPlace(window.widget(), [this](Page& page) { page.setParent(&window.widget()); });
  other.SaveData();
  EXPECT_EQ(other.made(), nullptr);
}

TEST_F(LatePageTest, WhatIsStoredIsShownByAPageThatIsThere) {
  Plan({.load = ChangesNothing});
  late.ShowStored();
  EXPECT_EQ(log, QStringList());
  late.get();
  late.ShowStored();
  EXPECT_EQ(log.last(), "show stored");
}

TEST_F(LatePageTest, OnlyLoadedPagesAreMadeAhead) {
  Plan({.load = ChangesNothing});
  MakeLoadedPages(window.widget());
  EXPECT_EQ(late.made(), nullptr);
  late.LoadData();
  MakeLoadedPages(window.widget());
  EXPECT_EQ(log, QStringList({"made", "placed", "load"}));
}

TEST_F(LatePageTest, APageThatIsGoneIsNoPage) {
  Plan({});
  delete &late.get();
  EXPECT_EQ(late.made(), nullptr);
}

QStringList NamesInTabOrder(QWidget& window) {
  QStringList names;
  for (QWidget* next = window.nextInFocusChain(); next != &window; next = next->nextInFocusChain())
    names << next->objectName();
  return names;
}

QPushButton* Button(const char* name, Qt::FocusPolicy policy, QWidget* parent) {
  auto* button = new QPushButton(parent);
  button->setObjectName(name);
  button->setFocusPolicy(policy);
  return button;
}

TEST(TabOrderTest, APageGoesWithAllItsControlsBehindTheOtherWidget) {
  QWidget window;
  auto* first = Button("first", Qt::NoFocus, &window);
  Button("last", Qt::TabFocus, &window);
  QWidget page;
  page.setObjectName("page");
  auto* option = Button("option", Qt::NoFocus, &page);
  auto* inner = new QWidget(&page);
  inner->setObjectName("inner");
  Button("field", Qt::StrongFocus, inner);
  page.setParent(&window);
  ASSERT_EQ(NamesInTabOrder(window),
            QStringList({"first", "last", "page", "option", "inner", "field"}));
  PutInTabOrder(page, *first);
  EXPECT_EQ(NamesInTabOrder(window),
            QStringList({"first", "page", "option", "inner", "field", "last"}));
  EXPECT_EQ(first->focusPolicy(), Qt::NoFocus);
  EXPECT_EQ(option->focusPolicy(), Qt::NoFocus);
  EXPECT_EQ(page.focusPolicy(), Qt::NoFocus);
  page.setParent(nullptr);
}

// A section that is there and two that are made late, of which one keeps what it shows.
class LateArea : public ContainerPage {
 public:
  explicit LateArea(QStringList& log) : ContainerPage(IconName::Objective, "Objectives") {
    sections()->setObjectName("optArea");
    const auto plan = [&log](const QString& name) {
      return LatePlan{.make =
                          [&log, name] {
                            log << "make " + name;
                            auto* page = new Recorder(log);
                            log.removeLast();
                            Button("field", Qt::TabFocus, page)->setObjectName(name + " field");
                            return page;
                          },
                      .load =
                          [&log, name] {
                            log << "plan " + name;
                            return true;
                          }};
    };
    left.Plan(plan("left"));
    right.Plan(plan("right"));
    SetSections(
        {{"Left", left}, {"Middle", new StoringNothing}, {"Right", right, {}, KeepAsLoaded}},
        {2, 0});
  }

  LateControl<Recorder> left{"Left1"};
  LateControl<Recorder> right{"Right1"};
};

class LateAreaTest : public ::testing::Test {
 protected:
  LateAreaTest() {
    area->hide();
    window.widget().layout()->addWidget(area);
    Button("after", Qt::TabFocus, &window.widget());
    window.Show();
  }

  QStringList log;
  TestWindow window;
  LateArea* area = new LateArea(log);
};

TEST_F(LateAreaTest, ALoadedSubPageIsMadeWhenItsPageIsShown) {
  area->LoadData();
  EXPECT_EQ(log, QStringList({"plan right", "plan left", "plan left"}))
      << "the last one by the selection";
  EXPECT_EQ(area->CurrentItem(), 0);
  EXPECT_EQ(area->left.made(), nullptr);
  log.clear();
  area->show();
  EXPECT_EQ(log, QStringList({"make left", "load"}));
  ASSERT_NE(area->left.made(), nullptr);
  EXPECT_TRUE(area->left.made()->isVisible());
  EXPECT_EQ(area->right.made(), nullptr);
}

TEST_F(LateAreaTest, AClickLoadsTheSubPageThatItMakes) {
  area->LoadData();
  area->show();
  log.clear();
  area->sections()->select(2);
  EXPECT_EQ(log, QStringList({"make right", "load"})) << "as loaded: it keeps what it shows";
  EXPECT_TRUE(area->right.made()->isVisible());
  EXPECT_FALSE(area->left.made()->isVisible());
  log.clear();
  area->sections()->select(0);
  EXPECT_EQ(log, QStringList({"load"}));
}

TEST_F(LateAreaTest, TheOneOnShowIsMadeForWhoeverAsks) {
  area->LoadData();
  const Page* asked = area->shownSubPage();
  EXPECT_NE(asked, nullptr);
  EXPECT_EQ(asked, area->left.made());
}

TEST_F(LateAreaTest, KnowsTheSectionOfASubPageBeforeAndAfter) {
  EXPECT_EQ(area->SectionOf(area->right), 2);
  EXPECT_EQ(area->SectionOf(area->right.get()), 2);
  EXPECT_EQ(area->SectionOf(*area), -1);
}

TEST_F(LateAreaTest, TheTabKeyReachesALateSubPageFromItsOption) {
  area->LoadData();
  area->show();
  const QStringList names = NamesInTabOrder(window.widget());
  EXPECT_LT(names.indexOf("optArea_0"), names.indexOf("left field"));
  EXPECT_LT(names.indexOf("left field"), names.indexOf("optArea_1"));
  EXPECT_LT(names.indexOf("left field"), names.indexOf("after"));
}

}  // namespace
}  // namespace mortane
