#pragma once

#include "tweak/preferences/preference_key.h"

// The settings as the home screen reads them.

namespace sonavue {

/// The value of a setting. The default counts only while there is no preferences file at all: a
/// key that an existing file lacks reads as nil. The file is read again at every call.
objc::Object getPref(PreferenceKey key, objc::Object default_value);

/// The same, as a switch: nil is NO.
BOOL preference_is_on(PreferenceKey key, BOOL default_value);

/// Is the text of the setting equal to `value`? Nil equals nothing.
BOOL preference_equals(PreferenceKey key, NSString default_value, NSString value);

/// A switch as the file alone has it: NO without a file.
BOOL preference_in_file(PreferenceKey key);

}  // namespace sonavue
