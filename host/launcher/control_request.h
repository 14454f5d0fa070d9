#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace host::launcher {

/// A request to the supervisor of a device, from one of its processes or from a second launcher.
struct ControlRequest {
  /// `Kill` and `Find` name a running program, the home screen's included; `Show` raises the
  /// window; `Play` announces files in the folder of the control socket.
  enum class Kind { Open, Close, Kill, Find, Show, Play };
  Kind kind = Kind::Show;
  std::string bundle;   // the application's identifier: `Open` and `Close`
  std::string program;  // the name of its program: `Open`, `Kill` and `Find`

  friend bool operator==(const ControlRequest&, const ControlRequest&) = default;
};

/// Returns the request as a line, including the line feed.
std::string line_of(const ControlRequest& request);

/// Empty when the line is not a valid request. The names become file names and must be plain:
/// letters, digits, dots, hyphens and underscores, not beginning with a dot.
std::optional<ControlRequest> read_request(std::string_view line);

}  // namespace host::launcher
