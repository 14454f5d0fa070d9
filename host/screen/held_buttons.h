#pragma once

#include <set>
#include <utility>

#include "host/screen/input.h"

namespace host::screen {

/// The phone's buttons that are down, by a key, the mouse or a finger. A button held twice goes
/// down only once and up only once.
class HeldButtons {
 public:
  explicit HeldButtons(Input& input) : input_(input) {}

  void down(Button button) {
    if (held_.count(button) == 0) input_.button(button, ButtonPhase::Down);
    held_.insert(button);
    changed_ = true;
  }
  void up(Button button) {
    const auto found = held_.find(button);
    if (found == held_.end()) return;
    held_.erase(found);
    if (held_.count(button) == 0) input_.button(button, ButtonPhase::Up);
    changed_ = true;
  }
  bool is_down(Button button) const { return held_.count(button) != 0; }
  /// True when a button has gone down or up since the change was last taken.
  bool has_change() const { return changed_; }
  bool take_change() { return std::exchange(changed_, false); }

 private:
  Input& input_;
  std::multiset<Button> held_;
  bool changed_ = false;
};

}  // namespace host::screen
