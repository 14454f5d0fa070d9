#include "host/uikit/view/responder.h"

#include <utility>

namespace host::uikit {
namespace {

// One screen with one keyboard: one first responder per process, not one per window.
UIResponder current_first_responder;
UIResponder announced;
void (*first_responder_observer)() = nullptr;
int changes_under_way = 0;
bool resignation_is_forced = false;

}  // namespace

void observe_first_responder(void (*observer)()) {
  first_responder_observer = observer;
}

void announce_first_responder() {
  announced = current_first_responder;
  if (first_responder_observer) first_responder_observer();
}

FirstResponderChange::FirstResponderChange() {
  ++changes_under_way;
}
FirstResponderChange::~FirstResponderChange() {
  if (--changes_under_way == 0 && announced != current_first_responder) announce_first_responder();
}

UIResponder first_responder() {
  return current_first_responder;
}

void end_text_input() {
  const bool before = std::exchange(resignation_is_forced, true);
  current_first_responder.resignFirstResponder();
  resignation_is_forced = before;
}

bool must_resign() {
  return resignation_is_forced;
}

Responder::~Responder() {
  if (current_first_responder != self) return;
  const FirstResponderChange change;
  current_first_responder = nil;
}

BOOL Responder::is_first_responder() const {
  return current_first_responder == self;
}

BOOL Responder::become_first_responder() {
  if (self.isFirstResponder()) return YES;
  if (!self.canBecomeFirstResponder()) return NO;
  const FirstResponderChange change;
  if (current_first_responder && !current_first_responder.resignFirstResponder()) return NO;
  current_first_responder = self;
  return YES;
}

BOOL Responder::resign_first_responder() {
  if (current_first_responder != self) return YES;
  if (!must_resign() && !self.canResignFirstResponder()) return NO;
  const FirstResponderChange change;
  current_first_responder = nil;
  return YES;
}

void Responder::reload_input_views() {
  if (self.isFirstResponder()) announce_first_responder();
}

void Responder::touches_began(NSSet touches, UIEvent event) {
  self.nextResponder().touchesBegan(touches, event);
}
void Responder::touches_moved(NSSet touches, UIEvent event) {
  self.nextResponder().touchesMoved(touches, event);
}
void Responder::touches_ended(NSSet touches, UIEvent event) {
  self.nextResponder().touchesEnded(touches, event);
}
void Responder::touches_cancelled(NSSet touches, UIEvent event) {
  self.nextResponder().touchesCancelled(touches, event);
}

void export_responder() {
  objc::ClassBuilder("UIResponder", "NSObject")
      .state<Responder>()
      .method<&Responder::next_responder>("nextResponder")
      .method<&Responder::can_become_first_responder>("canBecomeFirstResponder")
      .method<&Responder::become_first_responder>("becomeFirstResponder")
      .method<&Responder::can_resign_first_responder>("canResignFirstResponder")
      .method<&Responder::resign_first_responder>("resignFirstResponder")
      .method<&Responder::is_first_responder>("isFirstResponder")
      .method<&Responder::reload_input_views>("reloadInputViews")
      .method<&Responder::touches_began>("touchesBegan:withEvent:")
      .method<&Responder::touches_moved>("touchesMoved:withEvent:")
      .method<&Responder::touches_ended>("touchesEnded:withEvent:")
      .method<&Responder::touches_cancelled>("touchesCancelled:withEvent:")
      .finish();
}

}  // namespace host::uikit
