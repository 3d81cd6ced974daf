// Reading and writing the settings file, section by section.
#include <algorithm>

#include "common/Text.h"
#include "hub/clsK70.h"

namespace mortane {
namespace {

// Kept oddity: one less than the controller takes, so a name of 15 characters is written to a file
// and refused when read.
constexpr std::size_t kLongestNameInFile = kSystemNameLength - 1;

constexpr std::int16_t kWanted = -1;

std::optional<std::size_t> FileItemOf(const std::string& element) {
  const auto* section = std::find_if(
      kFileSections.begin(), kFileSections.end(),
      [&](const FileSection& row) { return EqualsIgnoringCase(row.element, element); });
  if (section == kFileSections.end()) return std::nullopt;
  return static_cast<std::size_t>(section - kFileSections.begin());
}

bool NameMatches(const FileElement& row, const std::string& name) {
  return row.match == NameMatch::Exact ? row.name == name : EqualsIgnoringCase(row.name, name);
}

}  // namespace

void clsK70::ReadXMLItems(const std::string& fname) {
  fileItems_.fill(0);
  DomDocument document;
  const std::optional<DomNode> root = LoadSettings(fname, document);
  if (!root) return;
  for (const DomNode& child : root->Children()) {
    if (!child.IsElement()) continue;
    if (const auto fileItem = FileItemOf(child.Name())) fileItems_[*fileItem] = kWanted;
  }
}

void clsK70::ReadXML(const std::string& fname) {
  DomDocument document;
  const std::optional<DomNode> root = LoadSettings(fname, document);
  if (!root) return;
  std::string failures;
  for (const DomNode& child : root->Children()) {
    if (!child.IsElement()) continue;
    const auto fileItem = FileItemOf(child.Name());
    if (fileItem && fileItems_[*fileItem] != 0) {
      failures = AppendLine(std::move(failures), ReadSection(*fileItem, child));
    }
  }
  if (!failures.empty()) prompts().MsgBox(failures, box::kOk, "XML Read");
}

void clsK70::Tactor_ReadXML(const std::string& fname) {
  DomDocument document;
  const std::optional<DomNode> root = LoadSettings(fname, document);
  if (!root) return;
  std::string failures;
  for (const DomNode& child : root->Children()) {
    if (child.IsElement() && FileItemOf(child.Name()) == fileitem::kTactor) {
      failures = AppendLine(std::move(failures), ReadSection(fileitem::kTactor, child));
    }
  }
  if (!failures.empty()) prompts().MsgBox(failures, box::kOk, "Tactor_XML Read");
}

void clsK70::WriteXML(const std::string& fname) {
  SaveSections(fname, fileitem::kSystem, "XML File Write Error");
}

void clsK70::Tactor_WriteXML(const std::string& fname) {
  SaveSections(fname, fileitem::kTactor, "XML Tactor DataFile Write Error");
}

// The root element; nothing when the file cannot be used, after a box that says so.
std::optional<DomNode> clsK70::LoadSettings(const std::string& fname, DomDocument& document) {
  if (!document.Load(fname)) {
    prompts().MsgBox("Can't Load Xml", box::kOk);
    return std::nullopt;
  }
  for (const DomNode& child : document.Children()) {
    if (child.IsElement() && EqualsIgnoringCase(child.Name(), kSettingsRoot)) return child;
  }
  prompts().MsgBox(fname + " Other Format", box::kOk);
  return std::nullopt;
}

std::string clsK70::ReadSection(std::size_t fileItem, const DomNode& section) {
  std::string failures;
  for (const DomNode& child : section.Children()) {
    if (!child.IsElement()) continue;
    const std::string name = child.Name();
    for (const FileElement& row : fileTable_) {
      if (row.fileItem == fileItem && NameMatches(row, name)) {
        failures = AppendLine(std::move(failures), row.read(child));
      }
    }
  }
  return failures;
}

std::string clsK70::ReadSystemElement(const DomNode& element) {
  std::string failures;
  for (const DomAttribute& attribute : element.Attributes()) {
    if (!EqualsIgnoringCase(attribute.name, "NAME")) continue;
    if (CharacterCount(attribute.value) > kLongestNameInFile) {
      failures = AppendLine(std::move(failures), "SystemName = " + attribute.value);
    } else {
      SystemName = attribute.value;
    }
  }
  return failures;
}

void clsK70::WriteSection(std::size_t fileItem, DomDocument& document, DomNode& root) const {
  DomNode section = document.CreateElement(kFileSections[fileItem].element);
  for (const FileElement& row : fileTable_) {
    if (row.fileItem == fileItem && row.write) row.write(document, section);
  }
  root.Append(section);
}

// Writes the sections from index `first` on: all, or only the hand controller's, which is the last.
void clsK70::SaveSections(const std::string& fname, std::size_t first,
                          std::string_view failureText) {
  try {
    DomDocument document;
    DomNode root = document.CreateElement(kSettingsRoot);
    for (std::size_t i = first; i < kFileSections.size(); ++i) WriteSection(i, document, root);
    document.Append(root);
    document.Save(fname);
  } catch (const Failure& failure) {
    prompts().MsgBox(AppendLine(std::string(failureText), failure.Description()), box::kCritical);
  }
}

}  // namespace mortane
