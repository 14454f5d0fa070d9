#pragma once

namespace host::uikit {

// The platform's limits for tapping fingers, in seconds and points.
inline constexpr double kLongestTap = 0.75;
inline constexpr double kLongestTapInterval = 0.35;
inline constexpr double kTapAllowableMovement = 45;

}  // namespace host::uikit
