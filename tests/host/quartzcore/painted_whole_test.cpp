#include <array>
#include <cstdlib>
#include <random>

#include "host/quartzcore/kinds/backdrop_layer.h"
#include "tests/host/quartzcore/compositor_fixture.h"

// What a compositor paints over its previous frame is what one paints that sees the layers for the
// first time.

namespace host::test {
namespace {

using quartzcore::BackdropLayer;
using quartzcore::Compositor;

constexpr int kSide = 64;
constexpr int kFrames = 150;
// Translucent blurs are rounded in two ways, depending on whether they were kept.
constexpr int kRounding = 3;

class PaintedWhole : public CompositorTest, public testing::WithParamInterface<unsigned> {
 public:
  PaintedWhole() {
    root.setFrame({0, 0, kSide, kSide});
    for (int i = 0; i < 6; ++i)
      layers.push_back(child_of(root, false));
    for (int i = 0; i < 2; ++i)
      layers.push_back(child_of(root, true));
    for (int i = 0; i < 5; ++i)
      layers.push_back(child_of(any(), i == 4));
  }

  int below(int end) { return static_cast<int>(random() % static_cast<unsigned>(end)); }
  CALayer any() { return layers[static_cast<std::size_t>(below(static_cast<int>(layers.size())))]; }
  CGRect place() {
    if (below(4) == 0) return {0, 0, kSide, kSide};
    return CGRect(below(kSide) - 4, below(kSide) - 4, 1 + below(24), 1 + below(24));
  }
  CGFloat share() { return below(2) ? 1 : below(5) / 4.0; }

  CALayer child_of(CALayer parent, bool is_backdrop) {
    const CGRect frame = is_backdrop && below(2) ? CGRect(0, 0, kSide, kSide) : place();
    if (!is_backdrop) {
      const CALayer layer = layer_at(frame);
      layer.setBackgroundColor(color(share(), share(), share()));
      parent.addSublayer(layer);
      return layer;
    }
    const CABackdropLayer backdrop = CABackdropLayer::layer();
    backdrop.setFrame(frame);
    objc::state_of<BackdropLayer>(backdrop).show({.blur_radius = 4.0 * (1 + below(3))});
    parent.addSublayer(backdrop);
    return backdrop;
  }

  void change(CALayer layer) {
    switch (below(8)) {
      case 0:
        return layer.setHidden(!layer.isHidden());
      case 1:
        return layer.setOpacity(static_cast<float>(share()));
      case 2:
        return root.insertSublayerAtIndex(layer, static_cast<unsigned>(below(8)));
      case 3:
        return layer.setMasksToBounds(below(2));
      case 4:
        return layer.setCornerRadius(below(3) ? 0 : 5);
      default:
        return layer.setFrame(place());
    }
  }

  /// The largest difference of a channel to what a new compositor paints.
  int most_different() {
    Compositor other{kSide, kSide, 1};
    const CALayer roots[] = {root};
    other.render(roots, loop.now());
    int most = 0;
    for (int i = 0; i < kSide * kSide; ++i) {
      const std::uint32_t one = pixel_of(screen, i % kSide, i / kSide);
      const std::uint32_t two = pixel_of(other, i % kSide, i / kSide);
      for (int shift = 0; shift < 32; shift += 8)
        most = std::max(most, std::abs(static_cast<int>(one >> shift & 255) -
                                       static_cast<int>(two >> shift & 255)));
    }
    return most;
  }

  std::mt19937 random{GetParam()};
  std::vector<CALayer> layers;
  Compositor screen{kSide, kSide, 1};
};

TEST_P(PaintedWhole, IsWhatIsPaintedOverThePreviousFrame) {
  const CALayer roots[] = {root};
  CALayer fading = any();
  for (int frame = 0; frame < kFrames; ++frame) {
    if (frame % 10 == 0) fading = any();
    // A fade lasts some frames, while others move.
    fading.setOpacity(static_cast<float>(frame % 10) / 9);
    for (int i = below(3); i > 0; --i)
      change(any());
    screen.render(roots, loop.now());
    ASSERT_LE(most_different(), kRounding) << "frame " << frame;
  }
}

INSTANTIATE_TEST_SUITE_P(Seeds, PaintedWhole, testing::Range(1U, 61U));

}  // namespace
}  // namespace host::test
