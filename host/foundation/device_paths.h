#pragma once

#include <string>
#include <string_view>

namespace host::foundation {

/// From now on `/var/mobile`, `/Library`, `/System` and `/Applications` refer to folders below
/// `root` in every file call of Foundation. An empty root restores the machine's own files.
void set_device_root(std::string root);
const std::string& device_root();

/// Maps a path on the device to the path on this machine.
std::string path_on_this_machine(std::string_view device_path);

/// Returns the path on the device of a file below its root, which may be named through symbolic
/// links; any other path is unchanged.
std::string path_on_device(std::string_view path);

}  // namespace host::foundation
