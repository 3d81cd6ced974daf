// The one drill for configuration units: each brings its table of data and passes the same tests.
#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <ostream>
#include <string>
#include <vector>

#include "support/Rig.h"

namespace mortane::test {

// The unit's text in a settings file: its elements under one root.
template <typename Unit>
std::string FileTextOf(const Unit& unit) {
  DomDocument document;
  DomNode section = document.CreateElement("SECTION");
  unit.WriteDom(document, section);
  document.Append(section);
  return document.ToText();
}

// Gives the unit one element, as text.
template <typename Unit>
std::string ReadElement(Unit& unit, const std::string& xml) {
  DomDocument document;
  EXPECT_TRUE(document.LoadText(xml)) << xml;
  return unit.ReadDom(document.Children().at(0));
}

// The five operations of a unit, whichever it is.
struct UnitOperations {
  std::function<std::string(clsK70&)> read;
  std::function<std::string(clsK70&, std::string&)> modify;
  std::function<std::string(clsK70&)> write;
  std::function<std::string(clsK70&, const std::string&)> readElement;
  std::function<std::string(const clsK70&)> fileText;
};

template <typename Unit>
UnitOperations OperationsOf(Unit clsK70::*unit) {
  return {[unit](clsK70& k70) { return (k70.*unit).ReadSdk(); },
          [unit](clsK70& k70, std::string& list) { return (k70.*unit).ModifySdk(list); },
          [unit](clsK70& k70) { return (k70.*unit).WriteSdk(); },
          [unit](clsK70& k70, const std::string& xml) { return ReadElement(k70.*unit, xml); },
          [unit](const clsK70& k70) { return FileTextOf(k70.*unit); }};
}

// A change of the unit, what ModifySdk adds to its list for it, and what WriteSdk then writes,
// in the journal's words.
struct UnitEdit {
  std::string what;
  std::function<void(clsK70&)> change;
  std::string differences;
  std::vector<std::string> writes;
};

struct RefusedElement {
  std::string xml;
  std::string line;
};

// `edits` change different items, in the order in which the unit compares them. Failures are the
// openings of lines; without a modifyFailure ModifySdk must make no call to the controller.
struct UnitDrillData {
  std::string name;
  std::string bench;
  UnitOperations unit;
  std::vector<UnitEdit> edits;
  std::vector<std::string> alwaysWritten;
  std::string readFailure;
  std::string readFailed = "LIB:80004005)";  // what follows it
  std::string modifyFailure;
  std::vector<std::string> writeFailures;
  std::vector<RefusedElement> refused;
};

inline void PrintTo(const UnitDrillData& data, std::ostream* stream) {
  *stream << data.name;
}

inline std::string DrillName(const testing::TestParamInfo<UnitDrillData>& info) {
  return info.param.name;
}

// No table may be empty, and reading and writing must each call the controller.
class UnitDrill : public testing::TestWithParam<UnitDrillData> {
 protected:
  void SetUp() override;
  static void MakeAllEdits(clsK70& k70);
  static std::vector<std::string> LinesOf(const std::string& report);
};

}  // namespace mortane::test
