#pragma once

namespace host::application {

/// The argument before the number of the socket that an application listens on.
inline constexpr const char* kListenerArgument = "--listener";

}  // namespace host::application
