#pragma once

#include "host/springboard/model/application_catalog.h"
#include "objc/class_builder.h"
#include "objc/ref.h"
#include "platform/SpringBoard/SBApplication.h"

namespace host::springboard {

class Application : public objc::Implementation<Application, SBApplication> {
 public:
  using Implementation::Implementation;

  /// Returns a new object that represents the installed application; the caller owns it (+1).
  static SBApplication make(const InstalledApplication& installed);

  NSString bundle_identifier() const { return bundle_.get(); }
  NSString display_name() const { return name_.get(); }
  NSString path() const { return path_.get(); }
  /// The name of the application's program; empty when it has none.
  const std::string& program() const { return program_; }

 private:
  objc::Ref<NSString> bundle_;
  objc::Ref<NSString> name_;
  objc::Ref<NSString> path_;
  std::string program_;
};

void export_application();

}  // namespace host::springboard
