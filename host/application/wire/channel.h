#pragma once

#include <string>
#include <string_view>

#include "host/basics/descriptor.h"

namespace host::application {

/// One end of the connection between the home screen and an application: a stream of bytes, some
/// accompanied by a descriptor.
class Channel {
 public:
  Channel() = default;
  explicit Channel(Descriptor socket) : socket_(std::move(socket)) {}

  int descriptor() const { return socket_.get(); }
  explicit operator bool() const { return static_cast<bool>(socket_); }
  void close() { socket_.reset(); }

  /// With `NeverWaits`, sending fails when the other end does not read.
  enum class Patience { Waits, NeverWaits };
  /// After any result but `Done` the channel is unusable: the other end does not read, or is gone.
  /// A descriptor other than -1 is sent with the bytes.
  enum class Sending { Done, Full, Gone };
  Sending send(std::string_view bytes, Patience patience, int descriptor = -1) const;

  enum class Reading { Some, Nothing, End };
  /// Appends the bytes that are available now. A received descriptor is kept for `take_descriptor`.
  Reading read_into(std::string& bytes);
  Descriptor take_descriptor() { return std::move(received_); }

 private:
  Descriptor socket_;
  Descriptor received_;
};

/// Connects to the socket at this path; returns an empty channel when no one listens there.
Channel connect_to(const std::string& path);

/// Waits until the descriptor is readable; returns false after `seconds` of real time.
bool wait_until_readable(int descriptor, double seconds);

}  // namespace host::application
