#pragma once

#include <memory>
#include <string>

#include "host/screen/fingers.h"
#include "host/screen/input.h"
#include "host/screen/letterbox.h"
#include "host/screen/screen.h"

struct SDL_Renderer;
struct SDL_Texture;
struct SDL_Window;
union SDL_Event;

namespace host::screen {

/// A window of the desktop that shows the phone's screen and is its fingers, keys and buttons: the
/// mouse or a touch screen touches, F1 or Home is the Home button, F2 presses it twice, F3 locks,
/// F5 and F6 change the volume, and everything else types.
class Window final : public Screen {
 public:
  /// `screen` is in points, `pixels_a_point` the scale of the phone. Gives nothing, and the reason
  /// in `problem`, when the desktop has no room for a window.
  static std::unique_ptr<Window> open(CGSize screen, double pixels_a_point, Input& input,
                                      std::string& problem);
  ~Window() override;

  void show(const Picture& picture, std::span<const PixelRect> damage) override;

  /// Passes on what the user has done since the last call.
  void handle_events();

  /// The desktop's clipboard, as UTF-8.
  std::string clipboard_text() const;
  void set_clipboard_text(const std::string& text);

  /// Becomes readable when there may be something to handle; -1 where the desktop has no such
  /// descriptor, and events have to be looked for from time to time.
  int event_descriptor() const;

 private:
  Window(CGSize screen, Input& input);
  bool create(double pixels_a_point);
  void handle(const SDL_Event& event);
  void handle_button(const SDL_Event& event);
  void handle_key(const SDL_Event& event);
  void handle_mouse(const SDL_Event& event);
  void handle_finger(const SDL_Event& event);
  void present();
  CGSize window_size() const;

  struct Destroy {
    void operator()(SDL_Window* window) const;
    void operator()(SDL_Renderer* renderer) const;
    void operator()(SDL_Texture* texture) const;
  };

  const CGSize screen_;
  Input& input_;
  std::unique_ptr<SDL_Window, Destroy> window_;
  std::unique_ptr<SDL_Renderer, Destroy> renderer_;
  std::unique_ptr<SDL_Texture, Destroy> texture_;
  Fingers fingers_;
  bool mouse_is_down_ = false;
};

}  // namespace host::screen
