#pragma once

#include <sys/types.h>

#include <filesystem>
#include <optional>

#include "host/basics/descriptor.h"

namespace host::launcher {

/// The lock of a folder, for its one owner. It is a file in the folder that names the owner; the
/// system releases the lock with the process, and no other process inherits it.
class FolderLock {
 public:
  static constexpr const char* kFile = ".owner";

  /// Takes the lock of an existing folder. `Failed` leaves the reason in `errno`.
  enum class Outcome { Taken, HasOwner, Failed };
  Outcome take(const std::filesystem::path& folder);
  /// The same, but only if the folder has had an owner.
  Outcome take_over(const std::filesystem::path& folder);

  /// Tells other processes who the owner is, and by which control socket it can be reached.
  void introduce(const std::filesystem::path& control_socket) const;

 private:
  Outcome open_and_lock(const std::filesystem::path& file, int flags);

  Descriptor file_;
};

struct FolderOwner {
  pid_t process = 0;
  std::filesystem::path control_socket;
};

/// Empty while the owner has not introduced itself.
std::optional<FolderOwner> owner_of(const std::filesystem::path& folder);

}  // namespace host::launcher
