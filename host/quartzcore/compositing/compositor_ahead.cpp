#include "host/quartzcore/compositing/compositor.h"
#include "host/quartzcore/kinds/backdrop_layer.h"
#include "host/quartzcore/values/signature.h"

namespace host::quartzcore {
namespace {

std::uint64_t mix_place(std::uint64_t state, const Layer& layer) {
  const CGAffineTransform t = layer.model.properties.to_super();
  state = mix_signature(mix_signature(state, layer.model.properties.bounds), CGPoint{t.a, t.b});
  state = mix_signature(mix_signature(state, CGPoint{t.c, t.d}), CGPoint{t.tx, t.ty});
  return mix_signature(state, static_cast<std::uint64_t>(layer.model.hidden));
}

/// Returns a number that changes with everything that a backdrop inside a picture can show of it.
std::uint64_t state_of_pictures() {
  std::uint64_t state = 1;
  for (const BackdropLayer* backdrop : all_backdrops()) {
    const Layer* layer = &backdrop->layer();
    const Layer* holder = layer->superlayer();
    const Image* image = holder ? holder->model.contents.image() : nullptr;
    if (!image) continue;
    state = mix_signature(mix_signature(state, layer->serial), backdrop->look().signature());
    state = mix_signature(mix_signature(state, image->serial()), image->revision());
    for (; layer; layer = layer->superlayer())
      state = mix_place(state, *layer);
  }
  return state;
}

}  // namespace

void Compositor::prepare_ahead(std::span<const CALayer> roots, double now) {
  const std::uint64_t state = state_of_pictures();
  if (std::exchange(state_ahead_, state) == state) return;
  tree_ahead_.prepare(roots, screen_, scale_, now, shown_, RenderTree::FadedOut::Included);
  for (const RenderNode& one : tree_ahead_.nodes()) {
    if (one.lone_picture >= 0 && !one.own.is_empty() && !backdrop_is_ready(one))
      prepare_lone(tree_ahead_, one);
  }
}

}  // namespace host::quartzcore
