// The names of one list of the controller's accessory database, of which the user edits nine.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "controller/AccessoryDatabase.h"
#include "document/Dom.h"
#include "model/ConnectedMicroscope.h"
#include "model/OptionCodes.h"

namespace mortane {

// Constants of one list. Labels end with the bracket that opens the number.
struct NameListKind {
  std::int32_t accessory;  // the list is read only while it is mounted
  controller::RecordList<controller::DatabaseRecord> (*records)(
      const controller::AccessoryDatabase&);
  std::int32_t optionBase;  // position n, 1 to 9, is code optionBase + n, the last one the highest
  std::string_view element;
  std::string_view failureLabel;
  std::string_view differenceLabel;
  std::string_view writeLabel;  // also for an element that is refused
  std::int32_t (controller::AccessoryDatabase::*fixedCount)() const;
};

// Part of the unit of one list. The unit passes the microscope to each operation. Modify and Write
// go through the controller's list whether the accessory is mounted or not.
class OptionNames {
 public:
  // The kind must outlive the object.
  explicit OptionNames(const NameListKind& kind);

  // Empty for a code outside the list.
  std::string Name(std::int32_t code) const;
  // Keeps the first ten characters; ignores a code outside the list.
  void Name(std::int32_t code, std::string_view name);

  // The controller's count of fixed records, which is also their highest code; 0 when the
  // controller does not answer.
  std::int32_t FixedCount(const ConnectedMicroscope& microscope) const;

  std::string Read(const ConnectedMicroscope& microscope);
  std::string Modify(const ConnectedMicroscope& microscope, std::string& list) const;
  std::string Write(const ConnectedMicroscope& microscope) const;
  std::string ReadDom(const DomNode& node);
  // Always nine elements.
  void WriteDom(DomDocument& document, DomNode section) const;

 private:
  bool Has(std::int32_t code) const;
  std::size_t IndexOf(std::int32_t code) const;
  bool Differs(const controller::DatabaseRecord& record, std::int32_t code) const;

  const NameListKind& kind_;
  std::vector<std::string> names_;
};

}  // namespace mortane
