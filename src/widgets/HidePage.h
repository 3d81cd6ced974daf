// How the program takes a page from view.
#pragma once

namespace mortane {

class Page;

// The page keeps no focus. In a window that is not active the toolkit would leave it on what is
// hidden, and a field there would store its text when the window is active again.
void HidePage(Page& page);

}  // namespace mortane
