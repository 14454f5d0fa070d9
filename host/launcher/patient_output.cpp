#include "host/launcher/patient_output.h"

#include <poll.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>

namespace host::launcher {
namespace {

// The stream is shared with other processes, so it stays one that waits. What is writable takes
// this much without waiting.
constexpr std::size_t kOutputPiece = 512;

}  // namespace

void PatientOutput::put(std::string_view text) {
  left_ += text;
  write_some();
}

void PatientOutput::write_some() {
  std::size_t written = 0;
  while (written < left_.size()) {
    pollfd waiting{descriptor_, POLLOUT, 0};
    if (poll(&waiting, 1, 0) <= 0) break;
    const auto count =
        write(descriptor_, left_.data() + written, std::min(kOutputPiece, left_.size() - written));
    if (count < 0 && (errno == EINTR || errno == EAGAIN)) break;
    // The stream is closed: no one wants the text any more.
    written = count > 0 ? written + static_cast<std::size_t>(count) : left_.size();
  }
  left_.erase(0, written);
}

}  // namespace host::launcher
