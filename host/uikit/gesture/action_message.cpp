#include "host/uikit/gesture/action_message.h"

#include <algorithm>
#include <string_view>

#include "host/runtime/log.h"
#include "platform/Foundation/NSString.h"

namespace host::uikit {

bool send_action_message(objc::Object target, objc::Sel action, objc::Object sender,
                         objc::Object event) {
  if (!target || !action) return false;
  const std::string_view name = sel_getName(action);
  if (!objc::cast<NSObject>(target).respondsToSelector(action)) {
    spdlog::error("an action was sent to {}, which has no method {}",
                  class_getName(objc::class_of(target.id())), name);
    return false;
  }
  switch (std::count(name.begin(), name.end(), ':')) {
    case 0:
      objc::send<>(target, action);
      break;
    case 1:
      objc::send<>(target, action, sender);
      break;
    default:
      objc::send<>(target, action, sender, event);
      break;
  }
  return true;
}

}  // namespace host::uikit
