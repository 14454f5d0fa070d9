#pragma once

#include <stdlib.h>

#include <filesystem>
#include <string>

namespace host::launcher {

/// A new folder among the temporary files, gone with everything in it when this goes.
class ThrowawayFolder {
 public:
  ThrowawayFolder() {
    std::error_code error;
    std::string name = std::filesystem::temp_directory_path(error) / "sonavue-XXXXXX";
    // Where none can be made there is only the name, and using it will say why.
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
