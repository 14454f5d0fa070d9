#include "host/demo_music/piece.h"

#include <array>

#include "host/demo_music/voice.h"

namespace host::media {
namespace {

enum class Drums { none, soft, driving };

struct Style {
  double slowest_bpm;
  double fastest_bpm;
  bool is_minor;
  int steps_per_beat;  // Notes of the arpeggio.
  Drums drums;
  Timbre pad;
  Timbre lead;
  float echo;
};

const Timbre soft_pad{{1, 0.4f, 0.2f, 0.08f}, 0.5, 0, 0.9};
const Timbre organ_pad{{1, 0.7f, 0.1f, 0.5f, 0, 0.2f}, 0.15, 0, 0.4};
const Timbre pluck{{1, 0.5f, 0.35f, 0.2f, 0.12f, 0.08f}, 0.004, 0.35, 0.25};
const Timbre bell{{1, 0, 0.3f, 0, 0, 0.25f, 0, 0, 0.1f}, 0.002, 0.8, 0.6};
const Timbre reed{{1, 0, 0.33f, 0, 0.2f, 0, 0.14f, 0, 0.1f}, 0.02, 0.6, 0.1};
const Timbre bass{{1, 0.5f, 0.15f}, 0.01, 0.9, 0.1};

Style style_of(DemoMood mood) {
  switch (mood) {
    case DemoMood::glassy:
      return {66, 80, false, 2, Drums::none, soft_pad, bell, 0.45f};
    case DemoMood::nocturnal:
      return {58, 72, true, 2, Drums::soft, soft_pad, bell, 0.5f};
    case DemoMood::playful:
      return {112, 132, false, 4, Drums::driving, organ_pad, pluck, 0.2f};
    case DemoMood::slow:
      return {62, 74, true, 2, Drums::none, soft_pad, pluck, 0.35f};
    case DemoMood::bright:
      return {104, 120, false, 4, Drums::driving, soft_pad, pluck, 0.25f};
    case DemoMood::warm:
      return {84, 98, false, 2, Drums::soft, organ_pad, pluck, 0.3f};
    case DemoMood::electric:
      return {118, 136, true, 4, Drums::driving, soft_pad, reed, 0.4f};
    case DemoMood::plain:
      break;
  }
  return {76, 90, true, 2, Drums::none, organ_pad, pluck, 0.25f};
}

class Dice {
 public:
  explicit Dice(std::uint32_t seed) : state_(seed * 2654435761u + 12345u) {}

  int roll(int sides) {
    state_ = state_ * 1664525u + 1013904223u;
    return static_cast<int>((state_ >> 16) % static_cast<std::uint32_t>(sides));
  }
  double between(double low, double high) { return low + (high - low) * roll(1001) / 1000; }

 private:
  std::uint32_t state_;
};

constexpr int beats_per_bar = 4;
constexpr double shortest_seconds = 32;
constexpr double tail_seconds = 2.5;
constexpr int octave = 12;

// Roots of four chords as degrees of the scale; each progression resolves when it repeats.
constexpr std::array<std::array<int, 4>, 6> progressions = {
    {{0, 5, 3, 4}, {0, 3, 4, 3}, {5, 3, 0, 4}, {0, 4, 5, 3}, {0, 2, 3, 4}, {3, 0, 4, 5}}};

class Piece {
 public:
  Piece(DemoMood mood, std::uint32_t seed)
      : style_(style_of(mood)),
        dice_(seed),
        key_(dice_.roll(octave)),
        beat_(60 / dice_.between(style_.slowest_bpm, style_.fastest_bpm)),
        chords_(progressions[static_cast<std::size_t>(dice_.roll(progressions.size()))]),
        // Whole rounds of the four chords, to end every piece together with its harmony.
        rounds_(1 + static_cast<int>(shortest_seconds / (4 * beats_per_bar * beat_))),
        tape_(length() + tail_seconds, demo_sample_rate) {}

  std::vector<float> play() {
    tape_.play(style_.lead, lead());
    tape_.add_echo(beat_ * 0.75, style_.echo);
    tape_.play(style_.pad, pads());
    tape_.play(bass, bass_line());
    play_drums();
    return tape_.finish(0.8f, tail_seconds);
  }

 private:
  int bars() const { return rounds_ * 4; }
  double length() const { return bars() * bar(); }
  double bar() const { return beats_per_bar * beat_; }
  int root(int bar_number) const { return chords_[static_cast<std::size_t>(bar_number % 4)]; }

  double pitch(int degree) const {
    constexpr std::array major = {0, 2, 4, 5, 7, 9, 11};
    constexpr std::array minor = {0, 2, 3, 5, 7, 8, 10};
    const auto& scale = style_.is_minor ? minor : major;
    return key_ + octave * (degree / 7) + scale[static_cast<std::size_t>(degree % 7)];
  }

  std::vector<Note> pads() const {
    std::vector<Note> notes;
    for (int number = 0; number < bars(); ++number) {
      for (const int third : {0, 2, 4}) {
        notes.push_back(
            {number * bar(), bar() * 0.95, pitch(root(number) + third) + octave, 0.14f});
      }
    }
    return notes;
  }

  std::vector<Note> bass_line() {
    std::vector<Note> notes;
    const bool walks = dice_.roll(2) == 1;
    for (int number = 1; number < bars(); ++number) {
      const double low = pitch(root(number));
      notes.push_back({number * bar(), beat_ * 1.6, low, 0.4f});
      notes.push_back({number * bar() + 2 * beat_, beat_ * 1.2, low + (walks ? 7 : 0), 0.34f});
    }
    return notes;
  }

  // A pattern of chord tones, different in each song, with occasional rests.
  std::vector<Note> lead() {
    std::array<int, 16> pattern{};
    for (int& tone : pattern)
      tone = dice_.roll(5) == 0 ? -1 : 2 * dice_.roll(4);
    const double step = beat_ / style_.steps_per_beat;
    const int steps_per_bar = beats_per_bar * style_.steps_per_beat;
    std::vector<Note> notes;
    for (int number = 0; number < bars(); ++number) {
      for (int i = 0; i < steps_per_bar; ++i) {
        const int tone = pattern[static_cast<std::size_t>(i + number % 2 * 5) % pattern.size()];
        if (tone < 0) continue;
        const float level = i % style_.steps_per_beat == 0 ? 0.3f : 0.2f;
        notes.push_back({number * bar() + i * step, step * 0.9,
                         pitch(root(number) + tone) + 2 * octave, level});
      }
    }
    return notes;
  }

  void play_drums() {
    if (style_.drums == Drums::none) return;
    const bool is_driving = style_.drums == Drums::driving;
    // The first round has no drums.
    for (int beat = 4 * beats_per_bar; beat < bars() * beats_per_bar; ++beat) {
      const double start = beat * beat_;
      if (is_driving || beat % 2 == 0) tape_.strike(Drum::kick, start, 0.5f);
      if (is_driving && beat % 2 == 1) tape_.strike(Drum::snare, start, 0.22f);
      tape_.strike(Drum::hat, start + beat_ / 2, 0.18f);
    }
  }

  Style style_;
  Dice dice_;
  int key_;
  double beat_;
  std::array<int, 4> chords_;
  int rounds_;
  Tape tape_;
};

}  // namespace

std::vector<float> play_piece(DemoMood mood, std::uint32_t seed) {
  return Piece{mood, seed}.play();
}

}  // namespace host::media
