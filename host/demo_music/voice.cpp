#include "host/demo_music/voice.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>
#include <utility>

namespace host::media {
namespace {

constexpr std::size_t table_size = 2048;
constexpr double lowest_pitch_hertz = 55;
constexpr float silence = 1e-4f;

using Table = std::array<float, table_size>;

Table table_for(const Timbre& timbre) {
  Table table{};
  float total = 0;
  for (const float strength : timbre.harmonics)
    total += strength;
  for (std::size_t i = 0; i < table_size; ++i) {
    const double turn = 2 * std::numbers::pi * static_cast<double>(i) / table_size;
    for (std::size_t h = 0; h < timbre.harmonics.size(); ++h) {
      table[i] += timbre.harmonics[h] / total *
                  static_cast<float>(std::sin(turn * static_cast<double>(h + 1)));
    }
  }
  return table;
}

// An exponential decay is made by repeated multiplication; this is the factor of one step.
float kept_per_sample(double time_constant, int rate) {
  if (time_constant <= 0) return 1;
  return static_cast<float>(std::exp(-1.0 / (time_constant * rate)));
}

}  // namespace

Tape::Tape(double seconds, int rate)
    : samples_(static_cast<std::size_t>(seconds * rate)), rate_(rate) {}

void Tape::play(const Timbre& timbre, const std::vector<Note>& notes) {
  const Table table = table_for(timbre);
  const float attack = static_cast<float>(1.0 / std::max(1.0, timbre.attack_seconds * rate_));
  const float decay = kept_per_sample(timbre.decay_seconds, rate_);
  const float release = kept_per_sample(timbre.release_seconds / 4, rate_);
  for (const Note& note : notes) {
    const double hertz = lowest_pitch_hertz * std::exp2(note.pitch / 12);
    const auto step = static_cast<std::uint32_t>(hertz / rate_ * 4294967296.0);
    const auto first = static_cast<std::size_t>(note.start * rate_);
    const auto held = static_cast<std::size_t>(note.length * rate_);
    std::uint32_t phase = 0;
    float rise = 0;
    float level = note.level;
    for (std::size_t i = 0; first + i < samples_.size(); ++i) {
      rise = std::min(1.0f, rise + attack);
      samples_[first + i] += table[phase >> 21] * rise * level;
      phase += step;
      level *= i < held ? decay : release;
      if (level < silence) break;
    }
  }
}

void Tape::strike(Drum drum, double start, float level) {
  const double fall = drum == Drum::kick ? 0.09 : drum == Drum::snare ? 0.06 : 0.02;
  const float kept = kept_per_sample(fall, rate_);
  double phase = 0;
  double hertz = drum == Drum::kick ? 150 : 190;
  float previous = 0;
  for (auto i = static_cast<std::size_t>(start * rate_); i < samples_.size() && level > silence;
       ++i, level *= kept) {
    noise_ = noise_ * 1664525u + 1013904223u;
    const float hiss = static_cast<float>(static_cast<std::int32_t>(noise_)) / 2147483648.0f;
    const float tone = static_cast<float>(std::sin(phase));
    phase += 2 * std::numbers::pi * hertz / rate_;
    if (drum == Drum::kick) hertz = 45 + (hertz - 45) * 0.9985;
    // The difference of neighbouring samples keeps the high part of the noise, as a cymbal has it.
    const float bright = (hiss - previous) * 0.5f;
    previous = hiss;
    const float sound = drum == Drum::kick    ? tone
                        : drum == Drum::snare ? 0.4f * tone + 0.6f * hiss
                                              : bright;
    samples_[i] += sound * level;
  }
}

void Tape::add_echo(double seconds, float level) {
  const auto distance = static_cast<std::size_t>(seconds * rate_);
  for (std::size_t i = distance; i < samples_.size(); ++i) {
    samples_[i] += samples_[i - distance] * level;
  }
}

std::vector<float> Tape::finish(float peak, double fade_seconds) {
  float loudest = silence;
  for (const float sample : samples_)
    loudest = std::max(loudest, std::abs(sample));
  const auto fade = std::min(samples_.size(), static_cast<std::size_t>(fade_seconds * rate_));
  const float scale = peak / loudest;
  for (std::size_t i = 0; i < samples_.size(); ++i) {
    const std::size_t left = samples_.size() - i;
    const float fading = left >= fade ? 1.0f : static_cast<float>(left) / static_cast<float>(fade);
    samples_[i] *= scale * fading;
  }
  return std::move(samples_);
}

}  // namespace host::media
