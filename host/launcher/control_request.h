#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace host::launcher {

/// What a process of the device asks of its supervisor.
struct ControlRequest {
  enum class Kind { Restart, Open, Close };
  Kind kind = Kind::Restart;
  std::string bundle;   // of the application
  std::string program;  // the file to open it with

  friend bool operator==(const ControlRequest&, const ControlRequest&) = default;
};

/// The request's line, with its end.
std::string line_of(const ControlRequest& request);

/// Nothing when the line is no request. Names that are given become names of files, and are
/// therefore plain: letters, digits, dots, hyphens and underscores, no dot first.
std::optional<ControlRequest> read_request(std::string_view line);

}  // namespace host::launcher
