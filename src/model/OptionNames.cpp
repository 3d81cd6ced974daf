#include "model/OptionNames.h"

#include "common/CheckedIndex.h"
#include "model/ElementFields.h"
#include "model/OptionRecords.h"

namespace mortane {

OptionNames::OptionNames(const NameListKind& kind)
    : kind_(kind), names_(static_cast<std::size_t>(kind.optionBase + kOptionPositions + 1)) {}

bool OptionNames::Has(std::int32_t code) const {
  return code >= 0 && static_cast<std::size_t>(code) < names_.size();
}

// Index of a code that the controller named. Raises a failure for a code outside the list.
std::size_t OptionNames::IndexOf(std::int32_t code) const {
  return CheckedIndex(code, 0, names_.size());
}

std::string OptionNames::Name(std::int32_t code) const {
  return Has(code) ? names_[IndexOf(code)] : std::string();
}

void OptionNames::Name(std::int32_t code, std::string_view name) {
  if (Has(code)) names_[IndexOf(code)] = FirstCharacters(name, kOptionNameLength);
}

std::int32_t OptionNames::FixedCount(const ConnectedMicroscope& microscope) const {
  try {
    return (microscope.Mic.AccessoryDatabase().*kind_.fixedCount)();
  } catch (const Failure&) {
    return 0;
  }
}

std::string OptionNames::Read(const ConnectedMicroscope& microscope) {
  names_.assign(names_.size(), {});
  if (microscope.IsMounted(kind_.accessory) == kNotMounted) return {};
  return FailureOf(kind_.failureLabel, [&] {
    ForEachRecord(kind_.records(microscope.Mic.AccessoryDatabase()),
                  [&](const controller::DatabaseRecord& record) {
                    const std::size_t index = IndexOf(record.Code());
                    names_[index] = record.Name();
                  });
  });
}

bool OptionNames::Differs(const controller::DatabaseRecord& record, std::int32_t code) const {
  return RightTrim(record.Name()) != RightTrim(names_[IndexOf(code)]);
}

std::string OptionNames::Modify(const ConnectedMicroscope& microscope, std::string& list) const {
  return CollectDifferences(list, kind_.failureLabel, [&](std::string& lines) {
    ForEachOption(kind_.records(microscope.Mic.AccessoryDatabase()),
                  [&](const controller::DatabaseRecord& record) {
                    const std::int32_t code = record.Code();
                    if (!Differs(record, code)) return;
                    lines =
                        AppendLine(lines, ItemLine(kind_.differenceLabel, code - kind_.optionBase) +
                                              " " + Name(code));
                  });
  });
}

std::string OptionNames::Write(const ConnectedMicroscope& microscope) const {
  WriteReport report(kind_.failureLabel);
  report.Run([&] {
    WriteEachOption(report, kind_.records(microscope.Mic.AccessoryDatabase()),
                    [&](const controller::DatabaseRecord& record) {
                      const std::int32_t code = record.Code();
                      const std::string line = ItemLine(kind_.writeLabel, code - kind_.optionBase);
                      report.Add(LineIfFailed(line, [&] {
                        if (Differs(record, code)) record.PutName(names_[IndexOf(code)]);
                      }));
                    });
  });
  return report.Lines();
}

std::string OptionNames::ReadDom(const DomNode& node) {
  const ElementFields fields(node);
  const std::int32_t position = fields.Number("POSITION");
  const std::string name = RightTrim(fields.Text("NAME"));
  if (!IsOptionPosition(position) || CharacterCount(name) > kOptionNameLength) {
    return ItemLine(kind_.writeLabel, position);
  }
  names_[IndexOf(kind_.optionBase + position)] = name;
  return {};
}

void OptionNames::WriteDom(DomDocument& document, DomNode section) const {
  for (std::int32_t position = 1; position <= kOptionPositions; ++position) {
    DomNode element = document.CreateElement(kind_.element);
    element.SetAttribute("POSITION", std::to_string(position));
    element.SetAttribute("NAME", Name(kind_.optionBase + position));
    section.Append(element);
  }
}

}  // namespace mortane
