#include "host/screen/window.h"

#include <SDL.h>
#include <fmt/format.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>

#include "tests/host/screen/written_input.h"

namespace {

using namespace host::screen;
using testing::ElementsAre;
using testing::IsEmpty;

/// A window on a desktop that exists only in memory.
class Windows : public testing::Test {
 protected:
  Windows() {
    setenv("SDL_VIDEODRIVER", "dummy", 1);
    std::string problem;
    window_ = Window::open({100, 200}, 2, input_, problem);
    EXPECT_TRUE(window_) << problem;
    origin_ = PhoneBody({100, 200}).screen().origin;
    window_->handle_events();
    input_.done.clear();
  }

  /// `x` and `y` are on the phone's screen; the desktop is large enough for one unit per point.
  void push_mouse(Uint32 type, int x, int y, Uint8 button = SDL_BUTTON_LEFT, Uint8 clicks = 1) {
    SDL_Event event{};
    x += static_cast<int>(origin_.x);
    y += static_cast<int>(origin_.y);
    event.type = type;
    if (type == SDL_MOUSEMOTION) {
      event.motion.x = x;
      event.motion.y = y;
    } else {
      event.button.button = button;
      event.button.clicks = clicks;
      event.button.x = x;
      event.button.y = y;
    }
    SDL_PushEvent(&event);
  }
  void push_key(SDL_Keycode key, Uint8 repeat = 0, SDL_Keymod held = KMOD_NONE,
                Uint32 type = SDL_KEYDOWN) {
    SDL_Event event{};
    event.key.keysym.mod = held;
    event.type = type;
    event.key.keysym.sym = key;
    event.key.repeat = repeat;
    SDL_PushEvent(&event);
  }
  static void push_drop(Uint32 type, const char* thing = nullptr) {
    SDL_Event event{};
    event.type = type;
    event.drop.file = thing ? SDL_strdup(thing) : nullptr;
    SDL_PushEvent(&event);
  }
  static void push_window(SDL_WindowEventID what) {
    SDL_Event event{};
    event.type = SDL_WINDOWEVENT;
    event.window.event = static_cast<Uint8>(what);
    SDL_PushEvent(&event);
  }
  static void push_text(const char* text) {
    SDL_Event event{};
    event.type = SDL_TEXTINPUT;
    std::snprintf(event.text.text, sizeof event.text.text, "%s", text);
    SDL_PushEvent(&event);
  }
  void push_wheel(float across, float up, CGPoint at = {10, 20}) {
    SDL_Event event{};
    event.type = SDL_MOUSEWHEEL;
    event.wheel.mouseX = static_cast<int>(at.x + origin_.x);
    event.wheel.mouseY = static_cast<int>(at.y + origin_.y);
    event.wheel.x = static_cast<int>(across);
    event.wheel.y = static_cast<int>(up);
    event.wheel.preciseX = across;
    event.wheel.preciseY = up;
    SDL_PushEvent(&event);
  }
  std::vector<std::string> handled() {
    input_.done.clear();
    window_->handle_events();
    return input_.done;
  }

