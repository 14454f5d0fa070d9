#pragma once

#include <string>
#include <string_view>

namespace host::launcher {

/// Text for a stream of the user's, which may be a pipe that no one reads: writing never waits.
class PatientOutput {
 public:
  explicit PatientOutput(int descriptor) : descriptor_(descriptor) {}

  void put(std::string_view text);
  /// Writes what the stream takes now. Call it when the awaited descriptor is writable.
  void write_some();
  /// -1 when nothing is left to write.
  int awaited() const { return left_.empty() ? -1 : descriptor_; }
  /// Whether so much is left that no more should be put.
  bool is_full() const { return left_.size() > kMuch; }

 private:
  static constexpr std::size_t kMuch = 1024 * 1024;

  int descriptor_;
  std::string left_;
};

}  // namespace host::launcher
