#pragma once

#include <string>
#include <string_view>

namespace host::social {

enum class HandedTo { Desktop, Outbox, Nobody };

/// Gives a text away: as an address to the desktop where there is one, otherwise, or when the
/// desktop does not take it, as a file of the device's outbox, which is named for its kind. When
/// nobody takes it the reason is in the log.
HandedTo hand_over(std::string_view kind, const std::string& address, std::string_view text);

HandedTo put_into_outbox(std::string_view kind, std::string_view text);

}  // namespace host::social
