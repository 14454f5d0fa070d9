#include "host/quartzcore/backdrop_layer.h"

#include "host/quartzcore/layer_service.h"

namespace host::quartzcore {
namespace {

CGColorObject object_in(CGColorRef color) {
  return objc::cast<CGColorObject>(object_of(color));
}
std::vector<const BackdropLayer*> backdrops;

CGColorRef color_in(const objc::Ref<CGColorObject>& color) {
  return reinterpret_cast<CGColorRef>(color.get().id());
}

}  // namespace

std::uint64_t BackdropLook::signature() const {
  std::uint64_t result = mix_signature(1, blur_radius);
  result = mix_signature(result, CGPoint{saturation, brightness});
  result = mix_signature(result, CGPoint{gray_alpha, gray_level});
  return mix_signature(mix_signature(result, tint), lighten);
}

BackdropLayer::BackdropLayer(CABackdropLayer owner) : Implementation(owner) {
  objc::state_of<Layer>(owner).set_backdrop(this);
  backdrops.push_back(this);
}
BackdropLayer::~BackdropLayer() {
  objc::state_of<Layer>(self).set_backdrop(nullptr);
  std::erase(backdrops, this);
}

const std::vector<const BackdropLayer*>& all_backdrops() {
  return backdrops;
}

void BackdropLayer::note_change() {
  note_layer_change();
}

CGColorRef BackdropLayer::tint_color() const {
  return color_in(tint_color_);
}
void BackdropLayer::set_tint_color(CGColorRef color) {
  tint_color_.reset(object_in(color));
  look_.tint = rgba_of(color);
  note_change();
}
CGColorRef BackdropLayer::lighten_tint() const {
  return color_in(lighten_tint_);
}
void BackdropLayer::set_lighten_tint(CGColorRef color) {
  lighten_tint_.reset(object_in(color));
  look_.lighten = rgba_of(color);
  note_change();
}

void export_backdrop_layer() {
  using L = BackdropLook;
  objc::ClassBuilder("CABackdropLayer", "CALayer")
      .state<BackdropLayer>()
      .method<&BackdropLayer::number<&L::blur_radius>>("blurRadius")
      .method<&BackdropLayer::set_number<&L::blur_radius>>("setBlurRadius:")
      .method<&BackdropLayer::number<&L::saturation>>("saturationDeltaFactor")
      .method<&BackdropLayer::set_number<&L::saturation>>("setSaturationDeltaFactor:")
      .method<&BackdropLayer::number<&L::brightness>>("brightnessDelta")
      .method<&BackdropLayer::set_number<&L::brightness>>("setBrightnessDelta:")
      .method<&BackdropLayer::number<&L::gray_alpha>>("grayscaleTintAlpha")
      .method<&BackdropLayer::set_number<&L::gray_alpha>>("setGrayscaleTintAlpha:")
      .method<&BackdropLayer::number<&L::gray_level>>("grayscaleTintLevel")
      .method<&BackdropLayer::set_number<&L::gray_level>>("setGrayscaleTintLevel:")
      .method<&BackdropLayer::tint_color>("tintColor")
      .method<&BackdropLayer::set_tint_color>("setTintColor:")
      .method<&BackdropLayer::lighten_tint>("lightenTint")
      .method<&BackdropLayer::set_lighten_tint>("setLightenTint:")
      .method<&BackdropLayer::luminance>("backdropLuminance")
      .finish();
}

}  // namespace host::quartzcore
