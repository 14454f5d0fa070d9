#pragma once

#include "platform/Foundation/NSString.h"

// The settings' side of the preferences file, which the home screen reads. No copy of it is kept:
// every look reads it and every change writes all of it in one step.

namespace sonavue {

/// The text or number that the file holds under the key; nil without a file or such a key, and for
/// what is neither, which no row can show.
objc::Object stored_value(NSString key);

/// Puts `value`, which is not nil, under the key and clears "checked", by which the home screen
/// knows that something is new.
void store(objc::Object value, NSString key);

/// The same for what the home screen need not apply now: "checked" stays as it is.
void store_unannounced(objc::Object value, NSString key);

/// Is it a number that is not 0? Nil, and what is no number, is not.
BOOL is_true(objc::Object value);

}  // namespace sonavue
