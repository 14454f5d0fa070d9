#pragma once

#include <cairo.h>

#include <utility>

namespace host::quartzcore {

/// Owns one reference to a Cairo object; copies share the object.
template <class T, T* (*Reference)(T*), void (*Destroy)(T*)>
class CairoRef {
 public:
  CairoRef() = default;
  /// Takes over the reference that the caller has.
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

/// A transparent ARGB32 surface; sizes below one pixel become one.
Surface make_surface(int width, int height);
/// A surface of that size with anything in it: the old one, where it has the size and nobody else
/// uses it.
Surface reused(Surface old, int width, int height);
/// The same, transparent.
Surface emptied(Surface old, int width, int height);
Drawing draw_on(const Surface& surface);

inline int width_of(const Surface& surface) {
  return cairo_image_surface_get_width(surface.get());
}
inline int height_of(const Surface& surface) {
  return cairo_image_surface_get_height(surface.get());
}

}  // namespace host::quartzcore
