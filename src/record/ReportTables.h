// The content of a record, before it gets the form of a file.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "record/Report.h"
#include "record/TurretSvg.h"

namespace mortane {

struct ReportRow {
  std::string name;
  std::string value;
  std::string before;  // in words, of a row that changed
  bool changed = false;
};

struct ReportSection {
  std::string title;
  std::string drawingOf;  // what the turret is; empty without one
  TurretKindDrawn drawing = TurretKindDrawn::Objectives;
  std::vector<TurretPlace> places;
  std::vector<ReportRow> rows;
};

// Name of the system, device, time and version.
std::vector<ReportRow> HeadRows(const ReportContent& content);
// What changed, with old and new; nothing without an earlier state.
std::vector<ReportRow> ChangedRows(const ReportContent& content);
// Sections that have rows, in the order of the windows.
std::vector<ReportSection> SectionsOf(const ReportContent& content);

}  // namespace mortane
