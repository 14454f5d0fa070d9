#include "host/applications/program/own_phone.h"

#include "host/uikit/geometry/screen_space.h"

namespace host::application {

std::optional<CGPoint> OwnPhone::centre_of(objc::Object object) {
  return uikit::centre_on_screen(object);
}

}  // namespace host::application
