#include "host/files/aside.h"

#include <gmock/gmock.h>

#include "tests/host/launcher/temporary_folder.h"

namespace {

using namespace host::files;
using testing::ElementsAre;
namespace fs = std::filesystem;

class Asides : public testing::Test {
 protected:
  Asides() : path(place.path() / "list") { write_file(path, "one"); }

  TemporaryFolder place;
  fs::path path;
};

TEST_F(Asides, AreNumberedFromTheSecondOn) {
  EXPECT_EQ(set_aside(path, "damaged").path, path.string() + ".damaged");
  EXPECT_FALSE(fs::exists(path));
  write_file(path, "two");
  const Aside second = set_aside(path, "damaged");
  EXPECT_EQ(second.path, path.string() + ".damaged-2");
  EXPECT_THAT(lines_of(second.path), ElementsAre("two"));
  EXPECT_THAT(lines_of(path.string() + ".damaged"), ElementsAre("one"));
}

TEST_F(Asides, OfAMissingFileAreErrors) {
  fs::remove(path);
  EXPECT_EQ(set_aside(path, "damaged").error, std::errc::no_such_file_or_directory);
  EXPECT_EQ(keep_beside(path, "old").error, std::errc::no_such_file_or_directory);
}

TEST_F(Asides, MayKeepTheFileInItsPlace) {
  const Aside kept = keep_beside(path, "old");
  EXPECT_TRUE(fs::equivalent(kept.path, path));
  put_back(kept, path);
  EXPECT_FALSE(fs::exists(kept.path));
  EXPECT_THAT(lines_of(path), ElementsAre("one"));
}

TEST_F(Asides, GoBackToAnEmptyPlace) {
  const Aside moved = set_aside(path, "old");
  put_back(moved, path);
  EXPECT_FALSE(fs::exists(moved.path));
  EXPECT_THAT(lines_of(path), ElementsAre("one"));
}

}  // namespace
