// The record as one HTML file.
#include "record/Report.h"
#include "record/ReportTables.h"
#include "record/SafeText.h"

namespace mortane {
namespace {

constexpr std::string_view kTitle = "Microscope configuration";

// Black and white first: what changed is told by a mark and by bold letters.
constexpr std::string_view kStyle = R"(
@page { margin: 16mm; }
body { font: 10.5pt/1.4 "DejaVu Sans", Arial, Helvetica, sans-serif; color: #000; background: #fff;
  max-width: 60em; margin: 1.5em auto; padding: 0 1em; }
h1 { font-size: 1.6em; margin: 0 0 .4em; }
h2 { font-size: 1.2em; margin: 1.4em 0 .4em; border-bottom: 1px solid #000; break-after: avoid; }
table { border-collapse: collapse; width: 100%; table-layout: fixed; }
th, td { border: 1px solid #777; padding: .2em .5em; text-align: left; vertical-align: top;
  overflow-wrap: anywhere; }
thead { display: table-header-group; }
thead th { background: #eee; }
tbody th { font-weight: normal; width: 38%; }
tr { break-inside: avoid; }
tr.changed th, tr.changed td { font-weight: bold; }
svg.turret { display: block; margin: .5em auto; break-inside: avoid; break-after: avoid;
  font-family: inherit; }
ul { columns: 2; margin: .3em 0; }
@media print { body { margin: 0; padding: 0; max-width: none; } }
)";

// A value keeps its direction of writing to itself.
std::string Cell(const std::string& value) {
  return "<bdi>" + Escaped(value) + "</bdi>";
}

std::string Table(const std::vector<std::string_view>& heads, const std::string& rows) {
  std::string table = "<table>\n<thead><tr>";
  for (const std::string_view head : heads) {
    table += "<th scope=\"col\">" + std::string(head) + "</th>";
  }
  return table + "</tr></thead>\n<tbody>\n" + rows + "</tbody>\n</table>\n";
}

std::string HeadTable(const std::vector<ReportRow>& rows) {
  std::string html = "<table>\n<tbody>\n";
  for (const ReportRow& row : rows) {
    html +=
        "<tr><th scope=\"row\">" + Cell(row.name) + "</th><td>" + Cell(row.value) + "</td></tr>\n";
  }
  return html + "</tbody>\n</table>\n";
}

std::string Changes(const ReportContent& content) {
  if (!content.before) return {};
  const std::vector<ReportRow> changed = ChangedRows(content);
  if (changed.empty()) return "<h2>Changes</h2>\n<p>Nothing has changed.</p>\n";
  std::string rows;
  for (const ReportRow& row : changed) {
    rows += "<tr><th scope=\"row\">" + Cell(row.name) + "</th><td>" + Cell(row.before) +
            "</td><td>" + Cell(row.value) + "</td></tr>\n";
  }
  return "<h2>Changes</h2>\n" + Table({"Item", "Before", "Now"}, rows);
}

std::string Accessories(const std::vector<std::string>& lines) {
  if (lines.empty()) return {};
  std::string html = "<h2>Accessories</h2>\n<ul>\n";
  for (const std::string& line : lines) html += "<li>" + Cell(line) + "</li>\n";
  return html + "</ul>\n";
}

std::string Section(const ReportSection& section) {
  std::string html = "<h2>" + Escaped(section.title) + "</h2>\n";
  if (!section.drawingOf.empty()) {
    html += TurretSvg(section.drawing, section.drawingOf, section.places) + "\n";
  }
  std::string rows;
  for (const ReportRow& row : section.rows) {
    const std::string mark = row.changed ? "\xE2\x97\x8F " : "";
    rows += (row.changed ? "<tr class=\"changed\">" : "<tr>");
    rows += "<th scope=\"row\">" + mark + Cell(row.name) + "</th><td>" + Cell(row.value) +
            "</td></tr>\n";
  }
  return html + Table({"Item", "Value"}, rows);
}

}  // namespace

std::string ReportAsHtml(const ReportContent& content) {
  std::string html =
      "<!DOCTYPE html>\n<html lang=\"en\">\n<head>\n<meta charset=\"utf-8\">\n<title>" +
      std::string(kTitle) + "</title>\n<style>" + std::string(kStyle) +
      "</style>\n</head>\n<body>\n<h1>" + std::string(kTitle) + "</h1>\n";
  html += HeadTable(HeadRows(content));
  html += Changes(content);
  html += Accessories(content.accessories);
  for (const ReportSection& section : SectionsOf(content)) html += Section(section);
  return html + "</body>\n</html>\n";
}

}  // namespace mortane
