#pragma once

#include "platform/Foundation/NSString.h"

// What the settings say, in the user's language: tables of texts by short English names. The tables
// are read anew at every call. "(null)" is a text as any other, and means that there is none.

namespace sonavue {

/// The code of the user's language, as far as there is a table of it.
NSString lang();

/// The text of that name: from the language's table, or else from the English one.
NSString Translator(NSString identifier);

/// The name of the text, in the language's table alone. Of two that have the same text, either.
NSString getNotTranslated(NSString text);

}  // namespace sonavue
