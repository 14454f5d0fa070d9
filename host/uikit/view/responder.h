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

  void touches_began(NSSet touches, UIEvent event);
  void touches_moved(NSSet touches, UIEvent event);
  void touches_ended(NSSet touches, UIEvent event);
  void touches_cancelled(NSSet touches, UIEvent event);
};

/// Who gets the keys; nil when nobody does.
UIResponder first_responder();

void export_responder();

}  // namespace host::uikit
