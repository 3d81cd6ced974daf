// The drill of the wizard's own pages.
#include "gui/support/PageDrill.h"
#include "gui/support/PageRig.h"
#include "wizard/SelSetupItemCtl.h"

namespace mortane::test {
namespace {

PageDrillData SetupItems() {
  PageDrillData data;
  data.name = "SetupItems";
  data.without = {DrillTable::Shown, DrillTable::Edits, DrillTable::Refused};
  data.bench = "Harbour";
  data.make = [](clsK70& k70) -> Page* { return new SelSetupItemCtl(k70); };
  data.controls = {{"optSetupMode_0", "Standard"},
                   {"optSetupMode_1", "Custom"},
                   {"optSetupMode_2", "File"},
                   {"ListStandard", "Standard"},
                   {"ListCustom", "Custom"}};
  data.enabling = {{"ListStandard", "Harbour", {}, false}, {"ListCustom", "Harbour", {}, false}};
  data.tabOrder = {"optSetupMode_0"};
  data.accessible = {told::Heading("Setup Items"),
                     told::Chosen("Standard"),
                     told::NotChosen("Custom"),
                     told::NotChosen("File"),
                     {QAccessible::List, "Standard", "", "disabled"},
                     {QAccessible::List, "Custom", "Objective", "disabled"}};
  return data;
}

INSTANTIATE_TEST_SUITE_P(Wizard, PageDrill, testing::Values(SetupItems()), PageDrillName);

}  // namespace
}  // namespace mortane::test
