#pragma once

#include "objc/class_builder.h"
#include "platform/UIKit/UIResponder.h"

namespace host::uikit {

/// The base of all that takes touches and keys. A touch that it does not want goes on to the next.
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

/// Who gets the keys; nil when nobody does.
UIResponder first_responder();

/// Nobody has the keys any more: whoever has them must give them up, and is not asked.
void end_text_input();
/// Is that why the first responder resigns? Then there is nobody to ask whether it may.
bool must_resign();

/// Calls `observer` whenever somebody else gets the keys than before, or nobody.
void observe_first_responder(void (*observer)());
/// Calls it also when it is the same one, whose wishes have changed.
void announce_first_responder();

/// While one lives, changes of the first responder are not announced; what has come of them is
/// announced when the last one goes. So one who gives the keys to the next is one change, not two.
class FirstResponderChange {
 public:
  FirstResponderChange();
  ~FirstResponderChange();
  FirstResponderChange(const FirstResponderChange&) = delete;
  FirstResponderChange& operator=(const FirstResponderChange&) = delete;
};

void export_responder();

}  // namespace host::uikit
