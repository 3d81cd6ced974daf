// What the rows of test data are written with.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "controller/simulator/Bench.h"
#include "model/ConnectedMicroscope.h"

namespace mortane::test {

using Lines = std::vector<std::string>;

template <typename Row>
std::vector<Row> operator+(std::vector<Row> first, const std::vector<Row>& second) {
  first.insert(first.end(), second.begin(), second.end());
  return first;
}

// "optSettings_0": an element of an array of controls.
template <typename Index>
std::string Numbered(std::string_view array, Index index) {
  return std::string(array) + "_" + std::to_string(index);
}

// Makes IsMounted of the accessory kNotMounted, kSensorOnly or kControllable.
inline void Fit(controller::Instrument& instrument, std::int32_t accessory, std::int32_t mounted) {
  controller::AccessoryData& data = instrument.Accessory(accessory);
  data.state = mounted == kNotMounted ? 0 : 1;
  data.readOnly = mounted == kSensorOnly;
}

// Takes the accessory from the last instrument of the bench.
inline void Unfit(controller::Bench& bench, std::int32_t accessory) {
  Fit(bench.instruments.back(), accessory, kNotMounted);
}

// The same as a function of the bench alone.
template <std::int32_t Accessory>
void Without(controller::Bench& bench) {
  Unfit(bench, Accessory);
}

// Lets only these controller units answer, counted from 0.
inline void SetUnits(controller::Instrument& instrument, const std::vector<int>& units) {
  for (int unit = 1; unit <= 7; ++unit) instrument.Unit(unit) = {};
  for (const int unit : units) instrument.Unit(unit + 1) = {1, "V1.30"};
}

}  // namespace mortane::test
