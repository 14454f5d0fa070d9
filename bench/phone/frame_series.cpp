#include "bench/phone/frame_series.h"

#include <cstring>
#include <string>

namespace bench {
namespace {

constexpr double kMedianAim = 5;
constexpr double kWorstAim = 16;

}  // namespace

void Stopwatch::copy_frame(Series& series) {
  const auto& picture = phone_.screen().picture();
  copy_.resize(static_cast<std::size_t>(picture.stride) * static_cast<std::size_t>(picture.height));
  const double start = core_seconds();
  std::memcpy(copy_.data(), picture.pixels, copy_.size());
  keep(*copy_.data());
  series.copies.push_back(core_seconds() - start);
}

void print_frames(std::string_view what, const Series& series) {
  require(!series.frames.empty(), "no frame was painted");
  const Times frames = summary(series.frames);
  const Times copies = summary(series.copies);
  const std::string name(what);
  print_ratio((name + ": median frame / copy").c_str(), frames.median, copies.median, kMedianAim);
  print_ratio((name + ": worst frame / copy").c_str(), frames.worst, copies.median, kWorstAim);
}

}  // namespace bench
