#pragma once

#include "objc/class_builder.h"
#include "objc/ref.h"
#include "platform/Activator/LAEvent.h"

namespace host::activator {

class Event : public objc::Implementation<Event, LAEvent> {
 public:
  using Implementation::Implementation;

  static LAEvent with_name(objc::Object cls, NSString name, NSString mode);
  LAEvent init(NSString name, NSString mode);
  NSString name() const { return name_.get(); }
  NSString mode() const { return mode_.get(); }
  BOOL is_handled() const { return handled_; }
  void set_handled(BOOL handled) { handled_ = handled; }

 private:
  objc::Ref<NSString> name_;
  objc::Ref<NSString> mode_;
  BOOL handled_ = NO;
};

void export_event();

}  // namespace host::activator
