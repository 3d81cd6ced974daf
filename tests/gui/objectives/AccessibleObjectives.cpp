#include "gui/objectives/AccessibleObjectives.h"

namespace mortane::test {

std::vector<AccessibleControl> AccessibleNosepiece() {
  return {
      told::Group("Set Objective Data to Each Address"),
      told::Label("Set Objective Data to Each Address"),
      told::Tabs("Address", "1"),
      told::Group("Nosepiece"),
      told::Chosen("Address 1, 2x, Plan A 2x"),
      told::NotChosen("Address 2, 10x, Plan A 10x Ph"),
      told::NotChosen("Address 3, 100x, Plan A 100x Oil"),
      told::NotChosen("Address 4, 40x, Plan F 40x"),
      told::NotChosen("Address 5, 20x, Super C 20x"),
      told::NotChosen("Address 6, 100x, Super C100x Oil"),
      told::List("Series", "Plan A"),
      told::List("Objectives", "Type Macro, Mag. 2x, W.D. 8.5, N.A. 0.06, Name Plan A 2x"),
      told::Label("Series"),
      told::Value("Series", "Plan A"),
      told::Label("Type"),
      told::Value("Type", "Macro"),
      told::Label("Mag."),
      told::Value("Mag.", "2x"),
      told::Label("W.D."),
      told::Value("W.D.", "8.5"),
      told::Label("N.A."),
      told::Value("N.A.", "0.06"),
      told::Label("Name"),
      told::Value("Name", "Plan A 2x"),
  };
}

std::vector<AccessibleControl> AccessibleOptionalObjectives() {
  return {
      told::Group("Add Optional Objective Data to the List"),
      told::Label("Add Optional Objective Data to the List"),
      told::Tabs("Position", "1"),
      told::Label("Name"),
      told::Field("Name", "Clinic 25x"),
      told::Label("Series"),
      told::Value("Series", "Plan F"),
      told::List("Series", "Plan F"),
      told::Label("Type"),
      told::Value("Type", "Water"),
      told::List("Type", "Water"),
      told::Label("Mag."),
      told::Field("Mag.", "25"),
      told::Label("x"),
      told::List("Mag.", ""),
      told::Label("W.D."),
      told::Field("W.D.", "1.98"),
      told::Label("N.A."),
      told::Field("N.A.", "0.95"),
      told::Group("Adoptive"),
      told::Label("Adoptive"),
      told::Label("DIC / Ph Condenser"),
      told::Combo("DIC / Ph Condenser", "Ph 2"),
  };
}

std::vector<AccessibleControl> AccessibleLimits() {
  const char* const safety =
      "Safety Setting (Change from 2.0x / Lower Obj. to 1 mm / Less W.D. Obj. )";
  return {
      told::Group("Limitation Controls"),
      told::Label("Limitation Controls"),
      told::Group(safety),
      told::Chosen("Free (default)"),
      told::NotChosen("No Rotation"),
      told::NotChosen("Rotate After Stage going down"),
      told::Label(std::string(" ") + safety),
      told::Group("Empty Position"),
      told::Label("Empty Position"),
      told::Chosen("Use (default)"),
      told::NotChosen("Skip"),
      told::Label("Rotate With Skipping empty data position"),
      told::Group("Immersion Objective IN/OUT Control"),
      told::Label("Immersion Objective IN/OUT Control"),
      told::Chosen("Free (default)"),
      told::NotChosen("No Rotation"),
      told::NotChosen("Rotate After Stage going down"),
      told::Label("Rotate Immersion Type"),
      told::Label(
          "Limitation Controls are effective after rotating the nosepiece with interlock mode."),
      told::Label(
          "These functions are effective for rotating the nosepiece by buttons on the microscope"),
  };
}

}  // namespace mortane::test
