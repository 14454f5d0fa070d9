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

/// Puts some short songs on a new device, in the folder `kSongs` of it.
void put_songs_on(const std::string& device);
/// A folder of the device.
inline constexpr const char* kSongs = "/var/mobile/Media/Songs";

/// A new phone that is used by lines of its console. It remembers those that it took: played again
/// on another new phone they do the same.
class UsedPhone {
 public:
  /// One that draws every frame takes long.
  explicit UsedPhone(bool is_drawn);

  /// The console's answer. A line that is refused changes nothing and is not remembered.
  std::string say(const std::string& line);
  void wait(double seconds);
  /// Asks what changes nothing.
  std::string ask(const std::string& line);

  const std::vector<std::string>& lines() const { return lines_; }
  /// Of the phone's own clock.
  double seconds() const { return seconds_; }
  /// The fingers that are on the screen, and the buttons that are held.
  const std::set<std::string>& fingers() const { return fingers_; }
  const std::set<std::string>& buttons() const { return buttons_; }

  /// What went wrong with a process since this was asked last, as the error stream tells; empty
  /// when nothing did.
  std::string fault();
  const std::string& errors() const { return phone_.errors(); }
  /// Of the home screen's process, in MB; nothing while it is restarting.
  std::optional<double> memory();
  /// Prints every line from now on.
  void say_aloud() { aloud_ = true; }

 private:
  void note(const std::string& line);

  media_tests::TemporaryFolder folder_;
  launcher_e2e::RunningPhone phone_;
  std::vector<std::string> lines_;
  std::set<std::string> fingers_;
  std::set<std::string> buttons_;
  double seconds_ = 0;
  std::size_t errors_read_ = 0;
  pid_t process_ = 0;
  bool aloud_ = false;
};

}  // namespace random_use
