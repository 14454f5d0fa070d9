#include "host/uikit/view/action.h"

#include "host/uikit/gesture/action_message.h"
#include "host/uikit/view/responder.h"

namespace host::uikit {
namespace {

/// Returns the first object in the responder chain that understands the action; nil when none does.
objc::Object responder_for(objc::Sel action, objc::Object sender) {
  UIResponder responder = first_responder();
  if (!responder && objc::cast<NSObject>(sender).isKindOfClass(UIResponder::cls()))
    responder = objc::cast<UIResponder>(sender);
  while (responder && !responder.respondsToSelector(action))
    responder = responder.nextResponder();
  return responder;
}

}  // namespace

bool send_action(objc::Sel action, objc::Object target, objc::Object sender, UIEvent event) {
  return send_action_message(target ? target : responder_for(action, sender), action, sender,
                             event);
}

}  // namespace host::uikit
