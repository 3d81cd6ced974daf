// A page on the microscope object that it finds as the program's: for the windows and their pages,
// and for what concerns several areas. Tests of one area's pages have a UnitPageRig.
#pragma once

#include <string_view>

#include "gui/support/PageWindow.h"
#include "support/Rig.h"

namespace mortane::test {

class PageRig : public PageWindow {
 public:
  // Connects the last instrument of the bench and receives, or leaves the model as it is made.
  explicit PageRig(Bench bench, Link link = Link::Received);
  explicit PageRig(std::string_view benchName, Link link = Link::Received)
      : PageRig(benches::Named(benchName), link) {}
  ~PageRig() override;

  clsK70& k70() { return GetK70(); }
  ConnectedMicroscope& microscope() override { return GetK70(); }
};

template <>
struct PageRigOf<clsK70> {
  using Type = PageRig;
};

}  // namespace mortane::test
