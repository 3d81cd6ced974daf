#include <QMessageBox>
#include <QPushButton>
#include <QTimer>
#include <stdexcept>

#include "gui/support/TestWindow.h"
#include "widgets/ListBox.h"
#include "widgets/PageButton.h"
#include "widgets/TextField.h"

namespace mortane {
namespace {

class FieldCheck : public ::testing::Test {
 protected:
  void SetUp() override {
    field = window.Add<TextField>();
    second = window.Add<TextField>();
    button = window.Add<QPushButton>();
    list = window.Add<ListBox>();
    list->addRow("row");
    page = new PageButton(IconName::System, "System", &window.widget());
    window.widget().layout()->addWidget(page);
    window.Show();
    field->SetCheck(
        [this](const QString& text) {
          ++asked;
          return text != "bad";
        },
        [this] { ++complaints; });
    field->setText("bad");
    field->setFocus();
  }

  // As the system delivers a click: to the window, which moves the focus and then hands it on.
  void Click(QWidget* target, QPoint at = {8, 8}) {
    QTest::mouseClick(window.widget().windowHandle(), Qt::LeftButton, Qt::NoModifier,
                      target->mapTo(&window.widget(), at));
    QApplication::processEvents();
  }

  TestWindow window;
  TextField* field = nullptr;
  TextField* second = nullptr;
  QPushButton* button = nullptr;
  ListBox* list = nullptr;
  PageButton* page = nullptr;
  int asked = 0;
  int complaints = 0;
};

TEST_F(FieldCheck, AGoodTextLetsTheFocusGo) {
  field->setText("good");
  QSignalSpy committed(field, &TextField::committed);
  QTest::keyClick(field, Qt::Key_Tab);
  EXPECT_EQ(asked, 1);
  EXPECT_EQ(complaints, 0);
  EXPECT_EQ(committed.count(), 1);
  EXPECT_TRUE(second->hasFocus());
  EXPECT_FALSE(field->isRefused());
}

TEST_F(FieldCheck, ABadTextKeepsTheFocusAndIsAllSelected) {
  QSignalSpy committed(field, &TextField::committed);
  QTest::keyClick(field, Qt::Key_Tab);
  QApplication::processEvents();
  EXPECT_EQ(asked, 1);
  EXPECT_EQ(complaints, 1);
  EXPECT_EQ(committed.count(), 0);
  EXPECT_TRUE(field->hasFocus());
  EXPECT_TRUE(field->isRefused());
  EXPECT_EQ(field->selectedText(), "bad");
}

TEST_F(FieldCheck, TheFieldThatHadTheFocusForAMomentIsNotLeft) {
  int secondAsked = 0;
  second->SetCheck([&](const QString&) {
    ++secondAsked;
    return false;
  });
  QSignalSpy committed(second, &TextField::committed);
  QTest::keyClick(field, Qt::Key_Tab);
  QApplication::processEvents();
  EXPECT_EQ(secondAsked, 0);
  EXPECT_EQ(committed.count(), 0);
  EXPECT_TRUE(field->hasFocus());
}

TEST_F(FieldCheck, TheClickThatWouldHaveLeftDoesNotAct) {
  QSignalSpy pressed(button, &QPushButton::clicked);
  QSignalSpy selected(list, &ListBox::selectionChanged);
  QSignalSpy turned(page, &PageButton::chosen);
  Click(button);
  Click(list->viewport());
  Click(page);
  EXPECT_EQ(pressed.count(), 0);
  EXPECT_EQ(selected.count(), 0);
  EXPECT_EQ(turned.count(), 0);
  EXPECT_EQ(complaints, 3);
  EXPECT_TRUE(field->hasFocus());
}

TEST_F(FieldCheck, AfterAGoodTextTheSameClicksAct) {
  field->setText("good");
  QSignalSpy pressed(button, &QPushButton::clicked);
  QSignalSpy turned(page, &PageButton::chosen);
  Click(button);
  Click(page);
  EXPECT_EQ(pressed.count(), 1);
  EXPECT_EQ(turned.count(), 1);
}

TEST_F(FieldCheck, AMessageBoxIsShownOnceAndTheLookStandsMeanwhile) {
  int boxes = 0;
  bool refusedMeanwhile = false;
  field->SetCheck([](const QString&) { return false; },
                  [&] {
                    QTimer::singleShot(0, field, [&] {
                      auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
                      ASSERT_NE(box, nullptr);
                      refusedMeanwhile = field->isRefused();
                      box->accept();
                    });
                    ++boxes;
                    QMessageBox(QMessageBox::NoIcon, "Mortane", "Please", QMessageBox::Ok,
                                &window.widget())
                        .exec();
                  });
  QSignalSpy pressed(button, &QPushButton::clicked);
  Click(button);
  window.Show();
  QApplication::processEvents();
  EXPECT_EQ(boxes, 1);
  EXPECT_TRUE(refusedMeanwhile);
  EXPECT_EQ(pressed.count(), 0);
  EXPECT_TRUE(field->hasFocus());
}

TEST_F(FieldCheck, TheNextKeyEndsTheRefusedLook) {
  field->Commit();
  ASSERT_TRUE(field->isRefused());
  QTest::keyClicks(field, "4");
  EXPECT_FALSE(field->isRefused());
  EXPECT_EQ(field->text(), "4");
}

TEST_F(FieldCheck, TheProgramsTextEndsTheRefusedLook) {
  field->Commit();
  field->setText("bad");
  EXPECT_FALSE(field->isRefused());
}

TEST_F(FieldCheck, EnterAsksAndARefusedTextIsNotCommitted) {
  QSignalSpy committed(field, &TextField::committed);
  QTest::keyClick(field, Qt::Key_Return);
  EXPECT_EQ(asked, 1);
  EXPECT_EQ(complaints, 1);
  EXPECT_EQ(committed.count(), 0);
  EXPECT_TRUE(field->hasFocus());
  field->setText("good");
  QTest::keyClick(field, Qt::Key_Return);
  EXPECT_EQ(committed.count(), 1);
}

// While a box stands, what the field belongs to may end.

TEST_F(FieldCheck, AFieldThatEndsWhileItsBoxStandsIsLeftAlone) {
  field->SetCheck([](const QString&) { return false; }, [this] { delete field; });
  QTest::keyClick(field, Qt::Key_Return);
  QApplication::processEvents();
  second->setText("next");
  QTest::keyClick(second, Qt::Key_Return);
  EXPECT_TRUE(second->isEnabled());
}

TEST_F(FieldCheck, AFieldThatEndsWhileTheTabKeyLeavesItTakesNoFocusBack) {
  field->SetCheck([](const QString&) { return false; }, [this] { delete field; });
  QTest::keyClick(field, Qt::Key_Tab);
  QApplication::processEvents();
  EXPECT_TRUE(second->hasFocus());
}

TEST_F(FieldCheck, AFieldThatEndsWhileAClickLeavesItTakesNoFocusBack) {
  field->SetCheck([](const QString&) { return false; }, [this] { delete field; });
  Click(second);
  EXPECT_TRUE(second->hasFocus());
}

TEST_F(FieldCheck, AFieldThatEndsAsItsTextIsCommittedIsLeftAlone) {
  field->SetPlaceholder("-----");
  field->setText("good");
  QObject::connect(field, &TextField::committed, &window.widget(), [this] { delete field; });
  QTest::keyClick(field, Qt::Key_Tab);
  QApplication::processEvents();
  EXPECT_TRUE(second->hasFocus());
}

TEST_F(FieldCheck, AComplaintThatFailsLeavesTheFieldAtWork) {
  field->SetCheck([](const QString& text) { return text == "good"; },
                  [] { throw std::runtime_error("no box"); });
  EXPECT_THROW(field->Commit(), std::runtime_error);
  field->setText("good");
  EXPECT_TRUE(field->Commit());
}

TEST_F(FieldCheck, DisablingTheFieldItselfAsksNothing) {
  QSignalSpy committed(field, &TextField::committed);
  field->setEnabled(false);
  QApplication::processEvents();
  EXPECT_FALSE(field->hasFocus());
  EXPECT_EQ(asked, 0);
  EXPECT_EQ(committed.count(), 0);
}

TEST_F(FieldCheck, DisablingTheWindowAsksNothing) {
  window.widget().setEnabled(false);
  QApplication::processEvents();
  EXPECT_EQ(asked, 0);
  EXPECT_EQ(complaints, 0);
}

}  // namespace
}  // namespace mortane
