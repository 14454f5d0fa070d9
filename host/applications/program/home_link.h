#pragma once

#include <deque>
#include <optional>

#include "host/application/wire/channel.h"
#include "host/application/wire/message_reader.h"

namespace host::application {

/// The application's end of the wire. Home screens come and go: the listening socket stays, and the
/// latest connection replaces the previous one.
class HomeLink {
 public:
  explicit HomeLink(Descriptor listener) : listener_(std::move(listener)) {}

  /// The descriptor to wait on: the connection if a home screen is connected, else the listener.
  int awaited() const { return channel_ ? channel_.descriptor() : listener_.get(); }
  int listener() const { return listener_.get(); }
  bool is_connected() const { return static_cast<bool>(channel_); }

  /// Blocks until something arrives, and reads it.
  void wait();
  /// Reads without waiting: accepts a new home screen, or reads the current one's messages.
  void receive();
  std::optional<ToApplication> next();
  /// Puts messages that cannot be handled yet back at the front.
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
