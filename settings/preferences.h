#pragma once

#include "tweak/preferences/preference_key.h"

// How the settings access the preferences file, which the home screen reads.

namespace sonavue {

/// The string or number stored under the key. Nil if the file or the key is missing, and for values
/// of other types, which rows cannot show.
objc::Object stored_value(PreferenceKey key);

/// Stores `value`, which must not be nil, under the key and clears "checked", so that the home
/// screen applies the file.
void store(objc::Object value, PreferenceKey key);

/// The same for values that the home screen need not apply now: "checked" does not change.
void store_unannounced(objc::Object value, PreferenceKey key);

}  // namespace sonavue
