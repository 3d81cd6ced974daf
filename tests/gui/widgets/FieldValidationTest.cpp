#include <QMessageBox>
#include <QPushButton>
#include <QTimer>

#include "gui/widgets/TestWindow.h"
#include "widgets/ListBox.h"
#include "widgets/PageButton.h"
#include "widgets/TextField.h"

namespace mortane {
namespace {

class FieldValidation : public ::testing::Test {
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
    field->setValidation(
        [this] {
          ++asked;
          return field->text() != "bad";
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

TEST_F(FieldValidation, AGoodTextLetsTheFocusGo) {
  field->setText("good");
  QSignalSpy left(field, &TextField::left);
  QTest::keyClick(field, Qt::Key_Tab);
  EXPECT_EQ(asked, 1);
  EXPECT_EQ(complaints, 0);
  EXPECT_EQ(left.count(), 1);
  EXPECT_TRUE(second->hasFocus());
  EXPECT_FALSE(field->isRefused());
}

TEST_F(FieldValidation, ABadTextKeepsTheFocusAndIsAllSelected) {
  QSignalSpy left(field, &TextField::left);
  QTest::keyClick(field, Qt::Key_Tab);
  QApplication::processEvents();
  EXPECT_EQ(asked, 1);
  EXPECT_EQ(complaints, 1);
  EXPECT_EQ(left.count(), 0);
  EXPECT_TRUE(field->hasFocus());
  EXPECT_TRUE(field->isRefused());
  EXPECT_EQ(field->selectedText(), "bad");
}

TEST_F(FieldValidation, TheFieldThatHadTheFocusForAMomentIsNotLeft) {
  int secondAsked = 0;
  second->setValidation([&] {
    ++secondAsked;
    return false;
  });
  QSignalSpy left(second, &TextField::left);
  QTest::keyClick(field, Qt::Key_Tab);
  QApplication::processEvents();
  EXPECT_EQ(secondAsked, 0);
  EXPECT_EQ(left.count(), 0);
  EXPECT_TRUE(field->hasFocus());
}

TEST_F(FieldValidation, TheClickThatWouldHaveLeftDoesNotAct) {
  QSignalSpy pressed(button, &QPushButton::clicked);
  QSignalSpy selected(list, &ListBox::clicked);
  QSignalSpy turned(page, &PageButton::selectRequested);
  Click(button);
  Click(list->viewport());
  Click(page);
  EXPECT_EQ(pressed.count(), 0);
  EXPECT_EQ(selected.count(), 0);
  EXPECT_EQ(turned.count(), 0);
  EXPECT_EQ(complaints, 3);
  EXPECT_TRUE(field->hasFocus());
}

TEST_F(FieldValidation, AfterAGoodTextTheSameClicksAct) {
  field->setText("good");
  QSignalSpy pressed(button, &QPushButton::clicked);
  QSignalSpy turned(page, &PageButton::selectRequested);
  Click(button);
  Click(page);
  EXPECT_EQ(pressed.count(), 1);
  EXPECT_EQ(turned.count(), 1);
}

TEST_F(FieldValidation, AMessageBoxIsShownOnceAndTheLookStandsMeanwhile) {
  int boxes = 0;
  bool refusedMeanwhile = false;
  field->setValidation(
      [] { return false; },
      [&] {
        QTimer::singleShot(0, field, [&] {
          auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
          ASSERT_NE(box, nullptr);
          refusedMeanwhile = field->isRefused();
          box->accept();
        });
        ++boxes;
        QMessageBox(QMessageBox::NoIcon, "Mortane", "Please", QMessageBox::Ok, &window.widget())
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

TEST_F(FieldValidation, TheNextKeyEndsTheRefusedLook) {
  field->validate();
  ASSERT_TRUE(field->isRefused());
  QTest::keyClicks(field, "4");
  EXPECT_FALSE(field->isRefused());
  EXPECT_EQ(field->text(), "4");
}

TEST_F(FieldValidation, TheProgramsTextEndsTheRefusedLook) {
  field->validate();
  field->setText("bad");
  EXPECT_FALSE(field->isRefused());
}

TEST_F(FieldValidation, EnterRunsTheValidationOnlyIfThePageSaysSo) {
  QTest::keyClick(field, Qt::Key_Return);
  EXPECT_EQ(asked, 0);
  QObject::connect(field, &TextField::entered, field, [this] { field->validate(); });
  QTest::keyClick(field, Qt::Key_Return);
  EXPECT_EQ(asked, 1);
  EXPECT_EQ(complaints, 1);
  EXPECT_TRUE(field->hasFocus());
}

TEST_F(FieldValidation, DisablingTheFieldItselfAsksNothing) {
  QSignalSpy left(field, &TextField::left);
  field->setEnabled(false);
  QApplication::processEvents();
  EXPECT_FALSE(field->hasFocus());
  EXPECT_EQ(asked, 0);
  EXPECT_EQ(left.count(), 0);
}

TEST_F(FieldValidation, DisablingTheWindowAsksNothing) {
  window.widget().setEnabled(false);
  QApplication::processEvents();
  EXPECT_EQ(asked, 0);
  EXPECT_EQ(complaints, 0);
}

}  // namespace
}  // namespace mortane
