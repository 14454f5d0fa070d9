#pragma once

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

/// A test's own folder, removed with all its contents.
class TemporaryFolder {
 public:
  TemporaryFolder() {
    std::string name = std::filesystem::temp_directory_path() / "launcher-test-XXXXXX";
    path_ = mkdtemp(name.data());
  }
  ~TemporaryFolder() { std::filesystem::remove_all(path_); }
  TemporaryFolder(const TemporaryFolder&) = delete;
  TemporaryFolder& operator=(const TemporaryFolder&) = delete;

  const std::filesystem::path& path() const { return path_; }

 private:
  std::filesystem::path path_;
};

inline std::vector<std::string> lines_of(const std::filesystem::path& file) {
  std::ifstream stream(file);
  std::vector<std::string> lines;
  for (std::string line; std::getline(stream, line);)
    lines.push_back(line);
  return lines;
}

inline void write_file(const std::filesystem::path& file, const std::string& text) {
  std::filesystem::create_directories(file.parent_path());
  std::ofstream(file) << text;
}
