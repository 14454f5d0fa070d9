#include "host/foundation/atomic_write.h"

#include <gmock/gmock.h>
#include <sys/stat.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <thread>

#include "host/files/new_file.h"
#include "host/foundation/background_file.h"
#include "platform/Foundation/NSData.h"
#include "platform/Foundation/NSDictionary.h"
#include "tests/support/full_disk.h"
#include "tests/support/host_test.h"
#include "tests/support/no_descriptors.h"
#include "tests/support/ordinary_user.h"
#include "tests/support/told_user.h"

namespace {

namespace fs = std::filesystem;
using host::foundation::write_atomically;

class AtomicWrites : public host::test::HostTest {
 protected:
  AtomicWrites() {
    std::string pattern = (fs::temp_directory_path() / "atomic-XXXXXX").string();
    folder = mkdtemp(pattern.data());
    path = (folder / "settings.plist").string();
  }
  ~AtomicWrites() override { fs::remove_all(folder); }

  std::string content() const {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
  }
  std::vector<std::string> names() const {
    std::vector<std::string> all;
    for (const auto& entry : fs::directory_iterator(folder))
      all.push_back(entry.path().filename().string());
    return all;
  }
  mode_t permissions() const {
    struct stat status {};
    stat(path.c_str(), &status);
    return status.st_mode & 0777;
  }

  std::string staged() const { return folder / host::files::staged_name("settings.plist"); }

