#pragma once

#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "host/quartzcore/animations/running_animation.h"
#include "host/quartzcore/child_index.h"
#include "host/quartzcore/drawing/color.h"
#include "host/quartzcore/drawing/image.h"
#include "host/quartzcore/layer_drawing.h"
#include "host/quartzcore/layer_properties.h"
#include "objc/class_builder.h"
#include "objc/ref.h"
#include "platform/QuartzCore/CALayer.h"

namespace host::quartzcore {

class BackdropLayer;

enum class Gravity {
  Resize,
  ResizeAspect,
  ResizeAspectFill,
  Center,
  Top,
  Bottom,
  Left,
  Right,
  TopLeft,
  TopRight,
  BottomLeft,
  BottomRight,
};

/// CALayer. Reached by message from outside; the compositor reads it through the const half.
class Layer : public objc::Implementation<Layer, CALayer> {
 public:
  explicit Layer(CALayer owner);
  ~Layer();

  // What is drawn.
  std::uint64_t serial() const { return serial_; }
  const LayerProperties& model() const { return properties_; }
  /// The values at `now`, with the kind's own ones made ready for painting.
  LayerProperties present(double now) const;
  bool hidden() const { return hidden_; }
  bool masks() const { return masks_to_bounds_; }
  bool is_marked_opaque() const { return opaque_; }
  bool rasterizes() const { return should_rasterize_; }
  const Image* contents_image() const { return image_; }
  Gravity gravity() const { return gravity_; }
  double contents_scale_value() const { return contents_scale_; }
  CALayer mask_layer() const { return mask_.get(); }
  const std::vector<objc::Ref<CALayer>>& children() const { return children_; }
  bool has_animations() const { return !animations_.empty(); }
  /// Is the size on the screen under way? Then scaled copies are not worth keeping.
  bool is_scaling(double now) const;
  CALayer handle() const { return self; }
  /// Calls `visit` for each sublayer in drawing order; those that cannot touch `rect`, in this
  /// layer's coordinates, are mostly left out where there are many.
  template <class Visit>
  void visit_children(const CGRect& rect, Visit visit) const {
    if (children_.size() < ChildIndex::kWorthwhile) {
      for (const Layer* child : children_in_order())
        visit(*child);
      return;
    }
    if (is_index_stale_) make_child_index();
    child_index_->visit(rect, visit);
  }
  /// What the layer with everything below it may touch, in its superlayer's coordinates.
  CGRect box() const;
  /// Is it cut away whole by a layer above it, as the model has it?
  bool is_clipped_away() const;
  LayerDrawing* drawing() const { return drawing_; }
  BackdropLayer* backdrop() const { return backdrop_; }

  // For the kinds of layer built upon this one.
  void set_drawing(LayerDrawing* drawing) {
    drawing_ = drawing;
    forget_reach();
  }
  void set_backdrop(BackdropLayer* backdrop) { backdrop_ = backdrop; }
  /// The action for a change about to be made, retained; run it after the change.
  objc::Ref<objc::Object> action_before_change(NSString key) const;
  void run_action(const objc::Ref<objc::Object>& action, NSString key) const;

  /// Adds an animation without an object; it takes the place of one with the same key.
  void run(RunningAnimation&& animation);

  // For the service.
  void advance_animations(double now);
  /// Marks those whose time has come as started, and adds to `heard` whose start somebody hears of.
  /// Are there others that wait for their time?
  bool start_animations(std::vector<RunningAnimation>& heard);
  bool wants_frames() const;
  /// The clock time at which the first of its running animations ends; infinity when none does.
  double next_animation_end() const;
  void leave_dirty_list() { in_dirty_list_ = false; }
  /// Lets go of the picture that the layer has drawn of itself, which it draws again when it is to
  /// be seen.
  void drop_backing_store();
  bool is_in_animated_list() const { return in_animated_list_; }
  void set_in_animated_list(bool is_in) { in_animated_list_ = is_in; }

  // Properties.
  CGRect frame() const;
  void set_frame(CGRect frame);
  CGRect bounds() const { return properties_.bounds; }
  void set_bounds(CGRect bounds);
  CGPoint position() const { return properties_.position; }
  void set_position(CGPoint position);
  CGPoint anchor_point() const { return properties_.anchor; }
  void set_anchor_point(CGPoint anchor);
  CGFloat z_position() const { return properties_.z_position; }
  void set_z_position(CGFloat z);
  CATransform3D transform() const { return properties_.transform; }
  void set_transform(CATransform3D transform);
  CGAffineTransform affine_transform() const;
  void set_affine_transform(CGAffineTransform transform);
  float opacity() const { return static_cast<float>(properties_.opacity); }
  void set_opacity(float opacity);
  BOOL is_hidden() const { return hidden_; }
  void set_hidden(BOOL hidden);
  BOOL is_opaque() const { return opaque_; }
  void set_opaque(BOOL opaque);
  BOOL masks_to_bounds() const { return masks_to_bounds_; }
  void set_masks_to_bounds(BOOL masks);
  BOOL should_rasterize() const { return should_rasterize_; }
  void set_should_rasterize(BOOL rasterize);
  CGFloat corner_radius() const { return properties_.corner_radius; }
  void set_corner_radius(CGFloat radius);
  CGFloat border_width() const { return properties_.border_width; }
  void set_border_width(CGFloat width);
  CGColorRef border_color() const;
  void set_border_color(CGColorRef color);
  /// Null when the background is of one colour.
  const Pattern* background_pattern() const;
  CGColorRef background_color() const;
  void set_background_color(CGColorRef color);
  objc::Object contents() const { return contents_.get(); }
  void set_contents(objc::Object contents);
  NSString contents_gravity() const;
  void set_contents_gravity(NSString gravity);
  CGFloat contents_scale() const { return contents_scale_; }
  void set_contents_scale(CGFloat scale);
  NSString name() const { return name_.get(); }
  void set_name(NSString name) { name_.reset(name); }
  objc::Object delegate() const { return delegate_; }
  void set_delegate(objc::Object delegate) { delegate_ = delegate; }
  CALayer mask() const { return mask_.get(); }
  void set_mask(CALayer mask);

