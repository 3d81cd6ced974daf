// What a screen reader finds on the pages of the drives.
#pragma once

#include <QAccessible>
#include <string>
#include <vector>

#include "gui/support/AccessibleTree.h"
#include "support/Rows.h"

namespace mortane::test {

using Told = std::vector<AccessibleControl>;

inline AccessibleControl Disabled(AccessibleControl control) {
  if (control.state == "read only") {
    control.state = "disabled, read only";
  } else {
    control.state += control.state.empty() ? "disabled" : ", disabled";
  }
  return control;
}

inline Told Frame(const std::string& caption) {
  return {told::Group(caption), told::Label(caption)};
}

inline Told AllDisabled(Told all) {
  for (AccessibleControl& control : all) control = Disabled(std::move(control));
  return all;
}

inline Told Switch(const std::string& label, const std::string& name, bool on) {
  return {told::Label(label),
          {QAccessible::CheckBox, name, on ? "ON" : "OFF", on ? "checked" : "unchecked"}};
}

inline Told Escape(bool stage) {
  return Frame("Escape") + Switch("Focus Drive  ", "Focus Drive", true) +
         Switch("XY Stage", "XY Stage", stage);
}

inline Told UpperLimit() {
  return Frame("Upper Limit") + Told{told::NotChosen("ON"), told::NotChosen("OFF ( default )")};
}

inline Told Buttons(const std::vector<std::string>& names) {
  Told all{{QAccessible::CheckBox, "Is Real Move ?", "", "checked"}};
  for (const std::string& name : names) all.push_back({QAccessible::PushButton, name});
  return all;
}

// Six addresses with a field for each axis; all stand at 0.
inline Told Rows(const std::vector<std::string>& axes) {
  Told all;
  for (int number = 1; number <= 6; ++number) {
    const std::string address = "Address " + std::to_string(number);
    all.push_back(told::NotChosen(address));
    for (const std::string& axis : axes) all.push_back(told::Field(address + axis, "0"));
  }
  return all;
}

inline Told ToldOfFocusDrive() {
  const Told lowerLimit =
      Frame("Lower Limit") + Told{told::NotChosen("-15mm ( default )"), told::NotChosen("-25mm  ")};
  return Frame("Focus Drive Setting") + Escape(true) + UpperLimit() + AllDisabled(lowerLimit);
}

inline Told ToldOfLimits() {
  return Frame("Focus Drive Setting") + AllDisabled(Escape(false)) + UpperLimit() +
         Frame("Lower Limit") + Told{told::NotChosen("-15mm ( default )"), told::Chosen("-25mm  ")};
}

inline Told ToldOfTeaching() {
  return ToldOfFocusDrive() + Frame("Z Focus Correction for Pafocality") +
         Told{told::Chosen("ON ( default )"), told::NotChosen("OFF")} + Frame("Nosepiece") +
         Rows({""}) + Frame("Z Control") +
         Buttons(
             {"Up, large step", "Up, small step", "Start", "Down, small step", "Down, large step"});
}

inline Told ToldOfStage() {
  return Frame("XY Stage Setting") + Frame("Pitch adjustment to Magnification") +
         Told{told::NotChosen("Absolute"), told::Chosen("ON"), told::NotChosen("OFF")} +
         Frame("Nosepiece") + Told{told::Label("X"), told::Label("Y")} + Rows({" X", " Y"}) +
         Frame("XY Control") +
         Buttons({"Up, large step", "Up, small step", "Left, large step", "Left, small step",
                  "Start", "Right, small step", "Right, large step", "Down, small step",
                  "Down, large step"});
}

}  // namespace mortane::test
