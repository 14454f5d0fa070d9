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

}  // namespace

double patience_scale() {
  const char* text = std::getenv(kPatienceVariable);
  if (!text) return kOwnScale;
  char* end = nullptr;
  const double scale = std::strtod(text, &end);
  return end != text && std::isfinite(scale) && scale >= 0 ? scale : kOwnScale;
}

}  // namespace host
