#pragma once

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>

namespace sonavue::device {

/// A temporary folder of facts, written by a test.
class FactsFolder {
 public:
  FactsFolder() {
    std::string made = (std::filesystem::temp_directory_path() / "facts-XXXXXX").string();
    path_ = mkdtemp(made.data());
    write("guarded", "");
    write("uncovered", "");
  }
  ~FactsFolder() { std::filesystem::remove_all(path_); }
  FactsFolder(const FactsFolder&) = delete;
  FactsFolder& operator=(const FactsFolder&) = delete;

  const std::filesystem::path& path() const { return path_; }
  void write(const std::string& file, const std::string& text) const {
    std::filesystem::create_directories((path_ / file).parent_path());
    std::ofstream(path_ / file) << text;
  }

 private:
  std::filesystem::path path_;
};

}  // namespace sonavue::device
