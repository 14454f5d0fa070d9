#include "host/springboard/view/icon_view.h"

#include <cmath>

#include "host/springboard/common/make_view.h"
#include "host/springboard/common/pictures.h"
#include "host/springboard/common/screen_grid.h"
#include "host/springboard/view/jiggle.h"
#include "platform/CoreGraphics/CGAffineTransform.h"

namespace host::springboard {
namespace {

// In points. A name may be slightly wider than its icon before it is truncated.
constexpr CGFloat kLabelOverhang = 12;
constexpr CGFloat kLabelTop = 3;
constexpr CGFloat kLabelHeight = 16;
constexpr CGFloat kShadeAlpha = 0.4;
constexpr double kScaling = 0.2;

// How long, in seconds, and how still, in points, a finger must rest on an icon to start editing.
constexpr double kHold = 0.5;
constexpr CGFloat kStill = 10;

/// The view handles one finger at a time.
UITouch only(NSSet touches) {
  return objc::cast<UITouch>(touches.anyObject());
}

}  // namespace

SBIconView IconView::make(SBIcon icon) {
  const CGSize size = screen_grid().icon_view_size();
  const auto made = objc::cast<SBIconView>(SBIconView::alloc().initWithFrame({{0, 0}, size}));
  made.setIcon(icon);
  return made;
}

void IconView::set_delegate(objc::Object delegate) {
  delegate_ = objc::cast<SBIconViewDelegate>(delegate);
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
  landing_point_ = touch_point_ = only(touches).locationInView(nil);
  is_held_ = has_strayed_ = false;
  if (!self.isEditing()) {
    self.setHighlighted(YES);
    hold_.start(kHold, [this] { held(); });
  }
  delegate_.iconTouchBegan(self);
}

void IconView::touches_moved(NSSet touches, UIEvent event) {
  super<>("touchesMoved:withEvent:"_sel, touches, event);
  touch_point_ = only(touches).locationInView(nil);
  const CGSize way{touch_point_.x - landing_point_.x, touch_point_.y - landing_point_.y};
  if (std::hypot(way.width, way.height) > kStill) {
    has_strayed_ = true;
    hold_.stop();
  }
  delegate_.iconTouchMoved(self, only(touches));
}

void IconView::touches_ended(NSSet touches, UIEvent event) {
  super<>("touchesEnded:withEvent:"_sel, touches, event);
  const bool is_tapped = is_tapped_by(only(touches));
  let_go(YES);
  if (is_tapped) delegate_.iconTapped(self);
}

void IconView::touches_cancelled(NSSet touches, UIEvent event) {
  super<>("touchesCancelled:withEvent:"_sel, touches, event);
  let_go(NO);
}

/// A tapping finger may stray within the icon; one that drags the icon does not tap it.
bool IconView::is_tapped_by(UITouch touch) const {
  if (is_held_ || (has_strayed_ && self.isEditing())) return false;
  return self.pointInside(touch.locationInView(self), nil);
}

void IconView::let_go(BOOL lifted) {
  hold_.stop();
  self.setHighlighted(NO);
  delegate_.iconTouchEnded(self, lifted);
}

void IconView::held() {
  is_held_ = true;
  self.setHighlighted(NO);
  delegate_.iconHandleLongPress(self);
}

void export_icon_view() {
  objc::ClassBuilder("SBIconView", "UIView")
      .state<IconView>()
      .method<&IconView::icon>("icon")
      .method<&IconView::set_icon>("setIcon:")
      .method<&IconView::delegate>("delegate")
      .method<&IconView::set_delegate>("setDelegate:")
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
      .finish();
}

}  // namespace host::springboard
