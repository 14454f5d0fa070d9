#pragma once

#include <string_view>

// What keys of the physical keyboard do that is not typing.
namespace host::uikit {

/// Gives a key to the text field of this process that has the keyboard, or performs it as a
/// shortcut; of these a field leaves only those that move the focus to the next view. Returns false
/// when there is nothing to do.
bool take_key(std::string_view key);

/// Performs `escape` or `control-f` in this process, or a key of the focus (`Focus::press_key`);
/// returns false for any other key, and when there is nothing to do.
bool perform_shortcut(std::string_view key);

/// Goes back one page in the navigation in front, as its back button does.
bool go_back();

/// Gives the keyboard to the first visible text field from the top. One that is only scrolled out
/// of sight counts as visible, and is scrolled into sight.
bool focus_search_field();

}  // namespace host::uikit
