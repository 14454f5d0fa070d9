#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace host::social {

/// A folder of texts that are still to be sent by other means, one file per text.
class Outbox {
 public:
  struct Result {
    /// The file with the text; empty on failure.
    std::filesystem::path file;
    /// The reason for a failure.
    std::string problem;
    explicit operator bool() const { return !file.empty(); }
  };

  explicit Outbox(std::filesystem::path folder) : folder_(std::move(folder)) {}

  /// Writes the text, followed by a line feed, to `kind-N.txt`, where N is one more than the
  /// highest existing number. The file appears complete or not at all, and never replaces another.
  Result put(std::string_view kind, std::string_view text) const;

 private:
  unsigned next_number(std::string_view kind) const;

  std::filesystem::path folder_;
};

}  // namespace host::social
