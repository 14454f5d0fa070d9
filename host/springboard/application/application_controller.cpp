#include "host/springboard/application/application_controller.h"

#include "host/runtime/log.h"
#include "host/springboard/application/application.h"
#include "host/springboard/common/configuration.h"
#include "host/springboard/common/shared_instance.h"
#include "host/springboard/model/strings.h"
#include "platform/Foundation/NSFileManager.h"

namespace host::springboard {

ApplicationController::ApplicationController(SBApplicationController owner)
    : Implementation(owner) {
  for (const auto& installed : read_applications(to_ns(configuration().applications_folder)))
    applications_.push_back(objc::Ref<SBApplication>::adopt(Application::make(installed)));
}

SBApplication ApplicationController::application_with_bundle_identifier(NSString identifier) const {
  for (const auto& application : applications_) {
    if (application->bundleIdentifier().isEqualToString(identifier)) return application.get();
  }
  return nil;
}

NSArray ApplicationController::all_applications() const {
  const auto all = NSMutableArray::array();
  for (const auto& application : applications_)
    all.addObject(application.get());
  return all;
}

void ApplicationController::uninstall_application(SBApplication application) {
  if (!NSFileManager::defaultManager().removeItemAtPath(application.path(), nullptr))
    spdlog::warn("{} could not be removed", to_string(application.path()));
  std::erase_if(applications_, [&](const auto& other) { return other.get() == application; });
}

SBApplication installed_application(std::string_view bundle) {
  return SBApplicationController::sharedInstance().applicationWithBundleIdentifier(to_ns(bundle));
}

void export_application_controller() {
  objc::ClassBuilder("SBApplicationController", "NSObject")
      .state<ApplicationController>()
      .class_method<&shared_instance<SBApplicationController>>("sharedInstance")
      .method<&ApplicationController::application_with_bundle_identifier>(
          "applicationWithBundleIdentifier:")
      .method<&ApplicationController::all_applications>("allApplications")
      .method<&ApplicationController::uninstall_application>("uninstallApplication:")
      .finish();
}

}  // namespace host::springboard
