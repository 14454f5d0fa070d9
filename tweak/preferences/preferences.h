#pragma once

#include "tweak/preferences/preference_key.h"

// How the home screen reads the settings.

namespace sonavue {

/// The value of a setting. `default_value` is used only if there is no preferences file at all; a
/// key that is missing from an existing file gives nil. Every call reads the file again.
objc::Object getPref(PreferenceKey key, objc::Object default_value);

/// The same for a switch; nil gives NO.
BOOL preference_is_on(PreferenceKey key, BOOL default_value);

/// Whether the setting's text equals `value`. NO if the setting is nil.
BOOL preference_equals(PreferenceKey key, NSString default_value, NSString value);

/// The switch as it is in the file; NO without a file.
BOOL preference_in_file(PreferenceKey key);

}  // namespace sonavue
