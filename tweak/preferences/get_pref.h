#pragma once

#include "platform/Foundation/NSString.h"
#include "platform/Foundation/NSValue.h"
#include "platform/SpringBoard/SpringBoard.h"
#include "platform/UIKit/UIColor.h"

namespace sonavue {

/// The value of a setting. The default counts only while there is no preferences file at all: a
/// key that an existing file lacks reads as nil. The file is read anew at every call.
objc::Object getPref(NSString key, objc::Object default_value);

/// The same, as a switch: nil is NO.
BOOL preference_is_on(NSString key, BOOL default_value);

/// Is the text of the setting equal to `value`? Nil equals nothing.
BOOL preference_equals(NSString key, NSString default_value, NSString value);

/// A switch as the file alone has it: NO without a file.
BOOL preference_in_file(NSString key);

/// The colour that the setting names; a name that is none is black.
UIColor color(NSString key);

/// The poll: when the settings side has cleared "checked", sets it and applies every setting.
void changePreferences(SpringBoard self);

}  // namespace sonavue
