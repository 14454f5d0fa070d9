#pragma once

#include <vector>

#include "objc/class_builder.h"
#include "objc/ref.h"
#include "platform/SpringBoard/SBApplicationController.h"

namespace host::springboard {

/// The installed applications, read from the device when the object is created.
class ApplicationController
    : public objc::Implementation<ApplicationController, SBApplicationController> {
 public:
  explicit ApplicationController(SBApplicationController owner);

  SBApplication application_with_bundle_identifier(NSString identifier) const;
  NSArray all_applications() const;
  /// Deletes the application's folder, forgets the application, and removes its icon.
  void uninstall_application(SBApplication application);

 private:
  std::vector<objc::Ref<SBApplication>> applications_;
};

void export_application_controller();

}  // namespace host::springboard
