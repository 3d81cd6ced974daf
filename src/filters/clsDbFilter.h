// The filter cubes that a controller knows: fixed ones and nine that the user defines.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "controller/AccessoryDatabase.h"
#include "document/Dom.h"
#include "filters/FilterItemNames.h"
#include "model/ConnectedMicroscope.h"

namespace mortane {

class WriteReport;

// The codes of a cube's three items; 0 stands for no item.
struct FilterCubeItems {
  std::int32_t exciter = 0;
  std::int32_t dichroic = 0;
  std::int32_t barrier = 0;

  bool operator==(const FilterCubeItems&) const = default;
};

// Owned by clsK70. Codes are 0 to 249; position n, 1 to 9, of the user's cubes is code 240 + n.
class clsDbFilter {
 public:
  clsDbFilter(ConnectedMicroscope& microscope, const clsDbExciter& exciters,
              const clsDbDichroic& dichroics, const clsDbBarrier& barriers);

  static constexpr std::string_view kElement = "OPTION";

  ConnectedMicroscope& parent;

  // In full; empty for another code.
  std::string Name(std::int32_t code) const;

  // The controller's count of fixed cubes, which is also their highest code; 0 when the controller
  // does not answer.
  std::int32_t FixedCount() const;

  // The names of a cube and of its items, each cut to ten characters. The name of a missing item is
  // empty; all four are empty for a code outside the table.
  void Get_DbFilter(std::int32_t code, std::string& sName, std::string& sExciter,
                    std::string& sDichroic, std::string& sBarrier) const;

  // The user's cube at position 1 to 9, its name in full. Another position gives an empty name
  // and -1 three times.
  void Get_DbFilterOption(std::int32_t npos, std::string& sName, std::int32_t& nExciter,
                          std::int32_t& nDichroic, std::int32_t& nBarrier) const;

  // Stores at position 1 to 9, the name cut to ten characters; ignores another position.
  void Set_DbFilterOption(std::int32_t npos, std::string_view sName, std::int32_t lExciter,
                          std::int32_t lDichroic, std::int32_t lBarrier);

  // Item codes above 249 raise a box and become 0; the rest is kept.
  std::string ReadSdk();
  // Both go through the controller's cubes whether a turret is mounted or not.
  std::string ModifySdk(std::string& list) const;
  std::string WriteSdk() const;

  // "OPTION" elements, one for each of the user's cubes. A name of any length is taken.
  std::string ReadDom(const DomNode& node);
  void WriteDom(DomDocument& document, DomNode section) const;

 private:
  struct Cube {
    std::string name;
    FilterCubeItems items;
  };

  static bool Differs(const controller::FilterCubeRecord& record, const Cube& stored);

  void ReadRecord(const controller::FilterCubeRecord& record);
  void DropUnknownItems(std::int32_t code, FilterCubeItems& items) const;
  void CompareRecord(const controller::FilterCubeRecord& record, std::string& lines) const;
  void WriteRecord(const controller::FilterCubeRecord& record, WriteReport& report) const;

  const clsDbExciter& exciters_;
  const clsDbDichroic& dichroics_;
  const clsDbBarrier& barriers_;
  std::vector<Cube> cubes_;
};

}  // namespace mortane
