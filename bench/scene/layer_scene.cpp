#include "bench/scene/layer_scene.h"

#include <cstring>
#include <string>

#include "bench/scene/picture.h"
#include "host/foundation/exports.h"
#include "host/quartzcore/drawing/context.h"
#include "host/quartzcore/kinds/backdrop_layer.h"
#include "host/quartzcore/service/exports.h"
#include "host/uikit/text_layout/text_layout.h"
#include "objc/class_builder.h"
#include "platform/QuartzCore/CATransaction.h"

namespace bench {
namespace {

using host::quartzcore::Opacity;
using host::quartzcore::Surface;

/// Pixels per point, as on the phone's screen.
constexpr double kScale = 2;

/// The delegate of a layer that draws one line of text.
struct SceneText : objc::Bound<SceneText, "SceneText", NSObject> {};

class TextPainter : public objc::Implementation<TextPainter, SceneText> {
 public:
  explicit TextPainter(SceneText owner) : Implementation(owner) {}

  CGSize set(const std::string& text, double size) {
    host::uikit::TextStyle style;
    style.size = size;
    style.color = {1, 1, 1, 1};
    layout_.emplace(host::uikit::StyledText{text, {{0, text.size(), style}}},
                    host::uikit::TextFrame{});
    return layout_->size();
  }
  void draw(CALayer layer, CGContextRef context) {
    layout_->draw(host::quartzcore::cairo_of(context), layer.bounds());
  }

 private:
  std::optional<host::uikit::TextLayout> layout_;
};

void export_all() {
  host::foundation::export_foundation();
  host::quartzcore::export_quartzcore();
  if (objc_getClass("SceneText")) return;
  objc::ClassBuilder("SceneText", "NSObject")
      .state<TextPainter>()
      .method<&TextPainter::draw>("drawLayer:inContext:")
      .finish();
}

Surface surface_of(const ScenePicture& picture) {
  Surface surface = host::quartzcore::make_surface(picture.width, picture.height);
  unsigned char* row = cairo_image_surface_get_data(surface.get());
  for (int y = 0; y < picture.height; ++y) {
    std::memcpy(row, &picture.pixels[static_cast<std::size_t>(y * picture.width)],
                static_cast<std::size_t>(picture.width) * sizeof(std::uint32_t));
    row += cairo_image_surface_get_stride(surface.get());
  }
  cairo_surface_mark_dirty(surface.get());
  return surface;
}

}  // namespace

LayerScene::LayerScene(SceneKind kind)
    : kind_(kind), loop_(clock_), compositor_(kSceneWidth, kSceneHeight, kScale) {
  host::RunLoop::set_main(&loop_);
  export_all();
  service_.emplace(loop_);
  CATransaction::setDisableActions(YES);
  root_ = CALayer::layer();
  root_.setFrame({0, 0, kSceneWidth / kScale, kSceneHeight / kScale});
  add_background();
  add_icons();
  add_artwork();
  add_text(kTitle, kTitleSize, kTitleLeft, kTitleTop);
}

LayerScene::~LayerScene() {
  service_.reset();
  host::RunLoop::set_main(nullptr);
}

void LayerScene::add_background() {
  const ScenePicture sharp = photograph(kSceneWidth, kBackgroundHeight, 0);
  const bool is_live = kind_ == SceneKind::kBlur;
  background_ = add_picture(is_live ? sharp : blurred(sharp, kBlurRadius), 0, 0, true);
  if (!is_live) return;
  const CABackdropLayer backdrop = CABackdropLayer::layer();
  backdrop.setFrame(root_.bounds());
  objc::state_of<host::quartzcore::BackdropLayer>(backdrop).show(
      {.blur_radius = kBlurRadius / kScale});
  root_.addSublayer(backdrop);
}

void LayerScene::add_icons() {
  for (int i = 0; i < kIconCount; ++i) {
    add_picture(icon_picture(i), icon_left(i), icon_top(i), false);
    add_text(("Icon " + std::to_string(i)).c_str(), kLabelSize, icon_left(i) + kLabelIndent,
             icon_top(i) + kLabelDrop);
  }
}

void LayerScene::add_artwork() {
  artwork_ = add_picture(photograph(kArtworkSide, kArtworkSide, 2), kArtworkLeft, 0, true);
}

CALayer LayerScene::add_picture(const ScenePicture& picture, double left, double top,
                                bool is_opaque) {
  const CALayer layer = CALayer::layer();
  layer.setFrame({left / kScale, top / kScale, picture.width / kScale, picture.height / kScale});
  CGImageRef image = host::quartzcore::make_image(
      surface_of(picture), is_opaque ? Opacity::Opaque : Opacity::Translucent);
  layer.setContents(image);
  CGImageRelease(image);
  layer.setContentsScale(kScale);
  root_.addSublayer(layer);
  return layer;
}

void LayerScene::add_text(const char* text, int size, int left, int top) {
  const SceneText painter = SceneText::alloc().init().autorelease();
  const CGSize needed = objc::state_of<TextPainter>(painter).set(text, size / kScale);
  const CALayer layer = CALayer::layer();
  layer.setFrame({left / kScale, top / kScale, needed.width, needed.height});
  layer.setContentsScale(kScale);
  layer.setDelegate(painter);
  layer.setNeedsDisplay();
  root_.addSublayer(layer);
}

void LayerScene::draw(int frame) {
  const objc::AutoreleasePool pool;
  CATransaction::setDisableActions(YES);
  const auto move_to = [](CALayer layer, double top) {
    CGRect frame_of_layer = layer.frame();
    frame_of_layer.origin.y = top / kScale;
    layer.setFrame(frame_of_layer);
  };
  move_to(artwork_, artwork_top(frame));
  if (kind_ != SceneKind::kPart) move_to(background_, -(frame % 2));
  render();
}

void LayerScene::draw_anew() {
  compositor_.invalidate();
  render();
}

void LayerScene::render() {
  host::quartzcore::flush_layers();
  const CALayer roots[] = {root_};
  compositor_.render(roots, loop_.now());
}

}  // namespace bench
