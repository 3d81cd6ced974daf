// The record as plain text of 80 columns.
#include <algorithm>

#include "common/Text.h"
#include "record/Report.h"
#include "record/ReportTables.h"
#include "record/SafeText.h"

namespace mortane {
namespace {

constexpr std::size_t kWidth = 80;
constexpr std::size_t kNameWidth = 36;  // of the first column, with its mark
constexpr std::size_t kGap = 2;

void AddLine(std::string& text, const std::string& line) {
  text += RightTrim(line) + "\n";
}

void AddHeading(std::string& text, const std::string& title) {
  AddLine(text, {});
  AddLine(text, title);
  AddLine(text, std::string(std::min(CharacterCount(title), kWidth), '-'));
}

std::string Filled(const std::string& line, std::size_t width) {
  const std::size_t length = CharacterCount(line);
  return line + std::string(width > length ? width - length : 0, ' ');
}

// Name and value side by side, each in its column.
void AddRow(std::string& text, const std::string& mark, const std::string& name,
            const std::string& value) {
  const std::vector<std::string> names = Wrapped(Plain(name), kNameWidth - 2);
  const std::vector<std::string> values = Wrapped(Plain(value), kWidth - kNameWidth - kGap);
  for (std::size_t i = 0; i < std::max(names.size(), values.size()); ++i) {
    const std::string left = (i == 0 ? mark : "  ") + (i < names.size() ? names[i] : "");
    AddLine(text, Filled(left, kNameWidth + kGap) + (i < values.size() ? values[i] : ""));
  }
}

void AddChanges(std::string& text, const ReportContent& content) {
  if (!content.before) return;
  AddHeading(text, "Changes");
  const std::vector<ReportRow> changed = ChangedRows(content);
  if (changed.empty()) AddLine(text, "Nothing has changed.");
  for (const ReportRow& row : changed)
    AddRow(text, "  ", row.name, row.before + " -> " + row.value);
}

}  // namespace

std::string ReportAsText(const ReportContent& content) {
  std::string text = "Microscope configuration\n========================\n";
  for (const ReportRow& row : HeadRows(content)) AddRow(text, "  ", row.name, row.value);
  AddChanges(text, content);
  if (!content.accessories.empty()) {
    AddHeading(text, "Accessories");
    for (const std::string& line : content.accessories) AddRow(text, "  ", line, {});
  }
  for (const ReportSection& section : SectionsOf(content)) {
    AddHeading(text, section.title);
    for (const ReportRow& row : section.rows) {
      AddRow(text, row.changed ? "* " : "  ", row.name, row.value);
    }
  }
  return text;
}

}  // namespace mortane
