#pragma once

#include "platform/Foundation/NSString.h"

namespace host::foundation {

/// Returns the list in a file, with immutable containers, which all readers share; nil for a file
/// without a list. The log says why a file is not read, and again when the reason changes.
///
/// Extensions read their settings at every use and look for changes many times a second. So a file
/// is read again only when its stamp has changed, and parsed again only when its bytes have; that
/// holds for files without a list, too.
objc::Object property_list_of_file(NSString path);

}  // namespace host::foundation
