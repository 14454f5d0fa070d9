#include "host/demo_music/demo_library.h"

#include <fmt/core.h>
#include <signal.h>
#include <unistd.h>

#include <atomic>
#include <cerrno>
#include <condition_variable>
#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <mutex>
#include <thread>
#include <vector>

#include "host/demo_music/albums.h"
#include "host/demo_music/audio_file.h"
#include "host/demo_music/piece.h"
#include "host/files/folder.h"
#include "host/media/log.h"
#include "host/media/picture.h"
#include "host/media/tag_writer.h"

namespace host::media {
namespace {

namespace fs = std::filesystem;

constexpr int cover_side = 600;
constexpr std::size_t most_threads = 4;

struct DemoSong {
  const DemoAlbum* album;
  int number;  // From 1.
  std::uint32_t seed;
  fs::path path;
};

using Covers = std::vector<std::vector<std::uint8_t>>;

fs::path album_folder(const fs::path& root, const DemoAlbum& album) {
  return root / album.artist / album.title;
}

std::vector<DemoSong> songs_below(const fs::path& root) {
  std::vector<DemoSong> songs;
  for (const DemoAlbum& album : demo_albums()) {
    for (int number = 1; number <= static_cast<int>(album.songs.size()); ++number) {
      const std::string name = fmt::format(
          "{:02} {}{}", number, album.songs[static_cast<std::size_t>(number - 1)], album.suffix);
      songs.push_back({&album, number, static_cast<std::uint32_t>(songs.size() + 1),
                       album_folder(root, album) / name});
    }
  }
  return songs;
}

Covers read_covers(const std::string& folder) {
  Covers covers;
  for (const DemoAlbum& album : demo_albums()) {
    const std::string path = fmt::format("{}/cover-{}.png", folder, album.cover_number);
    covers.push_back(jpeg_from_file(path, cover_side));
    if (covers.back().empty()) log_warning(fmt::format("the cover {} cannot be read", path));
  }
  return covers;
}

bool write_file(const fs::path& path, const std::vector<std::uint8_t>& bytes) {
  std::ofstream file{path, std::ios::binary};
  file.write(reinterpret_cast<const char*>(bytes.data()),
             static_cast<std::streamsize>(bytes.size()));
  return static_cast<bool>(file.flush());
}

bool make_folders(const fs::path& root, const Covers& covers) {
  std::error_code error;
  for (std::size_t i = 0; i < demo_albums().size(); ++i) {
    const DemoAlbum& album = demo_albums()[i];
    fs::create_directories(album_folder(root, album), error);
    if (error) return false;
    const bool needs_file = album.cover_place == CoverPlace::in_the_folder && !covers[i].empty();
    if (needs_file && !write_file(album_folder(root, album) / "cover.jpg", covers[i])) return false;
  }
  return true;
}

bool make_song(const DemoSong& song, const std::vector<std::uint8_t>& cover) {
  if (!write_audio(song.path.string(), play_piece(song.album->mood, song.seed), demo_sample_rate)) {
    return false;
  }
  SongTags tags;
  tags.title = song.album->songs[static_cast<std::size_t>(song.number - 1)];
  tags.artist = tags.album_artist = tags.composer = song.album->artist;
  tags.album = song.album->title;
  tags.genre = song.album->genre;
  tags.track_number = song.number;
  tags.disc_number = 1;
  const bool is_inside = song.album->cover_place == CoverPlace::inside_the_songs;
  return write_tags(song.path.string(), tags, is_inside ? cover : std::vector<std::uint8_t>{});
}

// Distributes the songs among a few threads and reports progress from the calling one.
class Studio {
 public:
  Studio(const std::vector<DemoSong>& songs, const Covers& covers)
      : songs_(songs), covers_(covers) {}

  bool run(const std::function<void(DemoProgress)>& report, const std::stop_token& stop) {
    std::vector<std::jthread> threads;
    const std::size_t cores = std::max(1u, std::thread::hardware_concurrency());
    for (std::size_t i = 0; i < std::min(cores, most_threads); ++i) {
      threads.emplace_back([this, stop] { work(stop); });
    }
    count(report, threads.size());
    return made_ == static_cast<int>(songs_.size());
  }

 private:
  void work(const std::stop_token& stop) {
    while (!has_failed_ && !stop.stop_requested()) {
      const std::size_t index = next_++;
      if (index >= songs_.size()) break;
      const DemoSong& song = songs_[index];
      const auto cover = static_cast<std::size_t>(song.album - demo_albums().data());
      if (!make_song(song, covers_[cover])) has_failed_ = true;
      const std::lock_guard lock{mutex_};
      if (!has_failed_) ++made_;
      news_.notify_one();
    }
    const std::lock_guard lock{mutex_};
    ++threads_done_;
    news_.notify_one();
  }

  void count(const std::function<void(DemoProgress)>& report, std::size_t thread_count) {
    const int total = static_cast<int>(songs_.size());
    std::unique_lock lock{mutex_};
    for (int told = 0;;) {
      news_.wait(lock, [&] { return made_ > told || threads_done_ == thread_count; });
      if (made_ == told) return;
      told = made_;
      lock.unlock();
      report({told, total});
      lock.lock();
    }
  }

  const std::vector<DemoSong>& songs_;
  const Covers& covers_;
  std::atomic<std::size_t> next_ = 0;
  std::atomic<bool> has_failed_ = false;
  std::mutex mutex_;
  std::condition_variable news_;
  int made_ = 0;
  std::size_t threads_done_ = 0;
};

bool is_running(pid_t process) {
  return ::kill(process, 0) == 0 || errno == EPERM;
}

// Removes folders that a killed run left behind. The folder of a running process, which may be
// another phone making its music, is left alone.
void remove_leftovers(const fs::path& folder) {
  const std::string prefix = folder.filename().string() + ".making-";
  std::error_code error;
  fs::directory_iterator entry{folder.parent_path(), error};
  for (; !error && entry != fs::directory_iterator{}; entry.increment(error)) {
    const std::string name = entry->path().filename().string();
    if (!name.starts_with(prefix)) continue;
    const pid_t maker = std::atoi(name.c_str() + prefix.size());
    if (maker > 0 && maker != ::getpid() && is_running(maker)) continue;
    std::error_code ignored;
    fs::remove_all(entry->path(), ignored);
  }
}

}  // namespace

std::optional<std::string> make_demo_library(const std::string& folder, const std::string& covers,
                                             const std::function<void(DemoProgress)>& report,
                                             std::stop_token stop) {
  const fs::path target = fs::path{folder}.lexically_normal();
  std::error_code error;
  if (fs::exists(target, error)) return std::nullopt;
  remove_leftovers(target);
  const fs::path staging = target.string() + fmt::format(".making-{}", ::getpid());
  fs::create_directories(staging, error);
  if (error) return fmt::format("{} cannot be made: {}", folder, error.message());

  const Covers pictures = read_covers(covers);
  const std::vector<DemoSong> songs = songs_below(staging);
  const bool is_whole =
      make_folders(staging, pictures) && Studio{songs, pictures}.run(report, stop);
  if (is_whole) error = files::move_folder(staging, target);
  if (is_whole && !error) return std::nullopt;
  std::error_code ignored;
  fs::remove_all(staging, ignored);
  // Another process may have finished first; its music is just as good.
  if (is_whole && fs::exists(target, ignored)) return std::nullopt;
  if (stop.stop_requested()) return "the demo music was stopped";
  return fmt::format("the demo music cannot be written to {}", folder);
}

}  // namespace host::media
