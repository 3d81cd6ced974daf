// The one drill for pages: each brings its table of data and passes the same tests.
#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <ostream>
#include <string>
#include <vector>

#include "gui/support/AccessibleTree.h"
#include "gui/support/ModelFunction.h"

namespace mortane::test {

// A given control; `text` is its caption, or its accessible name where it shows none.
struct GivenControl {
  std::string name;
  std::string text;
};

// A control that shows a value of the model. `change` gives the model the value, `value` tells it
// as a text; showing must not alter it. The control shows `shown` after the next loading.
struct ShownValue {
  std::string control;
  ModelFunction<void> change;
  ModelFunction<std::string> value;
  std::string shown;
};

// What a person enters, and what the model then holds.
struct PageEdit {
  std::string control;
  std::string entered;
  ModelFunction<std::string> value;
  std::string expected;
};

// A text that is refused with a box: the focus stays, and the model keeps what it held.
struct RefusedText {
  std::string control;
  std::string entered;
  ModelFunction<std::string> value;
  std::string message;
};

// Whether a control is enabled on a bench, as changed here.
struct EnablingRule {
  std::string control;
  std::string bench;
  std::function<void(Bench&)> change;
  bool enabled = false;
};

// A table of the drill that not every page has rows for.
enum class DrillTable { Controls, Shown, Edits, Refused, Enabling };

// `make` gives the page, which is loaded after the model has received from `bench`. What it needs
// done before its controls can be worked, `prepare` does.
struct PageDrillData {
  std::string name;
  std::string bench;
  PageMaker make;
  std::function<void(PageWindow&)> prepare;
  std::vector<GivenControl> controls;
  std::vector<ShownValue> shown;
  std::vector<PageEdit> edits;
  std::vector<RefusedText> refused;
  std::vector<EnablingRule> enabling;
  // The tables that do not apply: the page shows no value of the model by itself, takes no edit,
  // refuses no text, enables its controls by no rule that the bench decides, or is one whose
  // controls another drill goes through. Each of the others has a row.
  std::vector<DrillTable> without;
  std::vector<std::string> tabOrder;
  // All that a screen reader finds.
  std::vector<AccessibleControl> accessible;
  // How the box begins in which the page's loading shows that a call failed; none, when empty.
  std::string loadBox;
};

inline void PrintTo(const PageDrillData& data, std::ostream* stream) {
  *stream << data.name;
}

inline std::string PageDrillName(const testing::TestParamInfo<PageDrillData>& info) {
  return info.param.name;
}

// Fill it with INSTANTIATE_TEST_SUITE_P(SomePage, PageDrill, Values(...), PageDrillName).
class PageDrill : public testing::TestWithParam<PageDrillData> {
 protected:
  void SetUp() override;
  // Shows the page of the data on its bench, or on another.
  static Page& ShowOn(PageWindow& rig);
  // The rig of the data's page on its bench, or on another.
  static std::unique_ptr<PageWindow> MakeRig(Link link = Link::Received);
  static std::unique_ptr<PageWindow> MakeRig(Bench bench);
  // What the model holds of all that the data's edits change.
  static std::vector<std::string> EditedValues(PageWindow& rig);
};

}  // namespace mortane::test
