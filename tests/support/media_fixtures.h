#pragma once

#include <chrono>
#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include "host/media/song_tags.h"

namespace media_tests {

// A folder of its own for one test, gone afterwards.
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

// Collects what is logged while it lives.
class CapturedLog {
 public:
  CapturedLog();
  ~CapturedLog();

  // How many lines hold `text`.
  int count(std::string_view text) const;

 private:
  struct State;
  State* state_;
};

// A quiet tone in the format that the name of the file says.
void write_tone(const std::string& path, double seconds = 1.0);
void write_song(const std::string& path, const host::media::SongTags& tags,
                const std::vector<std::uint8_t>& jpeg = {}, double seconds = 1.0);
void write_bytes(const std::string& path, std::string_view bytes);
std::string read_bytes(const std::string& path);
void truncate_file(const std::string& path, std::uintmax_t size);

// Encoded pictures of one colour.
std::vector<std::uint8_t> jpeg_picture(int width, int height, std::uint32_t rgb);
std::vector<std::uint8_t> png_picture(int width, int height, std::uint32_t rgb);
// A well-formed PNG header that promises a picture of this size and holds nothing of it.
std::vector<std::uint8_t> png_promise(std::uint32_t width, std::uint32_t height);

inline std::string_view as_text(const std::vector<std::uint8_t>& bytes) {
  return {reinterpret_cast<const char*>(bytes.data()), bytes.size()};
}

}  // namespace media_tests
