#include "ctl/SettingsInput.h"

#include <algorithm>
#include <array>
#include <istream>

#include "common/Failure.h"
#include "common/Text.h"
#include "ctl/Outcome.h"
#include "hub/clsK70.h"
#include "platform/AtomicFile.h"

namespace mortane::ctl {
namespace {

std::string ReadAll(std::istream& in) {
  std::string bytes;
  std::array<char, 65536> piece{};
  while (in.read(piece.data(), piece.size()) || in.gcount() > 0) {
    bytes.append(piece.data(), static_cast<std::size_t>(in.gcount()));
    if (bytes.size() > kLargestFile) Refuse("the standard input is too large");
  }
  if (in.bad()) Refuse("cannot read the standard input");
  return bytes;
}

bool IsSettings(const DomDocument& document) {
  const std::vector<DomNode> roots = document.Children();
  return std::any_of(roots.begin(), roots.end(), [](const DomNode& root) {
    return root.IsElement() && EqualsIgnoringCase(root.Name(), kSettingsRoot);
  });
}

std::string KnownSections() {
  std::string names;
  for (const FileSection& section : kFileSections) {
    if (!names.empty()) names += ", ";
    names += section.element;
  }
  return names;
}

}  // namespace

std::string NameOfFile(const std::string& path) {
  return path == kStandardStream ? "the standard input" : path;
}

DomDocument ReadSettings(const std::string& path, Surroundings& surroundings) {
  DomDocument document;
  if (path == kStandardStream) {
    if (!document.LoadText(ReadAll(surroundings.in))) {
      Refuse("the standard input: " + document.Problem());
    }
  } else if (path.empty()) {
    Refuse("the name of a file is empty");
  } else if (!document.Load(path)) {
    Refuse(document.Problem());
  }
  if (!IsSettings(document)) {
    Refuse(NameOfFile(path) + ": no settings file, its root is not " + std::string(kSettingsRoot));
  }
  return document;
}

std::vector<std::size_t> SectionsNamed(const std::vector<std::string>& names) {
  std::vector<std::size_t> items;
  for (std::size_t i = 0; i < kFileSections.size(); ++i) {
    if (names.empty()) items.push_back(i);
  }
  for (const std::string& name : names) {
    const auto* const section = std::find_if(
        kFileSections.begin(), kFileSections.end(),
        [&](const FileSection& row) { return EqualsIgnoringCase(row.element, Trim(name)); });
    if (section == kFileSections.end()) {
      Refuse("no section is called \"" + name + "\"; the sections are " + KnownSections());
    }
    items.push_back(static_cast<std::size_t>(section - kFileSections.begin()));
  }
  return items;
}

std::vector<std::string> TakeSections(clsK70& k70, ConsolePrompts& prompts,
                                      const DomDocument& document, const std::string& name,
                                      const std::vector<std::size_t>& sections) {
  k70.ReadItems(document, name);
  for (std::size_t item = 0; item < kFileSections.size(); ++item) {
    const bool wanted = std::find(sections.begin(), sections.end(), item) != sections.end();
    if (!wanted) k70.FileItem(static_cast<std::int16_t>(item), 0);
  }
  try {
    k70.ReadSections(document, name);
  } catch (const Failure& failure) {
    Refuse(name + ": " + failure.Description());
  }
  return prompts.TakeLines();
}

}  // namespace mortane::ctl
