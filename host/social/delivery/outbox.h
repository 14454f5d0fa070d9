#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace host::social {

/// A folder of texts that wait to be sent by somebody else, one file a text.
class Outbox {
 public:
  struct Result {
    /// Where the text is now; empty when it could not be put anywhere.
    std::filesystem::path file;
    /// Why not.
    std::string problem;
    explicit operator bool() const { return !file.empty(); }
  };

  explicit Outbox(std::filesystem::path folder) : folder_(std::move(folder)) {}

  /// Puts the text, with a line feed behind it, into `kind-N.txt`, where N is one more than the
  /// highest there is. The file is there whole or not at all, and never takes another one's place.
  Result put(std::string_view kind, std::string_view text) const;

 private:
  unsigned next_number(std::string_view kind) const;

  std::filesystem::path folder_;
};

}  // namespace host::social
