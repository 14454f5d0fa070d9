#pragma once

#include <filesystem>
#include <string>

namespace host::foundation {

/// Counts how often a library ended the process while it was being loaded, and remembers one that
/// must not be loaded. The count is kept in a small file, because the counting process is the one
/// that ends.
class LoadGuard {
 public:
  static constexpr int kMostCrashes = 5;

  /// `marks` is the folder of the counts; it is created when needed.
  LoadGuard(const std::filesystem::path& library, const std::filesystem::path& marks);

  int crashes() const { return crashes_; }
  bool is_given_up() const { return !reason_.empty() || crashes_ >= kMostCrashes; }
  /// Why another load is useless, as `will_not_load` was told; often empty.
  const std::string& reason() const { return reason_; }

  /// Call these two around the load. If the process ends in between, this counts as a crash.
  void will_load();
  void did_load();
  /// Call this before the process ends itself because the library must not be loaded. The reason is
  /// one line.
  void will_not_load(const std::string& reason);

 private:
  void write_mark(const std::string& reason) const;

  std::filesystem::path mark_;
  std::string version_;  // of the library file: a changed file starts again at zero
  int crashes_ = 0;
  std::string reason_;
};

}  // namespace host::foundation
