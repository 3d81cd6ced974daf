// What a path leads to, without opening it for its content.
#pragma once

#include <string>

namespace mortane {

// The absolute path with links followed, and in one case where the system tells names apart
// without regard to case. The file need not be there. Made to be compared, not to be shown.
std::string ResolvedPath(const std::string& utf8Path);

// True when nothing stands at the path for certain; false also when the system does not say.
bool IsMissing(const std::string& utf8Path);

}  // namespace mortane
