#include "host/launcher/log_file.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include "tests/host/launcher/temporary_folder.h"

namespace {

using namespace host::launcher;
namespace fs = std::filesystem;
using testing::HasSubstr;

class LogFiles : public testing::Test {
 protected:
  fs::path path() const { return folder_.path() / "state/sonavue/sonavue.log"; }
  fs::path previous() const { return path().string() + ".1"; }

  /// Starts a phone in a window that cannot have its root, with this standard error.
  void start_with_errors_to(const std::string& redirection) {
    const std::string line =
        "env SDL_VIDEODRIVER=dummy XDG_STATE_HOME=" + (folder_.path() / "state").string() +
        " " LAUNCHER " --root /dev/null/root " + redirection;
    EXPECT_EQ(WEXITSTATUS(std::system(line.c_str())), 2);
  }

  TemporaryFolder folder_;
};

TEST_F(LogFiles, AreMadeWhenNobodySeesStandardError) {
  start_with_errors_to("2>/dev/null");
  ASSERT_EQ(lines_of(path()).size(), 2u);
  EXPECT_THAT(lines_of(path())[0], HasSubstr("[sonavue] info: starts at 2"));
  EXPECT_THAT(lines_of(path())[1], HasSubstr("/dev/null/root: Not a directory"));
  start_with_errors_to("2>&-");
  EXPECT_EQ(lines_of(path()).size(), 4u);
}

TEST_F(LogFiles, AreNotMadeWhenStandardErrorIsAPipeOrAFile) {
  start_with_errors_to("2>" + (folder_.path() / "errors").string());
  EXPECT_EQ(lines_of(folder_.path() / "errors").size(), 1u);
  start_with_errors_to("2>&1 >/dev/null | cat >/dev/null; exit 2");
  EXPECT_FALSE(fs::exists(path()));
}

TEST_F(LogFiles, BecomeThePreviousOneWhenTheyAreLarge) {
  LogFile log;
  ASSERT_TRUE(log.open(path()));
  const std::string much(LogFile::kLargest, 'x');
  ASSERT_EQ(write(log.descriptor(), much.data(), much.size()), static_cast<ssize_t>(much.size()));
  log.keep_bounded();
  EXPECT_FALSE(fs::exists(previous()));
  ASSERT_EQ(write(log.descriptor(), "y\n", 2), 2);
  log.keep_bounded();
  EXPECT_EQ(fs::file_size(previous()), much.size() + 2);
  ASSERT_EQ(write(log.descriptor(), "z\n", 2), 2);
  EXPECT_EQ(lines_of(path()), std::vector<std::string>{"z"});
}

TEST_F(LogFiles, FollowNoLinkThatLiesInTheirPlace) {
  fs::create_directories(path().parent_path());
  fs::create_symlink(folder_.path() / "elsewhere", path());
  EXPECT_FALSE(LogFile().open(path()));
  EXPECT_FALSE(fs::exists(folder_.path() / "elsewhere"));
}

}  // namespace
