#pragma once

#include <vector>

#include "objc/class_builder.h"
#include "objc/ref.h"
#include "platform/UIKit/UIGestureRecognizer.h"
#include "platform/UIKit/UIView.h"
#include "platform/UIKit/UIViewController.h"

namespace host::uikit {

/// A view. Its layer holds geometry and looks, which are stored nowhere else; the view holds the
/// tree, touches and layout. A subclass in the host derives its implementation from
/// `objc::Implementation` as usual and reaches this state through `objc::state_of<View>(self)`
/// where no message does.
class View : public objc::Implementation<View, UIView> {
 public:
  explicit View(UIView owner) : Implementation(owner) {}
  ~View();

  static objc::Class layer_class(objc::Object cls);

  UIView init();
  UIView init_with_frame(CGRect frame);
  CALayer layer() const { return layer_.get(); }
  UIResponder next_responder();

  // Geometry.
  CGRect frame() const;
  void set_frame(CGRect frame);
  CGRect bounds() const;
  void set_bounds(CGRect bounds);
  CGPoint center() const;
  void set_center(CGPoint center);
  CGAffineTransform transform() const;
  void set_transform(CGAffineTransform transform);
  CGFloat content_scale_factor() const;
  void set_content_scale_factor(CGFloat scale);

  // Looks.
  CGFloat alpha() const;
  void set_alpha(CGFloat alpha);
  BOOL is_hidden() const;
  void set_hidden(BOOL hidden);
  BOOL is_opaque() const;
  void set_opaque(BOOL opaque);
  UIColor background_color() const { return background_color_.get(); }
  void set_background_color(UIColor color);
  UIColor tint_color() const;
  void set_tint_color(UIColor color);
  void tint_color_did_change() {}
  UIViewContentMode content_mode() const { return content_mode_; }
  void set_content_mode(UIViewContentMode mode);
  BOOL clips_to_bounds() const;
  void set_clips_to_bounds(BOOL clips);
  BOOL clears_context_before_drawing() const { return clears_context_; }
  void set_clears_context_before_drawing(BOOL clears) { clears_context_ = clears; }

  // Behaviour.
  BOOL is_user_interaction_enabled() const { return user_interaction_enabled_; }
  void set_user_interaction_enabled(BOOL enabled) { user_interaction_enabled_ = enabled; }
  BOOL is_multiple_touch_enabled() const { return multiple_touch_enabled_; }
  void set_multiple_touch_enabled(BOOL enabled) { multiple_touch_enabled_ = enabled; }
  BOOL is_exclusive_touch() const { return exclusive_touch_; }
  void set_exclusive_touch(BOOL exclusive) { exclusive_touch_ = exclusive; }
  NSInteger tag() const { return tag_; }
  void set_tag(NSInteger tag) { tag_ = tag; }
  UIViewAutoresizing autoresizing_mask() const { return autoresizing_mask_; }
  void set_autoresizing_mask(UIViewAutoresizing mask) { autoresizing_mask_ = mask; }
  BOOL autoresizes_subviews() const { return autoresizes_subviews_; }
  void set_autoresizes_subviews(BOOL resizes) { autoresizes_subviews_ = resizes; }

  // The tree.
  UIView superview() const { return superview_; }
  UIWindow window() const { return window_; }
  NSArray subviews() const;
  void add_subview(UIView view);
  void insert_subview_at_index(UIView view, NSInteger index);
  void insert_subview_above(UIView view, UIView sibling);
  void insert_subview_below(UIView view, UIView sibling);
  void exchange_subviews(NSInteger first, NSInteger second);
  void bring_subview_to_front(UIView view);
  void send_subview_to_back(UIView view);
  void remove_from_superview();
  UIView view_with_tag(NSInteger tag);
  BOOL is_descendant_of_view(UIView view) const;
  void did_add_subview(UIView) {}
  void will_remove_subview(UIView) {}
  void will_move_to_superview(UIView) {}
  void did_move_to_superview() {}
  void will_move_to_window(UIWindow) {}
  void did_move_to_window() {}

