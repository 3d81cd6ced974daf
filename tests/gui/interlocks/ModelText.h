// The units as one text, for tests that look for what a page has changed in them.
#pragma once

#include <string>

#include "gui/interlocks/InterlockPageUnits.h"
#include "interlocks/InterlockStates.h"
#include "support/UnitText.h"

namespace mortane::test {

// What a settings file holds, and what it leaves out of the interlocks and the drives.
inline std::string ModelText(const InterlockPageUnits& units) {
  std::string text = FileTextOf(units.ILObservation) + FileTextOf(units.ILOther) +
                     FileTextOf(units.ILOffset) + FileTextOf(units.CZDrive) +
                     FileTextOf(units.CXYDrive);
  for (std::size_t end = 0; (end = text.find("><", end)) != std::string::npos;) {
    text.insert(++end, "\n");  // a line for each element, for the difference in a failed test
  }
  return text + "\n" + NosepieceStates(units.ILOther) + "\n" + LightPathStates(units.ILOther) +
         "\n" + ZoomStates(units.ILOther) + "\n" +
         std::to_string(units.CZDrive.curFocusCompensation) + " " +
         std::to_string(units.CXYDrive.curFocusCompensation);
}

// Receives on a bench whose failures do not matter here.
inline void ReceiveWhatever(PageRig& rig) {
  rig.k70().Connect(rig.LastDevice());
  rig.k70().Receive();
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
