#pragma once

#include <set>

#include "host/browser/phone/messages.h"
#include "host/screen/held_buttons.h"
#include "host/screen/phone_body.h"
#include "host/screen/pointers.h"

namespace host::browser {

/// Applies the actions of a page's user to the phone. What is still down when the page goes is let
/// go.
class PageInput {
 public:
  PageInput(const screen::PhoneBody& body, screen::Input& input);

  void take(const PointerChange& change);
  void take(const OtherButton& click) { pointers_.right_click({click.x, click.y}); }
  void take(const Wheel& wheel);
  void take(const Typed& typed) { input_.type(typed.text); }
  void take(const Composed& composed) { input_.compose(composed.text, composed.caret); }
  void take(const Key& key) { input_.key(key.name); }
  void take(const ButtonHeld& held);
  void take(const Shake&) { input_.shake(); }
  void let_go();

 private:
  const screen::PhoneBody& body_;
  screen::Input& input_;
  screen::HeldButtons buttons_;
  screen::Pointers pointers_;
  std::map<std::int32_t, CGPoint> fingers_;
  std::set<screen::Button> held_;
};

}  // namespace host::browser
