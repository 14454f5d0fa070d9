#pragma once

#include <sys/types.h>

#include <array>
#include <atomic>
#include <cstdint>

#include "host/basics/descriptor.h"

namespace bench {

/// The pixels of the phone's screen.
inline constexpr int kSeenWidth = 750;
inline constexpr int kSeenHeight = 1334;

/// What a viewer has received, in memory that its process shares with the benchmark's.
struct Seen {
  /// Changes of the picture that came at once.
  std::atomic<std::uint64_t> updates;
  std::atomic<std::uint64_t> bytes;
  std::array<std::uint32_t, std::size_t{kSeenWidth} * kSeenHeight> pixels;
};

/// A server on this machine.
struct Address {
  int port = 0;
  std::array<char, 64> key{};
};

/// A process that looks at the phone's screen, so that its processor time is not the phone's. It is
/// made before the phone: a process that has threads is not copied.
class Viewer {
 public:
  /// Returns when it can see no more.
  using Look = void (*)(Seen& seen, const Address& server);

  explicit Viewer(Look look);
  ~Viewer();
  Viewer(const Viewer&) = delete;
  Viewer& operator=(const Viewer&) = delete;

  void look_at(const Address& server);
  void look_away();
  const Seen& seen() const { return *seen_; }

 private:
  pid_t process_ = 0;
  host::Descriptor addresses_;
  Seen* const seen_;
};

/// The bytes that a connection of a viewer has received.
std::uint64_t received_bytes(int connection);

}  // namespace bench
