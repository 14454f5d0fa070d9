#include "host/springboard/view/icon_view.h"

#include "host/springboard/pictures.h"
#include "host/springboard/screen_grid.h"
#include "host/springboard/view/jiggle.h"
#include "host/springboard/view/make_view.h"
#include "platform/CoreGraphics/CGAffineTransform.h"
#include "platform/UIKit/UILongPressGestureRecognizer.h"
#include "platform/UIKit/UITapGestureRecognizer.h"
#include "platform/UIKit/UITouch.h"

namespace host::springboard {
namespace {

// A name may be a little wider than its icon before it is cut.
constexpr CGFloat kLabelOverhang = 12;
constexpr CGFloat kLabelTop = 3;
constexpr CGFloat kLabelHeight = 16;
constexpr CGFloat kShadeAlpha = 0.4;
constexpr double kScaling = 0.2;

CGPoint window_point(NSSet touches) {
  return objc::cast<UITouch>(touches.anyObject()).locationInView(nil);
}

}  // namespace

SBIconView IconView::make(SBIcon icon, IconTouchListener& listener) {
  const CGSize size = screen_grid().icon_view_size();
  const auto made = objc::cast<SBIconView>(SBIconView::alloc().initWithFrame({{0, 0}, size}));
  objc::state_of<IconView>(made).listener_ = &listener;
  made.setIcon(icon);
  return made;
}

CGRect IconView::image_frame() const {
  const CGFloat side = screen_grid().icon_side;
  return {0, 0, side, side};
}

void IconView::set_icon(SBIcon icon) {
  if (!content_) build();
  icon_.reset(icon);
  image_->setImage(icon.generateIconImage(SBIconImageFormatHomeScreen));
  label_->set_text(icon.displayName());
}

void IconView::build() {
  const CGRect image = image_frame();
  content_ = make_view<UIView>(self.bounds());
  content_->setUserInteractionEnabled(NO);
  self.addSubview(*content_);
  image_ = make_view<UIImageView>(image);
  content_->addSubview(*image_);
  shade_ = make_view<UIImageView>(image);
  shade_->setImage(
      picture_for_idiom("icon-mask"_ns).imageWithRenderingMode(UIImageRenderingModeAlwaysTemplate));
  shade_->setTintColor(UIColor::blackColor());
  shade_->setAlpha(kShadeAlpha);
  shade_->setHidden(YES);
  content_->addSubview(*shade_);
  label_.emplace(*content_, CGRect(-kLabelOverhang, image.max_y() + kLabelTop,
                                   image.size.width + 2 * kLabelOverhang, kLabelHeight));
  add_recognizers();
}

void IconView::add_recognizers() {
  auto tap = objc::Ref<UITapGestureRecognizer>::adopt(
      UITapGestureRecognizer::alloc().initWithTarget(self, "tapped:"_sel));
  self.addGestureRecognizer(*tap);
  auto press = objc::Ref<UILongPressGestureRecognizer>::adopt(
      UILongPressGestureRecognizer::alloc().initWithTarget(self, "pressedLong:"_sel));
  // The same touch goes on to carry the icon.
  press->setCancelsTouchesInView(NO);
  self.addGestureRecognizer(*press);
}

void IconView::set_is_editing(BOOL editing) {
  if (editing_ == editing) return;
  editing_ = editing;
  if (editing) {
    start_wobbling();
  } else {
    stop_jiggle(content_->layer());
  }
}

void IconView::start_wobbling() const {
  const CGPoint at = self.frame().origin;
  start_jiggle(content_->layer(), static_cast<std::size_t>(at.x + at.y));
}

void IconView::did_move_to_window() {
  super<>("didMoveToWindow"_sel);
  // Layers lose their animations when they leave the screen.
  if (editing_ && self.window()) start_wobbling();
}

void IconView::set_highlighted(BOOL highlighted) {
  highlighted_ = highlighted;
  shade_->setHidden(!highlighted);
}

void IconView::set_lifted(bool lifted) {
  content_->setAlpha(lifted ? 0 : 1);
}

void IconView::set_image_scale(CGFloat scale) {
  const UIView image = *image_;
  UIView::animateWithDuration(
      kScaling, 0, UIViewAnimationOptionAllowUserInteraction,
      objc::block([=] { image.setTransform(CGAffineTransformMakeScale(scale, scale)); }),
      objc::Block<void(BOOL)>());
}

void IconView::touches_began(NSSet touches, UIEvent event) {
  super<>("touchesBegan:withEvent:"_sel, touches, event);
  touch_point_ = window_point(touches);
  if (!self.isEditing()) self.setHighlighted(YES);
  if (listener_) listener_->icon_touched(self, touch_point_);
}

void IconView::touches_moved(NSSet touches, UIEvent event) {
  super<>("touchesMoved:withEvent:"_sel, touches, event);
  touch_point_ = window_point(touches);
  if (listener_) listener_->icon_dragged(self, touch_point_);
}

void IconView::touches_ended(NSSet touches, UIEvent event) {
  super<>("touchesEnded:withEvent:"_sel, touches, event);
  let_go();
}

void IconView::touches_cancelled(NSSet touches, UIEvent event) {
  super<>("touchesCancelled:withEvent:"_sel, touches, event);
  let_go();
}

void IconView::let_go() {
  self.setHighlighted(NO);
  if (listener_) listener_->icon_released(self);
}

void IconView::tapped(UIGestureRecognizer) {
  if (listener_) listener_->icon_tapped(self);
}

void IconView::pressed_long(UIGestureRecognizer recognizer) {
  if (recognizer.state() != UIGestureRecognizerStateBegan) return;
  self.setHighlighted(NO);
  if (listener_) listener_->icon_pressed_long(self);
}

void export_icon_view() {
  objc::ClassBuilder("SBIconView", "UIView")
      .state<IconView>()
      .method<&IconView::icon>("icon")
      .method<&IconView::set_icon>("setIcon:")
      .method<&IconView::location>("location")
      .method<&IconView::set_location>("setLocation:")
      .method<&IconView::is_in_dock>("isInDock")
      .method<&IconView::is_editing>("isEditing")
      .method<&IconView::set_is_editing>("setIsEditing:")
      .method<&IconView::is_highlighted>("isHighlighted")
      .method<&IconView::set_highlighted>("setHighlighted:")
      .method<&IconView::touches_began>("touchesBegan:withEvent:")
      .method<&IconView::touches_moved>("touchesMoved:withEvent:")
      .method<&IconView::touches_ended>("touchesEnded:withEvent:")
      .method<&IconView::touches_cancelled>("touchesCancelled:withEvent:")
      .method<&IconView::did_move_to_window>("didMoveToWindow")
      .method<&IconView::tapped>("tapped:")
      .method<&IconView::pressed_long>("pressedLong:")
      .finish();
}

}  // namespace host::springboard
