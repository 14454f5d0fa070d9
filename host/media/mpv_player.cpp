#include "host/media/mpv_player.h"

#include <fmt/core.h>

#include <algorithm>
#include <cmath>
#include <iterator>
#include <utility>

#include "host/basics/program_identity.h"
#include "host/media/log.h"
#include "host/media/mpv_library.h"
#include "host/media/plain_file.h"

namespace host::media {
namespace {

constexpr double longest_wait_seconds = 5;
constexpr std::string_view silent_output = "null";
constexpr double loudest_percent = 100;
constexpr double lowest_rate_of_music = 44'100;
// Within this distance the engine is not moved: no display shows a smaller difference.
constexpr double unseen_drift_seconds = 0.05;

// A phone plays in stereo. The device is opened for that whatever is played first: while files
// follow one another it stays open, and a mono file must not make the next ones mono.
constexpr MpvEngine::Option real_options[] = {
    {"audio-channels", "stereo"},
    {"prefetch-playlist", "yes"},
    {"replaygain-clip", "no"},
    // What the desktop's mixer shows.
    {"audio-client-name", kProgramName},
    {"title", "${?metadata/by-key/artist:${metadata/by-key/artist} – }${media-title}"},
};

// An audio device with a buffer of one sample that never accepts another: the engine's position is
// then exactly the last seek target, playing or paused. The clock decides when a song is over; on
// its own, the engine would unload a file as soon as it had decoded the end.
constexpr MpvEngine::Option stepped_options[] = {
    {"ao", "null"},
    {"ao-null-speed", "0"},
    {"ao-null-buffer", "0"},
    {"ao-null-outburst", "1"},
    {"audio-buffer", "0"},
    {"keep-open", "yes"},
    {"keep-open-pause", "no"},
};

// Sound that is not heard may have any rate. At a fixed one, 800 samples are a tenth of a second,
// half of the output's buffer: the engine's threads wake up less often.
constexpr MpvEngine::Option silent_options[] = {
    {"audio-samplerate", "8000"},
    {"ao-null-outburst", "800"},
};

const char* engine_name(ReplayGain gain) {
  switch (gain) {
    case ReplayGain::track:
      return "track";
    case ReplayGain::album:
      return "album";
    case ReplayGain::off:
      break;
  }
  return "no";
}

bool is_silent(const MpvOptions& options) {
  return options.audio_output == silent_output;
}

std::vector<MpvEngine::Option> engine_options(const MpvOptions& options) {
  if (options.pace == PlayerPace::stepped)
    return {std::begin(stepped_options), std::end(stepped_options)};
  std::vector<MpvEngine::Option> real{std::begin(real_options), std::end(real_options)};
  real.push_back({"ao", options.audio_output.c_str()});
  if (is_silent(options))
    real.insert(real.end(), std::begin(silent_options), std::end(silent_options));
  return real;
}

}  // namespace

MpvPlayer::MpvPlayer(MpvOptions options)
    : options_(std::move(options)), engine_(engine_options(options_), signal_) {}

void MpvPlayer::load(const std::string& path) {
  ++loads_;
  sound_ = {path, 0, nullptr};
  next_.reset();
  reports_.clear();
  loading_ = Loading::pending;
  sought_.reset();
  engine_position_ = 0;
  if (auto reason = reason_not_to_open(path); !reason.empty()) return refuse(std::move(reason));
  // A phone that starts with a paused song does not wait for the engine.
  if (is_stepped() || !is_paused_ || engine_.is_started()) open();
}

// Loading takes several frames of the screen, so a thread does it; the song is opened afterwards.
bool MpvPlayer::has_library() {
  if (is_stepped() || has_library_) return true;
  if (!library_loader_.joinable()) {
    library_loader_ = std::jthread{[this] {
      mpv();
      has_library_ = true;
      signal_.raise();
    }};
  }
  return false;
}

void MpvPlayer::open() {
  if (!has_library()) return;
  const std::string& path = sound_.path;
  sound_.mark = std::make_unique<ReadingMark>(Reading::sound, path);
  if (!sound_.mark->may_read()) return refuse("has ended the phone before");
  if (!engine_.start()) return refuse("needs a playback engine that cannot be started");
  // A file that the user has chosen is played at its own rate.
  engine_.set("gapless-audio", "weak");
  const auto entry = engine_.load(path);
  if (!entry) return refuse("was refused by the playback engine");
  sound_.entry = *entry;
  if (const auto next = std::exchange(next_, std::nullopt)) follow_with(next->path);
  if (!is_stepped()) return;
  // Opening takes real time, which does not advance a stepped clock: wait for it before the next
  // step.
  wait_until([this] { return loading_ != Loading::pending; });
  stepped_.jump(0, now());
  if (loading_ != Loading::loaded) return;
  sought_ = 0;
  wait_until([this] { return !sought_; });
}

void MpvPlayer::refuse(std::string reason) {
  // What was playing before must not be heard under this name.
  engine_.command({"stop"});
  sound_.mark.reset();
  loading_ = Loading::nothing;
  report({Report::failed, sound_.path, std::move(reason)});
}

void MpvPlayer::follow_with(const std::string& path) {
  if (is_stepped() || path == (next_ ? next_->path : std::string{})) return;
  if (next_) engine_.command({"playlist-remove", "1"});
  next_.reset();
  // A file that cannot be opened is refused when it is loaded, with the reason.
  if (path.empty() || loading_ == Loading::nothing || !reason_not_to_open(path).empty()) return;
  if (!engine_.is_started()) {
    next_ = Sound{path, 0, nullptr};
    return;
  }
  auto mark = std::make_unique<ReadingMark>(Reading::sound, path);
  if (!mark->may_read()) return;
  // The device stays open whatever the formats are, and the second file is converted to that of the
  // first: opening it again takes a fifth of a second.
  engine_.set("gapless-audio", "yes");
  if (const auto entry = engine_.append(path)) next_ = Sound{path, *entry, std::move(mark)};
}

void MpvPlayer::play() {
  set_paused(false);
}

void MpvPlayer::pause() {
  set_paused(true);
}

void MpvPlayer::set_paused(bool paused) {
  is_paused_ = paused;
  engine_.set("pause", paused);
  if (!paused && loading_ == Loading::pending && !engine_.is_started()) open();
  if (!is_stepped()) return;
  if (paused) {
    stepped_.halt(now());
  } else {
    stepped_.start(now());
  }
}

void MpvPlayer::stop() {
  pause();
  ++loads_;
  sound_ = {};
  next_.reset();
  reports_.clear();
  loading_ = Loading::nothing;
  sought_.reset();
  if (is_stepped()) stepped_.jump(0, now());
  engine_.command({"stop"});
  if (is_stepped()) wait_until([this] { return engine_.text("path").empty(); });
}

void MpvPlayer::seek(double seconds) {
  if (loading_ == Loading::nothing || !std::isfinite(seconds)) return;
  const double length = duration();
  seconds = std::max(0.0, length > 0 ? std::min(seconds, length) : seconds);
  if (is_stepped()) stepped_.jump(seconds, now());
  seek_engine(seconds);
}

void MpvPlayer::seek_engine(double seconds) {
  sought_ = seconds;
  engine_position_ = seconds;
  // A file that is still being opened cannot seek; the seek follows when it is loaded.
  if (loading_ != Loading::loaded) return;
  const std::string target = fmt::format("{:.6f}", seconds);
  if (!engine_.command({"seek", target.c_str(), "absolute+exact"})) sought_.reset();
  if (is_stepped()) wait_until([this] { return !sought_; });
}

void MpvPlayer::set_volume(double volume) {
  if (!std::isfinite(volume)) return;
  volume_ = std::clamp(volume, 0.0, 1.0);
  engine_.set("volume", volume_ * loudest_percent);
}

void MpvPlayer::set_replay_gain(ReplayGain gain) {
  engine_.set("replaygain", engine_name(gain));
}

double MpvPlayer::position() const {
  if (loading_ == Loading::nothing) return 0;
  // The beginning of a file that follows another is in the device's buffer at first.
  if (!is_stepped()) return sought_ ? *sought_ : std::max(0.0, engine_.number("time-pos"));
  const double length = duration();
  const double position = stepped_.at(now());
  return length > 0 ? std::min(position, length) : position;
}

double MpvPlayer::duration() const {
  return loading_ == Loading::loaded ? engine_.number("duration") : 0;
}

void MpvPlayer::pump() {
  signal_.clear();
  if (has_library_ && loading_ == Loading::pending && !engine_.is_started()) open();
  drain();
  if (is_stepped()) follow_clock();
  deliver();
}

void MpvPlayer::drain() {
  for (;;) {
    const mpv_event& event = engine_.next_event(0);
    if (event.event_id == MPV_EVENT_NONE) return;
    handle(event);
  }
}

void MpvPlayer::handle(const mpv_event& event) {
  switch (event.event_id) {
    case MPV_EVENT_START_FILE:
      return handle_start(static_cast<const mpv_event_start_file*>(event.data)->playlist_entry_id);
    case MPV_EVENT_FILE_LOADED:
      if (loading_ != Loading::pending || started_ != sound_.entry) return;
      loading_ = Loading::loaded;
      if (sought_) seek_engine(*sought_);
      return;
    case MPV_EVENT_PLAYBACK_RESTART:
      sought_.reset();
      if (started_ == sound_.entry) sound_.mark.reset();
      return;
    case MPV_EVENT_AUDIO_RECONFIG:
      check_sound_device();
      return check_sample_rate();
    case MPV_EVENT_END_FILE:
      return handle_end_of_file(event);
    default:
      return;
  }
}

void MpvPlayer::handle_start(MpvEngine::Entry entry) {
  started_ = entry;
  if (!next_ || next_->entry != entry) return;
  sound_ = std::move(*next_);
  next_.reset();
  loading_ = Loading::pending;
  sought_.reset();
  engine_position_ = 0;
  report({Report::continued, {}, {}});
}

// The engine tries again at each song, and plays into nothing until a device is there.
void MpvPlayer::check_sound_device() {
  const std::string output = engine_.text("current-ao");
  if (is_stepped() || is_silent(options_) || output.empty()) return;
  if (output != silent_output) {
    has_device_ = true;
    return;
  }
  if (std::exchange(has_device_, false)) {
    has_complained_ = true;
    report({Report::lost_device, {}, {}});
  }
  if (std::exchange(has_complained_, true)) return;
  warn_user("no sound device can be opened: music plays without sound until there is one",
            "No sound device");
}

// Only files for speech have a lower rate than a CD. Music that follows one is worth the moment
// that opening the device again takes.
void MpvPlayer::check_sample_rate() {
  const double rate = engine_.number("audio-out-params/samplerate");
  if (is_stepped() || is_silent(options_) || rate <= 0 || rate >= lowest_rate_of_music) return;
  if (rate < engine_.number("audio-params/samplerate")) engine_.command({"ao-reload"});
}

void MpvPlayer::handle_end_of_file(const mpv_event& event) {
  const auto& end = *static_cast<const mpv_event_end_file*>(event.data);
  if (loading_ == Loading::nothing || end.playlist_entry_id != sound_.entry) return;
  if (end.reason == MPV_END_FILE_REASON_EOF) {
    if (next_) return;
    report({Report::ended, {}, {}});
  } else if (end.reason == MPV_END_FILE_REASON_ERROR) {
    report({Report::failed, sound_.path, mpv()->error_string(end.error)});
  } else {
    return;
  }
  sound_.mark.reset();
  loading_ = Loading::nothing;
}

void MpvPlayer::wait_until(const std::function<bool()>& is_done) {
  // The wait is measured with the engine's own timer. A file that does not open in this time, such
  // as one on a disconnected disk, keeps opening and stays silent until then.
  constexpr double slice_seconds = 0.05;
  for (double waited = 0; !is_done() && waited < longest_wait_seconds;) {
    const mpv_event& event = engine_.next_event(slice_seconds);
    if (event.event_id == MPV_EVENT_NONE) {
      waited += slice_seconds;
    } else {
      handle(event);
    }
  }
}

void MpvPlayer::follow_clock() {
  if (loading_ != Loading::loaded) return;
  const double length = duration();
  if (!is_paused_ && length > 0 && stepped_.at(now()) >= length) {
    // The clock runs on after the end, so the next song starts when it is loaded.
    loading_ = Loading::nothing;
    report({Report::ended, {}, {}});
    return;
  }
  const double position = this->position();
  if (std::abs(position - engine_position_) > unseen_drift_seconds) seek_engine(position);
}

void MpvPlayer::report(Report report) {
  reports_.push_back(std::move(report));
  signal_.raise();
}

void MpvPlayer::deliver() {
  // What the listener loads in between makes the rest obsolete, and may fail itself.
  const int loads = loads_;
  for (const Report& report : std::exchange(reports_, {})) {
    if (listener_ == nullptr || loads_ != loads) return;
    switch (report.what) {
      case Report::continued:
        listener_->player_did_continue();
        break;
      case Report::ended:
        listener_->player_did_reach_end();
        break;
      case Report::failed:
        listener_->player_did_fail(report.path, report.reason);
        break;
      case Report::lost_device:
        listener_->player_did_lose_device();
        break;
    }
  }
}

EngineState MpvPlayer::engine() {
  const bool has_to_follow = is_stepped() && loading_ == Loading::loaded;
  if (has_to_follow && engine_position_ != position()) seek_engine(position());
  EngineState state;
  state.path = engine_.text("path");
  state.is_paused = engine_.flag("pause");
  state.position_seconds = engine_.number("time-pos");
  state.volume_percent = engine_.number("volume");
  return state;
}

}  // namespace host::media
