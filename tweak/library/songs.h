#pragma once

namespace sonavue {

/// Takes all songs of the library, at start-up.
void make_library();

/// Lists the songs again, in the list of all songs: with those that are only in the cloud, or
/// without, as the setting says.
void list_songs();

}  // namespace sonavue
