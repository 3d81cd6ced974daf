// A field with an unfinished edit, while a command loads other data into the model.
#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QAction>
#include <QMenu>
#include <QPushButton>
#include <QToolBar>
#include <algorithm>
#include <ostream>

#include "AppRig.h"
#include "app/SelFileItemDlg.h"
#include "app/SelScopeDlg.h"
#include "condensers/clsDbCondenser.h"
#include "filters/FilterItemNames.h"
#include "filters/clsDbFilter.h"
#include "objectives/clsDbNosepiece.h"
#include "support/Sample.h"
#include "support/TempFolder.h"
#include "widgets/CommandKey.h"
#include "widgets/ContainerPage.h"
#include "widgets/ListBox.h"
#include "widgets/PageButton.h"
#include "widgets/SectionBar.h"
#include "widgets/TextField.h"

namespace mortane::test {
namespace {

using controller::DatabaseData;

template <typename Record>
Record& WithCode(std::vector<Record>& records, std::int32_t code) {
  return *std::find_if(records.begin(), records.end(),
                       [code](const Record& record) { return record.code == code; });
}

// Where a name comes from that is longer than its field, and arrives in the model as it is. A file
// with such an item or condenser is refused, and the page of the objectives cuts the name itself
// as it loads.
enum class LongName { Never, FromController, FromFileToo };

// A field of a container page, and the record that it edits.
struct FieldRow {
  const char* name;
  std::size_t page;  // its button
  const char* container;
  int section;
  const char* subPage;
  const char* field;
  void (*rename)(DatabaseData& database, const char* name);
  std::string (*stored)(const clsK70& k70);
  LongName longName;
};

void PrintTo(const FieldRow& row, std::ostream* stream) {
  *stream << row.name;
}

const FieldRow kFields[] = {
    {"Objective", 1, "ObjectiveSettingsCtl1", 1, "ObjectiveOptionCtl1", "TextName",
     [](DatabaseData& data, const char* name) { WithCode(data.objectives, 241).name = name; },
     [](const clsK70& k70) { return k70.DbNosepiece.Name(241); }, LongName::Never},
    {"Cube", 2, "FilterQubeSettingsCtl1", 1, "FilterOptionalQubeCtl1", "TextName",
     [](DatabaseData& data, const char* name) { WithCode(data.cubes, 241).name = name; },
     [](const clsK70& k70) { return k70.dbFilter.Name(241); }, LongName::FromFileToo},
    {"Exciter", 2, "FilterQubeSettingsCtl1", 2, "FilterOptionalItemCtl1", "TextExciter_0",
     [](DatabaseData& data, const char* name) { WithCode(data.exciters, 241).name = name; },
     [](const clsK70& k70) { return k70.Exciter.Name(241); }, LongName::FromController},
    {"Condenser", 3, "CondenserSettingsCtl1", 1, "CondenserOptionCtl1", "TextName_0",
     [](DatabaseData& data, const char* name) { WithCode(data.condensers, 141).name = name; },
     [](const clsK70& k70) { return k70.dbcon.Name(141); }, LongName::FromController},
};

enum class Way { Menu, ToolBar, Key };

struct Command {
  const char* name;
  Way way;
  Qt::Key menu;
  Qt::Key item;
  int tool;         // place in the tool bar, from 1
  std::size_t key;  // among the command keys
};

const Command kCommands[] = {
    {"Receive", Way::Menu, Qt::Key_C, Qt::Key_R, 0, 0},
    {"Receive", Way::ToolBar, {}, {}, 5, 0},
    {"Receive", Way::Key, {}, {}, 0, 1},
    {"Select", Way::Menu, Qt::Key_C, Qt::Key_L, 0, 0},
    {"Select", Way::ToolBar, {}, {}, 4, 0},
    {"Select", Way::Key, {}, {}, 0, 0},
    {"Open", Way::Menu, Qt::Key_F, Qt::Key_O, 0, 0},
    {"Open", Way::ToolBar, {}, {}, 1, 0},
};

// A usual name, none, and one that the field cannot show in full.
std::vector<const char*> NamesToLoad(const FieldRow& row, const Command& command) {
  std::vector<const char*> names{"Loaded", ""};
  const bool fromFile = std::string_view(command.name) == "Open";
  if (row.longName >= (fromFile ? LongName::FromFileToo : LongName::FromController)) {
    names.push_back("Longer than a field");
  }
  return names;
}

// The window on the first of two microscopes; the second one has the name that is to be loaded.
class LeavingRig : public AppRig {
 public:
  LeavingRig(const FieldRow& row, const char* loaded)
      : AppRig(BenchOf(row, loaded), {"Alpha"}), row_(row), loaded_(loaded) {
    Start();
    form->activateWindow();
    QTest::mousePress(form->ImageButton[row.page], Qt::LeftButton);
    auto& container = Find<ContainerPage>(row.container);
    QTest::mouseClick(container.sections()->option(row.section), Qt::LeftButton);
    auto* subPage = container.findChild<QWidget*>(QLatin1String(row.subPage));
    field = subPage->findChild<TextField*>(QLatin1String(row.field));
  }

