#pragma once

#include <string>
#include <string_view>

namespace host::foundation {

/// From here on `/var/mobile`, `/Library`, `/System` and `/Applications` mean folders below `root`
/// in every file call of Foundation. An empty root means the machine's own files again.
void set_device_root(std::string root);
const std::string& device_root();

/// Where a path of the device really is.
std::string path_on_this_machine(std::string_view device_path);

}  // namespace host::foundation