  WrittenInput input_;
  CGPoint origin_;
  std::unique_ptr<Window> window_;
};

TEST_F(Windows, TheMouseIsAFingerWhileItsButtonIsDown) {
  push_mouse(SDL_MOUSEMOTION, 5, 5);
  push_mouse(SDL_MOUSEBUTTONDOWN, 10, 20);
  push_mouse(SDL_MOUSEMOTION, 30, 40);
  push_mouse(SDL_MOUSEBUTTONUP, 30, 40);
  push_mouse(SDL_MOUSEMOTION, 50, 60);
  EXPECT_THAT(handled(), ElementsAre("touch 0 0 10 20", "touch 0 1 30 40", "touch 0 2 30 40"));
}

TEST_F(Windows, OtherMouseButtonsAreNotFingers) {
  push_mouse(SDL_MOUSEBUTTONDOWN, 10, 20, SDL_BUTTON_MIDDLE);
  push_mouse(SDL_MOUSEMOTION, 30, 40);
  EXPECT_THAT(handled(), IsEmpty());
}

TEST_F(Windows, KeysAreButtonsOrKeysOfTheKeyboard) {
  input_.caret_place = CGRect(10, 10, 2, 20);
  push_key(SDLK_F1);
  push_key(SDLK_F1, 1);
  push_key(SDLK_BACKSPACE);
  push_key(SDLK_BACKSPACE, 1);
  push_key(SDLK_a);
  EXPECT_THAT(handled(), ElementsAre("push 0", "key delete", "key delete"));
}

TEST_F(Windows, AButtonStaysDownAsLongAsItsKey) {
  push_key(SDLK_F3);
  push_key(SDLK_F3, 1);
  EXPECT_THAT(handled(), ElementsAre("push 2"));
  push_key(SDLK_F3, 0, KMOD_NONE, SDL_KEYUP);
  EXPECT_THAT(handled(), ElementsAre("let go 2"));
}

TEST_F(Windows, AKeyPressesHomeTwice) {
  push_key(SDLK_F2);
  push_key(SDLK_F2, 0, KMOD_NONE, SDL_KEYUP);
  EXPECT_THAT(handled(), ElementsAre("press 1"));
}

TEST_F(Windows, AKeyTouchesHomeTwice) {
  push_key(SDLK_F4);
  push_key(SDLK_F4, 1);
  push_key(SDLK_F4, 0, KMOD_NONE, SDL_KEYUP);
  EXPECT_THAT(handled(), ElementsAre("press 5"));
}

TEST_F(Windows, TheMousePressesHomeBelowTheScreen) {
  push_mouse(SDL_MOUSEBUTTONDOWN, 50, 244);
  EXPECT_THAT(handled(), ElementsAre("push 0"));
  push_mouse(SDL_MOUSEMOTION, 50, 100);
  push_mouse(SDL_MOUSEBUTTONUP, 50, 100);
  EXPECT_THAT(handled(), ElementsAre("let go 0"));
}

TEST_F(Windows, ADoubleClickOnHomePressesItTwice) {
  push_mouse(SDL_MOUSEBUTTONDOWN, 50, 244, SDL_BUTTON_LEFT, 2);
  push_mouse(SDL_MOUSEBUTTONUP, 50, 244, SDL_BUTTON_LEFT, 2);
  EXPECT_THAT(handled(), ElementsAre("press 1"));
}

TEST_F(Windows, TheOtherMouseButtonTouchesHomeLightly) {
  push_mouse(SDL_MOUSEBUTTONDOWN, 50, 244, SDL_BUTTON_RIGHT);
  push_mouse(SDL_MOUSEBUTTONUP, 50, 244, SDL_BUTTON_RIGHT);
  EXPECT_THAT(handled(), ElementsAre("press 5"));
}

TEST_F(Windows, TheWheelTurnsByNotchesOverThePhonesScreen) {
  push_wheel(0, -1);
  push_wheel(2, 0);
  push_wheel(0, -1, {-20, 20});
  EXPECT_THAT(handled(), ElementsAre("wheel 10 20 by 0 1 notches", "wheel 10 20 by 2 0 notches"));
}

TEST_F(Windows, ShiftTurnsTheWheelSideways) {
  SDL_SetModState(KMOD_LSHIFT);
  push_wheel(0, -1);
  EXPECT_THAT(handled(), ElementsAre("wheel 10 20 by 1 0 notches"));
  SDL_SetModState(KMOD_NONE);
}

TEST_F(Windows, ATouchpadMovesByPoints) {
  push_wheel(0.25F, -0.5F);
  EXPECT_THAT(handled(), ElementsAre("wheel 10 20 by 2.5 5 points"));
}

TEST_F(Windows, ARightClickOnTheScreenIsOne) {
  push_mouse(SDL_MOUSEBUTTONDOWN, 10, 20, SDL_BUTTON_RIGHT);
  push_mouse(SDL_MOUSEBUTTONUP, 10, 20, SDL_BUTTON_RIGHT);
  EXPECT_THAT(handled(), ElementsAre("right click 10 20"));
}

TEST_F(Windows, KeysForThePlayerActOnceHoweverLongTheyAreHeld) {
  for (const Uint8 repeat : {0, 1, 1}) {
    push_key(SDLK_SPACE, repeat);
    push_key(SDLK_RIGHT, repeat, KMOD_LCTRL);
    push_key(SDLK_AUDIONEXT, repeat);
  }
  EXPECT_THAT(handled(), ElementsAre("key space", "key control-right", "key media-next"));
  push_key(SDLK_UP, 1, KMOD_LCTRL);
  EXPECT_THAT(handled(), ElementsAre("key control-up"));
  push_key(SDLK_VOLUMEUP);
  EXPECT_THAT(handled(), ElementsAre("push 3"));
}

TEST_F(Windows, TheFocusMovesOnWhileItsKeysAreHeld) {
  for (const Uint8 repeat : {0, 1}) {
    push_key(SDLK_TAB, repeat, KMOD_LSHIFT);
    push_key(SDLK_RIGHT, repeat);
    push_key(SDLK_RETURN, repeat);
  }
  EXPECT_THAT(handled(), ElementsAre("key shift-tab", "key right", "key return", "key shift-tab",
                                     "key right"));
}

TEST_F(Windows, InAFieldKeysRepeat) {
  input_.caret_place = CGRect(10, 10, 2, 20);
  push_key(SDLK_RIGHT, 1, KMOD_LCTRL);
  push_key(SDLK_RIGHT, 1, KMOD_LCTRL);
  EXPECT_THAT(handled(), ElementsAre("key control-right", "key control-right"));
}

TEST_F(Windows, TheNextKeyOrClickClosesTheListOfKeysAndDoesNothingElse) {
  push_key(SDLK_F12);
  push_key(SDLK_LSHIFT);
  push_key(SDLK_F1);
  EXPECT_THAT(handled(), IsEmpty());
  push_key(SDLK_F1);
  EXPECT_THAT(handled(), ElementsAre("push 0"));
  push_text("?");
  push_key(SDLK_SLASH, 0, KMOD_LSHIFT);
  push_text("?");
  push_mouse(SDL_MOUSEBUTTONDOWN, 10, 20);
  EXPECT_THAT(handled(), ElementsAre("touch 0 0 10 20"));
  push_mouse(SDL_MOUSEBUTTONUP, 10, 20);
  push_text("?");
  push_mouse(SDL_MOUSEBUTTONDOWN, 10, 20);
  push_mouse(SDL_MOUSEBUTTONUP, 10, 20);
  EXPECT_THAT(handled(), ElementsAre("touch 0 2 10 20"));
  push_key(SDLK_DOWN);
  EXPECT_THAT(handled(), ElementsAre("key down"));
}

TEST_F(Windows, AFieldGetsAQuestionMark) {
  input_.caret_place = CGRect(10, 10, 2, 20);
  push_text("?");
  EXPECT_THAT(handled(), ElementsAre("type ?"));
}

TEST_F(Windows, KeysThatFillTheDisplayAreNotThePhones) {
  push_key(SDLK_F11);
  push_key(SDLK_RETURN, 0, KMOD_LALT);
  EXPECT_THAT(handled(), IsEmpty());
  push_key(SDLK_RETURN);
  EXPECT_THAT(handled(), ElementsAre("key return"));
}

TEST_F(Windows, AKeyShakesThePhone) {
  push_key(SDLK_F7);
  push_key(SDLK_F7, 1);
  push_key(SDLK_F7, 0, KMOD_NONE, SDL_KEYUP);
  EXPECT_THAT(handled(), ElementsAre("shake"));
}

TEST_F(Windows, ComposedTextIsTyped) {
  push_text("ö");
  EXPECT_THAT(handled(), ElementsAre("type ö"));
}

TEST_F(Windows, ModifiersPrecedeTheKeysName) {
  push_key(SDLK_LEFT, 0, KMOD_LSHIFT);
  push_key(SDLK_RIGHT, 0, static_cast<SDL_Keymod>(KMOD_RCTRL | KMOD_LSHIFT));
  push_key(SDLK_v, 0, KMOD_LCTRL);
  push_key(SDLK_v);
  EXPECT_THAT(handled(), ElementsAre("key shift-left", "key control-shift-right", "key control-v"));
}

TEST_F(Windows, TextBeingComposedIsReported) {
  SDL_Event event{};
  event.type = SDL_TEXTEDITING;
  std::snprintf(event.edit.text, sizeof event.edit.text, "にほ");
  event.edit.start = 2;
  SDL_PushEvent(&event);
  EXPECT_THAT(handled(), ElementsAre("compose にほ 2"));
}

TEST_F(Windows, AMinimizedWindowKeepsNoPicturesAndNeedsAllOfTheNextOne) {
  const std::vector<unsigned> pixels(200 * 400, 0xFF00FF00);
  const Picture picture{reinterpret_cast<const unsigned char*>(pixels.data()), 200, 400, 800};
  const std::array whole{PixelRect{0, 0, 200, 400}};
  window_->show(picture, whole);
  EXPECT_TRUE(window_->is_watched());
  EXPECT_FALSE(window_->needs_everything());
  push_window(SDL_WINDOWEVENT_MINIMIZED);
  handled();
  EXPECT_FALSE(window_->is_watched());
  window_->show(picture, whole);
  push_window(SDL_WINDOWEVENT_RESTORED);
  handled();
  EXPECT_TRUE(window_->is_watched());
  EXPECT_TRUE(window_->needs_everything());
  window_->show(picture, whole);
  EXPECT_FALSE(window_->needs_everything());
}

TEST_F(Windows, HavePixelsForTheirSizeUpToTheDevices) {
  SDL_Window* window = nullptr;
  for (Uint32 id = 1; !window; ++id)
    window = SDL_GetWindowFromID(id);
  const CGSize body = PhoneBody({100, 200}).size();
  const auto resize = [&](double scale) {
    SDL_SetWindowSize(window, static_cast<int>(body.width * scale),
                      static_cast<int>(body.height * scale));
    handled();
  };
  const auto is_near = [&](double pixels) {
    return std::abs(*window_->pixels_per_point() - pixels) < 0.02;
  };
  const auto settle_at = [&](double pixels) {
    for (int looks = 0; looks < 500 && !is_near(pixels); ++looks) {
      SDL_Delay(10);
      handled();
    }
    EXPECT_TRUE(is_near(pixels)) << *window_->pixels_per_point();
  };
  EXPECT_TRUE(is_near(1));
  resize(1.5);
  EXPECT_TRUE(is_near(1)) << "the user may go on";
  settle_at(1.5);
  resize(3);
  settle_at(2);
}

TEST_F(Windows, ShareTheDesktopsClipboard) {
  window_->set_clipboard_text("Größe");
  EXPECT_EQ(window_->clipboard_text(), "Größe");
}

TEST_F(Windows, FilesThatAreDroppedTogetherAreReportedTogether) {
  push_drop(SDL_DROPBEGIN);
  push_drop(SDL_DROPFILE, "/music/a song.flac");
  push_drop(SDL_DROPFILE, "/music/album");
  EXPECT_THAT(handled(), IsEmpty());
  push_drop(SDL_DROPTEXT, "https://example.org/");
  push_drop(SDL_DROPCOMPLETE);
  push_drop(SDL_DROPBEGIN);
  push_drop(SDL_DROPCOMPLETE);
  EXPECT_THAT(handled(),
              ElementsAre("drop /music/a song.flac, /music/album, https://example.org/"));
}

TEST_F(Windows, OnlyTheWindowItselfReactsWhileItSleeps) {
  window_->set_awake(false);
  push_mouse(SDL_MOUSEBUTTONDOWN, 10, 20);
  push_key(SDLK_F1);
  SDL_Event event{};
  event.type = SDL_QUIT;
  SDL_PushEvent(&event);
  EXPECT_THAT(handled(), ElementsAre("close"));
}

TEST_F(Windows, ClosingTheWindowIsReported) {
  SDL_Event event{};
  event.type = SDL_QUIT;
  SDL_PushEvent(&event);
  EXPECT_THAT(handled(), ElementsAre("close"));
}

}  // namespace
