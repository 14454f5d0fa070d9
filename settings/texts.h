#pragma once

#include "platform/Foundation/NSString.h"

// The texts of the settings in the user's language, in tables keyed by short English identifiers.
// Every call reads the tables again. A missing text is returned as "(null)".

namespace sonavue {

/// The code of the user's language if there is a table for it, otherwise English.
NSString lang();

/// The text with that identifier, from the language's table or else from the English one.
NSString Translator(NSString identifier);

/// The identifier of the text, looked up in the language's table only. If two identifiers have this
/// text, returns either.
NSString getNotTranslated(NSString text);

}  // namespace sonavue
