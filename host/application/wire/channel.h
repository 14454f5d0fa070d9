#pragma once

#include <string>
#include <string_view>

#include "host/basics/descriptor.h"

namespace host::application {

/// One end of the connection between the home screen and an application: bytes, and with some of
/// them a descriptor.
class Channel {
 public:
  Channel() = default;
  explicit Channel(Descriptor socket) : socket_(std::move(socket)) {}

  int descriptor() const { return socket_.get(); }
  explicit operator bool() const { return static_cast<bool>(socket_); }
  void close() { socket_.reset(); }

  /// Whoever does not wait gives up an end that reads nothing.
  enum class Patience { Waits, NeverWaits };
  /// Anything but `Done` leaves the channel without use: the other end does not read, or is gone. A
  /// descriptor that is not -1 goes with the bytes.
  enum class Sending { Done, Full, Gone };
  Sending send(std::string_view bytes, Patience patience, int descriptor = -1) const;

  enum class Reading { Some, Nothing, End };
  /// Appends what is there now. A descriptor that came along is kept for `take_descriptor`.
  Reading read_into(std::string& bytes);
  Descriptor take_descriptor() { return std::move(received_); }

 private:
  Descriptor socket_;
  Descriptor received_;
};

/// Connects to the socket with this path; an empty channel when nobody is there.
Channel connect_to(const std::string& path);

/// Waits until the descriptor can be read; false after `seconds` of the machine's time.
bool wait_until_readable(int descriptor, double seconds);

}  // namespace host::application
