#include "host/media_player/media_service.h"

#include <fmt/format.h>
#include <unistd.h>

#include <algorithm>
#include <filesystem>
#include <ranges>
#include <span>
#include <utility>

#include "host/basics/user_warning.h"
#include "host/media/cloud_song.h"
#include "host/media/log.h"
#include "host/media/mpv_player.h"
#include "host/media/playable_path.h"
#include "host/media/reading_trial.h"
#include "host/media_player/songs_at.h"
#include "platform/Foundation/NSNotificationCenter.h"
#include "platform/MediaPlayer/MPMediaQuery.h"

namespace host::media_player {
namespace {

constexpr double kFirstVolume = 0.75;
// In seconds. Saving waits for the disk, and a finger on the volume changes it with every frame.
constexpr double kBetweenSaves = 0.25;
// The number of a library counts in these bits; above them is the process's.
constexpr int kCountBits = 32;
// Files that cannot be played are named one by one up to this number.
constexpr std::size_t kMostNamedFiles = 20;

// Never destroyed after the end of `main`, when the loop it depends on is gone.
std::unique_ptr<MediaService>& running() {
  static auto* const service = new std::unique_ptr<MediaService>;
  return *service;
}

std::shared_ptr<ItemStore> empty_store() {
  return std::make_shared<ItemStore>(media::Library::build({}));
}

/// A file that the user has named, and why it is not played.
struct Refusal {
  std::string path;
  std::string reason;
};

std::string in_few_words(const std::vector<Refusal>& refusals) {
  if (refusals.size() > 1) return fmt::format("Cannot play {} files", refusals.size());
  const std::string& path = refusals.front().path;
  const std::string name = std::filesystem::path(path).filename();
  return "Cannot play " + (name.empty() ? path : name);
}

void report(const std::vector<Refusal>& refusals) {
  if (refusals.empty()) return;
  const std::size_t named = std::min(refusals.size(), kMostNamedFiles);
  for (const auto& [path, reason] : std::span(refusals).first(named))
    media::log_warning(fmt::format("{} {}", path, reason));
  if (const std::size_t others = refusals.size() - named)
    media::log_warning(fmt::format("{} more files cannot be played", others));
  warn_user(in_few_words(refusals));
}

}  // namespace

void MediaService::start(MediaOptions options) {
  stop();
  media::keep_reading_marks(options.marks_path, &media::read_for_trial);
  auto player = std::make_unique<media::MpvPlayer>(
      media::MpvOptions{options.audio_output, options.pace, [] { return RunLoop::main().now(); }});
  running().reset(new MediaService{std::move(options), std::move(player)});
  running()->feed_.start();
}

void MediaService::stop() {
  if (running()) running()->save_playback();
  running().reset();
}

MediaService* MediaService::current() {
  return running().get();
}

MediaService::MediaService(MediaOptions options, std::unique_ptr<media::Player> player)
    : options_(std::move(options)),
      items_(empty_store()),
      library_number_(static_cast<std::uint64_t>(::getpid()) << kCountBits),
      artwork_(options_.pace == media::PlayerPace::stepped ? CoverStore::Pace::Waits
                                                           : CoverStore::Pace::NeverWaits),
      playback_(std::move(player), options_.pace, [this](std::uint64_t id) { return file_of(id); }),
      feed_(options_, {[this](auto library) { take(std::move(library)); },
                       [this](const MediaProgress& progress) {
                         if (options_.on_progress) options_.on_progress(progress);
                       }}) {
  playback_.set_volume(kFirstVolume);
  playback_.on_change = [this] {
    save_playback_soon();
    tell_change();
  };
  playback_.on_jump = [this] { tell_jump(); };
  choices_changed();
}

void MediaService::follow(const MusicChoices& choices) {
  choices_ = choices;
  playback_.set_replay_gain(choices.replay_gain);
  playback_.set_repeat(choices.repeat);
  playback_.set_shuffles(choices.shuffles);
}

void MediaService::choose(const MusicChoices& choices) {
  if (choices == choices_) return;
  write_music_choices(choices);
  follow(choices);
}

MediaService::~MediaService() = default;

media::SongFile MediaService::file_of(std::uint64_t id) const {
  const media::Track* track = items_->library().find(id);
  if (!track) return {{}, "a song of the queue is no longer in the library"};
  if (!media::has_cloud_name(track->path)) return {std::string{track->path}, {}};
  return {{}, fmt::format("\"{}\" is only in the cloud", track->title)};
}

void MediaService::take(std::shared_ptr<const media::Library> library) {
  const auto song = playback_.song();
  if (!song || library->find(*song)) {
    departed_.reset();
  } else if (items_->library().find(*song)) {
    departed_ = items_;
  }
  items_ = std::make_shared<ItemStore>(std::move(library));
  ++library_number_;
  NSNotificationCenter::defaultCenter().postNotificationName(MPMediaLibraryDidChangeNotification,
                                                             nil, nil);
  if (!std::exchange(is_restored_, true)) restore_playback();
  tell_change();
}

const media::Track* MediaService::now_playing() const {
  const auto song = playback_.song();
  if (!song) return nullptr;
  const media::Track* track = items_->library().find(*song);
  return track || !departed_ ? track : departed_->library().find(*song);
}

MPMediaItem MediaService::now_playing_item() {
  const auto song = playback_.song();
  if (!song) return nil;
  const MPMediaItem item = items_->item_with_id(*song);
  return item || !departed_ ? item : departed_->item_with_id(*song);
}

void MediaService::play_files(std::vector<std::string> paths) {
  std::vector<Refusal> refusals;
  std::erase_if(paths, [&refusals](const std::string& path) {
    const std::string reason = media::reason_not_to_play(path);
    if (!reason.empty()) refusals.push_back({path, reason});
    return !reason.empty();
  });
  report(refusals);
  std::ranges::transform(paths, paths.begin(), &media::settled_path);
  const auto is_covered = [this](const std::string& path) { return feed_.covers(path); };
  if (std::ranges::all_of(paths, is_covered) && songs_at(paths, items_->library()).unknown.empty())
    return play_found(paths);
  feed_.bring_in(paths, [this, paths] { play_found(paths); });
}

void MediaService::play_found(const std::vector<std::string>& paths) {
  SongsAt found = songs_at(paths, items_->library());
  std::vector<Refusal> refusals;
  for (const std::string& path : found.unknown)
    refusals.push_back({path, "holds no music that can be played"});
  report(refusals);
  if (found.songs.empty()) return;
  const std::uint64_t first = found.songs.front();
  playback_.set_queue(media::make_song_list(std::move(found.songs)));
  playback_.set_current(first);
  playback_.play();
}

bool MediaService::toggle() {
  if (playback_.state() == media::PlaybackState::playing) {
    playback_.pause();
    return true;
  }
  return play();
}

bool MediaService::play() {
  if (playback_.queue().tracks().empty()) playback_.set_queue(items_->library().songs());
  playback_.play();
  return playback_.state() == media::PlaybackState::playing;
}

bool MediaService::is_playable(std::uint64_t id) const {
  const media::Track* track = items_->library().find(id);
  return track && !media::has_cloud_name(track->path);
}

template <class Songs>
bool MediaService::has_playable(const Songs& songs) const {
  return std::ranges::any_of(songs, [this](std::uint64_t id) { return is_playable(id); });
}

bool MediaService::can_play() const {
  const media::PlayQueue& queue = playback_.queue();
  if (queue.tracks().empty()) return has_playable(*items_->library().songs());
  const std::size_t first = queue.repeats() ? 0 : queue.index().value_or(0);
  return has_playable(queue.tracks().subspan(first));
}

bool MediaService::can_go_next() const {
  const media::PlayQueue& queue = playback_.queue();
  if (!queue.index()) return false;
  const auto later = queue.tracks().subspan(*queue.index() + 1);
  return has_playable(later) || (queue.repeats() && has_playable(queue.tracks()));
}

bool MediaService::can_go_previous() const {
  const media::PlayQueue& queue = playback_.queue();
  if (!queue.index()) return false;
  const auto earlier = std::views::reverse(queue.tracks().first(*queue.index()));
  return has_playable(earlier) || (queue.repeats() && has_playable(queue.tracks()));
}

// An observer may remove itself.
void MediaService::tell_change() {
  for (MediaObserver* observer : std::vector(observers_))
    observer->media_did_change();
}

void MediaService::tell_jump() {
  for (MediaObserver* observer : std::vector(observers_))
    observer->media_did_jump();
}

void MediaService::restore_playback() {
  if (options_.memory_path.empty()) return;
  const auto pace = options_.pace == media::PlayerPace::stepped ? PlaybackFile::Pace::kWaits
                                                                : PlaybackFile::Pace::kNeverWaits;
  const RememberedPlayback memory = memory_.emplace(options_.memory_path, pace).read();
  if (memory.volume) playback_.set_volume(*memory.volume);
  if (memory.song == 0) return;
  playback_.set_queue(memory.queue ? media::make_song_list(*memory.queue)
                                   : items_->library().songs());
  if (!playback_.resume_paused(memory.song, memory.position_seconds))
    playback_.set_queue(media::make_song_list({}));
}

// Several things change together when a song ends; they are written once, after the turn.
void MediaService::save_playback_soon() {
  if (std::exchange(needs_saving_, true)) return;
  RunLoop& loop = RunLoop::main();
  const auto save = [] {
    if (MediaService* service = current(); service && service->needs_saving_)
      service->save_playback();
  };
  if (loop.now() < next_save_) {
    loop.add_timer(next_save_, 0, save);
  } else {
    loop.perform(save);
  }
}

void MediaService::save_playback() {
  needs_saving_ = false;
  next_save_ = RunLoop::main().now() + kBetweenSaves;
  if (!memory_) return;
  RememberedPlayback memory;
  memory.song = playback_.song().value_or(0);
  memory.position_seconds = playback_.position();
  memory.volume = playback_.volume();
  // The whole library is by far the most common queue, and is not written out song by song.
  const media::SongList& queue = playback_.queue().list();
  const media::SongList& all = items_->library().songs();
  if (queue != all && *queue != *all) memory.queue = *queue;
  if (!memory_->write(memory)) {
    media::log_warning("the playback state cannot be saved to " + memory_->path());
    memory_.reset();
  }
}

}  // namespace host::media_player
