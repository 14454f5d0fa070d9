#include <algorithm>

#include "host/quartzcore/compositing/backdrop_filter.h"
#include "host/quartzcore/compositing/compositor.h"
#include "host/quartzcore/kinds/backdrop_layer.h"

namespace host::quartzcore {

bool Compositor::backdrop_is_ready(const RenderNode& one) const {
  const auto found = backdrops_.find(one.serial);
  return found != backdrops_.end() && found->second.behind == one.behind &&
         found->second.place == one.own;
}

bool Compositor::needs_backdrops() const {
  return std::any_of(tree_.nodes().begin(), tree_.nodes().end(), [&](const RenderNode& one) {
    return one.layer->backdrop && !one.own.is_empty() && !backdrop_is_ready(one);
  });
}

// A blur in the midst of painting needs everything under its whole area, so the whole area is
// painted for it. That is avoided where the picture behind it is known already, wholly or but for
// what has changed.
void Compositor::prepare_backdrops(Changes& changes) {
  PixelRect unknown;
  for (int i = 0; i < node_count(); ++i) {
    const RenderNode& one = node(i);
    if (!one.layer->backdrop || one.own.is_empty() || backdrop_is_ready(one)) continue;
    if (one.lone_picture >= 0) {
      prepare_lone(tree_, one);
      changes.push_back({one.own, i});
    } else if (can_update(i, unknown)) {
      changes.push_back({update_backdrop(i, changes), i});
    } else {
      changes.push_back({one.own, i});
      unknown = united(unknown, one.own);
    }
  }
}

// Backdrops over a single picture are blurred before anything is painted, so that painting can skip
// the hidden picture.
void Compositor::prepare_lone(const RenderTree& tree, const RenderNode& one) {
  const RenderNode& picture = tree.nodes()[static_cast<std::size_t>(one.lone_picture)];
  const int reduction = reduction_for(one.layer->backdrop->look(), scale_);
  blur(one, small_copy_of(picture, one.own, reduction));
}

// The screen below must be the previous frame's, apart from the damage: true if the backdrop showed
// it then, and if no backdrop below is blurred only while painting.
bool Compositor::can_update(int index, const PixelRect& unknown) const {
  const RenderNode& one = node(index);
  const auto found = backdrops_.find(one.serial);
  if (found == backdrops_.end() || intersects(one.own, unknown)) return false;
  const CachedBackdrop& cached = found->second;
  return one.is_plain && !one.is_group && !is_in_group(index) && cached.last_ready + 1 == frames_ &&
         cached.place == one.own && !cached.source.pixels.empty() &&
         cached.source.reduction == reduction_for(one.layer->backdrop->look(), scale_);
}

/// Blurs again after a change behind the backdrop. Returns the pixels that must be painted then.
PixelRect Compositor::update_backdrop(int index, const Changes& changes) {
  const RenderNode& one = node(index);
  PixelRect changed;
  for (const Change& change : changes) {
    if (change.node < index) changed = united(changed, intersection(change.place, one.own));
  }
  CachedBackdrop& cached = backdrops_[one.serial];
  SmallPicture source = std::move(cached.source);
  PixelRect painted;
  if (!changed.is_empty()) {
    painted = source_pixels(source, one.own, changed);
    paint(surface_, part_of(painted, index));
    reduce_again(source, surface_, one.own, changed);
  }
  const SmallPicture before = std::move(cached.small);
  blur(one, std::move(source));
  return united(painted, difference_enlarged(before, cached.small, one.own));
}

void Compositor::blur(const RenderNode& one, SmallPicture behind) {
  ++blurs_;
  BackdropLayer& backdrop = *one.layer->backdrop;
  CachedBackdrop& cached = backdrops_[one.serial];
  const bool is_on_screen = canvases_.size() <= 1;
  cached.source = one.lone_picture < 0 && is_on_screen ? behind : SmallPicture{};
  backdrop.note_luminance(filter_backdrop(behind, backdrop.look(), scale_));
  cached.behind = one.behind;
  cached.frame = frames_;
  cached.place = one.own;
  cached.small = std::move(behind);
  cached.is_enlarged = false;
}

void Compositor::note_ready_backdrops() {
  for (const RenderNode& one : tree_.nodes()) {
    if (one.layer->backdrop && backdrop_is_ready(one)) backdrops_[one.serial].last_ready = frames_;
  }
}

// Only a group's own picture can be empty where the screen is not.
SmallPicture Compositor::small_picture_behind(const RenderNode& backdrop, int reduction) const {
  const PixelRect& place = backdrop.own;
  if (canvases_.size() == 1) return reduce(canvases_.front().surface, place, reduction);
  const Surface picture = make_surface(place.width, place.height);
  const Canvas canvas = make_canvas(picture, place.x, place.y);
  for (const Canvas& below : canvases_) {
    cairo_surface_flush(below.surface.get());
    const bool is_screen = &below == &canvases_.front();
    paint_surface(canvas, below.surface, below.x, below.y, 1,
                  is_screen ? Opacity::Opaque : Opacity::Translucent);
  }
  return reduce(picture, {0, 0, place.width, place.height}, reduction);
}

// A picture that only a backdrop sees is never scaled to the screen.
SmallPicture Compositor::small_copy_of(const RenderNode& shown, const PixelRect& place,
                                       int reduction) {
  const Image& image = *shown.image;
  const PixelRect box =
      nearest_pixels(CGRectApplyAffineTransform(place_of_image(shown), shown.to_device));
  const Surface scaled =
      images_.scaled(image, std::max(1, box.width / reduction), std::max(1, box.height / reduction),
                     ImageCache::Pixels::Waited);
  const Surface small = make_surface((place.width + reduction - 1) / reduction,
                                     (place.height + reduction - 1) / reduction);
  const Drawing drawing = draw_on(small);
  cairo_scale(drawing.get(), 1.0 / reduction, 1.0 / reduction);
  cairo_translate(drawing.get(), box.x - place.x, box.y - place.y);
  cairo_scale(drawing.get(), static_cast<double>(box.width) / width_of(scaled),
              static_cast<double>(box.height) / height_of(scaled));
  cairo_set_source_surface(drawing.get(), scaled.get(), 0, 0);
  cairo_pattern_set_extend(cairo_get_source(drawing.get()), CAIRO_EXTEND_PAD);
  cairo_pattern_set_filter(cairo_get_source(drawing.get()), CAIRO_FILTER_BILINEAR);
  cairo_paint(drawing.get());
  return take_reduced(small, reduction);
}

void Compositor::paint_backdrop(int index, const PixelRect& damage, double opacity) {
  const RenderNode& one = node(index);
  if (!backdrop_is_ready(one)) {
    const int reduction = reduction_for(one.layer->backdrop->look(), scale_);
    blur(one, small_picture_behind(one, reduction));
  }
  CachedBackdrop& cached = backdrops_[one.serial];
  const Canvas& canvas = canvases_.back();
  // Enlarging costs no more than a copy. Only a fade, which mixes as well, is faster with one.
  if (one.is_plain && (opacity >= 1 || cached.frame == frames_)) {
    const PixelRect part = intersection(one.own, damage);
    return paint_enlarged(cached.small, canvas.surface, one.own.x - canvas.x, one.own.y - canvas.y,
                          {part.x - canvas.x, part.y - canvas.y, part.width, part.height}, opacity);
  }
  if (!cached.is_enlarged) {
    cached.surface = reused(std::move(cached.surface), one.own.width, one.own.height);
    enlarge(cached.small, cached.surface);
    cached.is_enlarged = true;
  }
  cairo_save(canvas.drawing.get());
  clip_to_layer(canvas, one);
  paint_surface(canvas, cached.surface, one.own.x, one.own.y, opacity, Opacity::Opaque);
  cairo_restore(canvas.drawing.get());
}

}  // namespace host::quartzcore