  // Tree.
  CALayer superlayer() const { return superlayer_; }
  NSArray sublayers() const;
  void set_sublayers(NSArray layers);
  void add_sublayer(CALayer layer);
  void insert_sublayer_at_index(CALayer layer, unsigned index);
  void insert_sublayer_above(CALayer layer, CALayer sibling);
  void insert_sublayer_below(CALayer layer, CALayer sibling);
  void remove_from_superlayer();

  // Geometry.
  CGPoint convert_point_from(CGPoint point, CALayer layer) const;
  CGPoint convert_point_to(CGPoint point, CALayer layer) const;
  CGRect convert_rect_from(CGRect rect, CALayer layer) const;
  CGRect convert_rect_to(CGRect rect, CALayer layer) const;
  BOOL contains_point(CGPoint point) const;
  CALayer hit_test(CGPoint point) const;

  // Display and layout.
  BOOL needs_display() const { return needs_display_; }
  void set_needs_display();
  void display_if_needed();
  void display();
  void draw_in_context(CGContextRef context);
  BOOL needs_display_on_bounds_change() const { return needs_display_on_bounds_change_; }
  void set_needs_display_on_bounds_change(BOOL needs) {
    needs_display_on_bounds_change_ = needs != NO;
  }
  BOOL needs_layout() const { return needs_layout_; }
  void set_needs_layout();
  void layout_if_needed();
  void layout_sublayers();

  // Animations and keys.
  objc::Object action_for_key(NSString key) const;
  void add_animation(CAAnimation animation, NSString key);
  void remove_animation_for_key(NSString key);
  void remove_all_animations();
  CAAnimation animation_for_key(NSString key);
  NSArray animation_keys() const;
  CALayer presentation_layer() const;
  CALayer model_layer() const;
  void set_value_for_key_path(objc::Object value, NSString path);
  objc::Object value_for_key_path(NSString path) const;
  void set_value_for_undefined_key(objc::Object value, NSString key);
  objc::Object value_for_undefined_key(NSString key) const;

 private:
  template <auto Member, class T>
  void change(NSString key, const T& value);
  void mark(bool& flag);
  void announce_layout();
  bool is_custom_drawn() const;
  void forget_own_backing_store();
  std::vector<const Layer*> children_in_order() const;
  void make_child_index() const;
  void take(RunningAnimation&& animation);
  static bool moves(const RunningAnimation& animation);
  bool may_move() const;
  CGRect reach() const;
  void forget_reach();
  void forget_reach_of_children();
  void lay_out_marked_tree();
  void insert_child(CALayer layer, std::size_t index);
  std::size_t index_of(CALayer layer) const;
  void leave_superlayer();
  void drop_animations_of_tree();
  objc::Object default_action(NSString key) const;
  Value current_value(std::string_view key_path) const;
  CGAffineTransform to_root(CALayer& root) const;

  const std::uint64_t serial_;
  LayerProperties properties_;
  objc::Ref<CGColorObject> background_color_;
  objc::Ref<CGColorObject> border_color_;
  bool hidden_ = false;
  bool opaque_ = false;
  bool masks_to_bounds_ = false;
  bool should_rasterize_ = false;
  bool needs_display_ = false;
  bool needs_display_on_bounds_change_ = false;
  bool needs_layout_ = false;
  // Some layer below it does.
  bool layout_waits_below_ = false;
  bool in_dirty_list_ = false;
  bool in_animated_list_ = false;
  bool has_backing_store_ = false;
  // A layer whose reach is not known is in no index, and above it only layers that clip know
  // theirs.
  mutable bool is_reach_known_ = false;
  mutable bool is_index_stale_ = true;
  mutable CGRect reach_;
  mutable std::unique_ptr<ChildIndex> child_index_;
  Gravity gravity_ = Gravity::Resize;
  double contents_scale_ = 1;
  objc::Ref<objc::Object> contents_;
  const Image* image_ = nullptr;
  objc::Ref<NSString> name_;
  objc::Ref<CALayer> mask_;
  // Not retained, as the platform has it.
  objc::Object delegate_;
  CALayer superlayer_;
  CALayer model_layer_;
  std::vector<objc::Ref<CALayer>> children_;
  std::vector<RunningAnimation> animations_;
  std::map<std::string, objc::Ref<objc::Object>> extra_;
  LayerDrawing* drawing_ = nullptr;
  BackdropLayer* backdrop_ = nullptr;
};

void export_layer();

}  // namespace host::quartzcore
