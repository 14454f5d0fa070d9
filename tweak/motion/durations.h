#pragma once

// Durations, in seconds, of animations that several parts of the panel share.

namespace sonavue {

/// The icon moves to the top of the screen, or home.
inline constexpr double kIconTravel = 0.5;
/// The pages fade in or out.
inline constexpr double kContentFade = 0.7;
/// The current album's table slides out of the artwork.
inline constexpr double kTableSlide = 0.2;

}  // namespace sonavue
