// The functions' names as people know them, for comparison with what the program offers.
#pragma once

#include <string>
#include <vector>

namespace mortane::test {

using Names = std::vector<std::string>;

inline constexpr const char* kDashes = "-----------------";

// Each at the place of its code.
inline const Names& AllNames() {
  static const Names names{kDashes,
                           "Objective CW",
                           "Objective CCW",
                           "Z Focus Knob Speed Change",
                           "Z Escape",
                           "DIA Lamp Preset",
                           "LightPath Change",
                           "DIA Field Stop OPEN",
                           "DIA Field Stop CLOSE",
                           "DIA Aperture Stop OPEN",
                           "DIA Aperture Stop CLOSE",
                           "Filter Cube CW",
                           "Filter Cube CCW",
                           "Shutter OPEN/CLOSE",
                           "Condenser CW",
                           "Condenser CCW",
                           "ND Filter BRIGHT",
                           "ND Filter DARK",
                           "DIA Lamp UP",
                           "DIA Lamp DOWN",
                           "Optical Zoom UP",
                           "Optical Zoom DOWN",
                           "Epi Field Stop OPEN",
                           "Epi Field Stop CLOSE",
                           "Analyzer IN/OUT",
                           "XYstage Knob Speed Change",
                           "DIA Lamp ON/OFF",
                           "Auto Focus",
                           "Image Capture ",
                           "Observation Brightfield",
                           "Observation DIC",
                           "Observation DIC/FL",
                           "Observation Fluorescence",
                           "Observation Phase Contrast",
                           "Observation Darkfield",
                           "Optional Observation 1",
                           "Optional Observation 2",
                           "Optional Observation 3",
                           "Optional Observation 4",
                           "Optional Observation 5",
                           "Optional Observation 6",
                           "DIC <-> Brightfield",
                           "DIC/FL <-> Brightfield",
                           "Fluorescence <-> Brightfield",
                           "Phase Contrast <-> Brightfield",
                           "Darkfield <-> Brightfield",
                           "Option 1 <-> Brightfield",
                           "Option 2 <-> Brightfield",
                           "Option 3 <-> Brightfield",
                           "Option 4 <-> Brightfield",
                           "Option 5 <-> Brightfield",
                           "Option 6 <-> Brightfield"};
  return names;
}

inline Names DialNames() {
  return {kDashes,
          "Objective CW/CCW",
          "DIA Field Stop OPEN/CLOSE",
          "DIA Aperture Stop OPEN/CLOSE",
          "Filter Cube CW/CCW",
          "Condenser CW/CCW",
          "ND Filter BRIGHT/DARK",
          "DIA Lamp UP/DOWN",
          "Optical Zoom UP/DOWN",
          "Epi Field Stop OPEN/CLOSE"};
}

// Those that change the observation, codes 41 to 51, close the list.
inline Names PushNames() {
  Names names{kDashes,
              "Z Focus Knob Speed Change",
              "Z Escape",
              "DIA Lamp Preset",
              "LightPath Change",
              "Shutter OPEN/CLOSE",
              "Optical Zoom UP",
              "Optical Zoom DOWN",
              "Analyzer IN/OUT",
              "XYstage Knob Speed Change",
              "DIA Lamp ON/OFF",
              "Auto Focus",
              "Image Capture "};
  names.insert(names.end(), AllNames().begin() + 41, AllNames().end());
  return names;
}

}  // namespace mortane::test