  fs::path folder;
  std::string path;
};

TEST_F(AtomicWrites, ANewFileHasDefaultPermissionsAndLeavesNoOther) {
  const mode_t mask = umask(027);
  EXPECT_FALSE(write_atomically(path, "one"));
  umask(mask);
  EXPECT_EQ(content(), "one");
  EXPECT_EQ(permissions(), 0640u);
  EXPECT_THAT(names(), testing::ElementsAre("settings.plist"));
}

TEST_F(AtomicWrites, TheUserIsToldOfAFullDiskAndOfNoOtherFailure) {
  const host::test::ToldUser user;
  EXPECT_TRUE(write_atomically(folder / "missing/settings.plist", "one"));
  EXPECT_TRUE(write_atomically(folder, "one"));
  EXPECT_THAT(user.words(), testing::IsEmpty());
  {
    const FullDisk full(1);
    EXPECT_TRUE(write_atomically(path, "two"));
    EXPECT_TRUE(write_atomically(path, "three"));
  }
  EXPECT_THAT(user.words(), testing::ElementsAre(host::kDiskWarning)) << "as often as the log";
  EXPECT_FALSE(write_atomically(path, "four"));
}

TEST_F(AtomicWrites, AReplacedFileKeepsItsPermissions) {
  ASSERT_FALSE(write_atomically(path, "a longer one"));
  ASSERT_EQ(chmod(path.c_str(), 0606), 0);
  std::ifstream reader(path);
  EXPECT_FALSE(write_atomically(path, "two"));
  EXPECT_EQ(content(), "two");
  EXPECT_EQ(permissions(), 0606u);
  // A reader of the old file can read it to its end.
  EXPECT_EQ(std::string(std::istreambuf_iterator<char>(reader), {}), "a longer one");
}

TEST_F(AtomicWrites, AFileLeftByAKilledProcessIsRemoved) {
  std::ofstream(staged()) << "left";
  EXPECT_FALSE(write_atomically(path, "mine"));
  EXPECT_EQ(content(), "mine");
  EXPECT_THAT(names(), testing::ElementsAre("settings.plist"));
}

TEST_F(AtomicWrites, NothingIsWrittenWithoutAFolderOrOverAFolder) {
  EXPECT_TRUE(write_atomically((folder / "none/settings.plist").string(), "lost"));
  fs::create_directory(path);
  EXPECT_TRUE(write_atomically(path, "lost"));
  EXPECT_THAT(names(), testing::ElementsAre("settings.plist"));
}

TEST_F(AtomicWrites, DataIsWrittenAtomically) {
  std::ofstream(staged()) << "left";
  const NSString name = NSString::stringWithUTF8String(path.c_str());
  EXPECT_TRUE(NSData::dataWithBytes("abc", 3).writeToFile(name, YES));
  EXPECT_EQ(content(), "abc");
  EXPECT_THAT(names(), testing::ElementsAre("settings.plist"));
  EXPECT_TRUE(NSData::dataWithBytes("", 0).writeToFile(name, YES));
  EXPECT_EQ(content(), "");
  EXPECT_FALSE(NSData::dataWithBytes("abc", 3).writeToFile(
      NSString::stringWithUTF8String((folder / "none/x").c_str()), YES));
}

using LinkedFiles = AtomicWrites;

TEST_F(LinkedFiles, StayLinks) {
  fs::create_directory(folder / "kept");
  std::ofstream(folder / "kept/real") << "one";
  fs::create_symlink("kept/real", path);
  EXPECT_FALSE(write_atomically(path, "two"));
  EXPECT_TRUE(fs::is_symlink(path));
  EXPECT_EQ(content(), "two");
  EXPECT_EQ(fs::read_symlink(path), "kept/real");
}

TEST_F(LinkedFiles, AreFollowedThroughAChainToAMissingFile) {
  fs::create_directory(folder / "kept");
  fs::create_symlink("kept/second", path);
  fs::create_symlink(folder / "kept/real", folder / "kept/second");
  EXPECT_FALSE(write_atomically(path, "new"));
  EXPECT_TRUE(fs::is_symlink(path));
  EXPECT_TRUE(fs::is_symlink(folder / "kept/second"));
  EXPECT_TRUE(fs::is_regular_file(fs::symlink_status(folder / "kept/real")));
  EXPECT_EQ(content(), "new");
}

TEST_F(LinkedFiles, ThatLeadNowhereAreErrors) {
  fs::create_symlink("other", path);
  fs::create_symlink("settings.plist", folder / "other");
  const NSString name = NSString::stringWithUTF8String(path.c_str());
  EXPECT_FALSE(NSData::dataWithBytes("abc", 3).writeToFile(name, YES));
  EXPECT_TRUE(fs::is_symlink(path));
  fs::remove(folder / "other");
  fs::create_symlink("missing/folder", folder / "other");
  EXPECT_FALSE(NSData::dataWithBytes("abc", 3).writeToFile(name, YES));
  EXPECT_TRUE(fs::is_symlink(path));
}

class UnreadableFiles : public AtomicWrites {
 protected:
  UnreadableFiles() {
    std::ofstream(path) << "precious";
    chmod(path.c_str(), 0);
  }
  static std::string bytes_of(const fs::path& file) {
    std::ifstream stream(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
  }
  OrdinaryUser user_;
};

TEST_F(UnreadableFiles, AreKeptBesideTheirReplacement) {
  EXPECT_FALSE(write_atomically(path, "new"));
  EXPECT_EQ(content(), "new");
  EXPECT_EQ(permissions(), 0600u);
  const fs::path kept = path + ".unreadable";
  chmod(kept.c_str(), 0600);
  EXPECT_EQ(bytes_of(kept), "precious");
}

TEST_F(UnreadableFiles, NeverReplaceAnEarlierOne) {
  std::ofstream(path + ".unreadable") << "earlier";
  EXPECT_FALSE(write_atomically(path, "new"));
  EXPECT_EQ(bytes_of(path + ".unreadable"), "earlier");
  chmod((path + ".unreadable-2").c_str(), 0600);
  EXPECT_EQ(bytes_of(path + ".unreadable-2"), "precious");
}

TEST_F(UnreadableFiles, AreNotKeptWhenTheyAreNotReplaced) {
  chmod(folder.c_str(), 0500);
  EXPECT_TRUE(write_atomically(path, "new"));
  chmod(folder.c_str(), 0700);
  EXPECT_THAT(names(), testing::ElementsAre("settings.plist"));
  EXPECT_EQ(permissions(), 0u);
}

TEST_F(AtomicWrites, ReplaceNothingWithoutDescriptors) {
  std::ofstream(path) << "one";
  const NSString name = NSString::stringWithUTF8String(path.c_str());
  {
    const NoDescriptors none;
    EXPECT_FALSE(NSData::dataWithBytes("two", 3).writeToFile(name, YES));
  }
  EXPECT_EQ(content(), "one");
  EXPECT_THAT(names(), testing::ElementsAre("settings.plist"));
}

TEST_F(AtomicWrites, KeepWhatCouldNotBeReadBefore) {
  std::ofstream(path) << "{ key = value; }";
  const NSString name = NSString::stringWithUTF8String(path.c_str());
  {
    const NoDescriptors none;
    EXPECT_FALSE(NSDictionary::dictionaryWithContentsOfFile(name));
  }
  EXPECT_TRUE(NSData::dataWithBytes("two", 3).writeToFile(name, YES));
  EXPECT_TRUE(NSData::dataWithBytes("three", 5).writeToFile(name, YES));
  EXPECT_EQ(content(), "three");
  EXPECT_THAT(names(),
              testing::UnorderedElementsAre("settings.plist", "settings.plist.unreadable"));
  EXPECT_TRUE(NSDictionary::dictionaryWithContentsOfFile(
      NSString::stringWithUTF8String((path + ".unreadable").c_str())));
}

using host::foundation::BackgroundFile;

TEST_F(AtomicWrites, InTheBackgroundTheLatestBytesAreOnTheDiskAtTheEnd) {
  {
    BackgroundFile file(path, BackgroundFile::Pace::kNeverWaits);
    for (int i = 0; i < 50; ++i)
      file.write(std::to_string(i));
  }
  EXPECT_EQ(content(), "49");
  EXPECT_THAT(names(), testing::ElementsAre("settings.plist"));
}

TEST_F(AtomicWrites, AFileInTheBackgroundTellsWhetherTheLatestAttemptFailed) {
  BackgroundFile file((folder / "missing" / "file").string(), BackgroundFile::Pace::kNeverWaits);
  EXPECT_TRUE(file.is_writable());
  file.write("one");
  while (file.is_writable())
    std::this_thread::yield();
  fs::create_directories(folder / "missing");
  file.write("two");
  while (!file.is_writable())
    std::this_thread::yield();
  EXPECT_TRUE(fs::exists(folder / "missing" / "file"));
}

TEST_F(AtomicWrites, AFileThatWaitsIsWrittenAtOnce) {
  BackgroundFile file(path, BackgroundFile::Pace::kWaits);
  file.write("one");
  EXPECT_EQ(content(), "one");
  file.write("two");
  EXPECT_EQ(content(), "two");
}

}  // namespace
