#pragma once

#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "host/basics/descriptor.h"

namespace host::browser {

/// Who may use the phone from a browser. A link carries a token, which one page may exchange for a
/// secret; with the secret the page comes back for as long as it likes. Both are in memory that the
/// launcher shares with every home screen, so a restart of the home screen changes nothing.
class Access {
 public:
  /// Hexadecimal digits: 128 random bits.
  static constexpr std::size_t kKeyLength = 32;

  /// Memory with a new token, and no secret yet. Empty when the system has none to give.
  static Descriptor make();
  /// Null when the descriptor is not such memory.
  static std::unique_ptr<Access> open(int descriptor);

  ~Access();
  Access(const Access&) = delete;
  Access& operator=(const Access&) = delete;

  /// Empty once it has been used.
  std::string token() const;
  /// Returns the secret of the page that presents this key; nothing when the key is neither the
  /// secret nor an unused token. A token is used up, and makes the previous secret worthless.
  std::optional<std::string> admit(std::string_view key);
  /// Makes a new token. A page that has the secret keeps it until the token is used. Returns false
  /// when the system gives no random numbers.
  bool renew();

 private:
  struct State;
  explicit Access(State* state) : state_(state) {}

  State* const state_;
};

}  // namespace host::browser
