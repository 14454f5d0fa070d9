#include "host/media_player/media_service.h"

#include <fmt/format.h>

#include <algorithm>
#include <ranges>
#include <span>
#include <utility>

#include "host/media/cloud_song.h"
#include "host/media/log.h"
#include "host/media/mpv_player.h"
#include "host/media/reading_trial.h"
#include "host/media_player/playback_memory.h"
#include "platform/Foundation/NSNotificationCenter.h"
#include "platform/MediaPlayer/MPMediaQuery.h"

namespace host::media_player {
namespace {

constexpr double kFirstVolume = 0.75;
// In seconds. Saving waits for the disk, and a finger on the volume changes it with every frame.
constexpr double kBetweenSaves = 0.25;

// Never destroyed after the end of `main`, when the loop it depends on is gone.
std::unique_ptr<MediaService>& running() {
  static auto* const service = new std::unique_ptr<MediaService>;
  return *service;
}

std::shared_ptr<ItemStore> empty_store() {
  return std::make_shared<ItemStore>(media::Library::build({}));
}

}  // namespace

std::optional<std::string> MediaService::start(MediaOptions options) {
  stop();
  media::keep_reading_marks(options.marks_path, &media::read_for_trial);
  auto player = media::MpvPlayer::create(
      {options.audio_output, options.pace, [] { return RunLoop::main().now(); }});
  if (!player) return "the playback engine cannot be started";
  running().reset(new MediaService{std::move(options), std::move(player)});
  running()->feed_.start();
  running()->restore_playback();
  return std::nullopt;
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

void MediaService::choices_changed() {
  choices_ = read_music_choices();
  playback_.set_replay_gain(choices_.replay_gain);
}

MediaService::~MediaService() = default;

media::SongFile MediaService::file_of(std::uint64_t id) const {
  const media::Track* track = items_->library().find(id);
  if (!track) return {{}, "a song of the queue is no longer in the library"};
  if (!media::has_cloud_name(track->path)) return {std::string{track->path}, {}};
  return {{}, fmt::format("\"{}\" is only in the cloud", track->title)};
}

void MediaService::take(std::shared_ptr<const media::Library> library) {
  items_ = std::make_shared<ItemStore>(std::move(library));
  NSNotificationCenter::defaultCenter().postNotificationName(MPMediaLibraryDidChangeNotification,
                                                             nil, nil);
  tell_change();
}

const media::Track* MediaService::now_playing() const {
  const auto song = playback_.song();
  return song ? items_->library().find(*song) : nullptr;
}

MPMediaItem MediaService::now_playing_item() {
  const auto song = playback_.song();
  return song ? items_->item_with_id(*song) : MPMediaItem();
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

bool MediaService::can_play() const {
  const media::PlayQueue& queue = playback_.queue();
  const media::SongList& songs = queue.tracks().empty() ? items_->library().songs() : queue.list();
  const auto rest = std::span(*songs).subspan(queue.index().value_or(0));
  return std::ranges::any_of(rest, [this](std::uint64_t id) { return is_playable(id); });
}

bool MediaService::can_go_next() const {
  const media::PlayQueue& queue = playback_.queue();
  if (!queue.index()) return false;
  const auto later = queue.tracks().subspan(*queue.index() + 1);
  return std::ranges::any_of(later, [this](std::uint64_t id) { return is_playable(id); });
}

bool MediaService::can_go_previous() const {
  const media::PlayQueue& queue = playback_.queue();
  const auto earlier = queue.tracks().first(queue.index().value_or(0));
  const auto nearest_first = std::views::reverse(earlier);
  return std::ranges::any_of(nearest_first, [this](std::uint64_t id) { return is_playable(id); });
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
  const RememberedPlayback memory = read_playback(memory_.emplace(options_.memory_path));
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
  if (!write_playback(*memory_, memory)) {
    media::log_warning("the playback state cannot be saved to " + memory_->path());
    memory_.reset();
  }
}

}  // namespace host::media_player
