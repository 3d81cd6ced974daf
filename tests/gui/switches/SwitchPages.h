// The pages of the switches over the units of a model, and what they show.
#pragma once

#include <string>
#include <vector>

#include "gui/switches/SwitchPageUnits.h"
#include "switches/JoypadSettings.h"
#include "switches/JoypadSwitchSettingCtl.h"
#include "switches/ReportList.h"
#include "switches/SwitchSettingCtl.h"
#include "switches/TactorSwitchSettingCtl.h"

namespace mortane::test {

// The width of a sub-page in a window of 800 x 500.
inline constexpr int kSmallestRoom = 656;

inline KnobModes KnobsOf(SwitchPageUnits& k70) {
  return {k70.COther.curAutoZ, k70.COther.curAutoXY};
}

inline SwitchSettingCtl* MakeSwitchSettingCtl(SwitchPageUnits& k70) {
  return new SwitchSettingCtl(k70.curSwitch, k70.curTactor, KnobsOf(k70));
}

inline TactorSwitchSettingCtl* MakeTactorSwitchSettingCtl(SwitchPageUnits& k70) {
  return new TactorSwitchSettingCtl(k70.curTactor, k70.curSwitch, KnobsOf(k70),
                                    {[&k70] { return k70.CXYDrive.IsEnable(); },
                                     [&k70](const std::string& path) { k70.readFile(path); },
                                     [&k70](const std::string& path) { k70.writeFile(path); }});
}

inline std::vector<std::string> Column(const ReportList& list, int column) {
  std::vector<std::string> cells;
  cells.reserve(static_cast<size_t>(list.rowCount()));
  for (int row = 0; row < list.rowCount(); ++row) {
    cells.push_back(list.cell(row, column).toStdString());
  }
  return cells;
}

template <typename Unit>
std::vector<int> CodesOf(const Unit& unit) {
  std::vector<int> codes;
  for (std::int16_t i = 1; i <= Unit::SwitchCount; ++i) codes.push_back(unit.Func(i));
  return codes;
}

template <typename Unit>
void SetCodes(Unit& unit, std::int16_t code) {
  for (std::int16_t i = 1; i <= Unit::SwitchCount; ++i) unit.Func(i, code);
}

}  // namespace mortane::test
