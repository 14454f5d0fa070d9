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

/// The path on the device of a file below its root, which may be named through links; any other
/// path is unchanged.
std::string path_on_device(std::string_view path);

}  // namespace host::foundation
