#include "host/quartzcore/compositing/compositor.h"

#include <algorithm>

#include "host/quartzcore/kinds/backdrop_layer.h"
#include "host/quartzcore/layers/animated_layers.h"
#include "host/quartzcore/layers/layer_changes.h"
#include "host/quartzcore/layers/retained_layers.h"
#include "host/quartzcore/values/signature.h"

namespace host::quartzcore {
namespace {

// With more rectangles than this, clipping costs more than the saved pixels.
constexpr std::size_t kMostRectangles = 4;
constexpr int kMostRounds = 4;
// A square background of the screen's height takes almost two screens; the rest is for what is on
// it and for all icons.
constexpr long kScreensOfImages = 4;
constexpr long kBytesOfPixel = 4;

}  // namespace

Compositor::Compositor(int width, int height, double scale)
    : screen_{0, 0, width, height},
      scale_(scale),
      surface_(make_surface(width, height)),
      images_(kScreensOfImages * kBytesOfPixel * width * height) {}

Damage Compositor::render(std::span<const CALayer> roots, double now) {
  const bool same_roots =
      std::equal(roots.begin(), roots.end(), last_roots_.begin(), last_roots_.end());
  const bool animated = !animated_layers().empty();
  if (same_roots && !animated && !last_animated_ && last_changes_ == layer_changes()) return {};
  prepare_tree(roots, now);
  last_roots_.assign(roots.begin(), roots.end());
  last_changes_ = layer_changes();
  last_animated_ = animated;
  std::vector<Entry> after;
  after.reserve(tree_.nodes().size());
  for (const RenderNode& one : tree_.nodes()) {
    const std::uint64_t content = one.layer->backdrop ? one.behind : one.signature;
    after.push_back({one.serial, mix_signature(content, one.context), one.own});
  }
  Damage damage =
      std::exchange(damage_all_, false) ? Damage{screen_} : merged(find_damage(entries_, after));
  entries_ = std::move(after);
  if (damage.empty()) return damage;
  ++frames_;
  prepare_backdrops(tree_);
  for (const PixelRect& rect : damage) {
    painted_pixels_ += static_cast<std::uint64_t>(rect.area());
    paint_damage(rect);
  }
  cairo_surface_flush(surface_.get());
  forget_unused();
  return damage;
}

// Layers that become visible are displayed only now. Displaying them can make more layers visible,
// so this is repeated, but not without end.
void Compositor::prepare_tree(std::span<const CALayer> roots, double now) {
  for (int round = 0; round < kMostRounds; ++round) {
    tree_.prepare(roots, screen_, scale_, now);
    if (tree_.undrawn().empty()) return;
    for (const auto& layer : retained(tree_.undrawn()))
      layer->displayIfNeeded();
  }
  tree_.prepare(roots, screen_, scale_, now);
}

// Layers are compared by identity. A changed layer damages its old and its new area; a layer whose
// order has changed damages its area, too.
Damage Compositor::find_damage(const std::vector<Entry>& before, const std::vector<Entry>& after) {
  std::unordered_map<std::uint64_t, int> places;
  places.reserve(before.size());
  for (std::size_t i = 0; i < before.size(); ++i)
    places.emplace(before[i].serial, static_cast<int>(i));
  std::vector<bool> kept(before.size(), false);
  Damage damage;
  int highest = -1;
  for (const Entry& entry : after) {
    const auto found = places.find(entry.serial);
    if (found == places.end()) {
      damage.push_back(entry.own);
      continue;
    }
    const Entry& old = before[static_cast<std::size_t>(found->second)];
    kept[static_cast<std::size_t>(found->second)] = true;
    if (found->second < highest || old.signature != entry.signature) {
      damage.push_back(old.own);
      damage.push_back(entry.own);
    }
    highest = std::max(highest, found->second);
  }
  for (std::size_t i = 0; i < before.size(); ++i) {
    if (!kept[i]) damage.push_back(before[i].own);
  }
  // A blur needs everything under its whole area, so the whole area is painted for it.
  for (const RenderNode& one : tree_.nodes()) {
    if (one.layer->backdrop && !backdrop_is_ready(one)) damage.push_back(one.own);
  }
  return damage;
}

Damage Compositor::merged(Damage damage) const {
  std::erase_if(damage, [](const PixelRect& rect) { return rect.is_empty(); });
  Damage result;
  for (PixelRect rect : damage) {
    // After absorbing a neighbour the rectangle may touch another one.
    for (std::size_t i = 0; i < result.size();) {
      if (intersects(result[i], rect)) {
        rect = united(result[i], rect);
        result.erase(result.begin() + static_cast<std::ptrdiff_t>(i));
        i = 0;
      } else {
        ++i;
      }
    }
    result.push_back(rect);
  }
  if (result.size() <= kMostRectangles) return result;
  PixelRect all;
  for (const PixelRect& rect : result)
    all = united(all, rect);
  return {all};
}

bool Compositor::backdrop_is_ready(const RenderNode& one) const {
  const auto found = backdrops_.find(one.serial);
  return found != backdrops_.end() && found->second.behind == one.behind &&
         found->second.place == one.own;
}

// Returns the last drawing that hides everything before it, on the screen (-1) or in a group.
int Compositor::first_needed(const PixelRect& damage, int group) const {
  const int end = group < 0 ? static_cast<int>(tree_.nodes().size()) : node(group).end;
  for (int i = end - 1; i > group; --i) {
    const RenderNode& one = node(i);
    if (!one.is_opaque || !one.own.contains(damage)) continue;
    if (one.layer->backdrop && !backdrop_is_ready(one)) continue;
    bool in_group = one.is_group;
    for (int p = one.parent; p > group && !in_group; p = node(p).parent)
      in_group = node(p).is_group;
    if (!in_group) return i;
  }
  return -1;
}

void Compositor::paint_damage(const PixelRect& damage) {
  canvases_.clear();
  canvases_.push_back(make_canvas(surface_, 0, 0));
  cairo_t* drawing = canvases_.back().drawing.get();
  cairo_rectangle(drawing, damage.x, damage.y, damage.width, damage.height);
  cairo_clip(drawing);
  const int first = first_needed(damage);
  if (first < 0) {
    cairo_set_source_rgb(drawing, 0, 0, 0);
    cairo_paint(drawing);
  }
  for (int i = 0; i < static_cast<int>(tree_.nodes().size()); i = node(i).end)
    paint_node(i, damage, first);
  canvases_.clear();
}

// A blurred picture is kept for as long as its backdrop may come back. Screen-sized copies are too
// large for that.
void Compositor::forget_unused() {
  const auto is_shown = [&](std::uint64_t serial) {
    return std::any_of(tree_.nodes().begin(), tree_.nodes().end(),
                       [&](const RenderNode& one) { return one.serial == serial; });
  };
  const auto is_alive = [](std::uint64_t serial) {
    return std::any_of(all_backdrops().begin(), all_backdrops().end(),
                       [&](const auto* one) { return one->layer().serial == serial; });
  };
  std::erase_if(backdrops_, [&](const auto& one) { return !is_alive(one.first); });
  for (auto& [serial, backdrop] : backdrops_) {
    if (is_shown(serial)) continue;
    backdrop.surface = {};
    backdrop.is_enlarged = false;
  }
  std::erase_if(groups_, [&](const auto& one) {
    return std::none_of(tree_.nodes().begin(), tree_.nodes().end(),
                        [&](const RenderNode& n) { return n.serial == one.first && n.is_group; });
  });
}

}  // namespace host::quartzcore
