#include "host/quartzcore/pixels/surface.h"

#include <algorithm>
#include <cstring>
#include <memory>

#include "host/quartzcore/pixels/pixel_memory.h"

namespace host::quartzcore {
namespace {

using Block = PixelMemory::Block;
using Contents = PixelMemory::Contents;

void give_back(void* lent) {
  const std::unique_ptr<Block> block(static_cast<Block*>(lent));
  pixel_memory().give_back(*block);
}

/// Returns null when Cairo rejects the size.
Surface surface_in(std::unique_ptr<Block> block, int width, int height, int stride) {
  static const cairo_user_data_key_t owner{};
  auto surface = Surface::adopt(cairo_image_surface_create_for_data(
      block->bytes, CAIRO_FORMAT_ARGB32, width, height, stride));
  const cairo_status_t status =
      cairo_surface_set_user_data(surface.get(), &owner, block.get(), give_back);
  if (status == CAIRO_STATUS_SUCCESS) {
    static_cast<void>(block.release());
    return surface;
  }
  surface = {};
  give_back(block.release());
  return {};
}

Surface surface_with(Contents contents, int width, int height) {
  width = std::max(width, 1);
  height = std::max(height, 1);
  const int stride = cairo_format_stride_for_width(CAIRO_FORMAT_ARGB32, width);
  const auto size =
      static_cast<std::size_t>(std::max(stride, 0)) * static_cast<std::size_t>(height);
  if (size >= PixelMemory::kLeastKept) {
    auto block = std::make_unique<Block>(pixel_memory().take(size, contents));
    if (block->bytes) {
      if (Surface made = surface_in(std::move(block), width, height, stride)) return made;
    }
  }
  return Surface::adopt(cairo_image_surface_create(CAIRO_FORMAT_ARGB32, width, height));
}

}  // namespace

Surface make_surface(int width, int height) {
  return surface_with(Contents::Zeros, width, height);
}

Surface reused(Surface old, int width, int height) {
  const bool fits = old && width_of(old) == std::max(width, 1) &&
                    height_of(old) == std::max(height, 1) &&
                    cairo_surface_get_reference_count(old.get()) == 1;
  return fits ? std::move(old) : surface_with(Contents::Anything, width, height);
}

Surface emptied(Surface old, int width, int height) {
  Surface surface = reused(std::move(old), width, height);
  cairo_surface_flush(surface.get());
  std::memset(cairo_image_surface_get_data(surface.get()), 0,
              static_cast<std::size_t>(cairo_image_surface_get_stride(surface.get())) *
                  static_cast<std::size_t>(height_of(surface)));
  cairo_surface_mark_dirty(surface.get());
  return surface;
}

Drawing draw_on(const Surface& surface) {
  return Drawing::adopt(cairo_create(surface.get()));
}

}  // namespace host::quartzcore
