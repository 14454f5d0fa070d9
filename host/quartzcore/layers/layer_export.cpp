#include "host/quartzcore/layers/layer.h"
#include "host/quartzcore/layers/layer_messages.h"

namespace host::quartzcore {
namespace {

CALayer make(objc::Object cls) {
  return objc::send<CALayer>(objc::send<CALayer>(cls, "alloc"_sel), "init"_sel).autorelease();
}

}  // namespace

void export_layer() {
  objc::ClassBuilder builder("CALayer", "NSObject");
  builder.state<Layer>().class_method<&make>("layer");
  add_model_messages(builder);
  add_tree_messages(builder);
  add_geometry_messages(builder);
  add_display_messages(builder);
  add_animation_messages(builder);
  add_key_messages(builder);
  builder.finish();
}

}  // namespace host::quartzcore
