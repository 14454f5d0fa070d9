#include "host/runtime/patience.h"

#include <cmath>
#include <cstdlib>

namespace host {
namespace {

#ifdef SONAVUE_SLOW
constexpr double kOwnScale = 10;
#else
constexpr double kOwnScale = 1;
#endif

// Ten seconds of patience become four months.
constexpr double kForEver = 1e6;

}  // namespace

double patience_scale() {
  const char* text = std::getenv(kPatienceVariable);
  if (!text) return kOwnScale;
  char* end = nullptr;
  const double scale = std::strtod(text, &end);
  return end != text && std::isfinite(scale) && scale >= 0 ? scale : kOwnScale;
}

std::chrono::milliseconds patience_of(double seconds) {
  const double scale = patience_scale() > 0 ? patience_scale() : kForEver;
  return std::chrono::milliseconds(static_cast<long>(seconds * scale * 1e3));
}

}  // namespace host
