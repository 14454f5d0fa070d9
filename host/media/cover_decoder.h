#pragma once

#include <condition_variable>
#include <deque>
#include <memory>
#include <mutex>
#include <optional>
#include <thread>
#include <vector>

#include "host/basics/event_signal.h"
#include "host/media/cover_file.h"

namespace host::media {

// Decodes covers in the background, on its own thread, which starts with the first request. The
// latest request is served first, since that is what the user looks at. All members are for the
// main thread, which watches `descriptor()` and then takes the pictures one by one. The destructor
// waits for the picture being decoded.
class CoverDecoder {
 public:
  struct Request {
    CoverFile cover;
    int longest_side = 0;
  };
  struct Decoded {
    Request request;
    std::shared_ptr<const Picture> picture;  // Null when it cannot be shown.
  };

  void request(Request request);
  std::optional<Decoded> take();
  int descriptor() const { return signal_.descriptor(); }

 private:
  void run(const std::stop_token& stop);

  EventSignal signal_;
  std::mutex mutex_;
  std::condition_variable_any has_work_;
  std::vector<Request> waiting_;
  std::deque<Decoded> done_;
  std::jthread thread_;  // Last, so it stops before the members that it uses are destroyed.
};

}  // namespace host::media
