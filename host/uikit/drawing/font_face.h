#pragma once

#include <optional>
#include <string_view>

namespace host::uikit {

/// A face of the platform, and how it is drawn with the fonts of this machine.
struct FontFace {
  std::string_view name;    // of the platform: HelveticaNeue-Light
  std::string_view family;  // of the platform: Helvetica Neue
  const char* drawn_family;
  int weight;  // 100 to 900
  bool italic;
  /// Size of the drawn font to the asked size, and points added after each character per point of
  /// size: together they give the widths of the platform's own letters.
  double size_factor;
  double tracking;
};

/// Every size of a face, in points a point of size.
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
