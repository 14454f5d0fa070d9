#include "host/quartzcore/compositing/render_tree.h"

#include <algorithm>

#include "host/quartzcore/kinds/backdrop_layer.h"
#include "host/quartzcore/values/signature.h"

namespace host::quartzcore {
namespace {

bool is_upright(const CGAffineTransform& t) {
  return t.b == 0 && t.c == 0 && t.a > 0 && t.d > 0;
}

std::uint64_t mix_transform(std::uint64_t signature, const CGAffineTransform& t) {
  return mix_signature(
      mix_signature(mix_signature(signature, CGPoint{t.a, t.b}), CGPoint{t.c, t.d}),
      CGPoint{t.tx, t.ty});
}

/// The drawing of the layer itself, whatever stands around it.
std::uint64_t sign_drawing(const RenderNode& node) {
  const Layer& layer = *node.layer;
  const LayerProperties& p = node.properties;
  std::uint64_t result = mix_signature(node.serial, p.bounds);
  result = mix_signature(result, p.background_color);
  if (const Pattern* pattern = shown_pattern(node)) {
    const Image& image = *image_of(pattern->image.get());
    result = mix_signature(result, image.serial());
    result = mix_signature(result, image.revision());
  }
  result = mix_signature(result, CGPoint{p.corner_radius, p.border_width});
  if (p.border_width > 0) result = mix_signature(result, p.border_color);
  if (const Image* image = layer.model.contents.image()) {
    result = mix_signature(result, image->serial());
    result = mix_signature(result, image->revision());
    result = mix_signature(result, static_cast<std::uint64_t>(layer.model.contents.gravity));
    result = mix_signature(result, layer.model.contents.scale);
  }
  if (layer.drawing) result = mix_signature(result, layer.drawing->signature());
  if (layer.backdrop) result = mix_signature(result, layer.backdrop->look().signature());
  const std::uint64_t flags =
      (layer.model.masks_to_bounds ? 1 : 0) | (node.is_scaling ? 2 : 0) | (layer.tree.mask ? 4 : 0);
  return mix_transform(mix_signature(result, flags), node.to_device);
}

CGRect extent_of(const RenderNode& node) {
  const Layer& layer = *node.layer;
  const LayerProperties& p = node.properties;
  const bool plain = p.background_color.alpha > 0 || p.border_width > 0 || layer.backdrop;
  CGRect extent = plain ? p.bounds : CGRect();
  if (layer.model.contents.image())
    extent = CGRectUnion(extent, layer.model.contents.place_in(p.bounds));
  if (layer.drawing) extent = CGRectUnion(extent, layer.drawing->extent(p));
  return layer.model.masks_to_bounds ? CGRectIntersection(extent, p.bounds) : extent;
}

bool fits_whole_pixels(const RenderNode& node) {
  if (!is_upright(node.to_device) || node.properties.corner_radius > 0) return false;
  const CGRect box = CGRectApplyAffineTransform(node.properties.bounds, node.to_device);
  return nearest_pixels(box).contains(node.own);
}

bool is_filled_by_contents(const RenderNode& node) {
  const Image* image = node.layer->model.contents.image();
  if (!image || !image->is_opaque()) return false;
  const CGRect filled = CGRectApplyAffineTransform(
      node.layer->model.contents.place_in(node.properties.bounds), node.to_device);
  return nearest_pixels(filled).contains(node.own);
}

bool covers_its_pixels(const RenderNode& node) {
  if (!fits_whole_pixels(node)) return false;
  return node.layer->backdrop ||
         (node.properties.background_color.alpha >= 1 && !shown_pattern(node)) ||
         is_filled_by_contents(node);
}

/// How many pictures the layer itself paints one over the other.
int elements_of(const RenderNode& node) {
  const Layer& layer = *node.layer;
  const LayerProperties& p = node.properties;
  return (p.background_color.alpha > 0) + (layer.model.contents.image() != nullptr) +
         (layer.backdrop != nullptr) + 2 * (layer.drawing != nullptr) + (p.border_width > 0);
}

bool draws_one_element(const RenderNode& node) {
  const Layer& layer = *node.layer;
  if (!layer.tree.sublayers.empty() || layer.backdrop || layer.tree.mask) return false;
  return elements_of(node) <= 1;
}

bool is_in_sight(const RenderNode& node, const PixelRect& clip) {
  const CGRect box = CGRectApplyAffineTransform(node.properties.bounds, node.to_device);
  return intersects(pixels_round(box), clip);
}

/// The rectangle of the layer's own coordinates that `clip` shows, and a little more.
CGRect shown_part(const CGAffineTransform& to_device, const PixelRect& clip) {
  const CGRect pixels(clip.x - 1, clip.y - 1, clip.width + 2, clip.height + 2);
  return CGRectApplyAffineTransform(pixels, CGAffineTransformInvert(to_device));
}

}  // namespace

const Pattern* shown_pattern(const RenderNode& node) {
  const Pattern* pattern = node.layer->model.background_pattern();
  return pattern &&
                 node.properties.background_color == node.layer->model.properties.background_color
             ? pattern
             : nullptr;
}

void RenderTree::prepare(std::span<const CALayer> roots, const PixelRect& screen, double scale,
                         double now, FadedOut faded_out) {
  nodes_.clear();
  undrawn_.clear();
  faded_out_ = faded_out;
  Surroundings around;
  around.to_device = {scale, 0, 0, scale, 0, 0};
  around.clip = screen;
  for (CALayer root : roots) {
    if (root) add(layer_of(root), around, now);
  }
  sign_backdrops();
}

void RenderTree::add(const Layer& layer, const Surroundings& around, double now) {
  if (layer.model.hidden || around.clip.is_empty()) return;
  const int index = static_cast<int>(nodes_.size());
  RenderNode node;
  node.properties = layer.present(now);
  const LayerProperties& p = node.properties;
  if (p.opacity <= 0 && faded_out_ == FadedOut::Skipped) return;
  node.layer = &layer;
  node.serial = layer.serial;
  node.parent = around.parent;
  node.is_mask = around.is_mask;
  node.to_device = CGAffineTransformConcat(p.to_super(), around.to_device);
  if (node.to_device.a * node.to_device.d == node.to_device.b * node.to_device.c) return;
  if (layer.marks.needs_display && is_in_sight(node, around.clip))
    undrawn_.push_back(layer.handle());
  node.is_scaling = around.is_scaling || layer.animations.is_scaling(now);
  node.is_simple = draws_one_element(node);
  node.is_group =
      layer.tree.mask || ((p.opacity < 1 || layer.model.should_rasterize) && !node.is_simple);
  node.opacity = node.is_group ? 1 : p.opacity;
  node.context = mix_signature(around.context, p.opacity);
  node.own = intersection(pixels_round(CGRectApplyAffineTransform(extent_of(node), node.to_device)),
                          around.clip);
  // While an image is stretched its edges need not be those of whole pixels.
  node.hides_background =
      !node.is_scaling && fits_whole_pixels(node) && is_filled_by_contents(node);
  node.is_plain = !around.rounded_clip && !around.is_mask && is_upright(node.to_device) &&
                  p.corner_radius <= 0 && !layer.tree.mask;
  // Inside its group a drawing is as opaque as it is; the group's opacity comes after it.
  node.is_opaque = (p.opacity >= 1 || node.is_group) && !around.rounded_clip && !around.is_mask &&
                   !layer.tree.mask && !node.own.is_empty() && covers_its_pixels(node);
  node.signature = mix_signature(sign_drawing(node), node.own.x + 65536.0 * node.own.y);
  node.signature = mix_signature(node.signature, node.own.width + 65536.0 * node.own.height);
  node.subtree = node.own;

  Surroundings inner = around;
  inner.to_device = node.to_device;
  inner.context = node.context;
  inner.parent = index;
  inner.is_scaling = node.is_scaling;
  if (layer.model.masks_to_bounds) {
    const CGRect box = CGRectApplyAffineTransform(p.bounds, node.to_device);
    inner.clip = intersection(is_upright(node.to_device) ? nearest_pixels(box) : pixels_round(box),
                              around.clip);
    const bool rounded = p.corner_radius > 0 || !is_upright(node.to_device);
    inner.rounded_clip |= rounded;
    // A clip that is no plain rectangle changes pixels of the layers inside.
    if (rounded) inner.context = mix_signature(inner.context, sign_drawing(node));
  }
  if (layer.tree.mask) {
    inner.rounded_clip = true;
    inner.context = mix_signature(inner.context, node.serial);
  }
  nodes_.push_back(node);
  add_children(index, inner, now);
}

void RenderTree::add_children(int index, const Surroundings& inner, double now) {
  const Layer& layer = *nodes_[static_cast<std::size_t>(index)].layer;
  if (layer.tree.mask) {
    Surroundings mask = inner;
    mask.is_mask = true;
    const int place = static_cast<int>(nodes_.size());
    add(layer_of(layer.tree.mask.get()), mask, now);
    const bool added = static_cast<int>(nodes_.size()) > place;
    nodes_[static_cast<std::size_t>(index)].mask = added ? place : -1;
  }
  if (!layer.tree.sublayers.empty() && !inner.clip.is_empty()) {
    layer.reach.visit_sublayers(shown_part(inner.to_device, inner.clip),
                                [&](const Layer& child) { add(child, inner, now); });
  }
  RenderNode& node = nodes_[static_cast<std::size_t>(index)];
  node.end = static_cast<int>(nodes_.size());
  dissolve_group(index);
  if (node.parent >= 0) {
    RenderNode& parent = nodes_[static_cast<std::size_t>(node.parent)];
    parent.subtree = united(parent.subtree, node.subtree);
  }
}

bool RenderTree::is_within(int node, int ancestor) const {
  return node >= ancestor && node < nodes_[static_cast<std::size_t>(ancestor)].end;
}

// A fading layer in whose tree one element is drawn needs no picture of its own: the element is
// painted with the layer's opacity.
void RenderTree::dissolve_group(int index) {
  RenderNode& group = nodes_[static_cast<std::size_t>(index)];
  if (!group.is_group || group.layer->tree.mask || group.layer->model.should_rasterize) return;
  int elements = 0;
  for (int i = index; i < group.end; ++i) {
    const RenderNode& node = nodes_[static_cast<std::size_t>(i)];
    if (node.is_mask || (node.is_group && i != index)) return;
    if (!node.own.is_empty()) elements += elements_of(node);
  }
  if (elements > 1) return;
  const double opacity = group.properties.opacity;
  group.is_group = false;
  for (int i = index; i < group.end; ++i) {
    RenderNode& node = nodes_[static_cast<std::size_t>(i)];
    node.opacity *= opacity;
    if (opacity < 1) node.is_opaque = false;
  }
}

/// The last opaque drawing that fills the backdrop's place, or the first of all.
int RenderTree::first_seen(int index) const {
  const RenderNode& backdrop = nodes_[static_cast<std::size_t>(index)];
  for (int j = index - 1; j > 0; --j) {
    const RenderNode& below = nodes_[static_cast<std::size_t>(j)];
    if (!below.is_opaque || !below.own.contains(backdrop.own)) continue;
    bool reaches = !below.is_group || is_within(index, j);
    for (int g = below.parent; g >= 0; g = nodes_[static_cast<std::size_t>(g)].parent)
      reaches &= !nodes_[static_cast<std::size_t>(g)].is_group || is_within(index, g);
    if (reaches) return j;
  }
  return 0;
}

int RenderTree::lone_picture(int first, int index) const {
  const RenderNode& backdrop = nodes_[static_cast<std::size_t>(index)];
  const RenderNode& picture = nodes_[static_cast<std::size_t>(first)];
  const bool is_picture = picture.is_opaque && picture.own.contains(backdrop.own) &&
                          picture.layer->model.contents.image() && elements_of(picture) == 1;
  if (!is_picture) return -1;
  for (int k = first + 1; k < index; ++k) {
    if (intersects(nodes_[static_cast<std::size_t>(k)].own, backdrop.own)) return -1;
  }
  return first;
}

// What a backdrop shows depends on everything drawn before it in its place, back to the last opaque
// drawing that fills the place. The opacity of the groups that hold the backdrop itself does not
// matter: it is applied to the finished group.
void RenderTree::sign_backdrops() {
  const auto count = static_cast<int>(nodes_.size());
  for (int i = 0; i < count; ++i) {
    RenderNode& backdrop = nodes_[static_cast<std::size_t>(i)];
    if (!backdrop.layer->backdrop) continue;
    const int first = first_seen(i);
    backdrop.lone_picture = lone_picture(first, i);
    std::uint64_t behind = backdrop.signature;
    for (int k = first; k < i; ++k) {
      const RenderNode& below = nodes_[static_cast<std::size_t>(k)];
      if (!is_within(i, k) && below.is_group && intersects(below.subtree, backdrop.own))
        behind = mix_signature(behind, below.properties.opacity);
      if (!intersects(below.own, backdrop.own)) continue;
      behind = mix_signature(behind, below.signature);
      behind = mix_signature(behind, below.behind);
      if (!is_within(i, k)) behind = mix_signature(behind, below.opacity);
    }
    backdrop.behind = behind;
  }
}

}  // namespace host::quartzcore
