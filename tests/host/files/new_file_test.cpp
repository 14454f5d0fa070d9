#include "host/files/new_file.h"

#include <fcntl.h>
#include <gmock/gmock.h>

#include "host/files/folder.h"
#include "tests/host/launcher/temporary_folder.h"

namespace {

using host::Descriptor;
using host::files::NewFile;
using host::files::staged_name;
using testing::ElementsAre;
namespace fs = std::filesystem;

class NewFiles : public testing::Test {
 protected:
  NewFiles() : folder(open(place.path().c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC)) {}

  std::vector<std::string> names() const {
    std::vector<std::string> all;
    std::error_code error;
    for (const fs::path& path : host::files::paths_in(place.path(), error))
      all.push_back(path.filename());
    return all;
  }
  std::vector<std::string> lines(const std::string& name) const {
    return lines_of(place.path() / name);
  }

  TemporaryFolder place;
  Descriptor folder;
};

TEST_F(NewFiles, HaveNoNameUntilTheyAreComplete) {
  NewFile file(folder.get(), 0600);
  EXPECT_FALSE(file.write("one"));
  EXPECT_THAT(names(), ElementsAre());
  EXPECT_FALSE(file.replace("a"));
  EXPECT_THAT(names(), ElementsAre("a"));
  EXPECT_THAT(lines("a"), ElementsAre("one"));
}

TEST_F(NewFiles, LeaveNothingWhenTheyAreGivenUp) {
  { EXPECT_FALSE(NewFile(folder.get(), 0600).write("one")); }
  EXPECT_THAT(names(), ElementsAre());
}

TEST_F(NewFiles, TakeOnlyAFreeName) {
  write_file(place.path() / "a", "mine");
  NewFile file(folder.get(), 0600);
  EXPECT_EQ(file.take_free_name("a"), std::errc::file_exists);
  EXPECT_THAT(lines("a"), ElementsAre("mine"));
  EXPECT_FALSE(file.take_free_name("b"));
  EXPECT_THAT(names(), ElementsAre("a", "b"));
}

TEST_F(NewFiles, FollowNoLinkThatWaitsUnderAName) {
  write_file(place.path() / "victim", "mine");
  for (const std::string& name : {std::string("a"), staged_name("a")})
    fs::create_symlink("victim", place.path() / name);
  NewFile file(folder.get(), 0600);
  EXPECT_FALSE(file.write("one"));
  EXPECT_FALSE(file.replace("a"));
  EXPECT_THAT(lines("victim"), ElementsAre("mine"));
  EXPECT_THAT(lines("a"), ElementsAre("one"));
  EXPECT_THAT(names(), ElementsAre("a", "victim"));
}

TEST_F(NewFiles, AreRefusedInAFolderThatIsGone) {
  fs::remove(place.path());
  // Some file systems make unnamed files there, but none gives them a name.
  NewFile file(folder.get(), 0600);
  EXPECT_TRUE(file.replace("a"));
  EXPECT_TRUE(file.take_free_name("a"));
}

}  // namespace
