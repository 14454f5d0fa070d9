#include "host/quartzcore/kinds/backdrop_layer.h"

#include "host/quartzcore/layers/layer_changes.h"
#include "host/quartzcore/values/signature.h"

namespace host::quartzcore {
namespace {

std::vector<const BackdropLayer*> backdrops;

}  // namespace

std::uint64_t BackdropLook::signature() const {
  std::uint64_t result = mix_signature(1, blur_radius);
  result = mix_signature(result, saturation);
  result = mix_signature(result, CGPoint{gray_alpha, gray_level});
  return mix_signature(result, tint);
}

BackdropLayer::BackdropLayer(CABackdropLayer owner) : Implementation(owner) {
  layer_of(owner).backdrop = this;
  backdrops.push_back(this);
}
BackdropLayer::~BackdropLayer() {
  layer_of(self).backdrop = nullptr;
  std::erase(backdrops, this);
}

const std::vector<const BackdropLayer*>& all_backdrops() {
  return backdrops;
}

void BackdropLayer::show(const BackdropLook& look) {
  look_ = look;
  note_layer_change();
}

void export_backdrop_layer() {
  objc::ClassBuilder("CABackdropLayer", "CALayer").state<BackdropLayer>().finish();
}

}  // namespace host::quartzcore
