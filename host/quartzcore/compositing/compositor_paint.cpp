#include <algorithm>

#include "host/quartzcore/compositing/compositor.h"
#include "host/quartzcore/pixels/pixel_blend.h"
#include "host/quartzcore/values/signature.h"

namespace host::quartzcore {

Compositor::Part Compositor::part_of(const PixelRect& damage, int end) const {
  return {damage, first_needed(damage, -1, end), end};
}

void Compositor::paint(const Surface& surface, const Part& part) {
  canvases_.clear();
  canvases_.push_back(make_canvas(surface, 0, 0));
  cairo_t* drawing = canvases_.back().drawing.get();
  cairo_rectangle(drawing, part.damage.x, part.damage.y, part.damage.width, part.damage.height);
  cairo_clip(drawing);
  if (part.first < 0) {
    cairo_set_source_rgb(drawing, 0, 0, 0);
    cairo_paint(drawing);
  }
  for (int i = 0; i < part.end; i = node(i).end)
    paint_node(i, part);
  canvases_.clear();
}

void Compositor::paint_node(int index, const Part& part) {
  const RenderNode& one = node(index);
  if (one.end <= part.first || !intersects(one.subtree, part.damage)) return;
  if (one.is_group) {
    paint_group(index, part.damage);
  } else {
    paint_contents(index, part, one.opacity);
  }
}

void Compositor::paint_contents(int index, const Part& part, double opacity) {
  const RenderNode& one = node(index);
  const Canvas& canvas = canvases_.back();
  // Groups are drawn whole, since they are kept.
  const bool is_hidden =
      canvases_.size() == 1 && !one.layer->backdrop && is_hidden_by_several(index, part);
  if (index >= part.first && intersects(one.own, part.damage) && !is_hidden) {
    drawn_pixels_ += static_cast<std::uint64_t>(intersection(one.own, part.damage).area());
    if (one.layer->backdrop) paint_backdrop(index, part.damage, opacity);
    paint_layer(canvas, one, part.damage, opacity, images_);
  }
  const int end = std::min(one.end, part.end);
  const int first_child = one.mask >= 0 ? node(one.mask).end : index + 1;
  if (first_child < end) {
    cairo_save(canvas.drawing.get());
    if (one.layer->model.masks_to_bounds) clip_to_layer(canvas, one);
    for (int child = first_child; child < end; child = node(child).end)
      paint_node(child, part);
    cairo_restore(canvas.drawing.get());
  }
  if (one.end <= part.end) paint_border(canvas, one, opacity);
}

// Identifies what a group shows by itself, without its own opacity and the opacity around it, so
// that a fade draws the group only once.
std::uint64_t Compositor::contents_of_group(int index) const {
  std::uint64_t result = 1;
  for (int i = index; i < node(index).end; ++i) {
    const RenderNode& one = node(i);
    result = mix_signature(result, one.layer->backdrop ? one.behind : one.signature);
    if (i != index) result = mix_signature(result, one.properties.opacity);
  }
  return result;
}

void Compositor::paint_group(int index, const PixelRect& damage) {
  const RenderNode& one = node(index);
  const PixelRect place = intersection(one.subtree, screen_);
  CachedGroup& group = groups_[one.serial];
  const std::uint64_t contents = contents_of_group(index);
  if (!group.surface || group.contents != contents || !(group.place == place)) {
    group.contents = contents;
    group.place = place;
    draw_group(index, group);
  }
  const Canvas& canvas = canvases_.back();
  if (!group.is_opaque) {
    paint_surface(canvas, group.surface, place.x, place.y, one.properties.opacity,
                  Opacity::Translucent);
    return;
  }
  const PixelRect part{damage.x - canvas.x, damage.y - canvas.y, damage.width, damage.height};
  blend_opaque(group.surface, canvas.surface, place.x - canvas.x, place.y - canvas.y, part,
               one.properties.opacity);
}

void Compositor::draw_group(int index, CachedGroup& group) {
  ++groups_drawn_;
  const Part all{group.place, first_needed(group.place, index, node(index).end), node(index).end};
  // A drawing that fills the whole area needs no empty picture below it, and the result is opaque.
  group.is_opaque = all.first >= 0;
  const auto prepared = group.is_opaque ? reused : emptied;
  group.surface = prepared(std::move(group.surface), group.place.width, group.place.height);
  canvases_.push_back(make_canvas(group.surface, group.place.x, group.place.y));
  paint_contents(index, all, 1);
  if (node(index).layer->tree.mask) apply_mask(index);
  canvases_.pop_back();
  cairo_surface_flush(group.surface.get());
}

void Compositor::apply_mask(int index) {
  const Canvas& canvas = canvases_.back();
  const int mask = node(index).mask;
  const Surface shape = make_surface(width_of(canvas.surface), height_of(canvas.surface));
  canvases_.push_back(make_canvas(shape, canvas.x, canvas.y));
  if (mask >= 0) {
    paint_node(mask, {{canvas.x, canvas.y, width_of(shape), height_of(shape)}, -1, node(mask).end});
  }
  canvases_.pop_back();
  cairo_t* drawing = canvas.drawing.get();
  cairo_identity_matrix(drawing);
  cairo_set_operator(drawing, CAIRO_OPERATOR_DEST_IN);
  cairo_set_source_surface(drawing, shape.get(), 0, 0);
  cairo_paint(drawing);
  cairo_set_operator(drawing, CAIRO_OPERATOR_OVER);
}

}  // namespace host::quartzcore
