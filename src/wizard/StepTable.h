// The table of the wizard's ten steps, one row each.
#pragma once

#include <QString>
#include <array>
#include <functional>
#include <vector>

#include "widgets/Icons.h"

namespace mortane {

class Page;
class SadrelMainForm;
struct FormServices;

struct StepRow {
  QString name;
  IconName icon;
  QString chapter;  // of the manual
  // What the help line says: one text, or one for each tab or kind of the page.
  std::vector<QString> help;
  // The new page, a child of the window's frame of pages.
  std::function<Page*(SadrelMainForm&, const FormServices&)> make = {};
  // Which of the texts a person meets on coming to the step; the first, when empty.
  std::function<int(Page&)> firstHelp = {};
  // What happens to the page then; it is loaded, when empty.
  std::function<void(Page&)> enter = {};
};

inline constexpr int kStepCount = 10;
using StepTable = std::array<StepRow, kStepCount>;

inline constexpr int kSystemStep = 0;
inline constexpr int kItemStep = 1;
inline constexpr int kFirstItem = 2;  // the step of item 0
inline constexpr int kEndingStep = 9;

}  // namespace mortane
