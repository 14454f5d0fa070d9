#include "host/foundation/atomic_write.h"

#include <gmock/gmock.h>
#include <sys/stat.h>

#include <filesystem>
#include <fstream>
#include <iterator>

#include "platform/Foundation/NSData.h"
#include "tests/support/host_test.h"

namespace {

namespace fs = std::filesystem;
using host::foundation::staged_beside;
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

  fs::path folder;
  std::string path;
};

TEST_F(AtomicWrites, ANewFileHasDefaultPermissionsAndLeavesNoOther) {
  const mode_t mask = umask(027);
  EXPECT_TRUE(write_atomically(path, "one"));
  umask(mask);
  EXPECT_EQ(content(), "one");
  EXPECT_EQ(permissions(), 0640u);
  EXPECT_THAT(names(), testing::ElementsAre("settings.plist"));
}

TEST_F(AtomicWrites, AReplacedFileKeepsItsPermissions) {
  ASSERT_TRUE(write_atomically(path, "a longer one"));
  ASSERT_EQ(chmod(path.c_str(), 0606), 0);
  std::ifstream reader(path);
  EXPECT_TRUE(write_atomically(path, "two"));
  EXPECT_EQ(content(), "two");
  EXPECT_EQ(permissions(), 0606u);
  // A reader of the old file can read it to its end.
  EXPECT_EQ(std::string(std::istreambuf_iterator<char>(reader), {}), "a longer one");
}

TEST_F(AtomicWrites, AFileLeftByAKilledProcessIsRemoved) {
  std::ofstream(staged_beside(path)) << "left";
  EXPECT_TRUE(write_atomically(path, "mine"));
  EXPECT_EQ(content(), "mine");
  EXPECT_THAT(names(), testing::ElementsAre("settings.plist"));
}

TEST_F(AtomicWrites, NothingIsWrittenWithoutAFolderOrOverAFolder) {
  EXPECT_FALSE(write_atomically((folder / "none/settings.plist").string(), "lost"));
  fs::create_directory(path);
  EXPECT_FALSE(write_atomically(path, "lost"));
  EXPECT_THAT(names(), testing::ElementsAre("settings.plist"));
}

TEST_F(AtomicWrites, DataIsWrittenAtomically) {
  std::ofstream(staged_beside(path)) << "left";
  const NSString name = NSString::stringWithUTF8String(path.c_str());
  EXPECT_TRUE(NSData::dataWithBytes("abc", 3).writeToFile(name, YES));
  EXPECT_EQ(content(), "abc");
  EXPECT_THAT(names(), testing::ElementsAre("settings.plist"));
  EXPECT_TRUE(NSData::dataWithBytes("", 0).writeToFile(name, YES));
  EXPECT_EQ(content(), "");
  EXPECT_FALSE(NSData::dataWithBytes("abc", 3).writeToFile(
      NSString::stringWithUTF8String((folder / "none/x").c_str()), YES));
}

}  // namespace
