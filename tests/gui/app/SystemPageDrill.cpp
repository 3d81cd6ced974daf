// The drill of the system page.
#include "app/SystemSettingsCtl.h"
#include "gui/support/PageActs.h"
#include "gui/support/PageDrill.h"
#include "gui/support/PageRig.h"
#include "hub/clsK70.h"

namespace mortane::test {
namespace {

constexpr char kReport[] =
    "Mounted Accessories\n"
    "\tAnalyzer Control\n"
    "\tDIA Aperture Stop Control\n"
    "\tCondenser Control\n"
    "\tEpi Field Stop Control\n"
    "\tEpi Shutter Control\n"
    "\tFilter Cube Control\n"
    "\tDIA Field Stop Control\n"
    "\tDIA Lamp Control\n"
    "\tLightPath Control\n"
    "\tND Filter Control\n"
    "\tNosepiece Control\n"
    "\tOptical Zoom Control\n"
    "\tXY Stage Control\n"
    "\tZ Focus Drive Control\n"
    "\n"
    "Not Mounted Accessories\n";

std::function<void(clsK70&)> Name(const char* name) {
  return [name](clsK70& k70) { k70.SystemName = name; };
}

std::string NameOf(clsK70& k70) {
  return k70.SystemName;
}

PageDrillData SystemPage() {
  PageDrillData data;
  data.name = "System";
  data.without = {DrillTable::Refused, DrillTable::Enabling};
  data.bench = "Harbour";
  data.make = [](clsK70& k70) -> Page* { return new SystemSettingsCtl(k70); };
  data.controls = {{"Header", ""}, {"SystemNameCtl1", ""}, {"Label1", "System Name:"}};
  data.shown = {
      {"TextSystemName", Name("Lab 2"), NameOf, "Lab 2"},
      {"TextSystemName", Name("  "), NameOf, "NoName"},
  };
  data.edits = {
      {"TextSystemName", "Bay 4", NameOf, "Bay 4"},
      {"TextSystemName", "", NameOf, ""},
  };
  data.tabOrder = {"TextSystemName", "TextAccessories"};
  data.accessible = {
      told::Heading("System"),
      told::Label("System Name:"),
      told::Field("System Name:", "Harbour"),
      {QAccessible::EditableText, "Accessories", kReport, "read only"},
  };
  return data;
}

INSTANTIATE_TEST_SUITE_P(System, PageDrill, testing::Values(SystemPage()), PageDrillName);

}  // namespace
}  // namespace mortane::test
