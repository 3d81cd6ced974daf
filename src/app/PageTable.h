// The six pages of the main window, one row each.
#pragma once

#include <QString>
#include <array>
#include <functional>

#include "widgets/Icons.h"

class QWidget;

namespace mortane {

class MortaneMainForm;
class clsK70;

// A page as the window calls it. A page has only what it offers; the rest stays empty.
struct PageEntry {
  QWidget* widget = nullptr;
  std::function<void()> LoadData;
  std::function<void()> SaveData;
  std::function<void()> SetNosePostiton;  // after a LoadData of the refresh
  std::function<void()> SendData;         // after a Send
  // Whether the connected microscope has something for the page to show.
  std::function<bool(const clsK70&)> isEnabled;
};

// A page joins the window by its row; one without `make` has its button, disabled.
struct PageRow {
  QString title;
  IconName icon;
  std::function<PageEntry(MortaneMainForm&)> make = {};
  std::function<bool(const clsK70&)> isEnabled = {};
};

inline constexpr std::size_t kPageCount = 6;
using PageTable = std::array<PageRow, kPageCount>;

// In the order of the page buttons.
PageTable MainPages();

// A page control as the window calls it, by the names of its operations.
template <typename Ctl>
PageEntry MakeEntry(Ctl& ctl) {
  PageEntry page;
  page.widget = &ctl;
  page.LoadData = [&ctl] { ctl.LoadData(); };
  page.SaveData = [&ctl] { ctl.SaveData(); };
  if constexpr (requires { ctl.SetNosePostiton(); }) {
    page.SetNosePostiton = [&ctl] { ctl.SetNosePostiton(); };
  }
  if constexpr (requires { ctl.SendData(); }) {
    page.SendData = [&ctl] { ctl.SendData(); };
  }
  return page;
}

}  // namespace mortane
