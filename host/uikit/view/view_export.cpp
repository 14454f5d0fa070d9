#include "host/uikit/view/animation_action.h"
#include "host/uikit/view/view.h"
#include "platform/Foundation/NSNull.h"

namespace host::uikit {

objc::Object View::action_for_layer(CALayer layer, NSString key) {
  if (const objc::Object action = make_animation_action(self, layer, key)) return action;
  // Outside of animation blocks, a view's layer changes without animation, unlike a standalone
  // layer.
  return NSNull::null();
}

namespace {

void add_geometry_and_looks(objc::ClassBuilder& view) {
  view.method<&View::frame>("frame")
      .method<&View::set_frame>("setFrame:")
      .method<&View::bounds>("bounds")
      .method<&View::set_bounds>("setBounds:")
      .method<&View::center>("center")
      .method<&View::set_center>("setCenter:")
      .method<&View::transform>("transform")
      .method<&View::set_transform>("setTransform:")
      .method<&View::content_scale_factor>("contentScaleFactor")
      .method<&View::set_content_scale_factor>("setContentScaleFactor:")
      .method<&View::alpha>("alpha")
      .method<&View::set_alpha>("setAlpha:")
      .method<&View::is_hidden>("isHidden")
      .method<&View::set_hidden>("setHidden:")
      .method<&View::is_opaque>("isOpaque")
      .method<&View::set_opaque>("setOpaque:")
      .method<&View::background_color>("backgroundColor")
      .method<&View::set_background_color>("setBackgroundColor:")
      .method<&View::tint_color>("tintColor")
      .method<&View::set_tint_color>("setTintColor:")
      .method<&View::tint_color_did_change>("tintColorDidChange")
      .method<&View::content_mode>("contentMode")
      .method<&View::set_content_mode>("setContentMode:")
      .method<&View::clips_to_bounds>("clipsToBounds")
      .method<&View::set_clips_to_bounds>("setClipsToBounds:")
      .method<&View::clears_context_before_drawing>("clearsContextBeforeDrawing")
      .method<&View::set_clears_context_before_drawing>("setClearsContextBeforeDrawing:");
}

void add_behaviour(objc::ClassBuilder& view) {
  view.method<&View::is_user_interaction_enabled>("isUserInteractionEnabled")
      .method<&View::set_user_interaction_enabled>("setUserInteractionEnabled:")
      .method<&View::is_multiple_touch_enabled>("isMultipleTouchEnabled")
      .method<&View::set_multiple_touch_enabled>("setMultipleTouchEnabled:")
      .method<&View::is_exclusive_touch>("isExclusiveTouch")
      .method<&View::set_exclusive_touch>("setExclusiveTouch:")
      .method<&View::tag>("tag")
      .method<&View::set_tag>("setTag:")
      .method<&View::autoresizing_mask>("autoresizingMask")
      .method<&View::set_autoresizing_mask>("setAutoresizingMask:")
      .method<&View::autoresizes_subviews>("autoresizesSubviews")
      .method<&View::set_autoresizes_subviews>("setAutoresizesSubviews:");
}

void add_tree(objc::ClassBuilder& view) {
  view.method<&View::superview>("superview")
      .method<&View::window>("window")
      .method<&View::subviews>("subviews")
      .method<&View::add_subview>("addSubview:")
      .method<&View::insert_subview_at_index>("insertSubview:atIndex:")
      .method<&View::insert_subview_above>("insertSubview:aboveSubview:")
      .method<&View::insert_subview_below>("insertSubview:belowSubview:")
      .method<&View::exchange_subviews>("exchangeSubviewAtIndex:withSubviewAtIndex:")
      .method<&View::bring_subview_to_front>("bringSubviewToFront:")
      .method<&View::send_subview_to_back>("sendSubviewToBack:")
      .method<&View::remove_from_superview>("removeFromSuperview")
      .method<&View::view_with_tag>("viewWithTag:")
      .method<&View::is_descendant_of_view>("isDescendantOfView:")
      .method<&View::did_add_subview>("didAddSubview:")
      .method<&View::will_remove_subview>("willRemoveSubview:")
      .method<&View::will_move_to_superview>("willMoveToSuperview:")
      .method<&View::did_move_to_superview>("didMoveToSuperview")
      .method<&View::will_move_to_window>("willMoveToWindow:")
      .method<&View::did_move_to_window>("didMoveToWindow");
}

void add_layout_and_drawing(objc::ClassBuilder& view) {
  view.method<&View::set_needs_layout>("setNeedsLayout")
      .method<&View::layout_if_needed>("layoutIfNeeded")
      .method<&View::layout_subviews>("layoutSubviews")
      .method<&View::layout_sublayers_of_layer>("layoutSublayersOfLayer:")
      .method<&View::set_needs_display>("setNeedsDisplay")
      .method<&View::set_needs_display_in_rect>("setNeedsDisplayInRect:")
      .method<&View::draw_rect>("drawRect:")
      .method<&View::draw_layer>("drawLayer:inContext:")
      .method<&View::size_that_fits>("sizeThatFits:")
      .method<&View::size_to_fit>("sizeToFit")
      .method<&View::intrinsic_content_size>("intrinsicContentSize")
      .method<&View::invalidate_intrinsic_content_size>("invalidateIntrinsicContentSize")
      .method<&View::action_for_layer>("actionForLayer:forKey:");
}

void add_points_and_touches(objc::ClassBuilder& view) {
  view.method<&View::hit_test>("hitTest:withEvent:")
      .method<&View::point_inside>("pointInside:withEvent:")
      .method<&View::convert_point_to_view>("convertPoint:toView:")
      .method<&View::convert_point_from_view>("convertPoint:fromView:")
      .method<&View::convert_rect_to_view>("convertRect:toView:")
      .method<&View::convert_rect_from_view>("convertRect:fromView:")
      .method<&View::gesture_recognizers>("gestureRecognizers")
      .method<&View::set_gesture_recognizers>("setGestureRecognizers:")
      .method<&View::add_gesture_recognizer>("addGestureRecognizer:")
      .method<&View::remove_gesture_recognizer>("removeGestureRecognizer:")
      .method<&View::gesture_recognizer_should_begin>("gestureRecognizerShouldBegin:");
}

}  // namespace

void export_view() {
  objc::ClassBuilder view("UIView", "UIResponder");
  view.state<View>()
      .class_method<&View::layer_class>("layerClass")
      .method<&View::init>("init")
      .method<&View::init_with_frame>("initWithFrame:")
      .method<&View::layer>("layer")
      .method<&View::next_responder>("nextResponder");
  add_geometry_and_looks(view);
  add_behaviour(view);
  add_tree(view);
  add_layout_and_drawing(view);
  add_points_and_touches(view);
  view.finish();
}

}  // namespace host::uikit
