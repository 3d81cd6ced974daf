// For tests that look for controls of pages that nobody has shown.
#pragma once

#include "widgets/LatePage.h"

namespace mortane::test {

inline void MakeAllPages(const QObject& object) {
  for (const LatePage* page : object.findChildren<LatePage*>()) page->get();
}

}  // namespace mortane::test
