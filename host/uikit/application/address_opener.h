#pragma once

#include <string>

namespace host::uikit {

/// Opens addresses for the application: views know nothing of the desktop around the phone.
struct AddressOpener {
  bool (*can_open)(const std::string& address) = nullptr;
  bool (*open)(const std::string& address) = nullptr;
};

/// Until an opener is set, no address can be opened.
void set_address_opener(AddressOpener opener);

}  // namespace host::uikit
