#pragma once

#include <cstdint>
#include <string>
#include <variant>

#include "platform/CoreGraphics/CGGeometry.h"

// The messages between the phone and its page; `host/browser/page/wire.js` is the other end. Points
// are those of the phone's body, from its top left, unless they say otherwise.
namespace host::browser {

/// The first message of a page: a token or a secret (`host/browser/access`).
struct Present {
  std::string key;
  template <class Fields>
  void list(Fields& fields) {
    fields(key);
  }
};

/// How large the phone is on the page, in the display's pixels, and whether the page is in sight.
struct Shape {
  double pixels_per_point = 1;
  bool is_visible = true;
  template <class Fields>
  void list(Fields& fields) {
    fields(pixels_per_point, is_visible);
  }
};

enum class PointerPhase : std::uint8_t { Down, Moved, Up, Last = Up };

struct PointerChange {
  std::int32_t finger = 0;
  PointerPhase phase = PointerPhase::Down;
  std::int32_t clicks = 1;  ///< Quick ones at the same place.
  double x = 0;
  double y = 0;
  template <class Fields>
  void list(Fields& fields) {
    fields(finger, phase, clicks, x, y);
  }
};

struct OtherButton {
  double x = 0;
  double y = 0;
  template <class Fields>
  void list(Fields& fields) {
    fields(x, y);
  }
};

/// By points if it is precise, else by notches.
struct Wheel {
  bool is_precise = false;
  double x = 0;
  double y = 0;
  double across = 0;
  double down = 0;
  template <class Fields>
  void list(Fields& fields) {
    fields(is_precise, x, y, across, down);
  }
};

struct Typed {
  std::string text;
  template <class Fields>
  void list(Fields& fields) {
    fields(text);
  }
};

struct Composed {
  std::string text;
  std::int32_t caret = 0;  ///< Code points from the text's start.
  template <class Fields>
  void list(Fields& fields) {
    fields(text, caret);
  }
};

/// With the names of `screen::Input::key`.
struct Key {
  std::string name;
  template <class Fields>
  void list(Fields& fields) {
    fields(name);
  }
};

enum class PageButton : std::uint8_t {
  Home,
  HomeDouble,
  Lock,
  VolumeUp,
  VolumeDown,
  HomeTouch,
  Last = HomeTouch,
};

/// A button that is held by a key; those that cannot be held only go down.
struct ButtonHeld {
  PageButton button = PageButton::Home;
  bool is_down = true;
  template <class Fields>
  void list(Fields& fields) {
    fields(button, is_down);
  }
};

struct Shake {
  template <class Fields>
  void list(Fields&) {}
};

/// The page shows this picture.
struct Shown {
  std::uint32_t picture = 0;
  template <class Fields>
  void list(Fields& fields) {
    fields(picture);
  }
};

/// The page wants to know once which views are there.
struct AskViews {
  template <class Fields>
  void list(Fields&) {}
};

/// And what one of them is made of, by its place in the last `Views`.
struct AskDescription {
  std::uint32_t view = 0;
  template <class Fields>
  void list(Fields& fields) {
    fields(view);
  }
};

/// The page may use the phone. Sizes are in points.
struct Welcome {
  std::string secret;
  double width = 0;
  double height = 0;
  double screen_x = 0;
  double screen_y = 0;
  double screen_width = 0;
  double screen_height = 0;
  template <class Fields>
  void list(Fields& fields) {
    fields(secret, width, height, screen_x, screen_y, screen_width, screen_height);
  }
};

enum class Reason : std::uint8_t { UsedLink, OpenElsewhere, MovedAway, Last = MovedAway };

/// The page may not, or no longer.
struct Refused {
  Reason reason = Reason::UsedLink;
  template <class Fields>
  void list(Fields& fields) {
    fields(reason);
  }
};

enum class PartFormat : std::uint8_t { Jpeg, Png, Last = Png };

/// A part of the screen's picture, in pixels of a picture of this size.
struct Part {
  std::uint32_t picture = 0;
  bool is_last = true;  ///< Of its picture.
  std::int32_t width = 0;
  std::int32_t height = 0;
  std::int32_t x = 0;
  std::int32_t y = 0;
  PartFormat format = PartFormat::Jpeg;
  std::string bytes;
  template <class Fields>
  void list(Fields& fields) {
    fields(picture, is_last, width, height, x, y, format, bytes);
  }
};

struct Song {
  std::string title;
  std::string artist;
  bool is_playing = false;
  template <class Fields>
  void list(Fields& fields) {
    fields(title, artist, is_playing);
  }
};

/// Where text is typed, in points of the screen.
struct Caret {
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

/// One of the `Views`. Its frame is in points of the view around it, its place in those of the
/// screen.
struct ViewRow {
  std::int32_t depth = 0;
  std::string class_name;
  std::string text;
  CGRect frame;
  CGRect place;
  bool clips = false;
  bool is_hidden = false;
  double alpha = 1;
  std::string gestures;
  template <class Fields>
  void list(Fields& fields) {
    fields(depth, class_name, text);
    for (CGRect* rect : {&frame, &place})
      fields(rect->origin.x, rect->origin.y, rect->size.width, rect->size.height);
    fields(clips, is_hidden, alpha, gestures);
  }
};

/// The views of the screen, each followed by those within it, from back to front.
struct Views {
  std::uint32_t left_out = 0;  ///< At the end; there are too many.
  std::uint32_t count = 0;
  std::string rows;  ///< The fields of each `ViewRow`.
  template <class Fields>
  void list(Fields& fields) {
    fields(left_out, count, rows);
  }
};

/// What a view is made of, in lines; empty when there is no such view.
struct Description {
  std::uint32_t view = 0;
  std::string text;
  template <class Fields>
  void list(Fields& fields) {
    fields(view, text);
  }
};

// A message's kind is its index in these lists.
using FromPage = std::variant<Present, Shape, PointerChange, OtherButton, Wheel, Typed, Composed,
                              Key, ButtonHeld, Shake, Shown, AskViews, AskDescription>;
using ToPage = std::variant<Welcome, Refused, Part, Song, Caret, Views, Description>;

}  // namespace host::browser
