// Size and place of the window from one session to the next.
#include <gtest/gtest.h>

#include <QRadioButton>
#include <QScreen>
#include <QStyle>
#include <filesystem>

#include "AppRig.h"
#include "app/WindowPlace.h"
#include "support/TempFolder.h"

namespace mortane::test {
namespace {

// A window as one session has it.
struct Session {
  explicit Session(const std::string& placeFile) {
    clsK70& k70 = ProvideK70(rig.library, rig.prompts);
    form = std::make_unique<MortaneMainForm>(FormServices{.k70 = k70,
                                                          .library = rig.library,
                                                          .prompts = rig.prompts,
                                                          .joystick = joystick,
                                                          .arguments = {"mortane"},
                                                          .placeFile = placeFile},
                                             fakes.Table());
    form->Load();
    form->show();
    EXPECT_TRUE(QTest::qWaitFor([this] { return form->IsStarted(); }));
  }
  ~Session() {
    form->Unload();
    form.reset();
    ReleaseK70();
  }
  Session(const Session&) = delete;
  Session& operator=(const Session&) = delete;

  RigLibrary rig{benches::Named("Harbour")};
  ScriptedJoystick joystick;
  FakePages fakes;
  std::unique_ptr<MortaneMainForm> form;
};

class Place : public testing::Test {
 protected:
  // Ends a session whose window stands at that place.
  void Leave(const QRect& place) {
    Session session(file);
    session.form->setGeometry(place);
    QApplication::processEvents();
  }
  static QRect Screen() { return QGuiApplication::primaryScreen()->availableGeometry(); }

  TempFolder folder;
  std::string file = folder.Path("not/yet/there/Window.ini");
};

TEST_F(Place, IsTheOneOfTheLastSession) {
  Leave({20, 30, 700, 520});
  Session next(file);
  EXPECT_EQ(next.form->geometry(), QRect(20, 30, 700, 520));
}

TEST_F(Place, AtTheEdgesOfTheScreenStaysThere) {
  const QRect half(Screen().topLeft(), QSize(Screen().width() - 50, Screen().height() - 50));
  Leave(half);
  Session session(file);
  EXPECT_EQ(session.form->size(), half.size());
}

// The room of a window: 8 pixels within the edges of the screen, below the title.
TEST_F(Place, AsLargeAsTheRoomStaysAndALargerOneIsCutToIt) {
  const int title = QApplication::style()->pixelMetric(QStyle::PM_TitleBarHeight);
  const QRect room = Screen().adjusted(8, title, -8, -8);
  for (const QSize& size : {QSize(700, room.height()), QSize(room.width(), 520)}) {
    const QRect fitting(room.topLeft(), size);
    Leave(fitting);
    EXPECT_EQ(Session(file).form->geometry(), fitting);
    Leave(fitting.adjusted(0, 0, size.width() == 700 ? 0 : 1, size.height() == 520 ? 0 : 1));
    EXPECT_EQ(Session(file).form->geometry(), fitting);
  }
}

TEST_F(Place, OfTheFirstSessionIsTheOpeningSize) {
  Session first(file);
  EXPECT_EQ(first.form->size(), OpeningSize(Screen().size()));
}

TEST_F(Place, ThatWasMaximisedIsMaximisedAgainWithItsFormerSizeBehind) {
  {
    Session session(file);
    session.form->setGeometry({20, 30, 700, 520});
    session.form->showMaximized();
    QApplication::processEvents();
  }
  Session next(file);
  EXPECT_TRUE(next.form->isMaximized());
  EXPECT_EQ(next.form->normalGeometry().size(), QSize(700, 520));
}

TEST_F(Place, OnAScreenThatIsGoneComesBackToOneThatIsThere) {
  for (const QRect& place : {QRect(5000, 30, 700, 520), QRect(20, -4000, 700, 520),
                             QRect(-3000, 9000, 700, 520), QRect(0, 0, 3000, 2000)}) {
    Leave(place);
    Session next(file);
    EXPECT_TRUE(Screen().contains(next.form->geometry())) << place.x() << "," << place.y();
    if (place.width() < 1000) {
      EXPECT_EQ(next.form->size(), place.size());
    }
  }
}

TEST_F(Place, ThatCannotBeReadIsTheOpeningSize) {
  for (const char* content :
       {"", "[MortaneMainForm]\nGeometry=", "[MortaneMainForm]\nGeometry=no digits",
        "[OtherForm]\nPlace=20,30,700,520,0"}) {
    Session session(folder.Write("Window.ini", content));
    EXPECT_EQ(session.form->size(), OpeningSize(Screen().size())) << content;
  }
}

TEST_F(Place, ThatCannotBeKeptCostsNothingElse) {
  folder.Write("taken", "");
  file = folder.Path("taken/Window.ini");
  Leave({20, 30, 700, 520});
  Session next(file);
  EXPECT_EQ(next.form->size(), OpeningSize(Screen().size()));
}

TEST_F(Place, IsNotKeptWhereThereIsNoFile) {
  file.clear();
  Leave({20, 30, 700, 520});
  Session next(file);
  EXPECT_EQ(next.form->size(), OpeningSize(Screen().size()));
}

TEST_F(Place, DoesNotRememberThePage) {
  {
    Session session(file);
    session.form->optMenu[2]->setChecked(true);
  }
  Session next(file);
  EXPECT_TRUE(next.form->optMenu[0]->isChecked());
}

}  // namespace
}  // namespace mortane::test
