#include "host/media/cover_file.h"

#include <fstream>
#include <vector>

#include "host/media/plain_file.h"
#include "host/media/reading_marks.h"
#include "host/media/tag_reader.h"

namespace host::media {
namespace {

constexpr std::streamoff largest_file_bytes = 32 << 20;

std::vector<std::uint8_t> bytes_of_file(const std::string& path) {
  if (!reason_not_to_open(path).empty()) return {};
  std::ifstream file{path, std::ios::binary | std::ios::ate};
  const std::streamoff size = file.tellg();
  if (!file || size <= 0 || size > largest_file_bytes) return {};
  std::vector<std::uint8_t> bytes(static_cast<std::size_t>(size));
  file.seekg(0);
  file.read(reinterpret_cast<char*>(bytes.data()), size);
  bytes.resize(static_cast<std::size_t>(file.gcount()));
  return bytes;
}

}  // namespace

CoverFile cover_of(const Track& track) {
  if (!track.has_artwork()) return {};
  if (track.picture_path.empty()) {
    return {track.artwork_key, std::string{track.path}, CoverFile::Home::in_song};
  }
  return {track.artwork_key, std::string{track.picture_path}, CoverFile::Home::own_file};
}

std::optional<Picture> decode_cover(const CoverFile& cover, int longest_side) {
  const ReadingMark mark{Reading::cover, cover.path};
  if (!mark.may_read()) return std::nullopt;
  const bool is_in_song = cover.home == CoverFile::Home::in_song;
  const auto bytes = is_in_song ? read_embedded_picture(cover.path) : bytes_of_file(cover.path);
  return decode_picture(bytes, longest_side);
}

}  // namespace host::media
