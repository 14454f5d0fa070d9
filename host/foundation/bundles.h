#pragma once

#include <string>

namespace host::foundation {

/// Sets the folder on the device that is the program's own, for `[NSBundle mainBundle]`. Without
/// this call, or when the folder is missing, this machine's Foundation determines the main bundle.
void set_main_bundle(std::string device_path);

}  // namespace host::foundation
