// The drill of the interlock pages.
#include "gui/interlocks/InterlockPages.h"
#include "gui/support/PageActs.h"
#include "gui/support/PageDrill.h"
#include "interlocks/InterlockStates.h"
#include "interlocks/clsInterLockOffset.h"
#include "support/Rows.h"

namespace mortane::test {
namespace {

// A switch on a page: its label, the accessory, and the state on the bench.
struct SwitchRow {
  const char* caption;
  std::int32_t accessory;
  int state;
};

// An array of switches that edits one table of states.
struct SwitchArray {
  const char* labels;
  const char* boxes;
  std::vector<SwitchRow> rows;
  std::function<std::int32_t(InterlockPageUnits&, std::int32_t)> state;
  std::function<void(InterlockPageUnits&, std::int32_t, std::int32_t)> put;
};

const SwitchArray kObservation{
    "lblAccessories",
    "CheckAccessories",
    {{"Lamp", 4, 1},
     {"FilterCube", 6, 1},
     {"Nosepiece", 9, 0},
     {"ND Filter", 1, 0},
     {"Light Path", 11, 0},
     {"DIA Field Stop", 2, 0},
     {"Aperture Stop", 3, 0},
     {"Zoom", 10, 0},
     {"Shutter", 7, 0},
     {"Analyzer", 8, 0},
     {"Condenser", 5, 1}},
    [](InterlockPageUnits& k70, std::int32_t k) { return k70.ILObservation.Status(k); },
    [](InterlockPageUnits& k70, std::int32_t k, std::int32_t state) {
      k70.ILObservation.Status(k, state);
    },
};

const SwitchArray kNosepiece{
    "lblNosepiece",
    "CheckNosepiece",
    {{"ND Filter", 1, 1},
     {"DIA Field Stop", 2, 0},
     {"Condenser", 5, 0},
     {"Aperture Stop", 3, 1},
     {"Z Focus", 12, 1},
     {"XY Stage", 14, 1}},
    [](InterlockPageUnits& k70, std::int32_t k) { return k70.ILOther.Status(k); },
    [](InterlockPageUnits& k70, std::int32_t k, std::int32_t state) {
      k70.ILOther.Status(k, state);
    },
};

const SwitchArray kLightPath{
    "lblLightPath",
    "CheckLightPath",
    {{"EPI Field Stop", 13, 1}, {"ND Filter", 1, 0}, {"DIA Field Stop", 2, 0}},
    [](InterlockPageUnits& k70, std::int32_t k) { return k70.ILOther.LightPathStatus(k); },
    [](InterlockPageUnits& k70, std::int32_t k, std::int32_t state) {
      k70.ILOther.LightPathStatus(k, state);
    },
};

const SwitchArray kOpticalZoom{
    "lblOpticalZoom",
    "CheckOpticalZoom",
    {{"EPI Field Stop", 13, 0}, {"ND Filter", 1, 0}, {"DIA Field Stop", 2, 1}},
    [](InterlockPageUnits& k70, std::int32_t k) { return k70.ILOther.ZoomStatus(k); },
    [](InterlockPageUnits& k70, std::int32_t k, std::int32_t state) {
      k70.ILOther.ZoomStatus(k, state);
    },
};

// `disabled` are the accessories whose switches are so.
void TellSwitches(PageDrillData& data, const SwitchArray& array,
                  const std::function<int(const SwitchRow&)>& state,
                  const std::vector<std::int32_t>& disabled = {}) {
  for (const SwitchRow& row : array.rows) {
    const bool fitted =
        std::find(disabled.begin(), disabled.end(), row.accessory) == disabled.end();
    const bool on = state(row) == 1;
    AccessibleControl label = told::Label(row.caption);
    if (!fitted) label.state = "disabled, read only";
    data.accessible.push_back(label);
    data.accessible.push_back(
        {QAccessible::CheckBox, row.caption, on ? "ON" : "OFF",
         std::string(on ? "checked" : "unchecked") + (fitted ? "" : ", disabled")});
  }
}

int AsOnHarbour(const SwitchRow& row) {
  return row.state;
}

void TellFrame(PageDrillData& data, const char* caption) {
  data.accessible.push_back(told::Group(caption));
  data.accessible.push_back(told::Label(caption));
}

// Each switch shows its state, changes it by a click and by another one.
void AddSwitches(PageDrillData& data, const SwitchArray& array) {
  for (std::size_t i = 0; i < array.rows.size(); ++i) {
    const SwitchRow& row = array.rows[i];
    const std::int32_t k = row.accessory;
    const std::string box = Numbered(array.boxes, i);
    const char* caption = row.state == 1 ? "ON" : "OFF";
    data.controls.push_back({Numbered(array.labels, i), row.caption});
    data.controls.push_back({box, caption});
    const auto value = [&array, k](InterlockPageUnits& k70) {
      return std::to_string(array.state(k70, k));
    };
    for (const int state : {0, 1}) {
      const auto change = [&array, k, state](InterlockPageUnits& k70) { array.put(k70, k, state); };
      data.shown.push_back({box, change, value, state == 1 ? "on" : "off"});
    }
    data.edits.push_back({box, caption, value, row.state == 1 ? "0" : "1"});
    data.tabOrder.push_back(box);
  }
}

PageDrillData Observation() {
  PageDrillData data;
  data.name = "Observation";
  data.without = {DrillTable::Refused};
  data.bench = "Harbour";
  data.make = MakeInterlockObservationCtl;
  data.controls = {{"FrameBase", "Observation Change to"}};
  AddSwitches(data, kObservation);
  TellFrame(data, "Observation Change to");
  TellSwitches(data, kObservation, AsOnHarbour);
  for (std::size_t i = 0; i < kObservation.rows.size(); ++i) {
    const std::int32_t k = kObservation.rows[i].accessory;
    for (const char* array : {"lblAccessories", "CheckAccessories"}) {
      data.enabling.push_back({Numbered(array, i), "Harbour", {}, true});
      data.enabling.push_back(
          {Numbered(array, i), "Harbour", [k](Bench& bench) { Unfit(bench, k); }, false});
      data.enabling.push_back({Numbered(array, i), "Watch", {}, false});
    }
  }
  return data;
}

void TellOther(PageDrillData& data) {
  TellFrame(data, "Other Interlock Settings");
  TellFrame(data, "Nosepiece Change to");
  TellSwitches(data, kNosepiece, AsOnHarbour);
  TellFrame(data, "Light Path Change to");
  TellSwitches(data, kLightPath, AsOnHarbour);
  TellFrame(data, "Zoom Change to");
  TellSwitches(data, kOpticalZoom, AsOnHarbour);
}

PageDrillData Other() {
  PageDrillData data;
  data.name = "Other";
  data.without = {DrillTable::Refused};
  data.bench = "Harbour";
  data.make = MakeInterlockOtherCtl;
  data.controls = {
      {"FrameBase", "Other Interlock Settings"},
      {"FrameNosepiece", "Nosepiece Change to"},
      {"FrameLightPath", "Light Path Change to"},
      {"FrameOpticalZoom", "Zoom Change to"},
  };
  for (const SwitchArray* array : {&kNosepiece, &kLightPath, &kOpticalZoom}) {
    AddSwitches(data, *array);
    for (std::size_t i = 0; i < array->rows.size(); ++i) {
      const std::int32_t k = array->rows[i].accessory;
      for (const char* name : {array->labels, array->boxes}) {
        data.enabling.push_back({Numbered(name, i), "Harbour", {}, true});
        data.enabling.push_back(
            {Numbered(name, i), "Harbour", [k](Bench& bench) { Unfit(bench, k); }, false});
        data.enabling.push_back({Numbered(name, i), "Shell", {}, false});
      }
    }
  }
  TellOther(data);
  return data;
}

// The stage is only sensed here, so that the version of the body is asked.
PageDrillData OtherWithoutStage() {
  PageDrillData data;
  data.name = "OtherWithoutStage";
  data.without = {DrillTable::Controls, DrillTable::Edits, DrillTable::Refused,
                  DrillTable::Enabling};
  data.bench = "Lantern";
  data.make = MakeInterlockOtherCtl;
  data.shown = {{"CheckNosepiece_4", [](InterlockPageUnits& k70) { k70.ILOther.Status(12, 1); },
                 [](InterlockPageUnits& k70) { return std::to_string(k70.ILOther.Status(12)); },
                 "on"}};
  data.tabOrder = {"CheckNosepiece_0", "CheckNosepiece_1", "CheckNosepiece_3", "CheckNosepiece_4"};
  // Nothing is on but what is unknown, and the version of the body hides the stage.
  const auto off = [](const SwitchRow&) { return 0; };
  const auto onIfUnknown = [](const SwitchRow& row) { return row.accessory == 13 ? 0 : 1; };
  SwitchArray withoutStage = kNosepiece;
  withoutStage.rows.pop_back();
  TellFrame(data, "Other Interlock Settings");
  TellFrame(data, "Nosepiece Change to");
  TellSwitches(data, withoutStage, off, {5});
  TellFrame(data, "Light Path Change to");
  TellSwitches(data, kLightPath, onIfUnknown, {13, 1, 2});
  TellFrame(data, "Zoom Change to");
  TellSwitches(data, kOpticalZoom, onIfUnknown, {13, 1, 2});
  return data;
}

struct FactorRow {
  const char* label;
  const char* caption;
  const char* list;
  std::int32_t clsInterLockOffset::*value;
  std::int32_t accessory;
};

// From the top.
constexpr FactorRow kFactorRows[] = {
    {"lblNDFilter", "ND Filter    ( default: 0.75 )", "ComboNDFilter", &clsInterLockOffset::curND,
     1},
    {"lblFieldStop", "DIA Field Stop       ( : 1.00 )", "ComboFieldStop",
     &clsInterLockOffset::curFStop, 2},
    {"lblApertureStop", "Aperture Stop        ( : 1.00 )", "ComboApertureStop",
     &clsInterLockOffset::curAStop, 3},
    {"lblEpiFieldStop", "EPI Field Stop       ( : 1.00 )", "ComboEpiFieldStop",
     &clsInterLockOffset::curEpiFStop, 13},
};

constexpr const char* kFactors[] = {"1.00", "0.95", "0.90", "0.85", "0.80",
                                    "0.75", "0.70", "0.65", "0.60", "0.55"};

void AddFactorRow(PageDrillData& data, const FactorRow& row) {
  const auto value = [field = row.value](InterlockPageUnits& k70) {
    return std::to_string(k70.ILOffset.*field);
  };
  data.controls.push_back({row.label, row.caption});
  data.controls.push_back({row.list, row.caption});
  for (std::int32_t code = 0; code < 10; ++code) {
    const auto change = [field = row.value, code](InterlockPageUnits& k70) {
      k70.ILOffset.*field = code;
    };
    data.shown.push_back({row.list, change, value, kFactors[code]});
    // The bench has code 5 for the ND filter and 0 for the others.
    if (code != (row.accessory == accessory::kNDFilter ? 5 : 0)) {
      data.edits.push_back({row.list, kFactors[code], value, std::to_string(code)});
    }
  }
  for (const char* control : {row.label, row.list}) {
    data.enabling.push_back({control, "Harbour", {}, true});
    data.enabling.push_back(
        {control, "Harbour", [k = row.accessory](Bench& bench) { Unfit(bench, k); }, false});
    data.enabling.push_back({control, "Hub", {}, false});
    data.enabling.push_back({control, "Watch", {}, false});
  }
  data.tabOrder.push_back(row.list);
  data.accessible.push_back(told::Label(row.caption));
  data.accessible.push_back(told::Label("Proper value    X"));
  data.accessible.push_back(
      told::Combo(row.caption, row.accessory == accessory::kNDFilter ? "0.75" : "1.00"));
}

PageDrillData Compensation() {
  PageDrillData data;
  data.name = "Compensation";
  data.without = {DrillTable::Refused};
  data.bench = "Harbour";
  data.make = MakeInterlockOffsetCtl;
  data.controls = {
      {"FrameBase", "Compensation"},
      {"Label2", "The compensation setting puts the compensation on the proper value. "},
  };
  for (std::size_t i = 0; i < 4; ++i) {
    data.controls.push_back({Numbered("Label1", i), "Proper value    X"});
  }
  TellFrame(data, "Compensation");
  for (const FactorRow& row : kFactorRows) AddFactorRow(data, row);
  data.accessible.push_back(
      told::Label("The compensation setting puts the compensation on the proper value. "));
  return data;
}

PageDrillData Settings() {
  PageDrillData data;
  data.name = "Settings";
  data.without = {DrillTable::Refused, DrillTable::Enabling};
  data.bench = "Harbour";
  data.make = MakeInterlockSettingsCtl;
  data.controls = {
      {"Header", ""},
      {"optSettings_0", "Observation"},
      {"optSettings_1", "Other"},
      {"optSettings_2", "Compensation"},
      {"InterlockObservationCtl1", ""},
      {"InterlockOtherCtl1", ""},
      {"InterlockOffsetCtl1", ""},
  };
  AddSwitches(data, kObservation);
  data.tabOrder.insert(data.tabOrder.begin(), "optSettings_0");
  data.accessible = {told::Heading("Interlocks"), told::Group("Interlocks"),
                     told::Chosen("Observation"), told::NotChosen("Other"),
                     told::NotChosen("Compensation")};
  TellFrame(data, "Observation Change to");
  TellSwitches(data, kObservation, AsOnHarbour);
  return data;
}

INSTANTIATE_TEST_SUITE_P(Interlocks, PageDrill,
                         testing::Values(Observation(), Other(), OtherWithoutStage(),
                                         Compensation(), Settings()),
                         PageDrillName);

}  // namespace
}  // namespace mortane::test
