#pragma once

#include <atomic>
#include <string_view>

namespace host {

/// What the user is told when a file cannot be written.
inline constexpr std::string_view kDiskWarning = "The disk cannot be written";

using TellUser = void (*)(std::string_view few_words);
inline std::atomic<TellUser> user_warning = nullptr;

/// Tells the user in a few words of a failure that the log has in full. From any thread; in a
/// process without a way to tell it, nothing happens.
inline void warn_user(std::string_view few_words) {
  if (const TellUser tell = user_warning) tell(few_words);
}

}  // namespace host
