// The two dialogs of the program.
#include <gtest/gtest.h>

#include <QLabel>
#include <QPushButton>
#include <QScrollBar>

#include "AppRig.h"
#include "app/GetAppIcon.h"
#include "app/SelFileItemDlg.h"
#include "app/SelScopeDlg.h"
#include "hub/DeviceAvailability.h"
#include "support/TempFolder.h"
#include "widgets/ListBox.h"

namespace mortane::test {
namespace {

QImage Painted(const QIcon& icon) {
  return icon.pixmap(32, 32).toImage();
}

TEST(GetAppIcon, KnowsTheProgramByItsTitleWhateverItsCase) {
  const QImage emblem = Painted(GetAppIcon("Mortane"));
  EXPECT_FALSE(emblem.isNull());
  EXPECT_EQ(Painted(GetAppIcon("MORTANE")), emblem);
  EXPECT_EQ(Painted(GetAppIcon("mortane")), emblem);
  EXPECT_NE(Painted(GetAppIcon("Mortane ")), emblem);
  EXPECT_NE(Painted(GetAppIcon("Sadrel")), emblem);
  EXPECT_NE(Painted(GetAppIcon("")), emblem);
}

// The dialog over a bench, as the start path and the Select command make it.
struct ScopeRig : Rig {
  using Rig::Rig;
  SelScopeDlg& Dialog() {
    if (!dialog) {
      dialog = std::make_unique<SelScopeDlg>(
          k70, prompts, [this](std::int32_t n) { return IsDeviceAvailable(library, n); });
      dialog->show();
    }
    return *dialog;
  }
  std::vector<std::string> Lines() {
    std::vector<std::string> lines;
    lines.reserve(static_cast<std::size_t>(Dialog().List1->rowCount()));
    for (int i = 0; i < Dialog().List1->rowCount(); ++i) {
      lines.push_back(Dialog().List1->text(i).toStdString());
    }
    return lines;
  }
  std::unique_ptr<SelScopeDlg> dialog;
};

Bench Mixed() {
  Bench bench = Microscopes({"  Lab 2 East ", "Held", "   ", "\tTabbed"});
  bench.instruments[2].available = 0;
  return bench;
}

TEST(SelScopeDlg, HasItsTextsAndIcon) {
  ScopeRig rig("Crowd");
  EXPECT_EQ(rig.Dialog().windowTitle(), "Select Microscope Dialog");
  EXPECT_EQ(rig.Dialog().Label1->text(), "Please Click Microscope Name on the List.");
  EXPECT_EQ(rig.Dialog().OkButton->text(), "&OK");
  EXPECT_EQ(rig.Dialog().CancelButton->text(), "&Cancel");
  EXPECT_EQ(Painted(rig.Dialog().windowIcon()), Painted(GetAppIcon("Mortane")));
  for (const char* name : {"Label1", "List1", "OkButton", "CancelButton"}) {
    EXPECT_NE(rig.Dialog().findChild<QWidget*>(name), nullptr) << name;
  }
}

TEST(SelScopeDlg, ListsEachDeviceAboveTheSimulator) {
  ScopeRig rig(Mixed());
  EXPECT_EQ(rig.Lines(),
            (std::vector<std::string>{"Lab 2 East", "Not Available", "NoName", "\tTabbed"}));
  EXPECT_EQ(rig.Dialog().List1->index(), 0);
  EXPECT_EQ(rig.Dialog().Selected, -1);
}

TEST(SelScopeDlg, DoesNotAskTheNameOfAnUnavailableDevice) {
  ScopeRig rig(Mixed());
  rig.Dialog();
  int asked = 0;
  for (const std::string& line : rig.journal.Lines()) {
    EXPECT_FALSE(line.starts_with("DeviceList.Item(2).Name")) << line;
    asked += line.starts_with("DeviceList.Item(1).Name") ? 1 : 0;
  }
  EXPECT_GT(asked, 0) << "the names of the others";
}

TEST(SelScopeDlg, WithTheSimulatorAloneOffersDeviceOneThatIsNotThere) {
  ScopeRig rig("Quay");
  EXPECT_EQ(rig.Lines(), std::vector<std::string>{"Not Available"});
  rig.prompts.ExpectBox("Not Available", 0);
  rig.Dialog().OkButton->click();
  EXPECT_EQ(rig.Dialog().Selected, -1);
  EXPECT_TRUE(rig.Dialog().isVisible());
}

TEST(SelScopeDlg, OkTakesTheLineAboveTheSimulator) {
  ScopeRig rig(Mixed());
  rig.Dialog().List1->setIndex(2);
  rig.Dialog().OkButton->click();
  EXPECT_EQ(rig.Dialog().Selected, 3);
  EXPECT_FALSE(rig.Dialog().isVisible());
}

TEST(SelScopeDlg, OkOnAnUnavailableDeviceStays) {
  ScopeRig rig(Mixed());
  rig.Dialog().List1->setIndex(1);
  rig.prompts.ExpectBox("Not Available", 0);
  rig.Dialog().OkButton->click();
  EXPECT_EQ(rig.Dialog().Selected, -1);
  EXPECT_TRUE(rig.Dialog().isVisible());
}

TEST(SelScopeDlg, OkAsksAgainWhetherTheDeviceIsAvailable) {
  ScopeRig rig(Mixed());
  rig.Dialog().List1->setIndex(0);
  rig.simulated.bench().instruments[1].available = 0;
  rig.prompts.ExpectBox("Not Available", 0);
  rig.Dialog().OkButton->click();
  EXPECT_EQ(rig.Dialog().Selected, -1);
}

TEST(SelScopeDlg, NoLineIsNoDevice) {
  ScopeRig rig(Mixed());
  rig.Dialog().List1->setIndex(-1);
  rig.prompts.ExpectBox("Not Available", 0);
  rig.Dialog().OkButton->click();
  EXPECT_EQ(rig.Dialog().Selected, -1);
}

TEST(SelScopeDlg, ALineCannotBeTakenBackWithTheControlKey) {
  ScopeRig rig(Mixed());
  ListBox& list = *rig.Dialog().List1;
  const QPoint first = list.visualItemRect(list.topLevelItem(0)).center();
  QTest::mouseClick(list.viewport(), Qt::LeftButton, Qt::ControlModifier, first);
  EXPECT_EQ(list.index(), 0);
}

TEST(SelScopeDlg, ClosedOtherwiseLeavesNothingSelected) {
  for (const bool byKey : {false, true}) {
    ScopeRig rig(Mixed());
    if (byKey) {
      QTest::keyClick(&rig.Dialog(), Qt::Key_Escape);
    } else {
      rig.Dialog().CancelButton->click();
    }
    EXPECT_EQ(rig.Dialog().Selected, -1);
    EXPECT_FALSE(rig.Dialog().isVisible());
  }
}

TEST(SelScopeDlg, WorksByKeyboardAlone) {
  ScopeRig rig(Mixed());
  rig.Dialog().activateWindow();
  rig.Dialog().List1->setFocus();
  QTest::keyClick(rig.Dialog().List1, Qt::Key_Down);
  QTest::keyClick(rig.Dialog().List1, Qt::Key_Down);
  QTest::keyClick(rig.Dialog().List1, Qt::Key_Return);
  EXPECT_EQ(rig.Dialog().Selected, 3);
}

// The dialog over file items 0 to 9.
struct FileRig : Rig {
  explicit FileRig(const std::vector<std::int16_t>& present) : Rig("Quay") {
    for (const std::int16_t item : present) k70.FileItem(item, -1);
  }
  SelFileItemDlg& Dialog() {
    if (!dialog) {
      dialog = std::make_unique<SelFileItemDlg>(k70);
      dialog->show();
    }
    return *dialog;
  }
  std::vector<std::string> Lines(const ListBox& list) {
    std::vector<std::string> lines;
    lines.reserve(static_cast<std::size_t>(list.rowCount()));
    for (int i = 0; i < list.rowCount(); ++i) lines.push_back(list.text(i).toStdString());
    return lines;
  }
  std::vector<int> Items() const {
    std::vector<int> items;
    for (std::int16_t i = 0; i < 8; ++i) items.push_back(k70.FileItem(i));
    return items;
  }
  std::unique_ptr<SelFileItemDlg> dialog;
};

const std::vector<std::string> kLabels{"System",          "Objective",         "Filter Cube",
                                       "Condenser",       "InterLock",         "Control",
                                       "K70 SW Function", "Tactor SW Function"};

TEST(SelFileItemDlg, OffersWhatTheFileHolds) {
  FileRig rig({0, 1, 2, 3, 4, 5, 6, 7});
  EXPECT_EQ(rig.Dialog().windowTitle(), "Select File Items");
  EXPECT_EQ(rig.Dialog().OkButton->text(), "&OK");
  EXPECT_EQ(rig.Dialog().CancelButton->text(), "&Cancel");
  EXPECT_EQ(rig.Lines(*rig.Dialog().List1), kLabels);
  EXPECT_EQ(rig.Lines(*rig.Dialog().Datalist), kLabels);
  EXPECT_FALSE(rig.Dialog().Datalist->isVisible());
  EXPECT_EQ(rig.Dialog().findChild<QLabel*>("WhyEmpty"), nullptr);
  for (int i = 0; i < 8; ++i) EXPECT_TRUE(rig.Dialog().List1->isRowChecked(i));
  EXPECT_EQ(Painted(rig.Dialog().windowIcon()), Painted(GetAppIcon("Mortane")));
}

TEST(SelFileItemDlg, OffersNothingForAFileOfNothing) {
  FileRig rig({});
  EXPECT_EQ(rig.Dialog().List1->rowCount(), 0);
  rig.Dialog().OkButton->click();
  EXPECT_FALSE(rig.Dialog().isVisible());
}

TEST(SelFileItemDlg, SaysWhyItOffersNothing) {
  FileRig rig({});
  SelFileItemDlg dialog(rig.k70, nullptr, "Line 1: no root");
  dialog.show();
  const auto* why = dialog.findChild<QLabel*>("WhyEmpty");
  ASSERT_NE(why, nullptr);
  EXPECT_TRUE(why->isVisible());
  EXPECT_EQ(why->text(), "Line 1: no root");
  EXPECT_EQ(dialog.List1->accessibleDescription(), why->text());
}

TEST(SelFileItemDlg, ShowsAllSectionsWithoutScrolling) {
  FileRig rig({0, 1, 2, 3, 4, 5, 6, 7});
  QApplication::processEvents();
  EXPECT_EQ(rig.Dialog().List1->verticalScrollBar()->maximum(), 0);
}

TEST(SelFileItemDlg, AnUncheckedLineIsNotWantedAndACheckedOneIs) {
  FileRig rig({0, 1, 2, 3, 4, 5, 6, 7});
  rig.Dialog().List1->SetRowChecked(2, false);
  rig.Dialog().List1->SetRowChecked(5, false);
  EXPECT_EQ(rig.Items(), (std::vector<int>{-1, -1, 0, -1, -1, 0, -1, -1}));
  rig.Dialog().List1->SetRowChecked(5, true);
  rig.Dialog().OkButton->click();
  EXPECT_EQ(rig.Items(), (std::vector<int>{-1, -1, 0, -1, -1, -1, -1, -1}));
}

TEST(SelFileItemDlg, TheSpaceKeyChangesTheCheck) {
  FileRig rig({0, 1, 2, 3, 4, 5, 6, 7});
  rig.Dialog().activateWindow();
  ListBox& list = *rig.Dialog().List1;
  list.setIndex(0);
  list.setFocus();
  QTest::keyClick(&list, Qt::Key_Space);
  EXPECT_EQ(rig.Items().front(), 0);
}

TEST(SelFileItemDlg, ALineSpeaksForTheItemOfItsPosition) {
  FileRig rig({0, 2});
  EXPECT_EQ(rig.Lines(*rig.Dialog().List1), (std::vector<std::string>{"System", "Filter Cube"}));
  rig.Dialog().List1->SetRowChecked(1, false);
  EXPECT_EQ(rig.Items(), (std::vector<int>{-1, 0, -1, 0, 0, 0, 0, 0}));
}

TEST(SelFileItemDlg, FillingTheListMarksThePositionsAsWanted) {
  FileRig rig({7});
  rig.Dialog();
  EXPECT_EQ(rig.Items(), (std::vector<int>{-1, 0, 0, 0, 0, 0, 0, -1}));
}

// So its section is read all the same.
TEST(SelFileItemDlg, TheOneLineOfAHandControllersFileSpeaksForTheFirstItem) {
  FileRig rig({7});
  EXPECT_EQ(rig.Lines(*rig.Dialog().List1), std::vector<std::string>{"Tactor SW Function"});
  rig.Dialog().List1->SetRowChecked(0, false);
  rig.Dialog().OkButton->click();
  EXPECT_EQ(rig.Items(), (std::vector<int>{0, 0, 0, 0, 0, 0, 0, -1}));
}

class FileItemsGivenUp : public testing::TestWithParam<int> {};

TEST_P(FileItemsGivenUp, WantsNoSection) {
  FileRig rig({0, 2, 7});
  rig.k70.FileItem(8, -1);
  rig.Dialog().activateWindow();
  switch (GetParam()) {
    case 0:
      rig.Dialog().CancelButton->click();
      break;
    case 1:
      QTest::keyClick(&rig.Dialog(), Qt::Key_Escape);
      break;
    default:
      rig.Dialog().close();
      break;
  }
  EXPECT_EQ(rig.Items(), std::vector<int>(8, 0));
  EXPECT_EQ(rig.k70.FileItem(8), -1) << "only the sections of the list";
  EXPECT_FALSE(rig.Dialog().isVisible());
}

INSTANTIATE_TEST_SUITE_P(CancelEscapeClose, FileItemsGivenUp, testing::Values(0, 1, 2));

}  // namespace
}  // namespace mortane::test
