// The objectives that a controller knows: fixed ones and nine that the user defines.
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "controller/AccessoryDatabase.h"
#include "document/Dom.h"
#include "model/ConnectedMicroscope.h"
#include "objectives/AdoptiveCondensers.h"
#include "objectives/ObjectiveCode.h"
#include "objectives/ObjectiveLists.h"

namespace mortane {

class ErrorTrap;
class WriteReport;

// The longest name of an objective, and how much of it the page of the user's objectives shows.
inline constexpr std::size_t kObjectiveNameLength = 20;
inline constexpr std::size_t kShownObjectiveNameLength = 15;

// Shown instead of a blank name, and of a magnification of 0.
inline constexpr std::string_view kUnnamedObjective = "---------------";
inline constexpr std::string_view kNoMagnification = "----";

// The highest values that the user and a settings file may give; the distance is in millimetres.
inline constexpr double kHighestMagnification = 200;
inline constexpr double kHighestDistance = 40;
inline constexpr double kHighestAperture = 2;

// "40x", "1.5x"; kNoMagnification for 0.
std::string MagnificationText(double value);

// Owned by clsK70. Codes are 0 to 249; position n, 1 to 9, of the user's objectives is code
// 240 + n. Queries never fail for an index out of range: they give 0 or an empty text. Numbers
// as text are in the user's format.
class clsDbNosepiece {
 public:
  explicit clsDbNosepiece(ConnectedMicroscope& microscope)
      : parent(microscope), objectives_(kCodes) {}

  static constexpr std::string_view kElement = "OPTION";

  ConnectedMicroscope& parent;

  // Code of the condenser that suits an objective; only the user's objectives have one.
  std::int32_t AdoptiveCondenser(std::int32_t code) const;
  std::string Name(std::int32_t code) const;
  double Magnification(std::int32_t code) const;
  std::int32_t SeriesCode(std::int32_t code) const;

  // Entry 0 of both lists is a row of dashes; the counts are the highest indices. The lists are
  // read from the controller once, by the first read.
  std::int32_t SeriesCount() const;
  std::string Series(std::int32_t index) const;
  std::int32_t TypesCount() const;
  std::string Types(std::int32_t index) const;

  // Magnifications to choose from, as text: "----", "1x", "1.5x", ... up to index 14.
  std::int32_t MagCount() const;
  std::string Mag(std::int32_t index) const;

  // Finds the next objective of series `nSeri` after code `npos`, which is -1 to begin. Returns its
  // code and stores it in npos; without one returns -1, leaves npos and empties the texts. A start
  // below -1 raises a subscript failure.
  std::int32_t Get_DbNosepiecePocket(std::int32_t nSeri, std::int32_t& npos, std::string& sType,
                                     std::string& sMag, std::string& sWD, std::string& sNA,
                                     std::string& sName) const;

  // The user's objective at position 1 to 9, its name cut to 15 characters. Another position
  // gives empty texts and -1 twice, and leaves nCondenser alone.
  void Get_DbNosepieceOption(std::int32_t npos, std::string& sName, std::int32_t& nSeries,
                             std::int32_t& nType, std::string& sMag, std::string& sWD,
                             std::string& sNA, std::int32_t& nCondenser) const;

  // Stores at position 0 to 9, the name cut to 20 characters. A text that is no number is 0.
  // Kept: position 0 overwrites the fixed objective of code 240.
  void Set_DbNosepiece(std::int32_t npos, std::string_view sName, std::int32_t nSeries,
                       std::int32_t nType, std::string_view sMag, std::string_view sWD,
                       std::string_view sNA, std::int32_t nCondenser);

  // Whether an objective of the user stays the same when what Get_DbNosepieceOption gives is
  // stored.
  bool StaysWhenStored(std::int32_t npos) const;

  // Asks the controller whether a condenser is fitted, also one without addresses; false when it
  // does not answer.
  bool HasCondenser() const { return HasLiveCondenser(parent); }
  AdoptiveCondensers ListCondensers() const { return ReadAdoptiveCondensers(parent); }

  std::string ReadSdk();
  std::string ModifySdk(std::string& list) const;
  // Goes on after a failure. A condenser is written as part of the code text, whose other
  // characters repeat what the controller holds; so it is written after the other values.
  std::string WriteSdk() const;

  // Takes an "OPTION" element. A code that ends with no digit raises a conversion failure, and
  // the record stays as it was.
  std::string ReadDom(const DomNode& node);
  // Always nine elements.
  void WriteDom(DomDocument& document, DomNode section) const;

 private:
  struct Objective {
    std::string name;
    ObjectiveValues values;
  };

  static constexpr std::size_t kCodes = 250;

  // What the controller holds as a position's code text, and the digit at its end. A text of less
  // than twelve characters is no code: a write that repeats it would change the other values.
  struct CodeAnswer {
    std::string code;
    std::int32_t condenser;
  };

  static bool Differs(const controller::ObjectiveRecord& record, const Objective& stored);

  void ReadDB();
  void ReadRecord(const controller::ObjectiveRecord& record);
  CodeAnswer AskCode(std::int32_t position) const;
  void CompareRecord(const controller::ObjectiveRecord& record, std::string& lines) const;
  void WriteRecord(const controller::ObjectiveRecord& record, WriteReport& report) const;
  void WriteValues(const controller::ObjectiveRecord& record, std::int32_t code,
                   ErrorTrap& trap) const;
  void WriteCondenser(std::int32_t position) const;
  bool IsLegal(const ObjectiveValues& values) const;

  std::vector<Objective> objectives_;
  std::array<std::int32_t, kCodes> condensers_{};
  ObjectiveLists lists_;
};

}  // namespace mortane
