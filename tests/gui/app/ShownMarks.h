// What dots of changes that are not sent a window shows.
#pragma once

#include <set>
#include <string>

class QWidget;

namespace mortane::test {

// One line for each dot but those of page buttons: the sub-page, the control and what is told:
// "ObjectiveCtl1 place_3: not sent: was Plan F 20x", "ObjectiveSettingsCtl1 section Nosepiece",
// "ObjectiveOptionCtl1 TabStrip1[1]".
std::set<std::string> ShownMarks(const QWidget& window);

}  // namespace mortane::test
