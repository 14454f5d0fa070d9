#include "host/media/mpv_player.h"

#include <fmt/core.h>
#include <mpv/client.h>

#include <algorithm>
#include <clocale>
#include <cmath>
#include <span>
#include <utility>

#include "host/media/log.h"
#include "host/media/plain_file.h"
#include "host/media/sound_libraries.h"

namespace host::media {
namespace {

constexpr double longest_wait_seconds = 5;
constexpr std::string_view silent_output = "null";
constexpr double loudest_percent = 100;
// Within this distance the engine is not moved: no display shows a smaller difference.
constexpr double unseen_drift_seconds = 0.05;

struct Option {
  const char* name;
  const char* value;
};

constexpr Option engine_options[] = {
    {"config", "no"},
    {"load-scripts", "no"},
    {"ytdl", "no"},
    {"autoload-files", "no"},
    {"access-references", "no"},
    {"idle", "yes"},
    {"vid", "no"},
    {"sid", "no"},
    {"audio-display", "no"},
    {"audio-fallback-to-null", "yes"},
    {"pause", "yes"},
    {"cache", "no"},
};

// Scripts for the engine's own window, each a thread with an interpreter. An engine that is built
// without the interpreter does not know these options.
constexpr const char* own_scripts[] = {"osc", "load-stats-overlay", "load-osd-console",
                                       "load-auto-profiles"};

// An audio device with a buffer of one sample that never accepts another: the engine's position is
// then exactly the last seek target, playing or paused. The clock decides when a song is over; on
// its own, the engine would unload a file as soon as it had decoded the end.
constexpr Option stepped_options[] = {
    {"ao", "null"},
    {"ao-null-speed", "0"},
    {"ao-null-buffer", "0"},
    {"ao-null-outburst", "1"},
    {"audio-buffer", "0"},
    {"keep-open", "yes"},
    {"keep-open-pause", "no"},
};

double number(mpv_handle* engine, const char* name) {
  double value = 0;
  mpv_get_property(engine, name, MPV_FORMAT_DOUBLE, &value);
  return std::isfinite(value) ? value : 0;
}

std::string text(mpv_handle* engine, const char* name) {
  char* value = mpv_get_property_string(engine, name);
  std::string copy = value == nullptr ? std::string{} : std::string{value};
  mpv_free(value);
  return copy;
}

}  // namespace

void MpvPlayer::Destroy::operator()(mpv_handle* engine) const {
  mpv_terminate_destroy(engine);
}

std::unique_ptr<MpvPlayer> MpvPlayer::create(MpvOptions options) {
  std::unique_ptr<MpvPlayer> player{new MpvPlayer{std::move(options)}};
  if (player->prepare()) return player;
  log_warning("the playback engine cannot be started");
  return nullptr;
}

MpvPlayer::MpvPlayer(MpvOptions options) : options_(std::move(options)) {
  quiet_sound_libraries();
  // The engine cannot be created while the locale writes numbers with a decimal comma.
  std::setlocale(LC_NUMERIC, "C");
  engine_.reset(mpv_create());
}

MpvPlayer::~MpvPlayer() {
  if (engine_) mpv_set_wakeup_callback(engine_.get(), nullptr, nullptr);
}

bool MpvPlayer::prepare() {
  if (!engine_) return false;
  auto set_options = [this](std::span<const Option> options) {
    return std::ranges::all_of(options, [this](const Option& option) {
      return mpv_set_option_string(engine_.get(), option.name, option.value) >= 0;
    });
  };
  for (const char* script : own_scripts) {
    mpv_set_option_string(engine_.get(), script, "no");
  }
  const Option output{"ao", options_.audio_output.c_str()};
  if (!set_options(engine_options)) return false;
  if (is_stepped() ? !set_options(stepped_options) : !set_options({&output, 1})) return false;
  mpv_set_wakeup_callback(
      engine_.get(), [](void* signal) { static_cast<EventSignal*>(signal)->raise(); }, &signal_);
  return mpv_initialize(engine_.get()) >= 0;
}

void MpvPlayer::load(const std::string& path) {
  path_ = path;
  loading_ = Loading::pending;
  entry_ = 0;
  has_ended_ = false;
  sought_.reset();
  engine_position_ = 0;
  if (auto reason = reason_not_to_open(path); !reason.empty()) return refuse(std::move(reason));
  mark_.emplace(Reading::sound, path);
  if (!mark_->may_read()) return refuse("has ended the phone before");
  const char* command[] = {"loadfile", path.c_str(), "replace", nullptr};
  mpv_node answer{};
  if (mpv_command_ret(engine_.get(), command, &answer) < 0) {
    return refuse("was refused by the playback engine");
  }
  for (int i = 0; answer.format == MPV_FORMAT_NODE_MAP && i < answer.u.list->num; ++i) {
    if (std::string_view{answer.u.list->keys[i]} == "playlist_entry_id") {
      entry_ = answer.u.list->values[i].u.int64;
    }
  }
  mpv_free_node_contents(&answer);
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
  const char* command[] = {"stop", nullptr};
  mpv_command(engine_.get(), command);
  mark_.reset();
  loading_ = Loading::nothing;
  failures_.push_back({path_, std::move(reason)});
  signal_.raise();
}

void MpvPlayer::play() {
  set_paused(false);
}

void MpvPlayer::pause() {
  set_paused(true);
}

void MpvPlayer::set_paused(bool paused) {
  is_paused_ = paused;
  int flag = paused;
  mpv_set_property(engine_.get(), "pause", MPV_FORMAT_FLAG, &flag);
  if (!is_stepped()) return;
  if (paused) {
    stepped_.halt(now());
  } else {
    stepped_.start(now());
  }
}

void MpvPlayer::stop() {
  pause();
  path_.clear();
  loading_ = Loading::nothing;
  has_ended_ = false;
  sought_.reset();
  if (is_stepped()) stepped_.jump(0, now());
  const char* command[] = {"stop", nullptr};
  mpv_command(engine_.get(), command);
  if (is_stepped()) wait_until([this] { return text(engine_.get(), "path").empty(); });
  mark_.reset();
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
  const char* command[] = {"seek", target.c_str(), "absolute+exact", nullptr};
  if (mpv_command(engine_.get(), command) < 0) sought_.reset();
  if (is_stepped()) wait_until([this] { return !sought_; });
}

void MpvPlayer::set_volume(double volume) {
  if (!std::isfinite(volume)) return;
  volume_ = std::clamp(volume, 0.0, 1.0);
  double percent = volume_ * loudest_percent;
  mpv_set_property(engine_.get(), "volume", MPV_FORMAT_DOUBLE, &percent);
}

double MpvPlayer::position() const {
  if (loading_ == Loading::nothing) return 0;
  if (!is_stepped()) return sought_ ? *sought_ : number(engine_.get(), "time-pos");
  const double length = duration();
  const double position = stepped_.at(now());
  return length > 0 ? std::min(position, length) : position;
}

double MpvPlayer::duration() const {
  return loading_ == Loading::loaded ? number(engine_.get(), "duration") : 0;
}

void MpvPlayer::pump() {
  signal_.clear();
  drain();
  if (is_stepped()) follow_clock();
  deliver();
}

void MpvPlayer::drain() {
  for (;;) {
    const mpv_event* event = mpv_wait_event(engine_.get(), 0);
    if (event->event_id == MPV_EVENT_NONE) return;
    handle(*event);
  }
}

void MpvPlayer::handle(const mpv_event& event) {
  switch (event.event_id) {
    case MPV_EVENT_START_FILE:
      started_entry_ = static_cast<const mpv_event_start_file*>(event.data)->playlist_entry_id;
      return;
    case MPV_EVENT_FILE_LOADED:
      if (loading_ != Loading::pending || started_entry_ != entry_) return;
      loading_ = Loading::loaded;
      if (sought_) seek_engine(*sought_);
      return;
    case MPV_EVENT_PLAYBACK_RESTART:
      sought_.reset();
      if (started_entry_ == entry_) mark_.reset();
      return;
    case MPV_EVENT_AUDIO_RECONFIG:
      return check_sound_device();
    case MPV_EVENT_END_FILE:
      return handle_end_of_file(event);
    default:
      return;
  }
}

// The engine tries again at each song, and plays into nothing until a device is there.
void MpvPlayer::check_sound_device() {
  const bool wants_sound = !is_stepped() && options_.audio_output != silent_output;
  if (!wants_sound || has_complained_ || text(engine_.get(), "current-ao") != silent_output) return;
  has_complained_ = true;
  log_warning("no sound device can be opened: music plays without sound until there is one");
}

void MpvPlayer::handle_end_of_file(const mpv_event& event) {
  const auto& end = *static_cast<const mpv_event_end_file*>(event.data);
  if (loading_ == Loading::nothing || end.playlist_entry_id != entry_) return;
  if (end.reason == MPV_END_FILE_REASON_EOF) {
    has_ended_ = true;
  } else if (end.reason == MPV_END_FILE_REASON_ERROR) {
    failures_.push_back({path_, mpv_error_string(end.error)});
  } else {
    return;
  }
  mark_.reset();
  loading_ = Loading::nothing;
  signal_.raise();
}

void MpvPlayer::wait_until(const std::function<bool()>& is_done) {
  // The wait is measured with the engine's own timer. A file that does not open in this time, such
  // as one on a disconnected disk, keeps opening and stays silent until then.
  constexpr double slice_seconds = 0.05;
  for (double waited = 0; !is_done() && waited < longest_wait_seconds;) {
    const mpv_event* event = mpv_wait_event(engine_.get(), slice_seconds);
    if (event->event_id == MPV_EVENT_NONE) {
      waited += slice_seconds;
    } else {
      handle(*event);
    }
  }
}

void MpvPlayer::follow_clock() {
  if (loading_ != Loading::loaded) return;
  const double length = duration();
  if (!is_paused_ && length > 0 && stepped_.at(now()) >= length) {
    // The clock runs on after the end, so the next song starts when it is loaded.
    loading_ = Loading::nothing;
    has_ended_ = true;
    return;
  }
  const double position = this->position();
  if (std::abs(position - engine_position_) > unseen_drift_seconds) seek_engine(position);
}

void MpvPlayer::deliver() {
  const auto failures = std::exchange(failures_, {});
  const bool has_ended = std::exchange(has_ended_, false);
  if (listener_ == nullptr) return;
  for (const Failure& failure : failures)
    listener_->player_did_fail(failure.path, failure.reason);
  if (has_ended) listener_->player_did_reach_end();
}

EngineState MpvPlayer::engine() {
  const bool has_to_follow = is_stepped() && loading_ == Loading::loaded;
  if (has_to_follow && engine_position_ != position()) seek_engine(position());
  EngineState state;
  state.path = text(engine_.get(), "path");
  int paused = 0;
  mpv_get_property(engine_.get(), "pause", MPV_FORMAT_FLAG, &paused);
  state.is_paused = paused != 0;
  state.position_seconds = number(engine_.get(), "time-pos");
  state.volume_percent = number(engine_.get(), "volume");
  return state;
}

}  // namespace host::media
