#include "host/quartzcore/animations/value_objects.h"
#include "host/quartzcore/layer.h"
#include "host/quartzcore/layer_service.h"

// Key-value access: the parts of geometry by key path, and any key that a user of layers invents.

namespace host::quartzcore {

void Layer::set_value_for_key_path(objc::Object value, NSString path) {
  const std::string_view wanted = path.UTF8String();
  const auto* access = layer_property(wanted);
  if (!access || wanted.find('.') == std::string_view::npos) {
    super<>("setValue:forKeyPath:"_sel, value, path);
    return;
  }
  const auto read = value_from_object(value);
  const auto shaped = read ? shaped_like(access->read(properties_), *read) : std::nullopt;
  if (!shaped) return;
  LayerProperties changed = properties_;
  access->write(changed, *shaped);
  // Through the whole properties, so that their setters are heard.
  self.setBounds(changed.bounds);
  self.setPosition(changed.position);
  self.setTransform(changed.transform);
}

objc::Object Layer::value_for_key_path(NSString path) const {
  if (const auto* access = layer_property(path.UTF8String()))
    return object_from_value(access->read(properties_));
  return super<objc::Object>("valueForKeyPath:"_sel, path);
}

void Layer::set_value_for_undefined_key(objc::Object value, NSString key) {
  extra_[key.UTF8String()].reset(value);
}

objc::Object Layer::value_for_undefined_key(NSString key) const {
  const auto found = extra_.find(key.UTF8String());
  return found == extra_.end() ? objc::Object() : found->second.get();
}

}  // namespace host::quartzcore
