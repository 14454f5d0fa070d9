#include "host/quartzcore/layer.h"

namespace host::quartzcore {
namespace {

CALayer make(objc::Object cls) {
  return objc::send<CALayer>(objc::send<CALayer>(cls, "alloc"_sel), "init"_sel).autorelease();
}

void add_properties(objc::ClassBuilder& builder) {
  builder.method<&Layer::frame>("frame")
      .method<&Layer::set_frame>("setFrame:")
      .method<&Layer::bounds>("bounds")
      .method<&Layer::set_bounds>("setBounds:")
      .method<&Layer::position>("position")
      .method<&Layer::set_position>("setPosition:")
      .method<&Layer::anchor_point>("anchorPoint")
      .method<&Layer::set_anchor_point>("setAnchorPoint:")
      .method<&Layer::z_position>("zPosition")
      .method<&Layer::set_z_position>("setZPosition:")
      .method<&Layer::transform>("transform")
      .method<&Layer::set_transform>("setTransform:")
      .method<&Layer::affine_transform>("affineTransform")
      .method<&Layer::set_affine_transform>("setAffineTransform:")
      .method<&Layer::opacity>("opacity")
      .method<&Layer::set_opacity>("setOpacity:")
      .method<&Layer::is_hidden>("isHidden")
      .method<&Layer::set_hidden>("setHidden:")
      .method<&Layer::is_opaque>("isOpaque")
      .method<&Layer::set_opaque>("setOpaque:")
      .method<&Layer::masks_to_bounds>("masksToBounds")
      .method<&Layer::set_masks_to_bounds>("setMasksToBounds:")
      .method<&Layer::should_rasterize>("shouldRasterize")
      .method<&Layer::set_should_rasterize>("setShouldRasterize:")
      .method<&Layer::corner_radius>("cornerRadius")
      .method<&Layer::set_corner_radius>("setCornerRadius:")
      .method<&Layer::border_width>("borderWidth")
      .method<&Layer::set_border_width>("setBorderWidth:")
      .method<&Layer::border_color>("borderColor")
      .method<&Layer::set_border_color>("setBorderColor:")
      .method<&Layer::background_color>("backgroundColor")
      .method<&Layer::set_background_color>("setBackgroundColor:")
      .method<&Layer::contents>("contents")
      .method<&Layer::set_contents>("setContents:")
      .method<&Layer::contents_gravity>("contentsGravity")
      .method<&Layer::set_contents_gravity>("setContentsGravity:")
      .method<&Layer::contents_scale>("contentsScale")
      .method<&Layer::set_contents_scale>("setContentsScale:")
      .method<&Layer::name>("name")
      .method<&Layer::set_name>("setName:")
      .method<&Layer::delegate>("delegate")
      .method<&Layer::set_delegate>("setDelegate:")
      .method<&Layer::mask>("mask")
      .method<&Layer::set_mask>("setMask:");
}

void add_tree(objc::ClassBuilder& builder) {
  builder.method<&Layer::superlayer>("superlayer")
      .method<&Layer::sublayers>("sublayers")
      .method<&Layer::set_sublayers>("setSublayers:")
      .method<&Layer::add_sublayer>("addSublayer:")
      .method<&Layer::insert_sublayer_at_index>("insertSublayer:atIndex:")
      .method<&Layer::insert_sublayer_above>("insertSublayer:above:")
      .method<&Layer::insert_sublayer_below>("insertSublayer:below:")
      .method<&Layer::remove_from_superlayer>("removeFromSuperlayer")
      .method<&Layer::convert_point_from>("convertPoint:fromLayer:")
      .method<&Layer::convert_point_to>("convertPoint:toLayer:")
      .method<&Layer::convert_rect_from>("convertRect:fromLayer:")
      .method<&Layer::convert_rect_to>("convertRect:toLayer:")
      .method<&Layer::contains_point>("containsPoint:")
      .method<&Layer::hit_test>("hitTest:");
}

void add_display(objc::ClassBuilder& builder) {
  builder.method<&Layer::needs_display>("needsDisplay")
      .method<&Layer::set_needs_display>("setNeedsDisplay")
      .method<&Layer::display_if_needed>("displayIfNeeded")
      .method<&Layer::display>("display")
      .method<&Layer::draw_in_context>("drawInContext:")
      .method<&Layer::needs_display_on_bounds_change>("needsDisplayOnBoundsChange")
      .method<&Layer::set_needs_display_on_bounds_change>("setNeedsDisplayOnBoundsChange:")
      .method<&Layer::needs_layout>("needsLayout")
      .method<&Layer::set_needs_layout>("setNeedsLayout")
      .method<&Layer::layout_if_needed>("layoutIfNeeded")
      .method<&Layer::layout_sublayers>("layoutSublayers");
}

void add_animation(objc::ClassBuilder& builder) {
  builder.method<&Layer::action_for_key>("actionForKey:")
      .method<&Layer::add_animation>("addAnimation:forKey:")
      .method<&Layer::remove_animation_for_key>("removeAnimationForKey:")
      .method<&Layer::remove_all_animations>("removeAllAnimations")
      .method<&Layer::animation_for_key>("animationForKey:")
      .method<&Layer::animation_keys>("animationKeys")
      .method<&Layer::presentation_layer>("presentationLayer")
      .method<&Layer::model_layer>("modelLayer")
      .method<&Layer::set_value_for_key_path>("setValue:forKeyPath:")
      .method<&Layer::value_for_key_path>("valueForKeyPath:")
      .method<&Layer::set_value_for_undefined_key>("setValue:forUndefinedKey:")
      .method<&Layer::value_for_undefined_key>("valueForUndefinedKey:");
}

}  // namespace

void export_layer() {
  objc::ClassBuilder builder("CALayer", "NSObject");
  builder.state<Layer>().class_method<&make>("layer");
  add_properties(builder);
  add_tree(builder);
  add_display(builder);
  add_animation(builder);
  builder.finish();
}

}  // namespace host::quartzcore
