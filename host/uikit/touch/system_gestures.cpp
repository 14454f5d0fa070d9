#include "host/uikit/touch/system_gestures.h"

#include <map>
#include <utility>
#include <vector>

namespace host::uikit {
namespace {

std::vector<SystemGestures*>& system_gestures() {
  static std::vector<SystemGestures*> gestures;
  return gestures;
}

/// The gestures that have claimed each finger.
std::map<int, SystemGestures*>& owners() {
  static std::map<int, SystemGestures*> owners;
  return owners;
}

void hand_over(int finger, SystemGestures* owner, CGPoint screen_point, double timestamp) {
  SystemGestures* before = std::exchange(owners()[finger], owner);
  if (before && before != owner)
    before->touch(finger, UITouchPhaseCancelled, screen_point, timestamp);
}

}  // namespace

void add_system_gestures(SystemGestures* gestures) {
  system_gestures().push_back(gestures);
}

void remove_system_gestures(SystemGestures* gestures) {
  std::erase(system_gestures(), gestures);
  std::erase_if(owners(), [gestures](const auto& owned) { return owned.second == gestures; });
}

SystemGestures::Claim system_claim(int finger, UITouchPhase phase, CGPoint screen_point,
                                   double timestamp) {
  auto claim = SystemGestures::Claim::Windows;
  const auto present = system_gestures();
  for (SystemGestures* gestures : present) {
    const auto answer = gestures->touch(finger, phase, screen_point, timestamp);
    if (answer != SystemGestures::Claim::System) continue;
    claim = answer;
    hand_over(finger, gestures, screen_point, timestamp);
  }
  if (phase == UITouchPhaseEnded || phase == UITouchPhaseCancelled) owners().erase(finger);
  return claim;
}

}  // namespace host::uikit
