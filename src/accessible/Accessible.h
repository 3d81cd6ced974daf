// What a screen reader is told about the controls of this kit.
#pragma once

namespace mortane {

// The toolkit knows our controls by their base classes only: exclusive buttons would be check
// boxes, rows their first column, and names of combo boxes and tab strips would be dropped. Call it
// once the application is there; a second call changes nothing.
void InstallAccessibleInterfaces();

}  // namespace mortane
