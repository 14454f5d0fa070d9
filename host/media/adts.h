#pragma once

#include <string>

namespace host::media {

// The sound of a file of raw AAC, which the tag reader does not know: frames with a header each,
// and no tags besides an ID3 tag before them.
struct AdtsSound {
  int sample_rate = 0;  // 0 when the file has no such frames.
  int channels = 0;
  double duration_seconds = 0;  // Estimated from the first frames.
};

AdtsSound read_adts(const std::string& path);

}  // namespace host::media
