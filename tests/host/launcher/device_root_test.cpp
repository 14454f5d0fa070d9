#include "host/launcher/device_root.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include "tests/host/launcher/temporary_folder.h"
#include "tests/support/full_disk.h"

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

TEST_F(FirstFiles, AreOptionalInABuild) {
  fs::remove_all(first_files());
  EXPECT_EQ(lay(), std::nullopt);
}

}  // namespace
