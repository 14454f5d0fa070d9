#pragma once

#include <cstdint>
#include <string>
#include <variant>

// What the home screen and an application tell each other. Every message lists its fields once, for
// both directions of the wire.
namespace host::application {

/// The first message of a connection; the surface's memory comes with it.
struct Hello {
  bool is_stepped = false;
  double now = 0;  ///< Of the home screen's clock, which all times are of.
  std::int32_t width = 0;
  std::int32_t height = 0;
  std::int32_t stride = 0;  ///< In bytes; the second buffer follows the first.
  template <class Fields>
  void list(Fields& fields) {
    fields(is_stepped, now, width, height, stride);
  }
};

enum class FingerPhase : std::uint8_t { Began, Moved, Ended, Cancelled, Last = Cancelled };

struct FingerChange {
  std::int32_t finger = 0;
  FingerPhase phase = FingerPhase::Began;
  double x = 0;  ///< In points of the application's screen.
  double y = 0;
  double time = 0;
  template <class Fields>
  void list(Fields& fields) {
    fields(finger, phase, x, y, time);
  }
};

struct TypedText {
  std::string text;
  template <class Fields>
  void list(Fields& fields) {
    fields(text);
  }
};

struct ComposedText {
  std::string text;
  std::int32_t caret = 0;  ///< Code points from the text's start.
  template <class Fields>
  void list(Fields& fields) {
    fields(text, caret);
  }
};

struct PressedKey {
  std::string name;
  template <class Fields>
  void list(Fields& fields) {
    fields(name);
  }
};

/// Is the application what the user sees?
struct Visibility {
  bool is_in_front = false;
  template <class Fields>
  void list(Fields& fields) {
    fields(is_in_front);
  }
};

/// On a stepped clock: bring everything up to this time, then say `ReachedTime`.
struct TimeIs {
  double time = 0;
  template <class Fields>
  void list(Fields& fields) {
    fields(time);
  }
};

struct ConsoleLine {
  std::string text;
  template <class Fields>
  void list(Fields& fields) {
    fields(text);
  }
};

struct Ping {
  std::uint64_t number = 0;
  template <class Fields>
  void list(Fields& fields) {
    fields(number);
  }
};

/// The last frame is on the screen: the buffer before it is the application's again.
struct FrameTaken {
  template <class Fields>
  void list(Fields&) {}
};

/// What the phone's player does, for applications that steer it.
struct PlaybackIs {
  std::uint64_t song = 0;  ///< 0 for none.
  bool is_playing = false;
  double elapsed = 0;
  double duration = 0;
  double volume = 0;
  template <class Fields>
  void list(Fields& fields) {
    fields(song, is_playing, elapsed, duration, volume);
  }
};

struct NewFrame {
  std::uint8_t buffer = 0;
  // What differs from the frame before, in pixels.
  std::int32_t x = 0;
  std::int32_t y = 0;
  std::int32_t width = 0;
  std::int32_t height = 0;
  template <class Fields>
  void list(Fields& fields) {
    fields(buffer, x, y, width, height);
  }
};

struct ReachedTime {
  double time = 0;
  /// Without anything happening to the application, nothing happens in it before this.
  double next_due = 0;
  template <class Fields>
  void list(Fields& fields) {
    fields(time, next_due);
  }
};

struct ConsoleAnswer {
  std::string line;
  template <class Fields>
  void list(Fields& fields) {
    fields(line);
  }
};

struct Pong {
  std::uint64_t number = 0;
  template <class Fields>
  void list(Fields& fields) {
    fields(number);
  }
};

/// The application ends in good order.
struct Closing {
  template <class Fields>
  void list(Fields&) {}
};

enum class PlayerCommand : std::uint8_t {
  PlaySong,  ///< `song`, in a queue of the whole library.
  Toggle,
  Next,
  Previous,
  Seek,       ///< To `value` seconds.
  SetVolume,  ///< To `value`, 0 to 1.
  Last = SetVolume,
};

struct SteerPlayer {
  PlayerCommand command = PlayerCommand::Toggle;
  std::uint64_t song = 0;
  double value = 0;
  template <class Fields>
  void list(Fields& fields) {
    fields(command, song, value);
  }
};

// A message's kind on the wire is its place in these lists.
using ToApplication = std::variant<Hello, FingerChange, TypedText, ComposedText, PressedKey,
                                   Visibility, TimeIs, ConsoleLine, Ping, FrameTaken, PlaybackIs>;
using ToHome = std::variant<NewFrame, ReachedTime, ConsoleAnswer, Pong, Closing, SteerPlayer>;

}  // namespace host::application
