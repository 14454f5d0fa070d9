#include "host/media/cloud_song.h"

#include <fmt/core.h>
#include <sys/stat.h>
#include <toml++/toml.h>

#include <algorithm>
#include <cmath>
#include <filesystem>
#include <fstream>
#include <vector>

#include "host/media/hash.h"
#include "host/media/picture.h"
#include "host/media/reading_marks.h"
#include "host/media/text.h"
#include "host/media/toml_depth.h"

namespace host::media {
namespace {

constexpr std::size_t longest_entry_bytes = 64 << 10;
constexpr double longest_entry_seconds = 7 * 24 * 3600.0;
constexpr std::int64_t largest_entry_number = 9999;

// Reads the values of an entry and remembers the first invalid one.
class Entry {
 public:
  explicit Entry(const toml::table& table) : table_(table) {}

  std::string text(std::string_view key) {
    const toml::node* node = node_at(key);
    if (node == nullptr) return {};
    const auto value = node->value_exact<std::string>();
    if (!value) complain(key, "a text");
    return value ? repaired_text(*value) : std::string{};
  }

  int number(std::string_view key) {
    const toml::node* node = node_at(key);
    if (node == nullptr) return 0;
    const auto value = node->value_exact<std::int64_t>();
    if (!value || *value < 0 || *value > largest_entry_number) complain(key, "a number up to 9999");
    return complaint_.empty() ? static_cast<int>(*value) : 0;
  }

  double seconds(std::string_view key) {
    const toml::node* node = node_at(key);
    if (node == nullptr) return 0;
    const auto value = node->is_number() ? node->value<double>() : std::nullopt;
    const bool is_length = value && std::isfinite(*value) && *value >= 0;
    if (!is_length) complain(key, "a number of seconds");
    return is_length ? std::min(*value, longest_entry_seconds) : 0;
  }

  bool flag(std::string_view key) {
    const toml::node* node = node_at(key);
    if (node == nullptr) return false;
    const auto value = node->value_exact<bool>();
    if (!value) complain(key, "true or false");
    return value.value_or(false);
  }

  const std::string& complaint() const { return complaint_; }

 private:
  const toml::node* node_at(std::string_view key) const { return table_.get(key); }

  void complain(std::string_view key, std::string_view expected) {
    if (complaint_.empty()) complaint_ = fmt::format("has a {} that is not {}", key, expected);
  }

  const toml::table& table_;
  std::string complaint_;
};

SongTags tags_of_entry(Entry& entry) {
  SongTags tags;
  tags.title = entry.text("title");
  tags.artist = entry.text("artist");
  tags.album_artist = entry.text("album_artist");
  tags.album = entry.text("album");
  tags.genre = entry.text("genre");
  tags.composer = entry.text("composer");
  tags.track_number = entry.number("track");
  tags.disc_number = entry.number("disc");
  tags.duration_seconds = entry.seconds("duration");
  tags.is_compilation = entry.flag("compilation");
  tags.own_picture_path = entry.text("cover");
  tags.is_cloud = true;
  return tags;
}

std::string name_without_suffix(const std::string& path) {
  const std::string name = std::filesystem::path{path}.filename().string();
  return name.substr(0, name.size() - cloud_suffix.size());
}

// As for a folder's picture, the key changes with the file.
std::uint64_t key_of(const std::string& picture_path) {
  struct stat status {};
  if (::stat(picture_path.c_str(), &status) != 0) return 0;
  const auto seed = static_cast<std::uint64_t>(status.st_mtim.tv_sec ^ (status.st_size << 32));
  return identifier_from(stable_hash(picture_path, seed));
}

// Returns false when the picture that the entry names cannot be shown.
bool find_cover(const std::string& entry_path, SongTags& tags) {
  if (tags.own_picture_path.empty()) return true;
  const std::filesystem::path folder = std::filesystem::path{entry_path}.parent_path();
  const std::string path = (folder / std::exchange(tags.own_picture_path, {})).string();
  tags.own_picture = read_picture_file_header(path);
  if (!tags.own_picture.is_usable()) return false;
  tags.own_artwork = key_of(path);
  tags.own_picture_path = path;
  return true;
}

// Reads one byte more than the longest entry has. The file may grow while it is read, and the size
// of a file that the system makes up says nothing.
std::string beginning_of(std::istream& file) {
  std::string text(longest_entry_bytes + 1, '\0');
  file.read(text.data(), static_cast<std::streamsize>(text.size()));
  text.resize(static_cast<std::size_t>(file.gcount()));
  return text;
}

TagReading refused_entry(std::string reason) {
  return {std::nullopt, std::move(reason), false};
}

TagReading read_text(const std::string& path, const std::string& text) {
  const toml::table table = toml::parse(text);
  Entry entry{table};
  SongTags tags = tags_of_entry(entry);
  if (!entry.complaint().empty()) return refused_entry(entry.complaint());
  if (tags.title.empty()) tags.title = repaired_text(name_without_suffix(path));
  const bool has_broken_picture = !find_cover(path, tags);
  return {std::move(tags), {}, has_broken_picture};
}

}  // namespace

TagReading read_cloud_song(const std::string& path) {
  struct stat status {};
  if (::stat(path.c_str(), &status) != 0) return refused_entry("cannot be reached");
  if (!S_ISREG(status.st_mode)) return refused_entry("is not a plain file");
  std::ifstream file{path, std::ios::binary};
  if (!file) return refused_entry("cannot be read");
  const std::string text = beginning_of(file);
  if (text.size() > longest_entry_bytes) return refused_entry("is too long for a song entry");
  if (is_toml_nested_too_deeply(text))
    return refused_entry("is nested too deeply for a song entry");
  try {
    return read_text(path, text);
  } catch (const toml::parse_error& error) {
    return refused_entry(fmt::format("is not a song entry: {} in line {}", error.description(),
                                     error.source().begin.line));
  } catch (const std::exception& error) {
    return refused_entry(std::string{"cannot be read: "} + error.what());
  }
}

TagReading read_song(const std::string& path) {
  const ReadingMark mark{Reading::song, path};
  if (!mark.may_read()) return {};
  return has_cloud_name(path) ? read_cloud_song(path) : read_tags(path);
}

}  // namespace host::media
