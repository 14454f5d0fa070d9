#pragma once

#include <string_view>
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

/// Returns the installed application with this bundle identifier, or nil. It is found by messages,
/// as an extension finds it.
SBApplication installed_application(std::string_view bundle);

void export_application_controller();

}  // namespace host::springboard
