#pragma once

namespace host {

/// What the user's desktop calls this program, in its panels, its mixer and its messages.
inline constexpr const char* kProgramName = "Sonavue";
/// The name of its entry in the desktop's menu, of its icon and of its windows' class.
inline constexpr const char* kDesktopEntry = "sonavue";

}  // namespace host
