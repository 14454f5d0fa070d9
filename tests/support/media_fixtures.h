#pragma once

#include <chrono>
#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include "host/media/song_tags.h"

namespace media_tests {

// A temporary folder for one test, removed afterwards.
class TemporaryFolder {
 public:
  TemporaryFolder();
  ~TemporaryFolder();
  TemporaryFolder(const TemporaryFolder&) = delete;
  TemporaryFolder& operator=(const TemporaryFolder&) = delete;

  std::string path() const { return path_.string(); }
  std::string operator/(std::string_view name) const { return (path_ / name).string(); }

 private:
  std::filesystem::path path_;
};

// Collects everything that is logged while it lives.
class CapturedLog {
 public:
  CapturedLog();
  ~CapturedLog();

  // Returns how many lines contain `text`.
  int count(std::string_view text) const;

 private:
  struct State;
  State* state_;
};

// Writes a quiet tone, in the format named by the file's extension.
void write_tone(const std::string& path, double seconds = 1.0);
void write_song(const std::string& path, const host::media::SongTags& tags,
                const std::vector<std::uint8_t>& jpeg = {}, double seconds = 1.0);
void write_bytes(const std::string& path, std::string_view bytes);
std::string read_bytes(const std::string& path);
void truncate_file(const std::string& path, std::uintmax_t size);

// Return encoded pictures of one colour.
std::vector<std::uint8_t> jpeg_picture(int width, int height, std::uint32_t rgb);
std::vector<std::uint8_t> png_picture(int width, int height, std::uint32_t rgb);
// Returns a well-formed PNG header for a picture of this size, without its pixels.
std::vector<std::uint8_t> png_promise(std::uint32_t width, std::uint32_t height);

inline std::string_view as_text(const std::vector<std::uint8_t>& bytes) {
  return {reinterpret_cast<const char*>(bytes.data()), bytes.size()};
}

}  // namespace media_tests
