#pragma once

#include "tweak/preferences/preference_key.h"

// The settings' side of the preferences file, which the home screen reads.

namespace sonavue {

/// The text or number that the file holds under the key; nil without a file or such a key, and for
/// what is neither, which no row can show.
objc::Object stored_value(PreferenceKey key);

/// Puts `value`, which is not nil, under the key and clears "checked", by which the home screen
/// knows that something is new.
void store(objc::Object value, PreferenceKey key);

/// The same for what the home screen need not apply now: "checked" stays as it is.
void store_unannounced(objc::Object value, PreferenceKey key);

}  // namespace sonavue
