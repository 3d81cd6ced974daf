// Started moves with the program's own boxes, over a window that a person sees.
#include <QMessageBox>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <QVBoxLayout>

#include "app/QtPrompts.h"
#include "gui/drives/DrivePages.h"

namespace mortane::test {
namespace {

// A stage page that runs to X 2000 in a library whose clock stands still.
class RealBox : public testing::Test {
 protected:
  RealBox() {
    k70.Connect(1);
    EXPECT_EQ(k70.Receive(), "");
    page = new ControlXYStageCtl(k70.CXYDrive);
    auto* column = new QVBoxLayout(&window);
    column->addWidget(page);
    page->LoadData();
    window.show();
    ClickButton(*page->optNosepiece->button(0));
    page->TextNosepieceX[0]->setText("100");
  }

  // Runs as soon as the box stands.
  void WhileTheBoxStands(const std::function<void(QMessageBox&)>& person) {
    QTimer::singleShot(0, &window, [person] {
      auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
      ASSERT_NE(box, nullptr);
      EXPECT_EQ(box->text(), kMoveStop);
      EXPECT_EQ(box->buttons().size(), 1);
      person(*box);
    });
  }
  void Start() { ClickButton(*page->ButtonStart); }

  controller::SimulatedLibrary simulated{benches::Named("Harbour")};
  QtPrompts prompts{[](int) { ADD_FAILURE() << "nobody should wait"; }};
  DrivePageUnits k70{simulated, simulated.bench(), prompts};
  QWidget window;
  ControlXYStageCtl* page = nullptr;
};

TEST_F(RealBox, OkLeavesTheMoveToItself) {
  WhileTheBoxStands([this](QMessageBox& box) {
    simulated.clock().Advance(50);
    box.buttons().constFirst()->click();
  });
  Start();
  EXPECT_EQ(page->TextNosepieceX[0]->text(), "50");
  simulated.clock().Advance(50);
  EXPECT_EQ(k70.CXYDrive.CurPositionX(), 2000);
}

TEST_F(RealBox, APageThatIsDestroyedBehindTheBoxIsNotTouched) {
  WhileTheBoxStands([this](QMessageBox& box) {
    delete page;
    box.reject();
  });
  Start();
  EXPECT_TRUE(window.findChildren<ControlXYStageCtl*>().isEmpty());
}

TEST_F(RealBox, AWindowThatIsClosedBehindTheBoxLeavesTheMove) {
  WhileTheBoxStands([this](QMessageBox& box) {
    window.close();
    box.reject();
  });
  Start();
  EXPECT_FALSE(window.isVisible());
  EXPECT_EQ(page->TextNosepieceX[0]->text(), "0") << "the stage has not moved yet";
}

}  // namespace
}  // namespace mortane::test
