#pragma once

#include <optional>
#include <string_view>

namespace host::uikit {

/// A typeface of the platform, and how it is drawn with the fonts of this machine.
struct FontFace {
  std::string_view name;    // the platform's, such as HelveticaNeue-Light
  std::string_view family;  // the platform's, such as Helvetica Neue
  const char* drawn_family;
  int weight;  // 100 to 900
  bool italic;
  /// The drawn font's size divided by the requested size, and the points added after each character
  /// per point of size. Together they reproduce the widths of the platform's own letters.
  double size_factor;
  double tracking;
};

/// The metrics of a face at any size, in points per point of size.
struct FaceMetrics {
  double ascender;
  double descender;
  double leading;
  double cap_height;
  double x_height;
};

std::optional<FontFace> face_named(std::string_view name);
const FontFace& system_face();
const FontFace& bold_system_face();
const FontFace& italic_system_face();

FaceMetrics metrics_of(const FontFace& face);

}  // namespace host::uikit
