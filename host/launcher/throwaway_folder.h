#pragma once

#include <stdlib.h>

#include <filesystem>
#include <string>

namespace host::launcher {

/// A new temporary folder, which the destructor removes with all its contents.
class ThrowawayFolder {
 public:
  ThrowawayFolder() {
    std::error_code error;
    std::string name = std::filesystem::temp_directory_path(error) / "sonavue-XXXXXX";
    // On failure only the name remains, and using it will report the reason.
    [[maybe_unused]] const char* made = mkdtemp(name.data());
    path_ = name;
  }
  ~ThrowawayFolder() {
    std::error_code error;
    std::filesystem::remove_all(path_, error);
  }
  ThrowawayFolder(const ThrowawayFolder&) = delete;
  ThrowawayFolder& operator=(const ThrowawayFolder&) = delete;

  const std::filesystem::path& path() const { return path_; }

 private:
  std::filesystem::path path_;
};

}  // namespace host::launcher
