#include "host/screen/window.h"

#include <SDL.h>

#include <algorithm>
#include <cmath>
#include <string>
#include <string_view>
#include <utility>

#include "host/basics/program_identity.h"
#include "host/screen/desktop_scale.h"
#include "host/screen/event_descriptor.h"
#include "host/screen/phone_body_drawing.h"

namespace host::screen {
namespace {

// The mouse counts as an additional finger besides those of a touch screen.
constexpr int kMouseFinger = 0;
// The share of the desktop for a phone that would not fit on it.
constexpr double kLargestPart = 0.92;
// In pixels, by which a picture may miss its place through rounding.
constexpr double kAlmost = 2;
constexpr auto kGroundShade = static_cast<Uint8>(kGroundLight * 255);

/// The largest size of this shape, up to `wanted`, that leaves the desktop some room.
CGSize fitted(CGSize wanted) {
  SDL_Rect desktop{};
  if (SDL_GetDisplayUsableBounds(0, &desktop) != 0 || desktop.h <= 0) return wanted;
  const double shrink = std::min(
      {1.0, desktop.h * kLargestPart / wanted.height, desktop.w * kLargestPart / wanted.width});
  return {std::round(wanted.width * shrink), std::round(wanted.height * shrink)};
}

/// SDL falls back to a driver without a display when it cannot reach one.
bool is_unseen() {
  const std::string_view driver = SDL_GetCurrentVideoDriver();
  const char* const wanted = SDL_getenv("SDL_VIDEODRIVER");
  const bool is_wanted = wanted && std::string_view(wanted).find(driver) != driver.npos;
  return (driver == "offscreen" || driver == "dummy") && !is_wanted;
}

/// Where the environment says that the displays are.
std::string display_names() {
  std::string names;
  for (const char* variable : {"WAYLAND_DISPLAY", "DISPLAY"}) {
    if (const char* const name = SDL_getenv(variable)) names.append(" ").append(name);
  }
  return names;
}

int whole(double value) {
  return static_cast<int>(std::lround(value));
}

SDL_Rect whole_pixels(CGRect rect) {
  return {whole(rect.min_x()), whole(rect.min_y()), whole(rect.size.width),
          whole(rect.size.height)};
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

Window::Window(CGSize screen, double pixels_per_point, Input& input, const std::string& memory)
    : body_(screen),
      device_pixels_per_point_(pixels_per_point),
      pixels_per_point_(pixels_per_point),
      input_(input),
      memory_(memory),
      buttons_(input),
      keys_(input, buttons_),
      pointers_(body_, input, buttons_) {}

Window::~Window() {
  if (chosen_size_) memory_.keep(*chosen_size_);
  texture_.reset();
  body_texture_.reset();
  help_.reset();
  renderer_.reset();
  window_.reset();
  SDL_QuitSubSystem(SDL_INIT_VIDEO);
}

std::unique_ptr<Window> Window::open(CGSize screen, double pixels_per_point, Input& input,
                                     std::string& problem, const std::string& memory) {
  // Signals are handled by the supervisor of the process.
  SDL_SetHint(SDL_HINT_NO_SIGNAL_HANDLERS, "1");
  SDL_SetHint(SDL_HINT_RENDER_SCALE_QUALITY, "1");
  SDL_SetHint(SDL_HINT_VIDEO_ALLOW_SCREENSAVER, "1");
  SDL_SetHint(SDL_HINT_APP_NAME, kProgramName);
  // The class is what desktops find the application's entry by. The user's own choice stays.
  SDL_setenv("SDL_VIDEO_X11_WMCLASS", kDesktopEntry, 0);
  SDL_setenv("SDL_VIDEO_WAYLAND_WMCLASS", kDesktopEntry, 0);
  std::unique_ptr<Window> made;
  if (SDL_InitSubSystem(SDL_INIT_VIDEO) == 0) {
    made.reset(new Window(screen, pixels_per_point, input, memory));
    if (is_unseen()) {
      problem = "the display" + display_names() + " cannot be reached";
      return nullptr;
    }
    if (made->create()) return made;
  }
  problem = SDL_GetError();
  return nullptr;
}

bool Window::create() {
  const CGSize size = body_.size();
  const double scale = desktop_scale();
  const CGSize scaled{size.width * scale, size.height * scale};
  const CGSize first = fitted(memory_.recall().value_or(scaled));
  window_.reset(SDL_CreateWindow(kProgramName, SDL_WINDOWPOS_CENTERED, SDL_WINDOWPOS_CENTERED,
                                 static_cast<int>(first.width), static_cast<int>(first.height),
                                 SDL_WINDOW_RESIZABLE | SDL_WINDOW_ALLOW_HIGHDPI));
  if (!window_) return false;
  renderer_.reset(SDL_CreateRenderer(window_.get(), -1, 0));
  if (!renderer_) return false;
  pixels_per_point_ = fitting_pixels_per_point();
  SDL_StartTextInput();
  return true;
}

double Window::fitting_pixels_per_point() const {
  const double points = body_.screen().size.width;
  const double scale = Letterbox::fit(body_.size(), output_size()).scale;
  return std::min(device_pixels_per_point_, std::max(1.0, std::round(points * scale)) / points);
}

void Window::show(const Picture& picture, std::span<const PixelRect> damage) {
  if (minimized_) return;
  if (!texture_ || picture_size_ != CGSize(picture.width, picture.height)) {
    picture_size_ = {static_cast<double>(picture.width), static_cast<double>(picture.height)};
    texture_.reset(SDL_CreateTexture(renderer_.get(), SDL_PIXELFORMAT_ARGB8888,
                                     SDL_TEXTUREACCESS_STREAMING, picture.width, picture.height));
  }
  if (!texture_) return;
  for (const PixelRect& part : damage) {
    const SDL_Rect place{part.x, part.y, part.width, part.height};
    const unsigned char* first =
        picture.pixels + static_cast<std::ptrdiff_t>(part.y) * picture.stride + part.x * 4;
    SDL_UpdateTexture(texture_.get(), &place, first, picture.stride);
  }
  if (!damage.empty()) present();
  follow_caret();
}

SDL_Rect Window::place_of_screen() const {
  const Letterbox box = Letterbox::fit(body_.size(), output_size());
  const CGRect screen = body_.screen();
  CGSize size{screen.size.width * box.scale, screen.size.height * box.scale};
  // A picture that was drawn for this size is not scaled by a pixel.
  if (std::abs(size.width - picture_size_.width) < kAlmost &&
      std::abs(size.height - picture_size_.height) < kAlmost)
    size = picture_size_;
  return whole_pixels({{box.place.origin.x + screen.min_x() * box.scale,
                        box.place.origin.y + screen.min_y() * box.scale},
                       size});
}

void Window::present() {
  if (!texture_) return;
  draw_body();
  const Letterbox box = Letterbox::fit(body_.size(), output_size());
  const SDL_Rect body_place = whole_pixels({box.place.origin, body_drawn_});
  const SDL_Rect screen_place = place_of_screen();
  SDL_SetRenderDrawColor(renderer_.get(), kGroundShade, kGroundShade, kGroundShade,
                         SDL_ALPHA_OPAQUE);
  SDL_RenderClear(renderer_.get());
  SDL_RenderCopy(renderer_.get(), body_texture_.get(), nullptr, &body_place);
  SDL_RenderCopy(renderer_.get(), texture_.get(), nullptr, &screen_place);
  if (help_ && help_drawn_ != output_size()) draw_help();
  if (help_) SDL_RenderCopyF(renderer_.get(), help_.get(), nullptr, nullptr);
  SDL_RenderPresent(renderer_.get());
}

/// Draws the body only when it looks different from the last time.
void Window::draw_body() {
  const Letterbox box = Letterbox::fit(body_.size(), output_size());
  const CGSize size{std::ceil(box.place.size.width), std::ceil(box.place.size.height)};
  if (!buttons_.take_change() && size == body_drawn_) return;
  const auto width = static_cast<int>(size.width);
  const auto height = static_cast<int>(size.height);
  cairo_surface_t* surface = cairo_image_surface_create(CAIRO_FORMAT_ARGB32, width, height);
  cairo_t* drawing = cairo_create(surface);
  cairo_scale(drawing, box.scale, box.scale);
  screen::draw_body(drawing, body_, [this](Button button) { return buttons_.is_down(button); });
  cairo_destroy(drawing);
  cairo_surface_flush(surface);
  if (size != body_drawn_)
    body_texture_.reset(SDL_CreateTexture(renderer_.get(), SDL_PIXELFORMAT_ARGB8888,
                                          SDL_TEXTUREACCESS_STATIC, width, height));
  body_drawn_ = size;
  SDL_UpdateTexture(body_texture_.get(), nullptr, cairo_image_surface_get_data(surface),
                    cairo_image_surface_get_stride(surface));
  cairo_surface_destroy(surface);
}

CGSize Window::window_size() const {
  int width = 0;
  int height = 0;
  SDL_GetWindowSize(window_.get(), &width, &height);
  return {static_cast<double>(width), static_cast<double>(height)};
}

CGSize Window::output_size() const {
  int width = 0;
  int height = 0;
  SDL_GetRendererOutputSize(renderer_.get(), &width, &height);
  return {static_cast<double>(width), static_cast<double>(height)};
}

std::string Window::clipboard_text() const {
  const std::unique_ptr<char, decltype(&SDL_free)> text(SDL_GetClipboardText(), &SDL_free);
  return text ? text.get() : "";
}

void Window::set_clipboard_text(const std::string& text) {
  SDL_SetClipboardText(text.c_str());
}

void Window::raise() {
  SDL_RestoreWindow(window_.get());
  SDL_RaiseWindow(window_.get());
}

bool Window::is_in_front() const {
  return (SDL_GetWindowFlags(window_.get()) & SDL_WINDOW_INPUT_FOCUS) != 0;
}

int Window::event_descriptor() const {
  return screen::event_descriptor(window_.get());
}

void Window::handle_events() {
  SDL_Event event;
  while (SDL_PollEvent(&event))
    handle(event);
  if (buttons_.has_change()) present();
  follow_caret();
  keep_chosen_size();
  follow_size();
}

void Window::handle(const SDL_Event& event) {
  if (event.type >= SDL_DROPFILE && event.type <= SDL_DROPCOMPLETE) return handle_drop(event);
  if (!is_awake_ && event.type != SDL_QUIT && event.type != SDL_WINDOWEVENT) return;
  switch (event.type) {
    case SDL_QUIT:
      input_.close();
      break;
    case SDL_WINDOWEVENT:
      handle_window(event.window);
      break;
    case SDL_MOUSEBUTTONDOWN:
    case SDL_MOUSEBUTTONUP:
    case SDL_MOUSEMOTION:
      handle_mouse(event);
      break;
    case SDL_MOUSEWHEEL:
      handle_wheel(event.wheel);
      break;
    case SDL_FINGERDOWN:
    case SDL_FINGERUP:
    case SDL_FINGERMOTION:
      handle_finger(event);
      break;
    case SDL_TEXTINPUT:
      take_text(event.text.text);
      break;
    case SDL_TEXTEDITING:
      input_.compose(event.edit.text, event.edit.start);
      break;
    case SDL_KEYDOWN:
    case SDL_KEYUP:
      if (!take_key(event.key)) keys_.handle(event.key);
      break;
    default:
      break;
  }
}

void Window::handle_drop(const SDL_Event& event) {
  if (event.drop.file) dropped_.emplace_back(event.drop.file);
  SDL_free(event.drop.file);
  if (event.type != SDL_DROPCOMPLETE || dropped_.empty()) return;
  input_.drop(std::exchange(dropped_, {}));
}

void Window::handle_mouse(const SDL_Event& event) {
  const auto box = Letterbox::fit(body_.size(), window_size());
  if (event.type == SDL_MOUSEMOTION) {
    if (event.motion.which == SDL_TOUCH_MOUSEID) return;
    pointers_.moved(kMouseFinger, box.point_at({static_cast<double>(event.motion.x),
                                                static_cast<double>(event.motion.y)}));
    return;
  }
  if (event.button.which == SDL_TOUCH_MOUSEID) return;
  const bool down = event.type == SDL_MOUSEBUTTONDOWN;
  const CGPoint point =
      box.point_at({static_cast<double>(event.button.x), static_cast<double>(event.button.y)});
  if (down && help_) return show_help(false);
  if (event.button.button == SDL_BUTTON_RIGHT && down) pointers_.right_click(point);
  if (event.button.button != SDL_BUTTON_LEFT) return;
  // A drag may leave the window, like a finger that leaves the screen at its edge.
  SDL_CaptureMouse(down ? SDL_TRUE : SDL_FALSE);
  if (down) {
    pointers_.down(kMouseFinger, point, event.button.clicks);
  } else {
    pointers_.up(kMouseFinger, point);
  }
}

void Window::handle_wheel(const SDL_MouseWheelEvent& event) {
  const auto box = Letterbox::fit(body_.size(), window_size());
  const CGPoint point =
      box.point_at({static_cast<double>(event.mouseX), static_cast<double>(event.mouseY)});
  if (!body_.screen().contains(point)) return;
  const auto [by, kind] = wheel_units_.of(event, box.scale);
  input_.wheel({point.x - body_.screen().min_x(), point.y - body_.screen().min_y()}, by, kind);
}

void Window::handle_finger(const SDL_Event& event) {
  const CGSize size = window_size();
  const auto box = Letterbox::fit(body_.size(), size);
  const CGPoint point = box.point_at({event.tfinger.x * size.width, event.tfinger.y * size.height});
  const TouchPhase phase = event.type == SDL_FINGERDOWN ? TouchPhase::Began
                           : event.type == SDL_FINGERUP ? TouchPhase::Ended
                                                        : TouchPhase::Moved;
  const auto finger = fingers_.number_of(event.tfinger.fingerId, phase);
  if (!finger) return;
  if (phase == TouchPhase::Began) pointers_.down(*finger, point);
  if (phase == TouchPhase::Moved) pointers_.moved(*finger, point);
  if (phase == TouchPhase::Ended) pointers_.up(*finger, point);
}

}  // namespace host::screen
