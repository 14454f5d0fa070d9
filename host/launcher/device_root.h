#pragma once

#include <filesystem>
#include <optional>
#include <span>
#include <string>

#include "host/files/new_file.h"
#include "host/launcher/folder_lock.h"

namespace host::launcher {

/// Makes the root's folder and takes its lock, unless that has an owner. Returns the reason when
/// neither is possible.
std::optional<std::string> take_device_root(const std::filesystem::path& root, FolderLock& lock,
                                            bool& has_owner);

/// Makes the folders that every device has. Returns the reason when the root cannot be written.
std::optional<std::string> prepare_device_root(const std::filesystem::path& root);

/// Copies `first_files` to a new device: its root is missing or empty, or an earlier start was
/// interrupted during the copy. Existing files stay. Nothing is copied to a complete device, so
/// files that the user removes stay removed. Returns the error of the first file that failed; the
/// next start then continues.
std::optional<std::string> copy_first_files(const std::filesystem::path& first_files,
                                            const std::filesystem::path& root);

/// The build's files for the device.
struct StagingSource {
  std::filesystem::path overlay;       // copied over the root as it is
  std::filesystem::path applications;  // `<Name>.app` folders
};

/// Updates the device's root from the build: changed files are replaced atomically, without
/// disturbing a process that reads or runs the old version, and several starts may do so at once.
/// Applications whose identifier is in `without` are removed from the device. Links are not
/// followed, but the root may be one. Nothing is flushed: a start copies again what a power failure
/// has taken. Returns the error of the first file that failed.
std::optional<std::string> stage(const StagingSource& source, const std::filesystem::path& root,
                                 std::span<const std::string> without);

}  // namespace host::launcher
