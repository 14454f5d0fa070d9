#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include <filesystem>
#include <functional>
#include <string>
#include <vector>

#include "tests/support/media_fixtures.h"
#include "tests/support/running_phone.h"
#include "tests/support/variable.h"

namespace launcher_e2e {

namespace fs = std::filesystem;

/// A new device and a folder with one song, for one test.
class PhoneTest : public testing::Test {
 protected:
  using Arguments = std::vector<std::string>;

  PhoneTest() {
    fs::create_directories(music());
    media_tests::write_tone(music() / "tone.flac");
    // Sockets that a killed device leaves behind are removed with the folder.
    setenv("XDG_RUNTIME_DIR", folder_.path().c_str(), 1);
  }
  ~PhoneTest() override { unsetenv("XDG_RUNTIME_DIR"); }

  fs::path folder() const { return folder_.path(); }
  fs::path root() const { return folder() / "root"; }
  fs::path music() const { return folder() / "music"; }
  fs::path libraries() const { return root() / "Library/MobileSubstrate/DynamicLibraries"; }
  fs::path preferences() const {
    return root() / "var/mobile/Library/Preferences/org.plumvane.SonavueSettings.plist";
  }

  Arguments headless(const Arguments& more = {}) const {
    Arguments made = {"--headless", "--root", root(), "--music", music()};
    made.insert(made.end(), more.begin(), more.end());
    return made;
  }

  /// Waits for a condition, up to a deadline.
  static bool comes_true(const std::function<bool()>& condition) {
    constexpr int kTries = 400;
    constexpr int kPause = 50'000;  // microseconds
    for (int i = 0; i < kTries && !condition(); ++i)
      usleep(kPause);
    return condition();
  }

  /// Installs an extension of the home screen; a version that is there is replaced.
  void install(const std::string& name, const fs::path& library) const {
    fs::create_directories(libraries());
    fs::copy_file(library, libraries() / (name + ".so"), fs::copy_options::overwrite_existing);
    media_tests::write_bytes(libraries() / (name + ".plist"),
                             "{ Filter = { Bundles = (\"com.apple.springboard\"); }; }\n");
  }

  /// Enables opening the panel by dragging the icon, as users do in the settings of a new phone.
  void switch_drag_on() const {
    fs::create_directories(preferences().parent_path());
    media_tests::write_bytes(
        preferences(),
        "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
        "<plist version=\"1.0\"><dict><key>enable</key><true/></dict></plist>");
  }

  /// Runs the device once and switches it off normally.
  void run_once() {
    RunningPhone phone(headless({"--console"}));
    ASSERT_EQ(phone.ask("quit"), "ok");
    ASSERT_EQ(phone.wait_for_end(), 0);
  }

 private:
  media_tests::TemporaryFolder folder_;
  // A phone with a window would appear on the desktop of who runs the tests.
  host::test::Variable no_session_bus_{"DBUS_SESSION_BUS_ADDRESS", "unix:path=/nowhere/bus"};
  host::test::Variable no_system_bus_{"DBUS_SYSTEM_BUS_ADDRESS", "unix:path=/nowhere/bus"};
};

}  // namespace launcher_e2e
