#pragma once

namespace host::application {

/// Precedes the descriptor number of the socket that an application listens on.
inline constexpr const char* kListenerArgument = "--listener";

/// Starts a process of the phone, also the home screen, without extensions.
inline constexpr const char* kSafeModeArgument = "--safe-mode";

/// The folder for the headers that the home screen's program writes instead of being one.
inline constexpr const char* kHeadersArgument = "--headers";

/// Precedes a library that is loaded without being installed, also for the home screen.
inline constexpr const char* kExtensionArgument = "--extension";

}  // namespace host::application
