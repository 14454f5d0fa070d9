#include "host/launcher/device_root.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdio>
#include <functional>

#include "tests/host/launcher/temporary_folder.h"
#include "tests/support/full_disk.h"
#include "tests/support/ordinary_user.h"

namespace {

using namespace host::launcher;
namespace fs = std::filesystem;

ino_t file_number(const fs::path& file) {
  struct stat status {};
  EXPECT_EQ(stat(file.c_str(), &status), 0);
  return status.st_ino;
}

class DeviceRoot : public testing::Test {
 protected:
  std::optional<std::string> stage_all(std::vector<std::string> without = {}) {
    return stage({build() / "staging", build() / "applications"}, root(), without);
  }
  void make_application(const std::string& name, const std::string& identifier) {
    write_file(build() / "applications" / (name + ".app") / "Info.plist",
               "<plist><dict><key>CFBundleName</key><string>x</string>"
               "<key>CFBundleIdentifier</key>\n<string>" +
                   identifier + "</string></dict></plist>");
  }
  fs::path build() const { return folder_.path() / "build"; }
  fs::path root() const { return folder_.path() / "root"; }

  TemporaryFolder folder_;
};

TEST_F(DeviceRoot, HasTheFoldersOfEveryDevice) {
  EXPECT_EQ(prepare_device_root(root()), std::nullopt);
  EXPECT_TRUE(fs::is_directory(root() / "var/mobile/Library/Preferences"));
  EXPECT_TRUE(fs::is_directory(root() / "Library/MobileSubstrate/DynamicLibraries"));
  EXPECT_EQ(prepare_device_root(root()), std::nullopt);
}

TEST_F(DeviceRoot, ThatCannotBeMadeIsRefusedWithAReason) {
  write_file(root(), "a file in the way");
  const auto reason = prepare_device_root(root());
  ASSERT_TRUE(reason);
  EXPECT_TRUE(reason->starts_with(root().string()));
}

TEST_F(DeviceRoot, ReceivesTheStagingTree) {
  write_file(build() / "staging/Library/A/b.so", "code");
  make_application("Music", "com.apple.Music");
  EXPECT_EQ(stage_all(), std::nullopt);
  EXPECT_EQ(lines_of(root() / "Library/A/b.so").at(0), "code");
  EXPECT_TRUE(fs::exists(root() / "Applications/Music.app/Info.plist"));
}

TEST_F(DeviceRoot, KeepsFilesThatAreUpToDate) {
  write_file(build() / "staging/a", "one");
  stage_all();
  const auto before = file_number(root() / "a");
  stage_all();
  EXPECT_EQ(file_number(root() / "a"), before);
}

TEST_F(DeviceRoot, ReplacesAChangedFileWhileReadersKeepTheOldOne) {
  write_file(build() / "staging/a", "one");
  stage_all();
  std::ifstream reader(root() / "a");
  write_file(build() / "staging/a", "another");
  stage_all();
  std::string seen;
  std::getline(reader, seen);
  EXPECT_EQ(seen, "one");
  EXPECT_EQ(lines_of(root() / "a").at(0), "another");
}

TEST_F(DeviceRoot, LeavesTheUsersOwnFilesAlone) {
  write_file(build() / "staging/Library/a", "built");
  write_file(root() / "Library/own", "mine");
  stage_all();
  EXPECT_EQ(lines_of(root() / "Library/own").at(0), "mine");
}

TEST_F(DeviceRoot, LosesAnExcludedApplicationAndGetsItBack) {
  make_application("Music", "com.apple.Music");
  make_application("Mail", "com.apple.mobilemail");
  stage_all();
  EXPECT_EQ(stage_all({"com.apple.Music"}), std::nullopt);
  EXPECT_FALSE(fs::exists(root() / "Applications/Music.app"));
  EXPECT_TRUE(fs::exists(root() / "Applications/Mail.app"));
  stage_all();
  EXPECT_TRUE(fs::exists(root() / "Applications/Music.app"));
}

TEST_F(DeviceRoot, NamesTheFileThatCannotBeStaged) {
  write_file(build() / "staging/a/b", "one");
  write_file(root() / "a", "a file where a folder belongs");
  const auto reason = stage_all();
  ASSERT_TRUE(reason);
  EXPECT_TRUE(reason->starts_with((root() / "a").string()));
}

TEST_F(DeviceRoot, IsNotLeftThroughAPlantedLink) {
  write_file(build() / "staging/Library/a", "built");
  write_file(folder_.path() / "victim", "mine");
  fs::create_directories(root() / "Library");
  for (const char* name : {"a", ".a.staging", ".a.staged"})
    fs::create_symlink(folder_.path() / "victim", root() / "Library" / name);
  EXPECT_EQ(stage_all(), std::nullopt);
  EXPECT_EQ(lines_of(folder_.path() / "victim").at(0), "mine");
  EXPECT_EQ(lines_of(root() / "Library/a").at(0), "built");
  EXPECT_FALSE(fs::is_symlink(root() / "Library/a"));
}

TEST_F(DeviceRoot, IsNotLeftThroughALinkedFolder) {
  write_file(build() / "staging/Library/a", "built");
  make_application("Music", "com.apple.Music");
  fs::create_directories(folder_.path() / "elsewhere/Music.app");
  fs::create_directories(root());
  for (const char* name : {"Library", "Applications"}) {
    fs::create_directory_symlink(folder_.path() / "elsewhere", root() / name);
    const auto reason = stage_all({"com.apple.Music"});
    ASSERT_TRUE(reason);
    EXPECT_EQ(*reason, (root() / name).string() + ": a link is in the place of this folder");
    fs::remove(root() / name);
  }
  EXPECT_FALSE(fs::exists(folder_.path() / "elsewhere/a"));
  EXPECT_TRUE(fs::exists(folder_.path() / "elsewhere/Music.app"));
}

TEST_F(DeviceRoot, MayBeALinkItself) {
  write_file(build() / "staging/Library/a", "built");
  fs::create_directories(folder_.path() / "elsewhere");
  fs::create_directory_symlink(folder_.path() / "elsewhere", root());
  EXPECT_EQ(stage_all(), std::nullopt);
  EXPECT_TRUE(fs::exists(folder_.path() / "elsewhere/Library/a"));
}

TEST_F(DeviceRoot, SaysWhichFolderOfTheBuildCannotBeEntered) {
  write_file(build() / "staging/Library/a", "built");
  fs::permissions(build() / "staging/Library", fs::perms::none);
  std::optional<std::string> reason;
  {
    const OrdinaryUser user;
    reason = stage_all();
  }
  fs::permissions(build() / "staging/Library", fs::perms::owner_all);
  EXPECT_EQ(reason.value_or(""), (build() / "staging/Library").string() + ": Permission denied");
}

class FirstFiles : public DeviceRoot {
 protected:
  FirstFiles() {
    write_file(first_files() / "var/a", "first");
    write_file(first_files() / "var/b", "a longer one");
  }
  std::optional<std::string> lay() { return copy_first_files(first_files(), root()); }
  fs::path first_files() const { return build() / "first-files"; }
  std::string text(const std::string& name) const {
    const auto lines = lines_of(root() / "var" / name);
    return lines.empty() ? "" : lines.front();
  }
};

TEST_F(FirstFiles, AreCopiedToAMissingDevice) {
  EXPECT_EQ(lay(), std::nullopt);
  EXPECT_EQ(text("a"), "first");
  EXPECT_EQ(text("b"), "a longer one");
}

TEST_F(FirstFiles, AreCopiedIntoAnEmptyFolder) {
  fs::create_directories(root());
  EXPECT_EQ(lay(), std::nullopt);
  EXPECT_EQ(text("a"), "first");
}

TEST_F(FirstFiles, LeaveNothingElseBehind) {
  lay();
  const std::vector<fs::path> in_root(fs::directory_iterator(root()), {});
  EXPECT_EQ(in_root, std::vector<fs::path>{root() / "var"});
}

TEST_F(FirstFiles, AreNotCopiedToADeviceInUse) {
  prepare_device_root(root());
  EXPECT_EQ(lay(), std::nullopt);
  EXPECT_FALSE(fs::exists(root() / "var/a"));
}

TEST_F(FirstFiles, AreNotCopiedAgainAfterTheUserRemovesThem) {
  lay();
  ASSERT_TRUE(fs::remove(root() / "var/a"));
  EXPECT_EQ(lay(), std::nullopt);
  EXPECT_FALSE(fs::exists(root() / "var/a"));
}

TEST_F(FirstFiles, CompleteAnInterruptedStartWithoutOverwriting) {
  {
    const FullDisk disk(8);
    const auto reason = lay();
    ASSERT_TRUE(reason);
    EXPECT_TRUE(reason->starts_with((root() / "var/b").string())) << *reason;
  }
  EXPECT_FALSE(fs::exists(root() / "var/b"));
  write_file(root() / "var/a", "mine");
  prepare_device_root(root());
  EXPECT_EQ(lay(), std::nullopt);
  EXPECT_EQ(text("a"), "mine");
  EXPECT_EQ(text("b"), "a longer one");
  // Now the device is complete.
  fs::remove(root() / "var/b");
  lay();
  EXPECT_FALSE(fs::exists(root() / "var/b"));
}

TEST_F(FirstFiles, ReportWhyTheDeviceCannotBeMade) {
  write_file(folder_.path() / "root", "");
  const auto reason = lay();
  ASSERT_TRUE(reason);
  EXPECT_TRUE(reason->starts_with(root().string()));
}

/// A start in a process of its own, which waits until the test closes the gate's writing end.
pid_t start_behind(const int (&gate)[2], const std::function<std::optional<std::string>()>& work) {
  const pid_t process = fork();
  if (process != 0) return process;
  close(gate[1]);
  char nothing = 0;
  [[maybe_unused]] const ssize_t opened = read(gate[0], &nothing, 1);
  const auto reason = work();
  if (reason) std::fprintf(stderr, "%s\n", reason->c_str());
  _exit(reason ? 1 : 0);
}

TEST_F(FirstFiles, AreCompleteAfterTwoStartsAtOnce) {
  const std::string text(5000, 'x');
  for (int number = 0; number < 20; ++number)
    write_file(build() / "staging/Library" / std::to_string(number), text);
  for (int round = 0; round < 50; ++round) {
    fs::remove_all(root());
    int gate[2];
    ASSERT_EQ(pipe2(gate, O_CLOEXEC), 0);
    std::vector<pid_t> starts;
    for (int count = 0; count < 2; ++count) {
      starts.push_back(start_behind(gate, [&] {
        auto reason = lay();
        if (!reason) reason = prepare_device_root(root());
        return reason ? reason : stage_all();
      }));
    }
    close(gate[0]);
    close(gate[1]);
    for (const pid_t start : starts) {
      int status = -1;
      ASSERT_EQ(waitpid(start, &status, 0), start);
      EXPECT_EQ(status, 0) << "in round " << round;
    }
    EXPECT_EQ(this->text("a"), "first");
    std::size_t files = 0;
    for (const auto& entry : fs::recursive_directory_iterator(root()))
      files += entry.is_regular_file() ? 1 : 0;
    EXPECT_EQ(files, 22u) << "in round " << round;
    for (int number = 0; number < 20; ++number)
      ASSERT_EQ(fs::file_size(root() / "Library" / std::to_string(number)), text.size());
  }
}

TEST_F(FirstFiles, AreOptionalInABuild) {
  fs::remove_all(first_files());
  EXPECT_EQ(lay(), std::nullopt);
}

}  // namespace
