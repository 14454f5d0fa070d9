#pragma once

namespace host::media {

// What the first bytes of a picture say of it.
struct PictureHeader {
  int width = 0;  // Pixels; 0 when it cannot be shown.
  int height = 0;
  // No pixel can be seen through. A picture that may have transparent pixels says no, even when all
  // of them turn out to be opaque.
  bool is_opaque = false;

  bool is_usable() const { return width > 0 && height > 0; }
  bool operator==(const PictureHeader&) const = default;
};

}  // namespace host::media
