#include "host/springboard/application/application.h"

#include "host/springboard/model/strings.h"

namespace host::springboard {

SBApplication Application::make(const InstalledApplication& installed) {
  const SBApplication made = SBApplication::alloc().init();
  auto& state = objc::state_of<Application>(made);
  state.bundle_.reset(to_ns(installed.bundle));
  state.name_.reset(to_ns(installed.name));
  state.path_.reset(to_ns(installed.path));
  state.program_ = installed.program;
  return made;
}

void export_application() {
  objc::ClassBuilder("SBApplication", "NSObject")
      .state<Application>()
      .method<&Application::bundle_identifier>("bundleIdentifier")
      .method<&Application::display_name>("displayName")
      .method<&Application::path>("path")
      .finish();
}

}  // namespace host::springboard
