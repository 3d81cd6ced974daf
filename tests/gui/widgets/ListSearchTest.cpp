// Letters that are typed in a list look for a row.
#include <QElapsedTimer>
#include <QThread>

#include "gui/support/TestWindow.h"
#include "widgets/ListBox.h"

namespace mortane {
namespace {

using Rows = std::vector<int>;

class ListBoxSearch : public ::testing::Test {
 protected:
  void SetUp() override {
    list->SetColumns({{"Type"}, {"Name"}});
    list->SetNameColumn(1);
    for (const auto& [type, name] : {std::pair{"Phase", "Epi 5x"},
                                     {"Dry", "Plan 10x"},
                                     {"Oil", "Plan 40x"},
                                     {"Phase", "Super"},
                                     {"Dry", "plaster"}})
      list->addCells({type, name});
    window.Show();
    list->setFocus();
  }

  TestWindow window;
  ListBox* list = window.Add<ListBox>();
};

TEST_F(ListBoxSearch, TypedLettersLookForTheNameAndNotForTheFirstColumn) {
  QSignalSpy selections(list, &ListBox::selectionChanged);
  QTest::keyClicks(list, "plan");
  EXPECT_EQ(list->index(), 1);
  EXPECT_EQ(Indices(selections), (Rows{1})) << "the row that fits already stays";
  QTest::keyClicks(list, " 4");
  EXPECT_EQ(list->index(), 2);
}

TEST_F(ListBoxSearch, OneLetterRepeatedGoesFromRowToRowAndRoundAgain) {
  Rows seen;
  const QObject listener;
  QObject::connect(list, &ListBox::selectionChanged, &listener,
                   [&](int row) { seen.push_back(row); });
  QTest::keyClicks(list, "pppp");
  EXPECT_EQ(seen, (Rows{1, 2, 4, 1}));
}

TEST_F(ListBoxSearch, AfterAPauseANewSearchBeginsBelow) {
  const int usual = QApplication::keyboardInputInterval();
  constexpr int kPauseMs = 1;
  QApplication::setKeyboardInputInterval(kPauseMs);
  const auto pause = [] {
    QElapsedTimer clock;
    clock.start();
    while (clock.elapsed() <= kPauseMs) QThread::yieldCurrentThread();
  };
  QTest::keyClicks(list, "p");
  pause();
  QTest::keyClicks(list, "p");
  EXPECT_EQ(list->index(), 2);
  pause();
  QTest::keyClicks(list, "s");
  EXPECT_EQ(list->index(), 3);
  QApplication::setKeyboardInputInterval(usual);
}

TEST_F(ListBoxSearch, WhatNoNameBeginsWithSelectsNothing) {
  QTest::keyClicks(list, "dry");
  EXPECT_EQ(list->index(), -1);
  list->keyboardSearch({});
  EXPECT_EQ(list->index(), -1);
}

TEST_F(ListBoxSearch, InAnEmptyListDoesNothing) {
  list->clearRows();
  list->setFocus();
  QTest::keyClicks(list, "a");
  EXPECT_EQ(list->index(), -1);
}

}  // namespace
}  // namespace mortane
