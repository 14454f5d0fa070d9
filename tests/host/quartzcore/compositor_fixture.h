#pragma once

#include "host/quartzcore/compositing/compositor.h"
#include "host/quartzcore/drawing/image.h"
#include "tests/host/quartzcore/quartz_test.h"

namespace host::test {

/// A screen of eight pixels a side, filled by a blue layer.
class CompositorTest : public QuartzTest {
 public:
  CompositorTest() : root(layer_at({0, 0, 8, 8})) {
    objc::send<objc::Id>(root, "retain"_sel);
    CATransaction::setDisableActions(YES);
    root.setBackgroundColor(color(0, 0, 1));
  }
  ~CompositorTest() override { root.release(); }

  quartzcore::Damage render() {
    const CALayer roots[] = {root};
    return compositor.render(roots, loop.now());
  }
  std::uint32_t pixel(int x, int y) const { return pixel_of(compositor, x, y); }
  static std::uint32_t pixel_of(const quartzcore::Compositor& compositor, int x, int y) {
    cairo_surface_t* const surface = compositor.surface().get();
    std::uint32_t value = 0;
    __builtin_memcpy(
        &value,
        cairo_image_surface_get_data(surface) + y * cairo_image_surface_get_stride(surface) + x * 4,
        4);
    return value;
  }
  /// A layer of one colour in the root.
  CALayer add(CGRect frame, CGColorRef fill) {
    const CALayer layer = layer_at(frame);
    layer.setBackgroundColor(fill);
    root.addSublayer(layer);
    return layer;
  }
  static CGImageRef image_of_color(int width, int height, std::uint32_t argb) {
    const auto surface = quartzcore::make_surface(width, height);
    auto* bytes = cairo_image_surface_get_data(surface.get());
    for (int y = 0; y < height; ++y) {
      for (int x = 0; x < width; ++x) {
        __builtin_memcpy(bytes + y * cairo_image_surface_get_stride(surface.get()) + x * 4, &argb,
                         4);
      }
    }
    cairo_surface_mark_dirty(surface.get());
    CGImageRef image = quartzcore::make_image(surface, quartzcore::Opacity::Opaque);
    objc::send<objc::Id>(quartzcore::object_of(image), "autorelease"_sel);
    return image;
  }

  const CALayer root;
  quartzcore::Compositor compositor{8, 8, 1};
};

inline constexpr std::uint32_t kBlue = 0xff0000ff;
inline constexpr std::uint32_t kRed = 0xffff0000;
inline constexpr std::uint32_t kBlack = 0xff000000;

}  // namespace host::test
