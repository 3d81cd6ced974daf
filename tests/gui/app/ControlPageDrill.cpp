// The drill for the page of the drives and controls, over sub-pages that show nothing.
#include "gui/app/ControlPages.h"
#include "gui/support/PageDrill.h"

namespace mortane::test {
namespace {

// What the page works with beside the model, as long as the program runs.
struct Surroundings {
  controller::SimulatedLibrary library{benches::Named("Quay")};
  ScriptedPrompts prompts;
  ScriptedJoystick joystick;
  Lines calls;
};

Page* MakePage(clsK70& k70) {
  static Surroundings around;
  return new ControlSettingsCtl({k70, around.library, around.prompts, around.joystick, {}},
                                MakeFakeSubPages(around.calls));
}

PageDrillData Controls(const char* bench) {
  PageDrillData data;
  data.name = bench;
  data.bench = bench;
  data.without = {DrillTable::Shown, DrillTable::Edits, DrillTable::Refused, DrillTable::Enabling};
  data.make = MakePage;
  data.controls = {{"optControl_0", "Focus Drive"},   {"optControl_1", "XY Stage"},
                   {"optControl_2", "Other"},         {"optControl_3", "K70 Switch"},
                   {"optControl_4", "Tactor Switch"}, {"optControl_5", "Joypad Switch"}};
  data.tabOrder = {"optControl_1"};
  data.accessible = {told::Heading("Controls"),        told::Group("Controls"),
                     told::NotChosen("Focus Drive"),   told::Chosen("XY Stage"),
                     told::NotChosen("Other"),         told::NotChosen("K70 Switch"),
                     told::NotChosen("Tactor Switch"), told::NotChosen("Joypad Switch")};
  return data;
}

INSTANTIATE_TEST_SUITE_P(ControlPage, PageDrill,
                         testing::Values(Controls("Quay"), Controls("Harbour")), PageDrillName);

}  // namespace
}  // namespace mortane::test
