#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "host/uikit/scroll/wheel.h"

namespace host::springboard {

// What can be done to the home screen from outside the screen. Each function sends the same
// messages as the buttons and the fingers, so replaced methods are called. Those that take an
// application's identifier return false and change nothing when they fail.

/// Each of these buttons wakes a phone whose display is off, and then does nothing else.
void press_home();
void double_press_home();
/// Touches the Home button twice without pressing it: moves the screen down or back up, and does
/// not wake it. Returns false when the device does not support it.
bool double_touch_home();
void press_lock();
enum class VolumeButton { kUp, kDown };
void press_volume(VolumeButton button);
void set_editing(bool editing);

bool open(std::string_view bundle);
bool uninstall(std::string_view bundle);

/// Moves the icon into the first folder with room; if there is none, into a new folder together
/// with a neighbour.
bool move_to_folder(std::string_view bundle);
bool move_out_of_folder(std::string_view bundle);
/// Returns false when the dock is full.
bool move_to_dock(std::string_view bundle);
/// Moves the icon behind the last one of the first page.
bool move_out_of_dock(std::string_view bundle);

void present_banner(std::string_view text);
void present_notification_centre();
void present_control_centre();
/// Moves the screen down or back up; returns false when the device does not support it.
bool toggle_reachability();
void lock();
void unlock();

/// Presses a key of the physical keyboard, which goes to the text field that has the keyboard.
/// While none has, `space` and the arrows with `control-` are the player's, `escape` does what Home
/// does while a window covers the screen and otherwise goes back, `control-f` searches, and `tab`,
/// the arrows and `return` are the focus's. The keys `media-play`, `-next`, `-previous` and `-stop`
/// are always the player's. Returns false when there is nothing to do; what an application does is
/// not known.
bool press_key(const std::string& name);
/// Returns where typed text goes; nothing while no field takes text in the process in front.
std::optional<CGRect> caret_on_screen();
/// Ends the keyboard's focus, here and in the application in front: its user has turned to the
/// mouse.
void end_focus();
/// Does what holding the icon at this point of the screen does; returns false where no icon is.
bool hold_icon_at(CGPoint point);

/// Turns the desktop's wheel over a point of the screen, in whichever process has it. Returns false
/// when nothing of the home screen moves; what an application does is not known.
bool turn_wheel_over(CGPoint point, CGPoint by, uikit::WheelKind kind);

// The physical keyboard while an application with a program is in front. Each returns true when the
// input went to the application, because no view of the home screen itself is taking text.
bool type_into_application(const std::string& text);
bool compose_in_application(const std::string& text, int caret);
bool press_key_in_application(const std::string& name);

/// Sends a console line to the application process with this program and returns its answer;
/// nothing when the process does not run, or ends before it answers.
std::optional<std::string> ask_application(const std::string& program, const std::string& line);
bool is_application_running(const std::string& program);
/// Ends the process of an application the way a lack of memory would; returns false when it has
/// none.
bool kill_application(std::string_view bundle);

/// Call when the screen has got another number of pixels: the applications draw for it.
void adopt_screen_density();

/// What the user sees below any surface that covers it.
enum class Shown { HomeScreen, LockScreen, Application };
Shown shown_now();

}  // namespace host::springboard
