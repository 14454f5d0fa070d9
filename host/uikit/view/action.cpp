#include "host/uikit/view/action.h"

#include "host/uikit/gesture/action_message.h"
#include "host/uikit/view/responder.h"

namespace host::uikit {
namespace {

/// The first in the responder chain that understands the action.
objc::Object taker_of(objc::Sel action, objc::Object sender) {
  UIResponder responder = first_responder();
  if (!responder && objc::cast<NSObject>(sender).isKindOfClass(UIResponder::cls()))
    responder = objc::cast<UIResponder>(sender);
  while (responder && !responder.respondsToSelector(action))
    responder = responder.nextResponder();
  return responder;
}

}  // namespace

bool send_action(objc::Sel action, objc::Object target, objc::Object sender, UIEvent event) {
  return send_action_message(target ? target : taker_of(action, sender), action, sender, event);
}

}  // namespace host::uikit
