#pragma once

namespace host::application {

/// Precedes the descriptor number of the socket that an application listens on.
inline constexpr const char* kListenerArgument = "--listener";

}  // namespace host::application
