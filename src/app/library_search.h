// Where this process looks for libraries.
#pragma once

namespace app {

// From now on only the folders of the system and of this executable are searched; the current
// directory and the search path are not. Call before anything is loaded.
void SearchLibrariesInOwnFoldersOnly();

}  // namespace app
