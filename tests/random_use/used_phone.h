#pragma once

#include <cstddef>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include "tests/support/media_fixtures.h"
#include "tests/support/running_phone.h"

namespace random_use {

/// Puts some short songs on a new device, in its folder `kSongs`.
void put_songs_on(const std::string& device);
/// A folder of the device.
inline constexpr const char* kSongs = "/var/mobile/Media/Songs";

/// A new phone that is used by console lines. It records the lines that it accepted; replayed on
/// another new phone, they have the same effect.
class UsedPhone {
 public:
  /// `is_drawn` makes it draw every frame, which is slow.
  explicit UsedPhone(bool is_drawn);

  std::string device() const { return folder_ / "device"; }
  /// Returns the phone's process that runs this program; 0 if it is not running.
  pid_t child(std::string_view program) const { return phone_.child(program); }
  /// From now on `fault` does not return lines with these words.
  void expect(const std::string& words) { expected_.insert(words); }
  /// Waits until another home screen replaces this process. Its fingers and buttons are gone.
  void has_restarted(pid_t before);

  /// Executes a console line and returns its answer. A rejected line changes nothing and is not
  /// recorded.
  std::string say(const std::string& line);
  void wait(double seconds);
  /// Executes a console line that changes nothing.
  std::string ask(const std::string& line);

  const std::vector<std::string>& lines() const { return lines_; }
  /// The time passed on the phone's own clock.
  double seconds() const { return seconds_; }
  /// The fingers that are on the screen, and the buttons that are held.
  const std::set<std::string>& fingers() const { return fingers_; }
  const std::set<std::string>& buttons() const { return buttons_; }

  /// Returns the failure of a process since the last call, from the error stream; empty when there
  /// was none.
  std::string fault();
  const std::string& errors() const { return phone_.errors(); }
  /// The memory of the home screen's process, in MB; nothing while it is restarting.
  std::optional<double> memory();
  /// Prints every line from now on.
  void print_lines() { prints_lines_ = true; }

 private:
  void note(const std::string& line);

  media_tests::TemporaryFolder folder_;
  launcher_e2e::RunningPhone phone_;
  std::vector<std::string> lines_;
  std::set<std::string> fingers_;
  std::set<std::string> buttons_;
  std::set<std::string> expected_;
  double seconds_ = 0;
  std::size_t errors_read_ = 0;
  pid_t process_ = 0;
  bool prints_lines_ = false;
};

}  // namespace random_use
