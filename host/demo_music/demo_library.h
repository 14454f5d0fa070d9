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

// Makes the demo music in `folder`, once: a folder that exists is taken as it is. `covers` holds
// `cover-1.png` and so on; a cover that is missing is left out and logged. `report` is called from
// the calling thread after each song. Everything is made beside `folder` and renamed when it is
// whole, so that a run that is killed or stopped leaves nothing half made.
// Answers the reason when it cannot be made, nothing when the music is there.
std::optional<std::string> make_demo_library(const std::string& folder, const std::string& covers,
                                             const std::function<void(DemoProgress)>& report,
                                             std::stop_token stop = {});

}  // namespace host::media
