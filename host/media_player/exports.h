#pragma once

namespace host::media_player {

/// Makes the system's media classes and gives their constants values. Foundation and the drawing
/// classes come first. Asking again does nothing.
void export_media_player();

}  // namespace host::media_player
