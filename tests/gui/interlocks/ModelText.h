// The whole model as one text, for tests that look for what a page has changed in it.
#pragma once

#include <string>

#include "document/Dom.h"
#include "gui/support/PageRig.h"
#include "hub/clsK70.h"
#include "interlocks/InterlockStates.h"
#include "support/Rows.h"
#include "support/UnitText.h"

namespace mortane::test {

// What a settings file holds, and what it leaves out of the interlocks and the drives.
inline std::string ModelText(const clsK70& k70) {
  DomDocument document;
  k70.WriteSections(document);
  std::string sections = document.ToText();
  for (std::size_t end = 0; (end = sections.find("><", end)) != std::string::npos;) {
    sections.insert(++end, "\n");  // a line for each element, for the difference in a failed test
  }
  return sections + "\n" + NosepieceStates(k70.ILOther) + "\n" + LightPathStates(k70.ILOther) +
         "\n" + ZoomStates(k70.ILOther) + "\n" + std::to_string(k70.CZDrive.curFocusCompensation) +
         " " + std::to_string(k70.CXYDrive.curFocusCompensation);
}

// Receives on a bench whose boxes do not matter here.
inline void ReceiveWhatever(PageRig& rig) {
  rig.prompts.AcceptAnyBox();
  const auto last = static_cast<std::int32_t>(rig.simulated.bench().instruments.size()) - 1;
  EXPECT_TRUE(rig.k70().Connect(last));
  rig.k70().Receive();
  rig.prompts.ClearRecords();
  rig.journal.Clear();
}

// Disables, hides and destroys the page of the rig as the program does.
inline void ExpectTheEndOfThePageStoresNothing(PageRig& rig, Page* page) {
  const std::string before = ModelText(rig.k70());
  page->setEnabled(false);
  page->setEnabled(true);
  page->hide();
  delete page;
  EXPECT_EQ(ModelText(rig.k70()), before);
}

}  // namespace mortane::test
