#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "host/basics/descriptor.h"
#include "host/runtime/run_loop.h"

struct wslay_event_context;

namespace host::browser {

/// The end of a WebSocket (RFC 6455) to a page. It never blocks the loop. A page that breaks the
/// protocol, sends text or a message that is too long, or does not read what it is sent, is
/// disconnected.
class PageSocket {
 public:
  static constexpr std::size_t kLongestMessage = 64 * 1024;
  /// What may wait for a page that does not read, in bytes.
  static constexpr std::size_t kLongestQueue = std::size_t{16} * 1024 * 1024;

  /// Both may delete the socket.
  struct Events {
    std::function<void(std::string_view message)> message;
    /// The connection has ended for this reason; empty when the page has closed it. Not called
    /// when the socket is deleted.
    std::function<void(const std::string& reason)> ended;
  };

  /// `early` are the bytes that arrived behind the handshake.
  PageSocket(RunLoop& loop, Descriptor connection, std::string early, Events events);
  ~PageSocket();
  PageSocket(const PageSocket&) = delete;
  PageSocket& operator=(const PageSocket&) = delete;

  void set_events(Events events) { events_ = std::move(events); }

  /// Sends a binary message as soon as the page reads. Nothing happens after the end.
  void send(std::string_view message);
  /// Takes leave of the page behind what has been sent.
  void close();
  bool is_open() const { return static_cast<bool>(connection_); }

 private:
  struct Callbacks;
  void receive();
  void transmit();
  void look_after_queue();
  void end_soon(std::string reason);
  void end();

  RunLoop& loop_;
  Descriptor connection_;
  std::string early_;
  Events events_;
  RunLoop::Id watch_ = 0;
  wslay_event_context* context_ = nullptr;
  std::vector<std::string> received_;
  /// Bytes that may still be read in this turn.
  std::size_t budget_ = 0;
  bool is_ending_ = false;
  std::string reason_;
  std::shared_ptr<void> life_ = std::make_shared<char>();
};

}  // namespace host::browser
