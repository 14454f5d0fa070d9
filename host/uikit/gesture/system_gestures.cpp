#include "host/uikit/gesture/system_gestures.h"

#include <vector>

namespace host::uikit {
namespace {

std::vector<SystemGestures*>& all() {
  static std::vector<SystemGestures*> gestures;
  return gestures;
}

}  // namespace

void add_system_gestures(SystemGestures* gestures) {
  all().push_back(gestures);
}

void remove_system_gestures(SystemGestures* gestures) {
  std::erase(all(), gestures);
}

SystemGestures::Claim system_claim(int finger, UITouchPhase phase, CGPoint screen_point,
                                   double timestamp) {
  auto claim = SystemGestures::Claim::Windows;
  const auto present = all();
  for (SystemGestures* gestures : present) {
    const auto answer = gestures->touch(finger, phase, screen_point, timestamp);
    if (answer == SystemGestures::Claim::System) claim = answer;
  }
  return claim;
}

}  // namespace host::uikit
