#pragma once

#include <filesystem>
#include <optional>
#include <span>
#include <string>

namespace host::launcher {

/// Makes the folders that every device has. Gives the reason when the root cannot be written.
std::optional<std::string> prepare_device_root(const std::filesystem::path& root);

/// Lays `first_files` over a device that is just being made: the root is missing or empty, or an
/// earlier start was cut short here. What lies there stays. Never again afterwards, so that what
/// the user removes is gone for good. Gives the first file that failed; the next start goes on
/// then.
std::optional<std::string> lay_first_files(const std::filesystem::path& first_files,
                                           const std::filesystem::path& root);

/// Where the build keeps what belongs on the device.
struct StagingSource {
  std::filesystem::path overlay;       // laid over the root as it is
  std::filesystem::path applications;  // `<Name>.app` folders
};

/// Brings the device's root up to date with what was built: files that changed are replaced, each
/// in one step, so that a process that reads or runs the old one is not disturbed. Applications
/// whose identifier is in `without` are taken off the device. Gives the first file that failed.
std::optional<std::string> stage(const StagingSource& source, const std::filesystem::path& root,
                                 std::span<const std::string> without);

/// Copies `from` to `to` unless the two have one size and time already.
std::optional<std::string> copy_if_changed(const std::filesystem::path& from,
                                           const std::filesystem::path& to);

}  // namespace host::launcher
