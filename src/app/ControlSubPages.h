// The sub-pages of the page of the drives and controls.
#pragma once

#include <array>
#include <functional>

#include "widgets/LatePage.h"

namespace mortane {

class Page;
struct FormServices;

// The tabs, from left to right.
namespace controltab {
inline constexpr int kFocusDrive = 0;
inline constexpr int kXYStage = 1;
inline constexpr int kOther = 2;
inline constexpr int kK70Switch = 3;
inline constexpr int kTactorSwitch = 4;
inline constexpr int kJoypadSwitch = 5;
inline constexpr int kCount = 6;
}  // namespace controltab

// A sub-page, or how it is made late, and how it shows where the nosepiece stands. When its tab is
// clicked a page that can do this does it; another one is loaded.
struct ControlSubPage {
  Page* page = nullptr;
  std::function<void()> SetNosePosition = {};
  LatePlan plan = {};
};
using ControlSubPages = std::array<ControlSubPage, controltab::kCount>;

// New pages over the program's model.
ControlSubPages MakeControlSubPages(const FormServices& services);

}  // namespace mortane