  // Layout and drawing.
  void set_needs_layout();
  void layout_if_needed();
  void layout_subviews() {}
  void layout_sublayers_of_layer(CALayer layer);
  void set_needs_display();
  void set_needs_display_in_rect(CGRect rect);
  void draw_rect(CGRect) {}
  void draw_layer(CALayer layer, CGContextRef context);
  CGSize size_that_fits(CGSize size);
  void size_to_fit();
  CGSize intrinsic_content_size();
  void invalidate_intrinsic_content_size() {}

  // Points and touches.
  UIView hit_test(CGPoint point, UIEvent event);
  BOOL point_inside(CGPoint point, UIEvent event);
  CGPoint convert_point_to_view(CGPoint point, UIView view) const;
  CGPoint convert_point_from_view(CGPoint point, UIView view) const;
  CGRect convert_rect_to_view(CGRect rect, UIView view) const;
  CGRect convert_rect_from_view(CGRect rect, UIView view) const;
  NSArray gesture_recognizers() const;
  void set_gesture_recognizers(NSArray recognizers);
  void add_gesture_recognizer(UIGestureRecognizer recognizer);
  void remove_gesture_recognizer(UIGestureRecognizer recognizer);
  BOOL gesture_recognizer_should_begin(UIGestureRecognizer) { return YES; }

  objc::Object action_for_layer(CALayer layer, NSString key);

  // For the rest of the host.
  const std::vector<objc::Ref<UIView>>& children() const { return subviews_; }
  const std::vector<objc::Ref<UIGestureRecognizer>>& recognizers() const { return recognizers_; }
  UIViewController controller() const { return controller_; }
  void set_controller(UIViewController controller) { controller_ = controller; }
  /// Returns whether the class draws. Only such a view has a backing store.
  bool draws() const { return draws_; }
  /// Animations during which the view takes no touches.
  void begin_untouchable_animation() { ++untouchable_animations_; }
  void end_untouchable_animation() { --untouchable_animations_; }
  /// During a hold nothing in the view takes touches, only the view itself.
  void begin_touch_hold() { ++touch_holds_; }
  void end_touch_hold() { --touch_holds_; }

 private:
  friend class Window;
  std::size_t index_of(UIView view) const;
  void insert(UIView view, std::size_t index);
  void reorder(UIView view, std::size_t index);
  void put_layer_at(UIView view, std::size_t index);
  void detach(UIView view);
  void detach_quietly(UIView view);
  void announce_window(UIWindow window);
  void settle_in_window(UIWindow window);
  void announce_tint();
  void resize_subviews(CGSize old_size);
  void size_changed(CGSize old_size);

  // Callers walk through thousands of views; what they read comes first, to share one cache line.
  objc::Ref<CALayer> layer_;
  // What `subviews` returns until they change.
  mutable objc::Ref<NSArray> subview_array_;
  objc::Ref<UIColor> background_color_;
  objc::Ref<UIColor> tint_color_;
  std::vector<objc::Ref<UIView>> subviews_;
  std::vector<objc::Ref<UIGestureRecognizer>> recognizers_;
  UIView superview_;
  UIWindow window_;
  UIViewController controller_;
  NSInteger tag_ = 0;
  UIViewAutoresizing autoresizing_mask_ = UIViewAutoresizingNone;
  UIViewContentMode content_mode_ = UIViewContentModeScaleToFill;
  int untouchable_animations_ = 0;
  int touch_holds_ = 0;
  bool draws_ = false;
  BOOL user_interaction_enabled_ = YES;
  BOOL multiple_touch_enabled_ = NO;
  BOOL exclusive_touch_ = NO;
  BOOL autoresizes_subviews_ = YES;
  BOOL clears_context_ = YES;
};

void export_view();

}  // namespace host::uikit
