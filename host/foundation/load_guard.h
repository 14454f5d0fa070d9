#pragma once

#include <filesystem>

namespace host::foundation {

/// Counts how often one library brought down the process while it was being loaded. The count
/// lives in a small file, since the process that counts is the one that goes down.
class LoadGuard {
 public:
  static constexpr int kMostCrashes = 5;

  /// `marks` is the folder of the counts; it is made when needed.
  LoadGuard(const std::filesystem::path& library, const std::filesystem::path& marks);

  int crashes() const { return crashes_; }
  bool is_given_up() const { return crashes_ >= kMostCrashes; }

  /// Around the load: if the process ends between the two, that was a crash.
  void will_load();
  void did_load();

 private:
  std::filesystem::path mark_;
  std::string version_;  // of the library file: a changed file starts anew
  int crashes_ = 0;
};

}  // namespace host::foundation
