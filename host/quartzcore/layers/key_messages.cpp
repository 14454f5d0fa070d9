#include "host/quartzcore/animations/value_objects.h"
#include "host/quartzcore/layers/layer.h"
#include "host/quartzcore/layers/layer_messages.h"

// Key-value access: the parts of geometry by key path, and arbitrary keys of callers.

namespace host::quartzcore {
namespace {

void set_value_for_key_path(CALayer self, objc::Object value, NSString path) {
  const std::string_view wanted = path.UTF8String();
  const auto* access = layer_property(wanted);
  if (!access || wanted.find('.') == std::string_view::npos) {
    objc::send_super<>(self, objc::StatePlace<Layer>::cls, "setValue:forKeyPath:"_sel, value, path);
    return;
  }
  const LayerProperties& properties = layer_of(self).model.properties;
  const auto read = value_from_object(value);
  const auto shaped = read ? shaped_like(access->read(properties), *read) : std::nullopt;
  if (!shaped) return;
  LayerProperties changed = properties;
  access->write(changed, *shaped);
  // Set as whole properties, to call their setters.
  self.setBounds(changed.bounds);
  self.setPosition(changed.position);
  self.setTransform(changed.transform);
}

objc::Object value_for_key_path(CALayer self, NSString path) {
  if (const auto* access = layer_property(path.UTF8String()))
    return object_from_value(access->read(layer_of(self).model.properties));
  return objc::send_super<objc::Object>(self, objc::StatePlace<Layer>::cls, "valueForKeyPath:"_sel,
                                        path);
}

void set_value_for_undefined_key(CALayer self, objc::Object value, NSString key) {
  layer_of(self).extra[key.UTF8String()].reset(value);
}

objc::Object value_for_undefined_key(CALayer self, NSString key) {
  const auto found = layer_of(self).extra.find(key.UTF8String());
  return found == layer_of(self).extra.end() ? objc::Object() : found->second.get();
}

}  // namespace

void add_key_messages(objc::ClassBuilder& builder) {
  builder.method<&set_value_for_key_path>("setValue:forKeyPath:")
      .method<&value_for_key_path>("valueForKeyPath:")
      .method<&set_value_for_undefined_key>("setValue:forUndefinedKey:")
      .method<&value_for_undefined_key>("valueForUndefinedKey:");
}

}  // namespace host::quartzcore
