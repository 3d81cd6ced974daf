// Whether all that a page shows can be seen whole.
#pragma once

#include <functional>
#include <string>
#include <vector>

class QWidget;

namespace mortane::test {

// One line for each control below `root` that is smaller than it asks for, reaches out of its
// parent, or overlaps a sibling; hidden controls do not count. What a scroll area holds may be
// larger than the area: it is scrolled to.
std::vector<std::string> LayoutFaults(const QWidget& root);

// One line for each list below `page` that cuts its columns or shows hardly a row, and for a head
// that is lower than its font.
std::vector<std::string> ListFaults(const QWidget& page);

// One line for each area that is scrolled sideways, and for each but one that is scrolled upright:
// `root` or below it. Lists do not count.
std::vector<std::string> ScrollFaults(const QWidget& root);

// What the three of them find.
std::vector<std::string> FaultsOfSight(const QWidget& root);

// Opens each section of the page that the window shows; a page without sections has one, 0.
void ForEachSection(const QWidget& window, const std::function<void(int section)>& act);

// A size that follows from a width, such as that of tiles in fewer columns, is asked for from one
// parent to the next, each in a turn of the event loop of its own.
void ComeToRest();

}  // namespace mortane::test
