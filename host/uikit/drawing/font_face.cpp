#include "host/uikit/drawing/font_face.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace host::uikit {
namespace {

constexpr const char* kSans = "Inter";
// The same typeface drawn for large sizes, where thin strokes hold up.
constexpr const char* kDisplaySans = "Inter Display";
constexpr const char* kMonospaced = "DejaVu Sans Mono";

// The drawn letters are taller and wider than the platform's. The x-heights agree at this size, and
// the tracking of each weight removes the remaining extra width.
constexpr double kSansSize = 0.965;
constexpr double kUltraLightTracking = -0.015;
constexpr double kThinTracking = 0.004;
constexpr double kLightTracking = -0.010;
constexpr double kRegularTracking = -0.010;
constexpr double kMediumTracking = -0.012;
constexpr double kBoldTracking = -0.010;

constexpr double kMonospacedSize = 0.997;

constexpr FontFace sans(std::string_view name, int weight, bool italic, double tracking) {
  return {name, "Helvetica Neue", kSans, weight, italic, kSansSize, tracking};
}

constexpr FontFace thin_sans(std::string_view name, int weight, double tracking) {
  return {name, "Helvetica Neue", kDisplaySans, weight, false, kSansSize, tracking};
}

constexpr std::array kFaces{
    sans("HelveticaNeue", 400, false, kRegularTracking),
    sans("HelveticaNeue-Bold", 700, false, kBoldTracking),
    sans("HelveticaNeue-Italic", 400, true, kRegularTracking),
    thin_sans("HelveticaNeue-UltraLight", 100, kUltraLightTracking),
    thin_sans("HelveticaNeue-Thin", 200, kThinTracking),
    sans("HelveticaNeue-Light", 300, false, kLightTracking),
    sans("HelveticaNeue-LightItalic", 300, true, kLightTracking),
    sans("HelveticaNeue-Medium", 500, false, kMediumTracking),
    sans("HelveticaNeue-MediumItalic", 500, true, kMediumTracking),
    sans("HelveticaNeue-BoldItalic", 700, true, kBoldTracking),
    FontFace{"Helvetica", "Helvetica", kSans, 400, false, kSansSize, kRegularTracking},
    FontFace{"Helvetica-Bold", "Helvetica", kSans, 700, false, kSansSize, kBoldTracking},
    FontFace{"Helvetica-Light", "Helvetica", kSans, 300, false, kSansSize, kLightTracking},
    FontFace{"Courier", "Courier", kMonospaced, 400, false, kMonospacedSize, 0},
    FontFace{"Menlo-Regular", "Menlo", kMonospaced, 400, false, kMonospacedSize, 0},
};

// The platform's own metrics: a label of one line is as tall here as there, 20.5 points at 17.
constexpr FaceMetrics kRegularMetrics{0.952, -0.213, 0.028, 0.714, 0.523};
constexpr FaceMetrics kBoldMetrics{0.975, -0.217, 0.029, 0.714, 0.523};
constexpr int kRegularWeight = 400;
constexpr int kBoldWeight = 700;
// The older family is less tall and has no leading.
constexpr FaceMetrics kHelveticaMetrics{0.92, -0.23, 0.0, 0.72, 0.523};
constexpr FaceMetrics kMonospacedMetrics{0.928, -0.236, 0.0, 0.729, 0.547};

// Metrics are published for regular and bold only. Every other weight is assumed to lie on the line
// through these two: the thinner the strokes, the less room they need above and below.
FaceMetrics neue_metrics(int weight) {
  const double share =
      static_cast<double>(weight - kRegularWeight) / (kBoldWeight - kRegularWeight);
  const auto between = [share](double regular, double bold) {
    return std::lerp(regular, bold, share);
  };
  return {between(kRegularMetrics.ascender, kBoldMetrics.ascender),
          between(kRegularMetrics.descender, kBoldMetrics.descender),
          between(kRegularMetrics.leading, kBoldMetrics.leading), kRegularMetrics.cap_height,
          kRegularMetrics.x_height};
}

const FontFace& face_at(std::string_view name) {
  return *std::find_if(kFaces.begin(), kFaces.end(),
                       [&](const FontFace& face) { return face.name == name; });
}

}  // namespace

std::optional<FontFace> face_named(std::string_view name) {
  const auto found = std::find_if(kFaces.begin(), kFaces.end(), [&](const FontFace& face) {
    return face.name == name || (face.family == name && face.weight == 400 && !face.italic);
  });
  if (found == kFaces.end()) return std::nullopt;
  return *found;
}

const FontFace& system_face() {
  return face_at("HelveticaNeue");
}

const FontFace& bold_system_face() {
  // The platform's bold system font is the medium weight; true bold would be too heavy in a title.
  return face_at("HelveticaNeue-Medium");
}

const FontFace& italic_system_face() {
  return face_at("HelveticaNeue-Italic");
}

FaceMetrics metrics_of(const FontFace& face) {
  if (face.family == "Helvetica Neue") return neue_metrics(face.weight);
  return face.family == "Helvetica" ? kHelveticaMetrics : kMonospacedMetrics;
}

}  // namespace host::uikit
