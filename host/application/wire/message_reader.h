#pragma once

#include <cstring>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

#include "host/application/wire/messages.h"
#include "host/basics/message.h"

namespace host::application {

// On the wire, the length of a message comes first; it counts the bytes after it.
using MessageLength = std::uint32_t;
inline constexpr std::size_t kLongestMessage = 64 * 1024;
/// The longest text that fits into any message.
inline constexpr std::size_t kLongestText = kLongestMessage - 64;

/// The bytes of one message.
template <class Messages>
std::string encoded(const Messages& message) {
  const std::string bytes = message_bytes(message);
  Encoder length;
  length(static_cast<MessageLength>(bytes.size()));
  return length.bytes() + bytes;
}

/// Reads messages from untrusted bytes that arrive in pieces. An invalid message ends the reading
/// for good.
template <class Messages>
class MessageReader {
 public:
  void append(std::string_view bytes) {
    if (!failed_) pending_ += bytes;
  }

  /// The next complete message; empty until it has arrived, and after a failure.
  std::optional<Messages> next() {
    MessageLength length = 0;
    const std::string_view unread = std::string_view(pending_).substr(read_);
    if (failed_ || unread.size() < sizeof length) return pause();
    std::memcpy(&length, unread.data(), sizeof length);
    if (length < sizeof(MessageKind) || length > kLongestMessage) return fail();
    if (unread.size() < sizeof length + length) return pause();
    auto made = message_from<Messages>(unread.substr(sizeof length, length));
    if (!made) return fail();
    read_ += sizeof length + length;
    return made;
  }

  /// Returns whether an invalid message has arrived.
  bool has_failed() const { return failed_; }
  std::size_t pending_bytes() const { return pending_.size() - read_; }

 private:
  std::nullopt_t pause() {
    pending_.erase(0, std::exchange(read_, 0));
    return std::nullopt;
  }
  std::nullopt_t fail() {
    failed_ = true;
    pending_.clear();
    read_ = 0;
    return std::nullopt;
  }

  std::string pending_;
  std::size_t read_ = 0;
  bool failed_ = false;
};

}  // namespace host::application
