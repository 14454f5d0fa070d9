#pragma once

#include <string>

namespace host::foundation {

/// Says which folder of the device is the program's own: `[NSBundle mainBundle]`. Without one, or
/// where it is missing, the main bundle is what this machine's Foundation takes for it.
void set_main_bundle(std::string device_path);

}  // namespace host::foundation
