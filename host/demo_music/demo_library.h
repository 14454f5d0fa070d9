#pragma once

#include <functional>
#include <optional>
#include <stop_token>
#include <string>

namespace host::media {

struct DemoProgress {
  int made = 0;
  int total = 0;
};

// Makes the demo music in `folder`, once: an existing folder is kept as it is. `covers` contains
// `cover-1.png` and so on; a missing cover is logged and left out. `report` is called on the
// calling thread after each song. Everything is made beside `folder` and renamed when complete, so
// a killed or stopped run leaves no partial music there.
// Returns the reason for a failure, or nothing when the music exists.
std::optional<std::string> make_demo_library(const std::string& folder, const std::string& covers,
                                             const std::function<void(DemoProgress)>& report,
                                             std::stop_token stop = {});

}  // namespace host::media
