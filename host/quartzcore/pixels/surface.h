#pragma once

#include <cairo.h>

#include <utility>

namespace host::quartzcore {

/// Owns one reference to a Cairo object; copies share the object.
template <class T, T* (*Reference)(T*), void (*Destroy)(T*)>
class CairoRef {
 public:
  CairoRef() = default;
  /// Takes over the caller's reference.
  static CairoRef adopt(T* object) { return CairoRef(object); }
  static CairoRef share(T* object) { return CairoRef(object ? Reference(object) : nullptr); }
  CairoRef(const CairoRef& other) : CairoRef(share(other.object_)) {}
  CairoRef(CairoRef&& other) noexcept : object_(std::exchange(other.object_, nullptr)) {}
  CairoRef& operator=(CairoRef other) noexcept {
    std::swap(object_, other.object_);
    return *this;
  }
  ~CairoRef() {
    if (object_) Destroy(object_);
  }

  T* get() const { return object_; }
  explicit operator bool() const { return object_ != nullptr; }

 private:
  explicit CairoRef(T* object) : object_(object) {}
  T* object_ = nullptr;
};

using Surface = CairoRef<cairo_surface_t, cairo_surface_reference, cairo_surface_destroy>;
using Drawing = CairoRef<cairo_t, cairo_reference, cairo_destroy>;

/// Returns a transparent ARGB32 surface; a width or height below one pixel becomes one.
Surface make_surface(int width, int height);
/// Returns a surface of this size with undefined contents: the old one if it has the size and no
/// other user.
Surface reused(Surface old, int width, int height);
/// The same, but transparent.
Surface emptied(Surface old, int width, int height);
Drawing draw_on(const Surface& surface);

inline int width_of(const Surface& surface) {
  return cairo_image_surface_get_width(surface.get());
}
inline int height_of(const Surface& surface) {
  return cairo_image_surface_get_height(surface.get());
}

}  // namespace host::quartzcore
