// The record of a microscope's configuration, for people: one HTML file, or plain text.
#pragma once

#include <chrono>
#include <optional>
#include <string>
#include <vector>

#include "record/Comparison.h"

namespace mortane {

struct ReportContent {
  ConfigurationState state;
  // An earlier state: what changed since stands on top, and is marked in the tables.
  std::optional<ConfigurationState> before;
  std::string device;   // or the file that the state comes from
  std::string time;     // with its zone, as LocalTime gives it
  std::string version;  // of the program
  // Lines of what is mounted; empty for a state out of a file.
  std::vector<std::string> accessories;
};

// "2026-11-22 05:12:33 +0100" in the zone of the system.
std::string LocalTime(std::chrono::system_clock::time_point time);

// What is mounted on the connected microscope, and how.
std::vector<std::string> AccessoriesOf(const clsK70& k70);

// A file that needs nothing beside it, in UTF-8, for A4 and Letter. Whatever a value holds stays
// within its place: all of it is escaped, and its direction of writing ends with it.
std::string ReportAsHtml(const ReportContent& content);

// Lines of at most 80 characters, ended by "\n".
std::string ReportAsText(const ReportContent& content);

}  // namespace mortane
