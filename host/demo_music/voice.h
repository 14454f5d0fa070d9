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

// What a voice sounds like.
struct Timbre {
  std::vector<float> harmonics;  // Strength of each harmonic, the fundamental first.
  double attack_seconds;
  double decay_seconds;  // Time constant of the fall while the note is held; 0 holds the level.
  double release_seconds;
};

enum class Drum { kick, snare, hat };

// A strip of tape that voices play onto.
class Tape {
 public:
  Tape(double seconds, int rate);

  void play(const Timbre& timbre, const std::vector<Note>& notes);
  void strike(Drum drum, double start, float level);
  // Repeats everything `seconds` later, weaker by `level`, again and again.
  void add_echo(double seconds, float level);
  // Brings the loudest sample to `peak` and fades the last seconds out.
  std::vector<float> finish(float peak, double fade_seconds);

 private:
  std::vector<float> samples_;
  int rate_;
  std::uint32_t noise_ = 1;
};

}  // namespace host::media
