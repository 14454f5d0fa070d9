#include "host/files/read_file.h"

#include <gmock/gmock.h>
#include <sys/stat.h>

#include "tests/host/launcher/temporary_folder.h"
#include "tests/support/no_descriptors.h"
#include "tests/support/ordinary_user.h"

namespace {

using namespace host::files;
namespace fs = std::filesystem;

class ReadFiles : public testing::Test {
 protected:
  ReadFiles() : path(place.path() / "list") { write_file(path, text); }

  TemporaryFolder place;
  fs::path path;
  const std::string text = std::string(100'000, 'x') + "end";
};

TEST_F(ReadFiles, AreReadWhole) {
  EXPECT_EQ(read_file(path).bytes, text);
  EXPECT_FALSE(error_of_reading(path));
  EXPECT_EQ(read_file(path, text.size()).bytes, text);
  EXPECT_EQ(read_file(path, text.size() - 1).error, std::errc::file_too_large);
}

TEST_F(ReadFiles, AreMissingWithoutOneOfTheirFolders) {
  EXPECT_TRUE(is_missing(read_file(place.path() / "none").error));
  EXPECT_TRUE(is_missing(read_file(place.path() / "none/list").error));
  EXPECT_TRUE(is_missing(read_file(path / "list").error));
  EXPECT_FALSE(is_missing(read_file(path).error));
}

TEST_F(ReadFiles, AreNeitherFoldersNorPipesNorDevices) {
  const fs::path pipe = place.path() / "pipe";
  ASSERT_EQ(mkfifo(pipe.c_str(), 0600), 0);
  for (const fs::path& other : {place.path(), pipe, fs::path("/dev/zero")})
    EXPECT_TRUE(is_no_file(read_file(other).error)) << other;
}

TEST_F(ReadFiles, TellWhyTheyCannotBeRead) {
  {
    const NoDescriptors none;
    EXPECT_EQ(read_file(path).error, std::errc::too_many_files_open);
    EXPECT_TRUE(is_shortage(error_of_reading(path)));
  }
  fs::permissions(path, fs::perms::none);
  const OrdinaryUser user;
  EXPECT_EQ(read_file(path).error, std::errc::permission_denied);
  EXPECT_FALSE(is_shortage(error_of_reading(path)));
  EXPECT_EQ(read_file("/proc/self/mem").error, std::errc::io_error);
  EXPECT_EQ(error_of_reading("/proc/self/mem"), std::errc::io_error);
}

}  // namespace
