#pragma once

#include <string>
#include <string_view>

namespace host::social {

enum class HandedTo { Desktop, Outbox, Failed };

/// Delivers a text: as an address to the desktop if there is one, otherwise, or when the desktop
/// does not accept it, as a file in the device's outbox, named after its kind. If both fail, the
/// log gives the reason.
HandedTo hand_over(std::string_view kind, const std::string& address, std::string_view text);

HandedTo put_into_outbox(std::string_view kind, std::string_view text);

}  // namespace host::social
