#pragma once

#include "objc/class_builder.h"
#include "platform/UIKit/UIResponder.h"

namespace host::uikit {

/// The base of everything that takes touches and keys. A touch that it does not handle is passed on
/// to the next responder.
class Responder : public objc::Implementation<Responder, UIResponder> {
 public:
  explicit Responder(UIResponder owner) : Implementation(owner) {}
  ~Responder();

  UIResponder next_responder() { return nil; }
  BOOL can_become_first_responder() { return NO; }
  BOOL become_first_responder();
  BOOL can_resign_first_responder() { return YES; }
  BOOL resign_first_responder();
  BOOL is_first_responder() const;
  void reload_input_views();

  void touches_began(NSSet touches, UIEvent event);
  void touches_moved(NSSet touches, UIEvent event);
  void touches_ended(NSSet touches, UIEvent event);
  void touches_cancelled(NSSet touches, UIEvent event);
};

/// Returns the responder that receives keys, or nil.
UIResponder first_responder();

/// Ends text input: the first responder must resign without being asked.
void end_text_input();
/// Returns whether the first responder resigns because of `end_text_input`; it cannot refuse then.
bool must_resign();

/// Calls `observer` whenever the first responder changes, also to nil.
void observe_first_responder(void (*observer)());
/// Calls the observer even when the first responder is the same, because its traits have changed.
void announce_first_responder();

/// While an instance lives, changes of the first responder are not announced; the final state is
/// announced when the last instance is destroyed. Handing the keys from one responder to the next
/// is then one change, not two.
class FirstResponderChange {
 public:
  FirstResponderChange();
  ~FirstResponderChange();
  FirstResponderChange(const FirstResponderChange&) = delete;
  FirstResponderChange& operator=(const FirstResponderChange&) = delete;
};

void export_responder();

}  // namespace host::uikit
