#pragma once

#include <cstdint>
#include <vector>

namespace host::media {

// One note of a wavetable voice. Times are in seconds, the level from 0 to 1.
struct Note {
  double start;
  double length;
  double pitch;  // Semitones above A at 55 Hz.
  float level;
};

// The sound of a voice.
struct Timbre {
  std::vector<float> harmonics;  // Strength of each harmonic, the fundamental first.
  double attack_seconds;
  double decay_seconds;  // Time constant of the decay while the note is held; 0 holds the level.
  double release_seconds;
};

enum class Drum { kick, snare, hat };

// A buffer into which voices are mixed.
class Tape {
 public:
  Tape(double seconds, int rate);

  void play(const Timbre& timbre, const std::vector<Note>& notes);
  void strike(Drum drum, double start, float level);
  // Adds an echo after `seconds`, scaled by `level`, and the echoes of that echo.
  void add_echo(double seconds, float level);
  // Scales the loudest sample to `peak` and fades out the last `fade_seconds`.
  std::vector<float> finish(float peak, double fade_seconds);

 private:
  std::vector<float> samples_;
  int rate_;
  std::uint32_t noise_ = 1;
};

}  // namespace host::media
