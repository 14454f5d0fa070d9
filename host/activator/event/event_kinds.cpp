#include "host/activator/event/event_kinds.h"

namespace host::activator {
namespace {

constexpr EventKind kEvents[] = {
    {kSlideInLeft, "Slide In from Left"},
    {kSlideInRight, "Slide In from Right"},
    {kSlideInTop, "Slide In from Top"},
    {kSlideInBottom, "Slide In from Bottom"},
    {kSlideInTopLeft, "Slide In from Top Left Corner"},
    {kSlideInTopRight, "Slide In from Top Right Corner"},
    {kSlideInBottomLeft, "Slide In from Bottom Left Corner"},
    {kSlideInBottomRight, "Slide In from Bottom Right Corner"},
    {kStatusBarDoubleTap, "Double Tap on Status Bar"},
    {kStatusBarHold, "Hold on Status Bar"},
    {kHomeHold, "Short Hold of Home Button"},
    {kVolumeBoth, "Both Volume Buttons"},
    {kLockHold, "Hold of Lock Button"},
    {kShake, "Shake Device"},
    {kKeyboardChord, "Control-G on Keyboard"},
};

}  // namespace

std::span<const EventKind> event_kinds() {
  return kEvents;
}

const EventKind* event_named(std::string_view name) {
  for (const EventKind& kind : kEvents) {
    if (name == kind.name) return &kind;
  }
  return nullptr;
}

}  // namespace host::activator
