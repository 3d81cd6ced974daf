// The wizard's note of the microscope, and the dots of what is not sent at its steps.
#include <gtest/gtest.h>

#include <QLabel>

#include "WizardRig.h"
#include "drives/clsControlZDrive.h"
#include "gui/support/PageActs.h"
#include "hub/clsK70.h"
#include "interlocks/clsInterLockObservation.h"
#include "switches/clsControlTactor.h"
#include "widgets/TextField.h"

namespace mortane::test {
namespace {

TEST(WizardNote, NamesTheMicroscope) {
  struct Row {
    const char* bench;
    const char* words;
    std::vector<std::string> arguments;
  };
  for (const Row& row :
       {Row{"Harbour", "Harbour", {}}, Row{"Quay", "Lab 2 East, Simulation", {"/SIM"}}}) {
    WizardRig rig(benches::Named(row.bench), row.arguments);
    rig.prompts.AcceptAnyBox();
    rig.Start();
    const auto& note = rig.Find<QLabel>("SessionNote");
    EXPECT_EQ(note.text(), row.words);
    EXPECT_EQ(note.accessibleName(), note.text());
    rig.form->resize(1152, 740);
    QApplication::processEvents();
    EXPECT_GE(note.width(), note.fontMetrics().horizontalAdvance(note.text()));
  }
}

TEST(WizardMarks, StandAtTheStepAndAtTheControl) {
  WizardRig rig(benches::Named("Harbour"));
  rig.Start();
  const auto marked = [&rig] {
    QTest::keyClick(rig.form.get(), Qt::Key_Shift);
    QApplication::processEvents();
    std::string steps;
    for (const StepButton* button : rig.form->ImageMenu) steps += button->isPending() ? '*' : '.';
    return steps;
  };
  EXPECT_EQ(marked(), "..........");
  auto& name = rig.Find<TextField>("TextSystemName");
  TypeInto(name, "Bay 4");
  QTest::keyClick(&name, Qt::Key_Return);
  EXPECT_EQ(marked(), "*.........");
  EXPECT_EQ(name.accessibleDescription(), "not sent: was Harbour");
  EXPECT_EQ(rig.form->ImageMenu[0]->accessibleDescription(), "Step 1, current, not sent");
  GetK70().curTactor.Func(5, 13);
  GetK70().CZDrive.curLowerLimit = 1 - GetK70().CZDrive.curLowerLimit;
  GetK70().ILObservation.Status(accessory::kNDFilter,
                                1 - GetK70().ILObservation.Status(accessory::kNDFilter));
  rig.journal.Clear();
  EXPECT_EQ(marked(), "*.....*.*.");
  EXPECT_TRUE(rig.journal.Lines().empty());
  TypeInto(name, "Harbour");
  QTest::keyClick(&name, Qt::Key_Return);
  EXPECT_EQ(marked(), "......*.*.");
  EXPECT_EQ(rig.form->ImageMenu[0]->accessibleDescription(), "Step 1, current");
}

}  // namespace
}  // namespace mortane::test
