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

bool Compositor::is_current(std::span<const CALayer> roots) const {
  return animated_layers().empty() && !last_animated_ && last_changes_ == layer_changes() &&
         std::equal(roots.begin(), roots.end(), last_roots_.begin(), last_roots_.end());
}

Damage Compositor::render(std::span<const CALayer> roots, double now) {
  if (is_current(roots)) return {};
  prepare_tree(roots, now);
  last_roots_.assign(roots.begin(), roots.end());
  last_changes_ = layer_changes();
  last_animated_ = !animated_layers().empty();
  std::swap(entries_, last_entries_);
  take_entries();
  shown_.note(tree_.nodes());
  Changes changes = std::exchange(damage_all_, false) ? Changes{{screen_, -1}} : find_changes();
  if (changes.empty() && !needs_backdrops()) return {};
  ++frames_;
  prepare_backdrops(changes);
  const int underlay = prepare_underlay(changes);
  Damage damage = merged(changes);
  for (const PixelRect& rect : damage) {
    painted_pixels_ += static_cast<std::uint64_t>(rect.area());
    paint_screen(rect, underlay);
  }
  cairo_surface_flush(surface_.get());
  note_ready_backdrops();
  forget_unused();
  return damage;
}

// Layers that become visible are displayed only now. Displaying them can make more layers visible,
// so this is repeated, but not without end.
void Compositor::prepare_tree(std::span<const CALayer> roots, double now) {
  for (int round = 0; round < kMostRounds; ++round) {
    tree_.prepare(roots, screen_, scale_, now, shown_);
    if (tree_.undrawn().empty()) return;
    for (const auto& layer : retained(tree_.undrawn()))
      layer->displayIfNeeded();
  }
  tree_.prepare(roots, screen_, scale_, now, shown_);
}

void Compositor::take_entries() {
  entries_.clear();
  for (const RenderNode& one : tree_.nodes())
    entries_.push_back({one.serial, mix_signature(one.signature, one.context), one.own});
}

// Layers are compared by identity. A changed layer damages its old and its new area; a layer whose
// order has changed damages its area, too.
Compositor::Changes Compositor::find_changes() const {
  const std::vector<Entry>& before = last_entries_;
  const std::vector<Entry>& after = entries_;
  // Most frames have the layers of the one before, which need not be looked up.
  const auto is_same = [](const Entry& a, const Entry& b) { return a.serial == b.serial; };
  const auto same = static_cast<std::size_t>(
      std::mismatch(before.begin(), before.end(), after.begin(), after.end(), is_same).first -
      before.begin());
  std::unordered_map<std::uint64_t, std::size_t> places;
  places.reserve(before.size() - same);
  for (std::size_t i = same; i < before.size(); ++i)
    places.emplace(before[i].serial, i);
  std::vector<bool> kept(before.size() - same, false);
  Changes changes;
  const auto add = [&](const PixelRect& place, int index) {
    if (!place.is_empty()) changes.push_back({place, index});
  };
  std::size_t highest = 0;
  for (std::size_t i = 0; i < after.size(); ++i) {
    const Entry& entry = after[i];
    const int index = static_cast<int>(i);
    std::size_t place = i;
    if (i >= same) {
      const auto found = places.find(entry.serial);
      if (found == places.end()) {
        add(entry.own, index);
        continue;
      }
      place = found->second;
      kept[place - same] = true;
    }
    const bool is_moved = place < highest;
    if (is_moved || before[place].signature != entry.signature) {
      add(before[place].own, is_moved ? -1 : index);
      add(entry.own, is_moved ? -1 : index);
    }
    highest = std::max(highest, place);
  }
  for (std::size_t i = same; i < before.size(); ++i) {
    if (!kept[i - same]) add(before[i].own, -1);
  }
  return changes;
}

Damage Compositor::merged(const Changes& changes) {
  Damage result;
  for (const Change& change : changes) {
    PixelRect rect = change.place;
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
    if (!rect.is_empty()) result.push_back(rect);
  }
  if (result.size() <= kMostRectangles) return result;
  PixelRect all;
  for (const PixelRect& rect : result)
    all = united(all, rect);
  return {all};
}

// Returns the last drawing before `end` that hides everything before it, on the screen (-1) or in a
// group.
int Compositor::first_needed(const PixelRect& damage, int group, int end) const {
  for (int i = end - 1; i > group; --i) {
    if (node(i).own.contains(damage) && hides_what_is_below(i, group)) return i;
  }
  return -1;
}

/// True if a group above the node, but below the group `outer`, has a picture of its own.
bool Compositor::is_in_group(int index, int outer) const {
  for (int p = node(index).parent; p > outer; p = node(p).parent) {
    if (node(p).is_group) return true;
  }
  return false;
}

/// True if the drawing is part of no other picture than that of the screen (-1) or the group, and
/// covers its place there.
bool Compositor::hides_what_is_below(int index, int group) const {
  const RenderNode& one = node(index);
  if (!one.is_opaque || one.is_group) return false;
  if (one.layer->backdrop && !backdrop_is_ready(one)) return false;
  return !is_in_group(index, group);
}

// A blurred picture is kept for as long as its backdrop may come back. Screen-sized copies are too
// large for that.
void Compositor::forget_unused() {
  if (underlay_.frame != frames_) underlay_ = {};
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
