#include <SDL.h>

#include <algorithm>
#include <cmath>

#include "host/screen/window.h"

// What the desktop does to the window.
namespace host::screen {
namespace {

constexpr Uint32 kNotItsOwnSize =
    SDL_WINDOW_FULLSCREEN_DESKTOP | SDL_WINDOW_MAXIMIZED | SDL_WINDOW_MINIMIZED;

// How long, in milliseconds, the user must not have changed the size before it is kept, and before
// the phone is drawn for it.
constexpr Uint32 kSettled = 500;
constexpr Uint32 kStill = 150;

}  // namespace

void Window::handle_window(const SDL_WindowEvent& event) {
  switch (event.event) {
    case SDL_WINDOWEVENT_RESIZED:
      if ((SDL_GetWindowFlags(window_.get()) & kNotItsOwnSize) != 0) break;
      chosen_size_ = window_size();
      chosen_at_ = event.timestamp;
      break;
    case SDL_WINDOWEVENT_SIZE_CHANGED:
      caret_.reset();
      resized_at_ = event.timestamp;
      present();
      break;
    case SDL_WINDOWEVENT_EXPOSED:
    case SDL_WINDOWEVENT_SHOWN:
    case SDL_WINDOWEVENT_RESTORED:
    case SDL_WINDOWEVENT_MAXIMIZED:
      set_minimized(false);
      present();
      break;
    case SDL_WINDOWEVENT_MINIMIZED:
    case SDL_WINDOWEVENT_HIDDEN:
      set_minimized(true);
      break;
    default:
      break;
  }
}

// Not on the way: a picture that is drawn for each size would follow an edge too slowly.
void Window::follow_size() {
  if (!minimized_ && SDL_GetTicks() - resized_at_ >= kStill)
    pixels_per_point_ = fitting_pixels_per_point();
}

// Not at the end: the session may end the process.
void Window::keep_chosen_size() {
  if (!chosen_size_ || SDL_GetTicks() - chosen_at_ < kSettled) return;
  memory_.keep(*chosen_size_);
  chosen_size_.reset();
}

// The pictures are drawn again when the user looks.
void Window::set_minimized(bool minimized) {
  minimized_ = minimized;
  if (!minimized) return;
  texture_.reset();
  body_texture_.reset();
  help_.reset();
  body_drawn_ = {};
}

void Window::follow_caret() {
  const auto caret = input_.caret();
  if (!caret || caret == caret_) return;
  caret_ = caret;
  const auto box = Letterbox::fit(body_.size(), window_size());
  const CGPoint origin{caret->min_x() + body_.screen().min_x(),
                       caret->min_y() + body_.screen().min_y()};
  const SDL_Rect place{static_cast<int>(std::lround(box.place.origin.x + origin.x * box.scale)),
                       static_cast<int>(std::lround(box.place.origin.y + origin.y * box.scale)),
                       std::max(1, static_cast<int>(std::lround(caret->size.width * box.scale))),
                       std::max(1, static_cast<int>(std::lround(caret->size.height * box.scale)))};
  SDL_SetTextInputRect(&place);
}

}  // namespace host::screen
