#pragma once

#include <atomic>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <thread>
#include <utility>
#include <vector>

#include "host/basics/event_signal.h"
#include "host/media/mpv_engine.h"
#include "host/media/player.h"
#include "host/media/reading_marks.h"
#include "host/media/stepped_position.h"

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
//
// In real time a file that follows another is in the engine's list, which joins the two. On a
// stepped clock the clock says when a file is over, so nothing follows by itself.
class MpvPlayer final : public Player {
 public:
  explicit MpvPlayer(MpvOptions options);

  void set_listener(PlayerListener* listener) override { listener_ = listener; }
  void load(const std::string& path) override;
  void follow_with(const std::string& path) override;
  void play() override;
  void pause() override;
  void stop() override;
  void seek(double seconds) override;
  void set_volume(double volume) override;
  void set_replay_gain(ReplayGain gain) override;
  double volume() const override { return volume_; }
  double position() const override;
  double duration() const override;
  bool is_paused() const override { return is_paused_; }
  int descriptor() const override { return signal_.descriptor(); }
  void pump() override;
  EngineState engine() override;

 private:
  enum class Loading { nothing, pending, loaded };
  // What the listener has not yet been told.
  struct Report {
    enum What { continued, ended, failed, lost_device } what;
    std::string path;
    std::string reason;
  };
  // A file that the engine has been given.
  struct Sound {
    std::string path;
    // Distinguishes late events of an earlier file from events of this one.
    MpvEngine::Entry entry = 0;
    std::unique_ptr<ReadingMark> mark;  // Until it is first heard.
  };

  bool is_stepped() const { return options_.pace == PlayerPace::stepped; }
  double now() const { return options_.clock(); }
  void open();
  bool has_library();
  void set_paused(bool paused);
  void drain();
  void handle(const mpv_event& event);
  void handle_start(MpvEngine::Entry entry);
  void handle_end_of_file(const mpv_event& event);
  void check_sound_device();
  void check_sample_rate();
  void refuse(std::string reason);
  void wait_until(const std::function<bool()>& is_done);
  void follow_clock();
  void seek_engine(double seconds);
  void report(Report report);
  void deliver();

  MpvOptions options_;
  EventSignal signal_;
  MpvEngine engine_;
  PlayerListener* listener_ = nullptr;

  Sound sound_;  // What is loaded.
  Loading loading_ = Loading::nothing;
  std::optional<Sound> next_;     // Without an entry until the engine is started.
  MpvEngine::Entry started_ = 0;  // What the engine last began to open.
  bool is_paused_ = true;
  double volume_ = 1;
  SteppedPosition stepped_;
  std::optional<double> sought_;  // The target of a seek that has not finished.
  double engine_position_ = 0;    // The target of the last seek.

  bool has_device_ = false;
  bool has_complained_ = false;
  int loads_ = 0;
  std::vector<Report> reports_;
  std::atomic<bool> has_library_ = false;
  std::jthread library_loader_;  // Last, so it ends before the members that it uses are destroyed.
};

}  // namespace host::media