  void TypeIntoField(const QString& text) {
    QTest::mouseClick(field, Qt::LeftButton);
    field->selectAll();
    QTest::keyClicks(field, text);
  }

  // Other data stand where the command takes them from.
  void Run(const Command& command) {
    const std::string name = command.name;
    if (name == "Receive") {
      row_.rename(simulated.bench().instruments[1].database, loaded_);
      return Give(command);
    }
    if (name == "Select") {
      const WhenShown<SelScopeDlg> person([this](SelScopeDlg& dialog) {
        dialog.List1->setIndex(1);
        Accept(dialog, *dialog.OkButton);
      });
      return Give(command);
    }
    prompts.ExpectFileToOpen(WriteFile());
    const WhenShown<SelFileItemDlg> person(
        [this](SelFileItemDlg& dialog) { Accept(dialog, *dialog.OkButton); });
    Give(command);
  }

  TextField* field = nullptr;

 private:
  static Bench BenchOf(const FieldRow& row, const char* loaded) {
    Bench bench = Microscopes({"Alpha", "Beta"});
    row.rename(bench.instruments[1].database, "Before");
    row.rename(bench.instruments[2].database, loaded);
    return bench;
  }

  // The field has the focus again before the loading begins.
  void Accept(QDialog& dialog, QPushButton& button) {
    QObject::connect(&dialog, &QDialog::finished, form.get(), [this] {
      form->activateWindow();
      EXPECT_TRUE(field->hasFocus());
    });
    button.click();
  }

  void Give(const Command& command) {
    switch (command.way) {
      case Way::Menu:
        QTest::keyClick(form->focusWidget(), command.menu, Qt::AltModifier);
        QTest::keyClick(QApplication::activePopupWidget(), command.item);
        break;
      case Way::ToolBar:
        QTest::mouseClick(
            form->Toolbar1->widgetForAction(form->Toolbar1->actions()[command.tool - 1]),
            Qt::LeftButton);
        break;
      case Way::Key:
        QTest::mouseClick(form->ImageCommand[command.key], Qt::LeftButton);
        break;
    }
    QApplication::processEvents();
  }

  std::string WriteFile() const {
    RigLibrary other(BenchOf(row_, loaded_));
    clsK70 model(other.library, other.prompts);
    model.Initialize();
    EXPECT_TRUE(model.Connect(2));
    model.Receive();
    std::string path = folder_.Path("loaded.xml");
    model.WriteXML(path);
    return path;
  }

  const FieldRow& row_;
  const char* loaded_;
  TempFolder folder_;
};

class LoadingUnderAnEdit : public testing::TestWithParam<FieldRow> {};

TEST_P(LoadingUnderAnEdit, StoresNothingOfTheFieldAndAsksNothing) {
  // Five has no factor in common with the numbers of commands and of names.
  std::size_t turn = GetParam().page + static_cast<std::size_t>(GetParam().section);
  for (const Command& command : kCommands) {
    for (const char* loaded : NamesToLoad(GetParam(), command)) {
      if (!TriesAllCases() && turn++ % 5 != 0) continue;
      LeavingRig rig(GetParam(), loaded);
      EXPECT_EQ(GetParam().stored(GetK70()), "Before");
      rig.TypeIntoField("Edit");
      rig.Run(command);
      EXPECT_EQ(GetParam().stored(GetK70()), loaded)
          << command.name << " by way " << static_cast<int>(command.way);
      EXPECT_TRUE(rig.prompts.Boxes().empty()) << command.name;
    }
  }
}

INSTANTIATE_TEST_SUITE_P(Fields, LoadingUnderAnEdit, testing::ValuesIn(kFields),
                         [](const auto& row) { return std::string(row.param.name); });

}  // namespace
}  // namespace mortane::test
