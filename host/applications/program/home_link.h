#pragma once

#include <deque>
#include <optional>

#include "host/application/wire/channel.h"
#include "host/application/wire/message_reader.h"

namespace host::application {

/// The application's end of the wire. Home screens come and go: the socket that they connect to
/// stays, and the latest one counts.
class HomeLink {
 public:
  explicit HomeLink(Descriptor listener) : listener_(std::move(listener)) {}

  /// What to wait for: the home screen's messages, or a home screen.
  int awaited() const { return channel_ ? channel_.descriptor() : listener_.get(); }
  int listener() const { return listener_.get(); }
  bool is_connected() const { return static_cast<bool>(channel_); }

  /// Waits for whatever comes next, and takes it in.
  void wait();
  /// Takes in what is there now: a new home screen, or what the present one says.
  void take_in();
  std::optional<ToApplication> next();
  /// What was read and could not be dealt with yet comes first again.
  void put_back(std::deque<ToApplication> messages);
  /// The memory that came with the last `Hello`.
  Descriptor take_memory() { return channel_.take_descriptor(); }

  void send(const ToHome& message);
  void close() { channel_.close(); }

 private:
  bool is_waiting(int descriptor) const;
  void accept_home();

  Descriptor listener_;
  Channel channel_;
  MessageReader<ToApplication> reader_;
  std::deque<ToApplication> put_back_;
};

}  // namespace host::application
