#pragma once

namespace sonavue {

/// Loads all songs of the library. Called at launch.
void make_library();

/// Fills the list of all songs again, with or without the songs that are only in the cloud, as the
/// setting says.
void list_songs();

}  // namespace sonavue
