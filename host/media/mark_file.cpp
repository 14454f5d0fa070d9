#include "host/media/mark_file.h"

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstring>
#include <filesystem>
#include <fstream>

namespace host::media {
namespace {

constexpr std::size_t page_bytes = 4096;

// The first page names the run of the machine in which the file was last opened.
using Boot = std::array<char, page_bytes>;

struct Place {
  MarkState state;
  std::uint32_t reading;
  std::uint32_t deaths;
  std::uint32_t path_length;
  std::int64_t size;
  std::int64_t modified_ns;
  std::array<char, page_bytes - 32> path;
};
static_assert(sizeof(Place) == page_bytes);

constexpr off_t whole_bytes = page_bytes * (1 + MarkFile::places);

off_t offset_of(std::uint32_t place) {
  return static_cast<off_t>(page_bytes * (1 + place));
}

Boot this_boot() {
  Boot boot{};
  std::ifstream{"/proc/sys/kernel/random/boot_id"}.getline(boot.data(), boot.size());
  return boot;
}

void write_at(int file, off_t offset, const void* bytes, std::size_t count) {
  [[maybe_unused]] const auto written = ::pwrite(file, bytes, count, offset);
}

bool read_at(int file, off_t offset, void* bytes, std::size_t count) {
  return ::pread(file, bytes, count, offset) == static_cast<ssize_t>(count);
}

// Forgets the marks of another run of the machine.
void begin_boot(int file) {
  const Boot boot = this_boot();
  Boot last{};
  if (read_at(file, 0, last.data(), last.size()) && last == boot) return;
  for (std::uint32_t i = 0; i < MarkFile::places; ++i) {
    MarkState state{};
    const bool is_there = read_at(file, offset_of(i), &state, sizeof state);
    if (!is_there || state == MarkState::left_out) continue;
    state = MarkState::empty;
    write_at(file, offset_of(i), &state, sizeof state);
  }
  write_at(file, 0, boot.data(), boot.size());
}

bool is_sound(const Place& place) {
  const bool is_in_use = place.state == MarkState::reading || place.state == MarkState::left_out;
  return is_in_use && place.path_length > 0 && place.path_length <= place.path.size();
}

}  // namespace

MarkFile::MarkFile(const std::string& path) {
  std::error_code ignored;
  std::filesystem::create_directories(std::filesystem::path{path}.parent_path(), ignored);
  Descriptor file{
      ::open(path.c_str(), O_RDWR | O_CREAT | O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK, 0600)};
  struct stat status {};
  const bool is_file = file && ::fstat(file.get(), &status) == 0 && S_ISREG(status.st_mode);
  if (!is_file || ::flock(file.get(), LOCK_EX | LOCK_NB) != 0) return;
  // A full disk refuses this, rather than a mark later on.
  if (::posix_fallocate(file.get(), 0, whole_bytes) != 0) return;
  begin_boot(file.get());
  file_ = std::move(file);
}

std::vector<FileMark> MarkFile::marks() const {
  std::vector<FileMark> found;
  Place place{};
  for (std::uint32_t i = 0; file_ && i < places; ++i) {
    if (!read_at(file_.get(), offset_of(i), &place, sizeof place) || !is_sound(place)) continue;
    found.push_back({i,
                     place.state,
                     place.reading,
                     place.deaths,
                     {place.size, place.modified_ns},
                     {place.path.data(), place.path_length}});
  }
  return found;
}

void MarkFile::write(const FileMark& mark) const {
  Place place;
  if (!file_ || mark.path.size() > place.path.size()) return;
  place.state = mark.state;
  place.reading = mark.reading;
  place.deaths = mark.deaths;
  place.path_length = static_cast<std::uint32_t>(mark.path.size());
  place.size = mark.stamp.size;
  place.modified_ns = mark.stamp.modified_ns;
  std::ranges::copy(mark.path, place.path.begin());
  write_at(file_.get(), offset_of(mark.place), &place, offsetof(Place, path) + mark.path.size());
}

void MarkFile::clear(std::uint32_t place) const {
  const MarkState state = MarkState::empty;
  if (file_) write_at(file_.get(), offset_of(place), &state, sizeof state);
}

}  // namespace host::media
