#pragma once

#include <sys/types.h>

#include <string>
#include <vector>

namespace launcher_e2e {

/// A display of its own with a window manager, and the hands of its user. While it exists, the
/// processes that are started open their windows there.
class DesktopDisplay {
 public:
  /// `resources` is what the desktop tells programs, for instance the resolution.
  explicit DesktopDisplay(const std::string& resources = {});
  ~DesktopDisplay();
  DesktopDisplay(const DesktopDisplay&) = delete;
  DesktopDisplay& operator=(const DesktopDisplay&) = delete;

  struct Frame {
    int x = 0;
    int y = 0;
    int width = 0;
    int height = 0;
    friend bool operator==(const Frame&, const Frame&) = default;
  };
  /// Waits for the window of this class and gives it the keyboard.
  bool has_window(const std::string& name);
  Frame frame() const;
  void resize(int width, int height) const;
  void close_window() const;

  /// `across` and `down` are shares of the window's size. Buttons are numbered as X does: 3 is the
  /// right one, 4 to 7 are a wheel's up, down, left and right.
  void point_at(double across, double down) const;
  void click(int button) const;
  void hold(int button) const;
  void let_go(int button) const;
  void press(const std::string& keys) const;

 private:
  std::string user(const std::vector<std::string>& arguments) const;

  pid_t server_ = 0;
  pid_t manager_ = 0;
  std::string window_;
};

}  // namespace launcher_e2e
