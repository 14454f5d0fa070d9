#pragma once

#include <filesystem>

namespace host::foundation {

/// Counts how often a library ended the process while it was being loaded, and remembers one whose
/// load did not end. The count is kept in a small file, because the counting process is the one
/// that ends.
class LoadGuard {
 public:
  static constexpr int kMostCrashes = 5;

  /// `marks` is the folder of the counts; it is created when needed.
  LoadGuard(const std::filesystem::path& library, const std::filesystem::path& marks);

  int crashes() const { return crashes_; }
  bool is_given_up() const { return is_endless_ || crashes_ >= kMostCrashes; }
  /// Whether the load did not end: once is enough.
  bool is_endless() const { return is_endless_; }

  /// Call these two around the load. If the process ends in between, this counts as a crash.
  void will_load();
  void did_load();
  /// Call this before the process ends itself because the load does not end.
  void will_not_load();

 private:
  void write_mark(const char* note) const;

  std::filesystem::path mark_;
  std::string version_;  // of the library file: a changed file starts again at zero
  int crashes_ = 0;
  bool is_endless_ = false;
};

}  // namespace host::foundation
