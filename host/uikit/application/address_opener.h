#pragma once

#include <string>

namespace host::uikit {

/// Whom the application asks to open addresses: views know nothing of the desktop around the phone.
struct AddressOpener {
  bool (*can_open)(const std::string& address) = nullptr;
  bool (*open)(const std::string& address) = nullptr;
};

/// Without one nothing can be opened.
void set_address_opener(AddressOpener opener);

}  // namespace host::uikit
