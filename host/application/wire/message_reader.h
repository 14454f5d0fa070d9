#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <utility>

#include "host/application/wire/codec.h"
#include "host/application/wire/messages.h"

namespace host::application {

// A message is its length, its kind and its fields; the length counts the bytes after it.
using MessageLength = std::uint32_t;
using MessageKind = std::uint16_t;
inline constexpr std::size_t kLongestMessage = 64 * 1024;
/// The longest text that fits into any message.
inline constexpr std::size_t kLongestText = kLongestMessage - 64;

/// The bytes of one message.
template <class Messages>
std::string encoded(Messages message) {
  Encoder fields;
  const auto kind = static_cast<MessageKind>(message.index());
  std::visit([&fields](auto& one) { one.list(fields); }, message);
  Encoder whole;
  whole(static_cast<MessageLength>(sizeof kind + fields.bytes().size()), kind);
  return whole.bytes() + fields.bytes();
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
    const std::string_view body = unread.substr(sizeof length, length);
    MessageKind kind = 0;
    std::memcpy(&kind, body.data(), sizeof kind);
    auto made = decoded(kind, body.substr(sizeof kind));
    if (!made) return fail();
    read_ += sizeof length + length;
    return made;
  }

  /// Returns whether an invalid message has arrived.
  bool has_failed() const { return failed_; }
  std::size_t pending_bytes() const { return pending_.size() - read_; }

 private:
  template <std::size_t Kind = 0>
  static std::optional<Messages> decoded(MessageKind kind, std::string_view fields) {
    if constexpr (Kind < std::variant_size_v<Messages>) {
      if (kind != Kind) return decoded<Kind + 1>(kind, fields);
      std::variant_alternative_t<Kind, Messages> message;
      Decoder decoder(fields);
      message.list(decoder);
      if (!decoder.is_whole()) return std::nullopt;
      return Messages(std::in_place_index<Kind>, std::move(message));
    } else {
      return std::nullopt;
    }
  }

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
