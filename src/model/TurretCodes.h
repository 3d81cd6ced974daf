// The database code at each address of a turret.
#pragma once

#include <array>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

#include "document/Dom.h"
#include "model/ConnectedMicroscope.h"

namespace mortane {

class WriteReport;

// Constants of one turret. Labels end with the bracket that opens the number.
struct TurretKind {
  std::int32_t accessory;  // one that controller::Microscope::Turret knows
  std::int32_t highestCode;
  std::string_view failureLabel;
  std::string_view differenceLabel;
  std::string_view writeLabel;
};

// Part of the unit of one turret. The unit passes the microscope to each operation. All codes are 0
// at first, and after a read of a turret that is not mounted.
class TurretCodes {
 public:
  static constexpr std::int32_t kAddresses = 10;
  static constexpr std::string_view kElement = "ITEM";

  // The kind must outlive the object.
  explicit TurretCodes(const TurretKind& kind) : kind_(kind) {}

  // Addresses count from 1; outside 1 to 10 the answer is -1 and nothing is stored.
  std::int32_t Code(std::int32_t address) const;
  void Code(std::int32_t address, std::int32_t code);

  // `count` is the number of items, when the turret is mounted and all could be read. After a
  // failure the codes read so far stay.
  struct Reading {
    std::string failure;
    std::optional<std::int32_t> count;
  };
  Reading Read(const ConnectedMicroscope& microscope);

  // `nameOf` gives the text behind the address in the line of a difference.
  using NameOf = std::function<std::string(std::int32_t code)>;
  std::string Modify(const ConnectedMicroscope& microscope, std::string& list,
                     const NameOf& nameOf) const;
  std::string Write(const ConnectedMicroscope& microscope) const;

  // An "ITEM" element of the settings file; `taken` is true when its values are in range.
  struct FileItem {
    std::int32_t position;
    std::int32_t code;
    bool taken;
  };
  FileItem ReadDom(const DomNode& node);
  // Appends one element for each address from 1 to `count`.
  void WriteDom(DomDocument& document, DomNode section, std::int32_t count) const;

 private:
  const std::int32_t& Stored(std::int32_t address) const;
  void WriteItem(const controller::TurretPosition& item, WriteReport& report) const;

  const TurretKind& kind_;
  std::array<std::int32_t, kAddresses> codes_{};
};

}  // namespace mortane
