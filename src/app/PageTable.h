// The table of the main window's six pages, one row each.
#pragma once

#include <QString>
#include <array>
#include <functional>

#include "widgets/Icons.h"

namespace mortane {

class MortaneMainForm;
class Page;
struct FormServices;
class clsK70;

// A page joins the window by its row; one without `make` has its button, disabled.
struct PageRow {
  QString title;
  IconName icon;
  QString chapter;  // of the manual
  // The new page, a child of the window's frame of pages.
  std::function<Page*(MortaneMainForm&, const FormServices&)> make = {};
  // Whether the connected microscope has something for the page to show; always, where there is no
  // rule.
  std::function<bool(const clsK70&)> isEnabled = {};
  // Said in a tool tip where it has not.
  QString whyDisabled = {};
};

inline constexpr std::size_t kPageCount = 6;
using PageTable = std::array<PageRow, kPageCount>;

}  // namespace mortane
