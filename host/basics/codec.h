#pragma once

#include <bit>
#include <cmath>
#include <cstdint>
#include <cstring>
#include <limits>
#include <optional>
#include <string>
#include <string_view>
#include <type_traits>

namespace host {

static_assert(std::endian::native == std::endian::little, "both ends run on one machine");

/// Appends values to a message.
class Encoder {
 public:
  template <class... Values>
  void operator()(const Values&... values) {
    (put(values), ...);
  }
  const std::string& bytes() const { return bytes_; }

 private:
  template <class Value>
  void put(const Value& value) {
    if constexpr (std::is_same_v<Value, std::string>) {
      put(static_cast<std::uint32_t>(value.size()));
      bytes_ += value;
    } else {
      static_assert(std::is_trivially_copyable_v<Value>);
      char raw[sizeof value];
      std::memcpy(raw, &value, sizeof value);
      bytes_.append(raw, sizeof value);
    }
  }

  std::string bytes_;
};

/// Reads values from an untrusted message. After the first missing or invalid value it has failed
/// for good.
class Decoder {
 public:
  explicit Decoder(std::string_view bytes) : rest_(bytes) {}

  template <class... Values>
  void operator()(Values&... values) {
    (take(values), ...);
  }
  /// Returns whether every value was valid and no bytes are left.
  bool is_whole() const { return !failed_ && rest_.empty(); }

 private:
  bool take_raw(void* to, std::size_t size) {
    if (failed_ || rest_.size() < size) {
      failed_ = true;
      return false;
    }
    std::memcpy(to, rest_.data(), size);
    rest_.remove_prefix(size);
    return true;
  }

  template <class Value>
  void take(Value& value) {
    if constexpr (std::is_same_v<Value, std::string>) {
      std::uint32_t size = 0;
      take(size);
      if (failed_ || rest_.size() < size) {
        failed_ = true;
        return;
      }
      value.assign(rest_.substr(0, size));
      rest_.remove_prefix(size);
    } else if constexpr (std::is_enum_v<Value>) {
      std::underlying_type_t<Value> number{};
      take(number);
      // Enumerations on the wire have a `Last`.
      if (number > static_cast<std::underlying_type_t<Value>>(Value::Last)) failed_ = true;
      if (!failed_) value = static_cast<Value>(number);
    } else if constexpr (std::is_same_v<Value, bool>) {
      std::uint8_t number = 0;
      take(number);
      if (number > 1) failed_ = true;
      value = number == 1;
    } else {
      static_assert(std::is_arithmetic_v<Value>);
      if (!take_raw(&value, sizeof value)) return;
      if constexpr (std::is_floating_point_v<Value>) {
        if (!std::isfinite(value)) failed_ = true;
      }
    }
  }

  std::string_view rest_;
  bool failed_ = false;
};

}  // namespace host
