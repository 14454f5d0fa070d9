#pragma once

#include <filesystem>

namespace host::foundation {

/// Counts how often a library crashed the process while it was being loaded. The count is kept in a
/// small file, because the counting process is the one that crashes.
class LoadGuard {
 public:
  static constexpr int kMostCrashes = 5;

  /// `marks` is the folder of the counts; it is created when needed.
  LoadGuard(const std::filesystem::path& library, const std::filesystem::path& marks);

  int crashes() const { return crashes_; }
  bool is_given_up() const { return crashes_ >= kMostCrashes; }

  /// Call these two around the load. If the process ends in between, this counts as a crash.
  void will_load();
  void did_load();

 private:
  std::filesystem::path mark_;
  std::string version_;  // of the library file: a changed file starts again at zero
  int crashes_ = 0;
};

}  // namespace host::foundation
