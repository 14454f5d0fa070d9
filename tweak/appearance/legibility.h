#pragma once

namespace sonavue {

/// Colours the whole panel black over bright artwork and white over dark artwork.
void colour_for_artwork();

}  // namespace sonavue
