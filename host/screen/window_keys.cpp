#include <SDL.h>
#include <cairo.h>

#include <algorithm>
#include <utility>

#include "host/screen/help_page.h"
#include "host/screen/window.h"

// What the keyboard does to the window itself.
namespace host::screen {
namespace {

constexpr SDL_Keycode kFullScreen = SDLK_F11;
constexpr SDL_Keycode kHelp = SDLK_F12;
constexpr std::string_view kHelpText = "?";

bool is_modifier(SDL_Keycode key) {
  constexpr SDL_Keycode kModifiers[] = {SDLK_LSHIFT, SDLK_RSHIFT,   SDLK_LCTRL,       SDLK_RCTRL,
                                        SDLK_LALT,   SDLK_RALT,     SDLK_LGUI,        SDLK_RGUI,
                                        SDLK_MODE,   SDLK_CAPSLOCK, SDLK_NUMLOCKCLEAR};
  return std::find(std::begin(kModifiers), std::end(kModifiers), key) != std::end(kModifiers);
}

}  // namespace

bool Window::take_key(const SDL_KeyboardEvent& event) {
  const SDL_Keycode key = event.keysym.sym;
  if (event.type != SDL_KEYDOWN || is_modifier(key)) return false;
  drops_text_ = false;
  if (help_) {
    if (event.repeat == 0) show_help(false);
    // What this key types is meant for the list, too.
    drops_text_ = true;
    return true;
  }
  const bool alt_return = key == SDLK_RETURN && (event.keysym.mod & KMOD_ALT) != 0;
  if (key != kFullScreen && key != kHelp && !alt_return) return false;
  if (event.repeat != 0) return true;
  if (key == kHelp) {
    show_help(true);
  } else {
    fill_display((SDL_GetWindowFlags(window_.get()) & SDL_WINDOW_FULLSCREEN_DESKTOP) == 0);
  }
  return true;
}

void Window::take_text(std::string_view text) {
  if (std::exchange(drops_text_, false)) return;
  if (text == kHelpText && !input_.caret()) return show_help(true);
  input_.type(text);
}

void Window::fill_display(bool fills) {
  SDL_SetWindowFullscreen(window_.get(), fills ? SDL_WINDOW_FULLSCREEN_DESKTOP : 0);
}

void Window::show_help(bool shown) {
  if (shown != static_cast<bool>(help_)) {
    help_.reset();
    if (shown) draw_help();
  }
  present();
}

void Window::draw_help() {
  const CGSize size = output_size();
  const auto width = static_cast<int>(size.width);
  const auto height = static_cast<int>(size.height);
  cairo_surface_t* surface = cairo_image_surface_create(CAIRO_FORMAT_ARGB32, width, height);
  cairo_t* drawing = cairo_create(surface);
  draw_help_page(drawing, size);
  cairo_destroy(drawing);
  cairo_surface_flush(surface);
  help_.reset(SDL_CreateTexture(renderer_.get(), SDL_PIXELFORMAT_ARGB8888, SDL_TEXTUREACCESS_STATIC,
                                width, height));
  help_drawn_ = size;
  // cairo's colours are multiplied by their alpha.
  SDL_SetTextureBlendMode(
      help_.get(),
      SDL_ComposeCustomBlendMode(SDL_BLENDFACTOR_ONE, SDL_BLENDFACTOR_ONE_MINUS_SRC_ALPHA,
                                 SDL_BLENDOPERATION_ADD, SDL_BLENDFACTOR_ONE,
                                 SDL_BLENDFACTOR_ONE_MINUS_SRC_ALPHA, SDL_BLENDOPERATION_ADD));
  SDL_UpdateTexture(help_.get(), nullptr, cairo_image_surface_get_data(surface),
                    cairo_image_surface_get_stride(surface));
  cairo_surface_destroy(surface);
}

}  // namespace host::screen
