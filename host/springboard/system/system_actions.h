#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace host::springboard {

// What somebody outside the screen can do to the home screen. Each goes the way the buttons and the
// fingers go, by messages, so that whoever replaced a method hears of it. Those that name an
// application by its identifier are false, and change nothing, when they cannot be done.

/// A phone whose display is off is woken by any of these, and nothing more happens.
void press_home();
void double_press_home();
/// Two touches of the Home button that do not press it: they bring the screen down, or let it go,
/// and do not wake it. False where the device cannot.
bool double_touch_home();
void press_lock();
enum class VolumeButton { kUp, kDown };
void press_volume(VolumeButton button);
void set_editing(bool editing);

bool open(std::string_view bundle);
bool uninstall(std::string_view bundle);

/// Into the first folder with room; with none, into a new one with a neighbour.
bool move_to_folder(std::string_view bundle);
bool move_out_of_folder(std::string_view bundle);
/// False when the dock is full.
bool move_to_dock(std::string_view bundle);
/// Behind the last icon of the first page.
bool move_out_of_dock(std::string_view bundle);

void present_banner(std::string_view text);
void present_notification_centre();
void present_control_centre();
/// Pulls the screen down, or lets it go again; false where the device cannot.
bool toggle_reachability();
void lock();
void unlock();

// The physical keyboard while an application with a program is in front. True when the
// application is to have what was typed: no view of the home screen's own takes it.
bool type_into_application(const std::string& text);
bool compose_in_application(const std::string& text, int caret);
bool press_key_in_application(const std::string& name);

/// The answer of the application's process with this program to a console's line; nothing when it
/// does not run, or not any more.
std::optional<std::string> ask_application(const std::string& program, const std::string& line);
bool is_application_running(const std::string& program);
/// Ends the process of an application as a lack of memory would; false when it has none.
bool kill_application(std::string_view bundle);

/// What the user sees, whatever hangs over it.
enum class Shown { HomeScreen, LockScreen, Application };
Shown shown_now();

}  // namespace host::springboard
