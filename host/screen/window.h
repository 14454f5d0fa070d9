#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "host/screen/fingers.h"
#include "host/screen/keys.h"
#include "host/screen/letterbox.h"
#include "host/screen/pointers.h"
#include "host/screen/screen.h"
#include "host/screen/wheel_units.h"
#include "host/screen/window_memory.h"

struct SDL_Rect;
struct SDL_Renderer;
struct SDL_Texture;
struct SDL_Window;
struct SDL_MouseWheelEvent;
struct SDL_WindowEvent;
union SDL_Event;

namespace host::screen {

/// A window on the desktop that shows the phone and provides its fingers, keys and buttons: the
/// mouse or a touch screen touches its screen and presses the buttons around it.
class Window final : public Screen {
 public:
  /// `screen` is in points; `pixels_per_point` is the scale of the phone. Returns null, with the
  /// reason in `problem`, when the desktop cannot show a window. `memory` is the file
  /// that keeps the window's size.
  static std::unique_ptr<Window> open(CGSize screen, double pixels_per_point, Input& input,
                                      std::string& problem, const std::string& memory = {});
  ~Window() override;

  void show(const Picture& picture, std::span<const PixelRect> damage) override;
  bool is_watched() const override { return !minimized_; }
  /// Those of the window, up to the device's: text is as sharp as the window allows. They follow
  /// the window's size when it has settled.
  std::optional<double> pixels_per_point() const override { return pixels_per_point_; }
  bool needs_everything() const override { return !minimized_ && !texture_; }

  /// Gives the desktop a PNG file's picture as the window's icon. One that cannot be read is
  /// ignored.
  void set_icon(const std::string& file);
  /// Brings the window in front of the others of the desktop, even if it was minimized.
  void raise();
  /// True while the user's keyboard belongs to it.
  bool is_in_front() const;

  /// While it sleeps, only the window itself reacts to its user: it can be moved and closed.
  void set_awake(bool is_awake) { is_awake_ = is_awake; }

  /// Forwards the user's actions since the last call to the input.
  void handle_events();

  /// The desktop's clipboard, as UTF-8.
  std::string clipboard_text() const;
  void set_clipboard_text(const std::string& text);

  /// Becomes readable when there may be events to handle; -1 when the desktop has no such
  /// descriptor, and events must be polled.
  int event_descriptor() const;

 private:
  Window(CGSize screen, double pixels_per_point, Input& input, const std::string& memory);
  bool create();
  double fitting_pixels_per_point() const;
  void follow_size();
  /// Where the phone's picture is shown, in pixels of the window.
  SDL_Rect place_of_screen() const;
  void handle_window(const SDL_WindowEvent& event);
  void set_minimized(bool minimized);
  void keep_chosen_size();
  /// Keeps the candidates of input methods beside the text.
  void follow_caret();
  void handle(const SDL_Event& event);
  void handle_mouse(const SDL_Event& event);
  void handle_wheel(const SDL_MouseWheelEvent& event);
  void handle_finger(const SDL_Event& event);
  void handle_drop(const SDL_Event& event);
  /// Keys that act on the window itself. Returns whether this is one.
  bool take_key(const SDL_KeyboardEvent& event);
  void take_text(std::string_view text);
  void fill_display(bool fills);
  void show_help(bool shown);
  void draw_help();
  void present();
  void draw_body();
  CGSize window_size() const;
  CGSize output_size() const;

  struct Destroy {
    void operator()(SDL_Window* window) const;
    void operator()(SDL_Renderer* renderer) const;
    void operator()(SDL_Texture* texture) const;
  };

  const PhoneBody body_;
  const double device_pixels_per_point_;
  double pixels_per_point_;
  Input& input_;
  WindowMemory memory_;
  /// A size outside of full screen that the user has chosen and that is not kept yet, and when, in
  /// milliseconds.
  std::optional<CGSize> chosen_size_;
  std::uint32_t chosen_at_ = 0;
  std::uint32_t resized_at_ = 0;
  bool minimized_ = false;
  std::optional<CGRect> caret_;
  HeldButtons buttons_;
  Keys keys_;
  Pointers pointers_;
  std::unique_ptr<SDL_Window, Destroy> window_;
  std::unique_ptr<SDL_Renderer, Destroy> renderer_;
  std::unique_ptr<SDL_Texture, Destroy> texture_;
  /// In pixels, of the texture's picture.
  CGSize picture_size_;
  std::unique_ptr<SDL_Texture, Destroy> body_texture_;
  /// The size in pixels at which the body was last drawn.
  CGSize body_drawn_;
  /// The list of keys, while it is shown, and the size in pixels for which it was drawn.
  std::unique_ptr<SDL_Texture, Destroy> help_;
  CGSize help_drawn_;
  /// The text of the last key is not typed.
  bool drops_text_ = false;
  Fingers fingers_;
  bool is_awake_ = true;
  std::vector<std::string> dropped_;  // until the drop is complete
  WheelUnits wheel_units_;
};

}  // namespace host::screen
