// Reading and writing the settings file, section by section.
#include <algorithm>
#include <optional>

#include "common/Failure.h"
#include "common/Text.h"
#include "hub/clsK70.h"

namespace mortane {
namespace {

// Kept: one less than the controller takes, so a name of 15 characters is written to a file
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
  DomDocument document;
  ReadXMLItems(fname, document);
}

bool clsK70::ReadXMLItems(const std::string& fname, DomDocument& document) {
  fileItems_.fill(0);
  if (!Load(fname, document)) return false;
  ReadItems(document, fname);
  return true;
}

bool clsK70::ReadXML(const std::string& fname) {
  DomDocument document;
  return Load(fname, document) && ReadSections(document, fname);
}

void clsK70::ReadItems(const DomDocument& document, const std::string& name) {
  fileItems_.fill(0);
  const auto sections = SectionsOf(document, name);
  if (!sections) return;
  for (const DomNode& child : *sections) {
    if (const auto fileItem = FileItemOf(child.Name())) fileItems_[*fileItem] = kWanted;
  }
}

bool clsK70::ReadSections(const DomDocument& document, const std::string& name) {
  const auto sections = SectionsOf(document, name);
  if (!sections) return false;
  std::string failures;
  for (const DomNode& child : *sections) {
    const auto fileItem = FileItemOf(child.Name());
    if (fileItem && fileItems_[*fileItem] != 0) {
      failures = AppendLine(std::move(failures), ReadSection(*fileItem, child));
    }
  }
  if (!failures.empty()) prompts().MsgBox(failures, box::kOk, "XML Read");
  return failures.empty();
}

void clsK70::Tactor_ReadXML(const std::string& fname) {
  DomDocument document;
  if (!Load(fname, document)) return;
  const auto sections = SectionsOf(document, fname);
  if (!sections) return;
  std::string failures;
  for (const DomNode& child : *sections) {
    if (FileItemOf(child.Name()) == fileitem::kTactor) {
      failures = AppendLine(std::move(failures), ReadSection(fileitem::kTactor, child));
    }
  }
  if (!failures.empty()) prompts().MsgBox(failures, box::kOk, "Tactor_XML Read");
}

bool clsK70::WriteXML(const std::string& fname) {
  return SaveSections(fname, fileitem::kSystem, "XML File Write Error");
}

void clsK70::Tactor_WriteXML(const std::string& fname) {
  SaveSections(fname, fileitem::kTactor, "XML Tactor DataFile Write Error");
}

bool clsK70::Load(const std::string& fname, DomDocument& document) {
  if (document.Load(fname)) return true;
  prompts().MsgBox("Can't Load Xml", box::kOk);
  return false;
}

// The elements below the root; nothing for another root, after a box that says so.
std::optional<std::vector<DomNode>> clsK70::SectionsOf(const DomDocument& document,
                                                       const std::string& name) {
  for (const DomNode& root : document.Children()) {
    if (!root.IsElement() || !EqualsIgnoringCase(root.Name(), kSettingsRoot)) continue;
    std::vector<DomNode> sections = root.Children();
    std::erase_if(sections, [](const DomNode& child) { return !child.IsElement(); });
    return sections;
  }
  prompts().MsgBox(name + " Other Format", box::kOk);
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

// The sections from index `first` on: all, or only the hand controller's, which is the last.
void clsK70::WriteSections(DomDocument& document, std::size_t first) const {
  DomNode root = document.CreateElement(kSettingsRoot);
  for (std::size_t i = first; i < kFileSections.size(); ++i) WriteSection(i, document, root);
  document.Append(root);
}

bool clsK70::SaveSections(const std::string& fname, std::size_t first,
                          std::string_view failureText) {
  try {
    DomDocument document;
    WriteSections(document, first);
    document.Save(fname);
    return true;
  } catch (const Failure& failure) {
    prompts().MsgBox(AppendLine(std::string(failureText), failure.Description()), box::kCritical);
    return false;
  }
}

}  // namespace mortane
