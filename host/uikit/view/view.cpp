#include "host/uikit/view/view.h"

#include "host/runtime/device_model.h"
#include "host/uikit/gesture/gesture_recognizer.h"
#include "host/uikit/view/content_gravity.h"

namespace host::uikit {
namespace {

/// Draws by itself, unlike the plain view, whose `drawRect:` has nothing to say?
bool overrides_drawing(UIView view) {
  const objc::Method own = class_getInstanceMethod(objc::class_of(view.id()), "drawRect:"_sel);
  const objc::Method plain = class_getInstanceMethod(UIView::cls(), "drawRect:"_sel);
  return method_getImplementation(own) != method_getImplementation(plain);
}

UIColor default_tint_color() {
  static const auto color = objc::Ref<UIColor>::retain(UIColor::colorWithRed(0, 122.0 / 255, 1, 1));
  return color.get();
}

}  // namespace

View::~View() {
  for (const auto& recognizer : recognizers_)
    objc::state_of<GestureRecognizer>(recognizer.get()).set_view(nil);
  for (const auto& child : subviews_) {
    objc::state_of<View>(child.get()).superview_ = nil;
    child->layer().removeFromSuperlayer();
  }
  if (layer_) layer_->setDelegate(nil);
}

objc::Class View::layer_class(objc::Object) {
  return CALayer::cls();
}

UIView View::init() {
  return self.initWithFrame({});
}

UIView View::init_with_frame(CGRect frame) {
  if (!super<UIView>("init"_sel)) return nil;
  const objc::Object own_class(objc::class_of(self.id()));
  const objc::Object layer_class(objc::send<objc::Class>(own_class, "layerClass"_sel));
  const auto allocated = objc::send<CALayer>(layer_class, "alloc"_sel);
  layer_ = objc::Ref<CALayer>::adopt(objc::send<CALayer>(allocated, "init"_sel));
  layer_->setDelegate(self);
  layer_->setContentsScale(current_device().scale);
  draws_ = overrides_drawing(self);
  layer_->setFrame(frame);
  if (draws_) layer_->setNeedsDisplay();
  return self;
}

UIResponder View::next_responder() {
  if (controller_) return controller_;
  return superview_;
}

CGRect View::frame() const {
  return layer_->frame();
}

void View::set_frame(CGRect frame) {
  const CGSize old_size = layer_->bounds().size;
  layer_->setFrame(frame);
  size_changed(old_size);
}

CGRect View::bounds() const {
  return layer_->bounds();
}

void View::set_bounds(CGRect bounds) {
  const CGSize old_size = layer_->bounds().size;
  layer_->setBounds(bounds);
  size_changed(old_size);
}

CGPoint View::center() const {
  return layer_->position();
}
void View::set_center(CGPoint center) {
  layer_->setPosition(center);
}

CGAffineTransform View::transform() const {
  return layer_->affineTransform();
}
void View::set_transform(CGAffineTransform transform) {
  layer_->setAffineTransform(transform);
}

CGFloat View::content_scale_factor() const {
  return layer_->contentsScale();
}

void View::set_content_scale_factor(CGFloat scale) {
  layer_->setContentsScale(scale);
  self.setNeedsDisplay();
}

CGFloat View::alpha() const {
  return layer_->opacity();
}
void View::set_alpha(CGFloat alpha) {
  layer_->setOpacity(static_cast<float>(alpha));
}

BOOL View::is_hidden() const {
  return layer_->isHidden();
}
void View::set_hidden(BOOL hidden) {
  layer_->setHidden(hidden);
}

BOOL View::is_opaque() const {
  return layer_->isOpaque();
}
void View::set_opaque(BOOL opaque) {
  layer_->setOpaque(opaque);
}

void View::set_background_color(UIColor color) {
  background_color_.reset(color);
  layer_->setBackgroundColor(color.CGColor());
}

UIColor View::tint_color() const {
  if (tint_color_) return tint_color_.get();
  return superview_ ? superview_.tintColor() : default_tint_color();
}

void View::set_tint_color(UIColor color) {
  tint_color_.reset(color);
  announce_tint();
}

void View::announce_tint() {
  self.tintColorDidChange();
  const auto children = subviews_;
  for (const auto& child : children) {
    View& view = objc::state_of<View>(child.get());
    if (!view.tint_color_) view.announce_tint();
  }
}

void View::set_content_mode(UIViewContentMode mode) {
  content_mode_ = mode;
  layer_->setContentsGravity(contents_gravity(mode));
  layer_->setNeedsDisplayOnBoundsChange(draws_ && mode == UIViewContentModeRedraw);
}

BOOL View::clips_to_bounds() const {
  return layer_->masksToBounds();
}
void View::set_clips_to_bounds(BOOL clips) {
  layer_->setMasksToBounds(clips);
}

}  // namespace host::uikit
