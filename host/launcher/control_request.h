#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace host::launcher {

/// A request from a process of the device to its supervisor.
struct ControlRequest {
  enum class Kind { Restart, Open, Close };
  Kind kind = Kind::Restart;
  std::string bundle;   // the application's identifier
  std::string program;  // the name of its program

  friend bool operator==(const ControlRequest&, const ControlRequest&) = default;
};

/// Returns the request as a line, including the line feed.
std::string line_of(const ControlRequest& request);

/// Empty when the line is not a valid request. The names become file names and must be plain:
/// letters, digits, dots, hyphens and underscores, not beginning with a dot.
std::optional<ControlRequest> read_request(std::string_view line);

}  // namespace host::launcher
