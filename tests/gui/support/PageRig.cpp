#include "gui/support/PageRig.h"

namespace mortane::test {

PageRig::PageRig(Bench bench, Link link) : PageWindow(std::move(bench)) {
  ProvideK70(library, prompts);
  if (link != Link::None) {
    prompts.AcceptAnyBox(link == Link::Reported);
    EXPECT_TRUE(GetK70().Connect(LastDevice()));
    GetK70().Receive();
    prompts.AcceptAnyBox(false);
    prompts.ClearRecords();
  }
  journal.Clear();
}

PageRig::~PageRig() {
  CloseWindow();
  ReleaseK70();
}

}  // namespace mortane::test
