#include "host/quartzcore/layers/layer_actions.h"

#include "host/quartzcore/animations/transaction.h"

namespace host::quartzcore {

objc::Ref<objc::Object> action_before_change(CALayer layer, NSString key) {
  if (current_actions() == Actions::Disabled) return {};
  return objc::Ref<objc::Object>::retain(layer.actionForKey(key));
}

void run_action(const objc::Ref<objc::Object>& action, CALayer layer, NSString key) {
  if (!action) return;
  objc::send<>(action.get(), "runActionForKey:object:arguments:"_sel, key, objc::Object(layer),
               objc::Object());
}

}  // namespace host::quartzcore
