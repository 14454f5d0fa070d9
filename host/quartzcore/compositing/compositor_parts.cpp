#include <algorithm>
#include <array>

#include "host/quartzcore/compositing/compositor.h"
#include "host/quartzcore/kinds/backdrop_layer.h"
#include "host/quartzcore/pixels/pixel_blend.h"

namespace host::quartzcore {
namespace {

// In pixels. Hiding less saves less than the division costs.
constexpr long kLeastHidden = 64L * 64;
// A cover that is a smaller share of the damage would divide it into mostly uncovered parts.
constexpr long kLeastShare = 8;

/// The rest of `all` above, below, left and right of `inner`.
std::array<PixelRect, 4> around(const PixelRect& all, const PixelRect& inner) {
  return {from_edges(all.x, all.y, all.right(), inner.y),
          from_edges(all.x, inner.y, inner.x, inner.bottom()),
          from_edges(inner.right(), inner.y, all.right(), inner.bottom()),
          from_edges(all.x, inner.bottom(), all.right(), all.bottom())};
}

/// The rest of `all` if the cover takes a whole edge of it; otherwise all of it.
PixelRect without_edge(const PixelRect& all, const PixelRect& cover) {
  PixelRect largest;
  const PixelRect inner = intersection(all, cover);
  if (inner.is_empty()) return all;
  int parts = 0;
  for (const PixelRect& rest : around(all, inner)) {
    if (rest.is_empty()) continue;
    largest = rest;
    ++parts;
  }
  return parts > 1 ? all : largest;
}

}  // namespace

// Nothing is painted where an opaque layer hides it: the damage is divided into the layer's place
// and the rest.
void Compositor::paint_screen(const PixelRect& damage, int underlay) {
  if (damage.is_empty()) return;
  const PixelRect cover = blurs_within(damage) ? PixelRect{} : largest_cover(damage);
  if (cover.is_empty()) return paint_part(damage, underlay);
  for (const PixelRect& rest : around(damage, cover))
    paint_screen(rest, underlay);
  paint_part(cover, underlay);
}

// A blur reads its whole place on the screen, which must be painted at once for it.
bool Compositor::blurs_within(const PixelRect& damage) const {
  return std::any_of(tree_.nodes().begin(), tree_.nodes().end(), [&](const RenderNode& one) {
    return one.layer->backdrop && intersects(one.own, damage) && !backdrop_is_ready(one);
  });
}

/// The largest part of the damage, but not all of it, that one layer hides; empty when that is not
/// worthwhile.
PixelRect Compositor::largest_cover(const PixelRect& damage) const {
  PixelRect largest;
  for (int i = std::max(first_needed(damage, -1, node_count()), 0); i < node_count(); ++i) {
    const PixelRect part = intersection(node(i).own, damage);
    if (part.area() > largest.area() && !(part == damage) && hides_what_is_below(i, -1))
      largest = part;
  }
  const bool is_worthwhile = largest.area() >= std::max(kLeastHidden, damage.area() / kLeastShare);
  return is_worthwhile ? largest : PixelRect{};
}

/// True if layers over a large node hide it together, as the rows of a list hide the list.
bool Compositor::is_hidden_by_several(int index, const Part& part) const {
  PixelRect visible = intersection(node(index).own, part.damage);
  if (visible.area() < kLeastHidden || visible.area() < part.damage.area() / 2) return false;
  // Each round finds what is at the edge of the rest, in whatever order the layers lie.
  for (PixelRect before; !visible.is_empty();) {
    before = visible;
    for (int i = index + 1; i < part.end; ++i) {
      if (node(i).layer->backdrop && !backdrop_is_ready(node(i))) break;
      if (hides_what_is_below(i, -1)) visible = without_edge(visible, node(i).own);
    }
    if (visible == before) return false;
  }
  return true;
}

void Compositor::paint_part(const PixelRect& place, int underlay) {
  Part part = part_of(place, node_count());
  if (part.first < underlay) {
    blend_opaque(underlay_.surface, surface_, 0, 0, place, 1);
    part.first = underlay;
  }
  paint(surface_, part);
}

}  // namespace host::quartzcore
