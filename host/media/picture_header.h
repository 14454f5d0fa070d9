#pragma once

namespace host::media {

// What the first bytes of a picture say about it.
struct PictureHeader {
  int width = 0;  // Pixels; 0 when it cannot be shown.
  int height = 0;
  // True when no pixel can be transparent. False for a picture that may have transparent pixels,
  // even if all of them turn out to be opaque.
  bool is_opaque = false;

  bool is_usable() const { return width > 0 && height > 0; }
  bool operator==(const PictureHeader&) const = default;
};

}  // namespace host::media
