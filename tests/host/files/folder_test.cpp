#include "host/files/folder.h"

#include <gmock/gmock.h>

#include "host/files/links.h"
#include "tests/host/launcher/temporary_folder.h"

namespace {

using namespace host::files;
using testing::ElementsAre;
namespace fs = std::filesystem;

TEST(Folders, HaveNamesInOrder) {
  const TemporaryFolder place;
  for (const char* name : {"b", "a", "c"})
    write_file(place.path() / name, "");
  std::error_code error;
  EXPECT_THAT(paths_in(place.path(), error),
              ElementsAre(place.path() / "a", place.path() / "b", place.path() / "c"));
  EXPECT_FALSE(error);
  EXPECT_THAT(paths_in(place.path() / "a", error), ElementsAre());
  EXPECT_EQ(error, std::errc::not_a_directory);
}

TEST(Folders, AndNamesAreThePartsOfAPath) {
  EXPECT_EQ(folder_of("/a/b"), "/a");
  EXPECT_EQ(folder_of("/a"), "/");
  EXPECT_EQ(folder_of("a"), ".");
  EXPECT_EQ(name_of("/a/b"), "b");
  EXPECT_EQ(name_of("a"), "a");
}

TEST(Folders, AreMadeWithThoseAboveThem) {
  const TemporaryFolder place;
  EXPECT_FALSE(make_folders(place.path() / "a/b/c"));
  EXPECT_TRUE(fs::is_directory(place.path() / "a/b/c"));
  EXPECT_FALSE(make_folders(place.path() / "a/b/c"));
  write_file(place.path() / "file", "");
  EXPECT_EQ(make_folders(place.path() / "file/below/it"), std::errc::not_a_directory);
  EXPECT_TRUE(make_folders("/proc/none/at/all"));
}

TEST(Folders, TakeAFreeName) {
  const TemporaryFolder place;
  write_file(place.path() / "making/song", "tone");
  EXPECT_FALSE(move_folder(place.path() / "making", place.path() / "music"));
  EXPECT_THAT(lines_of(place.path() / "music/song"), ElementsAre("tone"));
  write_file(place.path() / "making/song", "another");
  EXPECT_TRUE(move_folder(place.path() / "making", place.path() / "music"));
  EXPECT_THAT(lines_of(place.path() / "music/song"), ElementsAre("tone"));
  EXPECT_EQ(move_folder(place.path() / "none", place.path() / "new"),
            std::errc::no_such_file_or_directory);
}

TEST(Links, AreFollowedToTheirEnd) {
  const TemporaryFolder place;
  const fs::path& folder = place.path();
  fs::create_symlink("second", folder / "first");
  fs::create_symlink(folder / "missing", folder / "second");
  std::string path = folder / "first";
  EXPECT_FALSE(follow_links(path));
  EXPECT_EQ(path, folder / "missing");
  fs::create_symlink("first", folder / "missing");
  path = folder / "first";
  EXPECT_EQ(follow_links(path), std::errc::too_many_symbolic_link_levels);
  EXPECT_EQ(path, folder / "first");
}

}  // namespace
