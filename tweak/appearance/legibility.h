#pragma once

namespace sonavue {

/// Colours the whole panel black over a bright artwork and white over a dark one.
void colour_for_artwork();

}  // namespace sonavue
