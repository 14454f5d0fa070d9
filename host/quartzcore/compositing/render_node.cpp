#include "host/quartzcore/compositing/render_node.h"

#include "host/quartzcore/kinds/backdrop_layer.h"
#include "host/quartzcore/layers/screen_density.h"
#include "host/quartzcore/values/signature.h"

namespace host::quartzcore {
namespace {

std::uint64_t mix_transform(std::uint64_t signature, const CGAffineTransform& t) {
  return mix_signature(
      mix_signature(mix_signature(signature, CGPoint{t.a, t.b}), CGPoint{t.c, t.d}),
      CGPoint{t.tx, t.ty});
}

/// Returns the signature of the layer's own drawing, independent of its surroundings.
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
  if (const Image* image = node.image) {
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
  if (node.image) extent = CGRectUnion(extent, place_of_image(node));
  if (layer.drawing) extent = CGRectUnion(extent, layer.drawing->extent(p));
  return layer.model.masks_to_bounds ? CGRectIntersection(extent, p.bounds) : extent;
}

/// True for a plain colour and a picture that keeps its size: they are painted on the nearest whole
/// pixels, wherever the layer is.
bool ends_at_pixels(const RenderNode& node) {
  const LayerProperties& p = node.properties;
  return is_upright(node.to_device) && !node.is_scaling && p.corner_radius <= 0 &&
         p.border_width <= 0 && !node.layer->drawing && !node.layer->backdrop &&
         !shown_pattern(node) && screen_density() == 1;
}

bool fits_whole_pixels(const RenderNode& node) {
  if (!is_upright(node.to_device) || node.properties.corner_radius > 0) return false;
  const CGRect box = CGRectApplyAffineTransform(node.properties.bounds, node.to_device);
  return nearest_pixels(box).contains(node.own);
}

bool is_filled_by_contents(const RenderNode& node) {
  if (!node.image || !node.image->is_opaque()) return false;
  const CGRect filled = CGRectApplyAffineTransform(place_of_image(node), node.to_device);
  return nearest_pixels(filled).contains(node.own);
}

bool covers_its_pixels(const RenderNode& node) {
  if (!fits_whole_pixels(node)) return false;
  return node.layer->backdrop ||
         (node.properties.background_color.alpha >= 1 && !shown_pattern(node)) ||
         is_filled_by_contents(node);
}

bool draws_one_element(const RenderNode& node) {
  const Layer& layer = *node.layer;
  if (!layer.tree.sublayers.empty() || layer.backdrop || layer.tree.mask) return false;
  return elements_of(node) <= 1;
}

/// Clips the sublayers to the bounds of the layer.
void clip_to_bounds(const RenderNode& node, Surroundings& inner) {
  const CGRect box = CGRectApplyAffineTransform(node.properties.bounds, node.to_device);
  inner.clip = intersection(is_upright(node.to_device) ? nearest_pixels(box) : pixels_round(box),
                            inner.clip);
  if (node.properties.corner_radius <= 0 && is_upright(node.to_device)) return;
  inner.rounded_clip = true;
  // A rounded or rotated clip changes pixels of the layers inside.
  inner.context = mix_signature(inner.context, sign_drawing(node));
}

}  // namespace

bool is_upright(const CGAffineTransform& t) {
  return t.b == 0 && t.c == 0 && t.a > 0 && t.d > 0;
}

void place(RenderNode& node, const Surroundings& around) {
  node.parent = around.parent;
  node.is_mask = around.is_mask;
  node.to_device = CGAffineTransformConcat(node.properties.to_super(), around.to_device);
}

bool is_flat(const RenderNode& node) {
  const CGAffineTransform& t = node.to_device;
  return t.a * t.d == t.b * t.c;
}

void decide_group(RenderNode& node) {
  const Layer& layer = *node.layer;
  const double opacity = node.properties.opacity;
  // A single element without sublayers is painted with the opacity and needs no group.
  const bool is_faded = opacity < 1 || layer.model.should_rasterize;
  node.is_group = layer.tree.mask || (is_faded && !draws_one_element(node));
  node.opacity = node.is_group ? 1 : opacity;
}

void measure(RenderNode& node, const Surroundings& around) {
  const CGRect extent = CGRectApplyAffineTransform(extent_of(node), node.to_device);
  PixelRect pixels = ends_at_pixels(node) ? nearest_pixels(extent) : PixelRect{};
  // What is thinner than half a pixel is painted faintly.
  if (pixels.is_empty()) pixels = pixels_round(extent);
  node.own = intersection(pixels, around.clip);
  node.subtree = node.own;
}

void decide_cover(RenderNode& node, const Surroundings& around) {
  const bool is_cut = around.rounded_clip || around.is_mask || node.layer->tree.mask;
  // While an image is being scaled, its edges may be between pixels.
  node.hides_background =
      !node.is_scaling && fits_whole_pixels(node) && is_filled_by_contents(node);
  node.is_plain = !is_cut && is_upright(node.to_device) && node.properties.corner_radius <= 0;
  // Inside its group a drawing keeps its opacity; the group's opacity is applied later.
  node.is_opaque = (node.properties.opacity >= 1 || node.is_group) && !is_cut &&
                   !node.own.is_empty() && covers_its_pixels(node);
}

void sign(RenderNode& node, const Surroundings& around) {
  node.context = mix_signature(around.context, node.properties.opacity);
  node.signature = mix_signature(sign_drawing(node), node.own.x + 65536.0 * node.own.y);
  node.signature = mix_signature(node.signature, node.own.width + 65536.0 * node.own.height);
}

Surroundings inside(const RenderNode& node, int index, const Surroundings& around) {
  Surroundings inner = around;
  inner.to_device = node.to_device;
  inner.context = node.context;
  inner.parent = index;
  inner.is_scaling = node.is_scaling;
  if (node.layer->model.masks_to_bounds) clip_to_bounds(node, inner);
  if (node.layer->tree.mask) {
    inner.rounded_clip = true;
    inner.context = mix_signature(inner.context, node.serial);
  }
  return inner;
}

bool is_in_sight(const RenderNode& node, const PixelRect& clip) {
  const CGRect box = CGRectApplyAffineTransform(node.properties.bounds, node.to_device);
  return intersects(pixels_round(box), clip);
}

CGRect place_of_image(const RenderNode& node) {
  return node.layer->model.contents.place_of(*node.image, node.properties.bounds);
}

int elements_of(const RenderNode& node) {
  const Layer& layer = *node.layer;
  const LayerProperties& p = node.properties;
  return (p.background_color.alpha > 0) + (node.image != nullptr) + (layer.backdrop != nullptr) +
         2 * (layer.drawing != nullptr) + (p.border_width > 0);
}

const Pattern* shown_pattern(const RenderNode& node) {
  const Pattern* pattern = node.layer->model.background_pattern();
  return pattern &&
                 node.properties.background_color == node.layer->model.properties.background_color
             ? pattern
             : nullptr;
}

}  // namespace host::quartzcore
