#pragma once

#include "platform/Preferences/PSSpecifier.h"

namespace host::preferences {

/// The value under the specifier's property `key` in the file of the domain that its property
/// `defaults` names; its property `default` when the file has no value.
objc::Object stored_value(PSSpecifier specifier);

/// Puts a value there, and posts the notification that its property `PostNotification` names to all
/// processes.
void store_value(objc::Object value, PSSpecifier specifier);

}  // namespace host::preferences
