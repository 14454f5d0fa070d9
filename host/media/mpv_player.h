#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "host/media/event_signal.h"
#include "host/media/player.h"
#include "host/media/reading_marks.h"
#include "host/media/stepped_position.h"

struct mpv_handle;
struct mpv_event;

namespace host::media {

enum class PlayerPace {
  real,     // The sound device sets the pace.
  stepped,  // The given clock sets it; pump after each step.
};

struct MpvOptions {
  // "null" plays in real time without a sound device; if empty, the engine chooses one.
  std::string audio_output;
  PlayerPace pace = PlayerPace::real;
  // The time in seconds; only called when stepped.
  std::function<double()> clock;
};

// Plays through libmpv, sound only.
//
// On a stepped clock the engine still opens, decodes and plays, but its null device runs at
// speed 0. The engine is therefore not paused, its `path` and `pause` stay truthful, and its
// `time-pos` changes only on a seek, which is exact and takes about a millisecond. Each pump seeks
// to the song's position on the clock. Pausing the engine instead would make `pause` wrong, and
// untimed playback cannot be stopped at a given moment.
class MpvPlayer final : public Player {
 public:
  // Null when the engine cannot be created; the log says why.
  static std::unique_ptr<MpvPlayer> create(MpvOptions options);
  ~MpvPlayer() override;

  void set_listener(PlayerListener* listener) override { listener_ = listener; }
  void load(const std::string& path) override;
  void play() override;
  void pause() override;
  void stop() override;
  void seek(double seconds) override;
  void set_volume(double volume) override;
  double volume() const override { return volume_; }
  double position() const override;
  double duration() const override;
  bool is_paused() const override { return is_paused_; }
  int descriptor() const override { return signal_.descriptor(); }
  void pump() override;
  EngineState engine() override;

 private:
  enum class Loading { nothing, pending, loaded };
  struct Failure {
    std::string path;
    std::string reason;
  };
  struct Destroy {
    void operator()(mpv_handle* engine) const;
  };

  explicit MpvPlayer(MpvOptions options);

  bool prepare();
  bool is_stepped() const { return options_.pace == PlayerPace::stepped; }
  double now() const { return options_.clock(); }
  void set_paused(bool paused);
  void drain();
  void handle(const mpv_event& event);
  void check_sound_device();
  void refuse(std::string reason);
  void handle_end_of_file(const mpv_event& event);
  void wait_until(const std::function<bool()>& is_done);
  void follow_clock();
  void seek_engine(double seconds);
  void deliver();

  MpvOptions options_;
  EventSignal signal_;
  std::unique_ptr<mpv_handle, Destroy> engine_;
  PlayerListener* listener_ = nullptr;

  std::string path_;
  std::optional<ReadingMark> mark_;  // From loading until the first sound.
  Loading loading_ = Loading::nothing;
  // The engine's identifiers of this file and of the one it last started, to distinguish late
  // events of an earlier file from events of this one.
  std::int64_t entry_ = 0;
  std::int64_t started_entry_ = 0;
  bool is_paused_ = true;
  double volume_ = 1;
  SteppedPosition stepped_;
  std::optional<double> sought_;  // The target of a seek that has not finished.
  double engine_position_ = 0;    // The target of the last seek.

  bool has_complained_ = false;
  bool has_ended_ = false;
  std::vector<Failure> failures_;
};

}  // namespace host::media
