#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <variant>

#include "host/basics/codec.h"

namespace host {

// A message is one of a variant's alternatives, each of which lists its fields. Its bytes are its
// kind, which is the index in the variant, and its fields.
using MessageKind = std::uint16_t;

template <class Messages>
std::string message_bytes(Messages message) {
  Encoder encoder;
  encoder(static_cast<MessageKind>(message.index()));
  std::visit([&encoder](auto& one) { one.list(encoder); }, message);
  return encoder.bytes();
}

/// Reads a whole message from untrusted bytes; nothing when they are invalid.
template <class Messages, std::size_t Kind = 0>
std::optional<Messages> message_from(std::string_view bytes) {
  if constexpr (Kind < std::variant_size_v<Messages>) {
    MessageKind kind = 0;
    if (bytes.size() < sizeof kind) return std::nullopt;
    std::memcpy(&kind, bytes.data(), sizeof kind);
    if (kind != Kind) return message_from<Messages, Kind + 1>(bytes);
    std::variant_alternative_t<Kind, Messages> message;
    Decoder decoder(bytes.substr(sizeof kind));
    message.list(decoder);
    if (!decoder.is_whole()) return std::nullopt;
    return Messages(std::in_place_index<Kind>, std::move(message));
  } else {
    return std::nullopt;
  }
}

}  // namespace host
