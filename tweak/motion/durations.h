#pragma once

// Seconds of the motions that several parts of the panel share.

namespace sonavue {

/// The icon's flight, to the top of the screen and home.
inline constexpr double kIconTravel = 0.5;
/// The pages come and go.
inline constexpr double kContentFade = 0.7;
/// The table of the current album leaves the artwork.
inline constexpr double kTableSlide = 0.2;

}  // namespace sonavue
