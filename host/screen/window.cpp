#include "host/screen/window.h"

#include <SDL.h>

#include <cmath>
#include <string>

#include "host/screen/event_descriptor.h"
#include "host/screen/fingers.h"

namespace host::screen {
namespace {

// The mouse is one more finger, beside those of a touch screen.
constexpr int kMouseFinger = 0;
// Of the desktop's height, for a phone that would not fit it.
constexpr double kLargestPart = 0.85;

struct KeyName {
  SDL_Keycode key;
  const char* name;
};

constexpr KeyName kKeys[] = {
    {SDLK_RETURN, "return"}, {SDLK_KP_ENTER, "return"}, {SDLK_BACKSPACE, "delete"},
    {SDLK_ESCAPE, "escape"}, {SDLK_TAB, "tab"},         {SDLK_LEFT, "left"},
    {SDLK_RIGHT, "right"},   {SDLK_UP, "up"},           {SDLK_DOWN, "down"},
    {SDLK_END, "end"},
};

// With the control key, letters work on text instead of typing it.
constexpr KeyName kControlKeys[] = {
    {SDLK_a, "a"}, {SDLK_c, "c"}, {SDLK_g, "g"}, {SDLK_v, "v"}, {SDLK_x, "x"},
};

struct KeyButton {
  SDL_Keycode key;
  Button button;
};

constexpr KeyButton kButtons[] = {
    {SDLK_F1, Button::Home}, {SDLK_HOME, Button::Home},     {SDLK_F2, Button::HomeDouble},
    {SDLK_F3, Button::Lock}, {SDLK_F5, Button::VolumeDown}, {SDLK_F6, Button::VolumeUp},
};

constexpr SDL_Keycode kShake = SDLK_F7;

/// The key's name behind those of the keys that are held with it.
std::string with_modifiers(const char* name, Uint16 held) {
  std::string full;
  if ((held & KMOD_CTRL) != 0) full += "control-";
  if ((held & KMOD_SHIFT) != 0) full += "shift-";
  return full + name;
}

CGSize first_size(CGSize screen) {
  SDL_Rect desktop{};
  if (SDL_GetDisplayUsableBounds(0, &desktop) != 0 || desktop.h <= 0) return screen;
  const double shrink = std::min(1.0, desktop.h * kLargestPart / screen.height);
  return {std::round(screen.width * shrink), std::round(screen.height * shrink)};
}

}  // namespace

void Window::Destroy::operator()(SDL_Window* window) const {
  SDL_DestroyWindow(window);
}
void Window::Destroy::operator()(SDL_Renderer* renderer) const {
  SDL_DestroyRenderer(renderer);
}
void Window::Destroy::operator()(SDL_Texture* texture) const {
  SDL_DestroyTexture(texture);
}

Window::Window(CGSize screen, Input& input) : screen_(screen), input_(input) {}

Window::~Window() {
  texture_.reset();
  renderer_.reset();
  window_.reset();
  SDL_QuitSubSystem(SDL_INIT_VIDEO);
}

std::unique_ptr<Window> Window::open(CGSize screen, double pixels_a_point, Input& input,
                                     std::string& problem) {
  // Signals belong to whoever supervises the process.
  SDL_SetHint(SDL_HINT_NO_SIGNAL_HANDLERS, "1");
  SDL_SetHint(SDL_HINT_RENDER_SCALE_QUALITY, "1");
  SDL_SetHint(SDL_HINT_VIDEO_ALLOW_SCREENSAVER, "1");
  std::unique_ptr<Window> made;
  if (SDL_InitSubSystem(SDL_INIT_VIDEO) == 0) {
    made.reset(new Window(screen, input));
    if (made->create(pixels_a_point)) return made;
  }
  problem = SDL_GetError();
  return nullptr;
}

bool Window::create(double pixels_a_point) {
  const CGSize size = first_size(screen_);
  window_.reset(SDL_CreateWindow("Sonavue", SDL_WINDOWPOS_CENTERED, SDL_WINDOWPOS_CENTERED,
                                 static_cast<int>(size.width), static_cast<int>(size.height),
                                 SDL_WINDOW_RESIZABLE | SDL_WINDOW_ALLOW_HIGHDPI));
  if (!window_) return false;
  renderer_.reset(SDL_CreateRenderer(window_.get(), -1, 0));
  if (!renderer_) return false;
  texture_.reset(SDL_CreateTexture(renderer_.get(), SDL_PIXELFORMAT_ARGB8888,
                                   SDL_TEXTUREACCESS_STREAMING,
                                   static_cast<int>(std::lround(screen_.width * pixels_a_point)),
                                   static_cast<int>(std::lround(screen_.height * pixels_a_point))));
  SDL_StartTextInput();
  return texture_ != nullptr;
}

void Window::show(const Picture& picture, std::span<const PixelRect> damage) {
  for (const PixelRect& part : damage) {
    const SDL_Rect place{part.x, part.y, part.width, part.height};
    const unsigned char* first =
        picture.pixels + static_cast<std::ptrdiff_t>(part.y) * picture.stride + part.x * 4;
    SDL_UpdateTexture(texture_.get(), &place, first, picture.stride);
  }
  if (!damage.empty()) present();
}

void Window::present() {
  int width = 0;
  int height = 0;
  SDL_GetRendererOutputSize(renderer_.get(), &width, &height);
  const CGRect place =
      Letterbox::fit(screen_, {static_cast<double>(width), static_cast<double>(height)}).place;
  const SDL_FRect target{static_cast<float>(place.origin.x), static_cast<float>(place.origin.y),
                         static_cast<float>(place.size.width),
                         static_cast<float>(place.size.height)};
  SDL_SetRenderDrawColor(renderer_.get(), 0, 0, 0, SDL_ALPHA_OPAQUE);
  SDL_RenderClear(renderer_.get());
  SDL_RenderCopyF(renderer_.get(), texture_.get(), nullptr, &target);
  SDL_RenderPresent(renderer_.get());
}

CGSize Window::window_size() const {
  int width = 0;
  int height = 0;
  SDL_GetWindowSize(window_.get(), &width, &height);
  return {static_cast<double>(width), static_cast<double>(height)};
}

std::string Window::clipboard_text() const {
  const std::unique_ptr<char, decltype(&SDL_free)> text(SDL_GetClipboardText(), &SDL_free);
  return text ? text.get() : "";
}

void Window::set_clipboard_text(const std::string& text) {
  SDL_SetClipboardText(text.c_str());
}

int Window::event_descriptor() const {
  return screen::event_descriptor(window_.get());
}

void Window::handle_events() {
  SDL_Event event;
  while (SDL_PollEvent(&event))
    handle(event);
}

void Window::handle(const SDL_Event& event) {
  switch (event.type) {
    case SDL_QUIT:
      input_.close();
      break;
    case SDL_WINDOWEVENT:
      if (event.window.event == SDL_WINDOWEVENT_EXPOSED ||
          event.window.event == SDL_WINDOWEVENT_SIZE_CHANGED)
        present();
      break;
    case SDL_MOUSEBUTTONDOWN:
    case SDL_MOUSEBUTTONUP:
    case SDL_MOUSEMOTION:
      handle_mouse(event);
      break;
    case SDL_FINGERDOWN:
    case SDL_FINGERUP:
    case SDL_FINGERMOTION:
      handle_finger(event);
      break;
    case SDL_TEXTINPUT:
      input_.type(event.text.text);
      break;
    case SDL_TEXTEDITING:
      input_.compose(event.edit.text, event.edit.start);
      break;
    case SDL_KEYDOWN:
      handle_button(event);
      handle_key(event);
      break;
    case SDL_KEYUP:
      handle_button(event);
      break;
    default:
      break;
  }
}

void Window::handle_button(const SDL_Event& event) {
  // A held key is one press of a button.
  if (event.key.repeat != 0) return;
  const bool down = event.type == SDL_KEYDOWN;
  if (down && event.key.keysym.sym == kShake) input_.shake();
  for (const auto& [key, button] : kButtons) {
    if (key != event.key.keysym.sym) continue;
    if (button != Button::HomeDouble) {
      input_.button(button, down ? ButtonPhase::Down : ButtonPhase::Up);
    } else if (down) {
      input_.press(button);
    }
  }
}

void Window::handle_key(const SDL_Event& event) {
  const SDL_Keycode pressed = event.key.keysym.sym;
  const Uint16 held = event.key.keysym.mod;
  for (const auto& [key, name] : kKeys) {
    if (key == pressed) input_.key(with_modifiers(name, held));
  }
  if ((held & KMOD_CTRL) == 0) return;
  for (const auto& [key, name] : kControlKeys) {
    if (key == pressed) input_.key(with_modifiers(name, held));
  }
}

void Window::handle_mouse(const SDL_Event& event) {
  const auto box = Letterbox::fit(screen_, window_size());
  if (event.type == SDL_MOUSEMOTION) {
    if (!mouse_is_down_ || event.motion.which == SDL_TOUCH_MOUSEID) return;
    input_.touch(
        kMouseFinger, TouchPhase::Moved,
        box.point_at({static_cast<double>(event.motion.x), static_cast<double>(event.motion.y)}));
    return;
  }
  const bool down = event.type == SDL_MOUSEBUTTONDOWN;
  if (event.button.button != SDL_BUTTON_LEFT || event.button.which == SDL_TOUCH_MOUSEID) return;
  if (down == mouse_is_down_) return;
  mouse_is_down_ = down;
  // A drag may leave the window, as a finger leaves the screen at its edge.
  SDL_CaptureMouse(down ? SDL_TRUE : SDL_FALSE);
  input_.touch(
      kMouseFinger, down ? TouchPhase::Began : TouchPhase::Ended,
      box.point_at({static_cast<double>(event.button.x), static_cast<double>(event.button.y)}));
}

void Window::handle_finger(const SDL_Event& event) {
  const CGSize size = window_size();
  const auto box = Letterbox::fit(screen_, size);
  const CGPoint point = box.point_at({event.tfinger.x * size.width, event.tfinger.y * size.height});
  const TouchPhase phase = event.type == SDL_FINGERDOWN ? TouchPhase::Began
                           : event.type == SDL_FINGERUP ? TouchPhase::Ended
                                                        : TouchPhase::Moved;
  if (const auto finger = fingers_.number_of(event.tfinger.fingerId, phase))
    input_.touch(*finger, phase, point);
}

}  // namespace host::screen
