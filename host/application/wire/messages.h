#pragma once

#include <cstdint>
#include <string>
#include <variant>

// The messages between the home screen and an application. Every message lists its fields once, for
// encoding and decoding.
namespace host::application {

/// The first message of a connection; the surface's memory comes with it.
struct Hello {
  bool is_stepped = false;
  double now = 0;  ///< On the home screen's clock, like all times.
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

/// Whether the application is in front of the user.
struct Visibility {
  bool is_in_front = false;
  template <class Fields>
  void list(Fields& fields) {
    fields(is_in_front);
  }
};

/// On a stepped clock: advance to this time, then reply `ReachedTime`.
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

/// The last frame is on the screen: the previous buffer belongs to the application again.
struct FrameTaken {
  template <class Fields>
  void list(Fields&) {}
};

/// The state of the phone's player, for applications that control it.
struct PlaybackIs {
  std::uint64_t song = 0;  ///< 0 for none.
  bool is_playing = false;
  double elapsed = 0;
  double duration = 0;
  double volume = 0;
  std::uint64_t library = 0;  ///< Changes when the songs of the phone have changed.
  template <class Fields>
  void list(Fields& fields) {
    fields(song, is_playing, elapsed, duration, volume, library);
  }
};

/// The desktop's wheel turns over a point of the application's screen: by points if it is precise,
/// else by notches.
struct WheelTurn {
  bool is_precise = false;
  double x = 0;
  double y = 0;
  double across = 0;
  double down = 0;
  double time = 0;
  template <class Fields>
  void list(Fields& fields) {
    fields(is_precise, x, y, across, down, time);
  }
};

/// The size of the screen in pixels: at most that of the surface, of which frames then fill the top
/// left.
struct ScreenPixels {
  std::int32_t width = 0;
  std::int32_t height = 0;
  template <class Fields>
  void list(Fields& fields) {
    fields(width, height);
  }
};

/// The user has turned to the mouse, or to something over the application: the keyboard's focus
/// ends.
struct FocusEnds {
  template <class Fields>
  void list(Fields&) {}
};

struct NewFrame {
  std::uint8_t buffer = 0;
  // The size of the whole picture in pixels.
  std::int32_t picture_width = 0;
  std::int32_t picture_height = 0;
  // The damage since the previous frame, in pixels.
  std::int32_t x = 0;
  std::int32_t y = 0;
  std::int32_t width = 0;
  std::int32_t height = 0;
  template <class Fields>
  void list(Fields& fields) {
    fields(buffer, picture_width, picture_height, x, y, width, height);
  }
};

struct ReachedTime {
  double time = 0;
  /// Without further messages, the application has nothing to do before this time.
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

/// The application exits normally.
struct Closing {
  template <class Fields>
  void list(Fields&) {}
};

enum class PlayerCommand : std::uint8_t {
  PlaySong,  ///< `song`, in a queue of the whole library.
  Toggle,
  Next,
  Previous,
  Seek,         ///< To `value` seconds.
  SetVolume,    ///< To `value`, 0 to 1.
  ReadChoices,  ///< The user has changed the settings of music.
  Last = ReadChoices,
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

/// Where the application's text field that has the keyboard is typing, in points of its screen.
struct TextInputIs {
  bool takes_text = false;
  double x = 0;
  double y = 0;
  double width = 0;
  double height = 0;
  template <class Fields>
  void list(Fields& fields) {
    fields(takes_text, x, y, width, height);
  }
};

/// The user must be told of a failure, in these words.
struct UserWarning {
  std::string few_words;
  template <class Fields>
  void list(Fields& fields) {
    fields(few_words);
  }
};

// A message's kind on the wire is its index in these lists.
using ToApplication =
    std::variant<Hello, FingerChange, TypedText, ComposedText, PressedKey, Visibility, TimeIs,
                 ConsoleLine, Ping, FrameTaken, PlaybackIs, WheelTurn, ScreenPixels, FocusEnds>;
using ToHome = std::variant<NewFrame, ReachedTime, ConsoleAnswer, Pong, Closing, SteerPlayer,
                            TextInputIs, UserWarning>;

}  // namespace host::application
