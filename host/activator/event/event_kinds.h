#pragma once

#include <span>
#include <string_view>

namespace host::activator {

// Assignments are stored under these names, so they must never change.
inline constexpr const char* kSlideInLeft = "slide-in-left";
inline constexpr const char* kSlideInRight = "slide-in-right";
inline constexpr const char* kSlideInTop = "slide-in-top";
inline constexpr const char* kSlideInBottom = "slide-in-bottom";
inline constexpr const char* kSlideInTopLeft = "slide-in-top-left";
inline constexpr const char* kSlideInTopRight = "slide-in-top-right";
inline constexpr const char* kSlideInBottomLeft = "slide-in-bottom-left";
inline constexpr const char* kSlideInBottomRight = "slide-in-bottom-right";
inline constexpr const char* kStatusBarDoubleTap = "status-bar-double-tap";
inline constexpr const char* kStatusBarHold = "status-bar-hold";
inline constexpr const char* kHomeHold = "home-hold";
inline constexpr const char* kVolumeBoth = "volume-both";
inline constexpr const char* kLockHold = "lock-hold";
inline constexpr const char* kShake = "shake";
inline constexpr const char* kKeyboardChord = "keyboard-chord";

struct EventKind {
  const char* name;
  const char* title;
};

/// All events, in the order in which pages list them.
std::span<const EventKind> event_kinds();
/// nullptr for an unknown name.
const EventKind* event_named(std::string_view name);

}  // namespace host::activator
