#include "host/desktop/now_playing/cover_files.h"

#include <gmock/gmock.h>

#include <filesystem>

#include "tests/support/caught_log.h"
#include "tests/support/host_test.h"
#include "tests/support/media_fixtures.h"
#include "tests/support/private_bus.h"
#include "tests/support/told_user.h"

namespace {

namespace fs = std::filesystem;

using host::desktop::CoverFiles;
using host::media::CoverFile;
using host::test::run_until;
using testing::HasSubstr;

class ACoverFile : public host::test::HostTest {
 protected:
  CoverFile cover(std::uint64_t key, int width = 8, int height = 8) const {
    const std::string path = folder_ / (std::to_string(key) + ".jpg");
    media_tests::write_bytes(
        path, media_tests::as_text(media_tests::jpeg_picture(width, height, 0x00ff00)));
    return {key, path, CoverFile::Home::own_file};
  }
  std::string made() const { return folder_ / "made"; }

  /// Returns the file's path when the cover is ready; empty when there is none.
  std::string file_of(CoverFiles& covers, const CoverFile& wanted) {
    covers.file_of(wanted);
    EXPECT_TRUE(run_until(loop, [&] { return !covers.is_coming(wanted); }));
    return covers.file_of(wanted).value_or("");
  }

  media_tests::TemporaryFolder folder_;
  host::test::CaughtLog log_;
};

TEST_F(ACoverFile, IsMadeInTheBackgroundAndScaledDown) {
  CoverFiles covers(loop, made());
  int calls = 0;
  covers.on_ready = [&] { ++calls; };
  const CoverFile large = cover(1, 2000, 1000);
  EXPECT_FALSE(covers.file_of(large)) << "nothing waits for it";
  const std::string path = file_of(covers, large);
  EXPECT_EQ(calls, 1);
  const auto header = host::media::read_picture_file_header(path);
  EXPECT_EQ(header.width, CoverFiles::kLongestSide);
  EXPECT_EQ(header.height, CoverFiles::kLongestSide / 2);
}

TEST_F(ACoverFile, IsMadeAgainWhenItHasGone) {
  CoverFiles covers(loop, made());
  const CoverFile wanted = cover(1);
  const std::string path = file_of(covers, wanted);
  ASSERT_TRUE(fs::remove(path));
  EXPECT_EQ(file_of(covers, wanted), path);
  EXPECT_TRUE(fs::exists(path));
}

TEST_F(ACoverFile, IsNotMadeOfWhatIsNoPicture) {
  CoverFiles covers(loop, made());
  media_tests::write_bytes(folder_ / "x.jpg", "not a picture");
  const CoverFile broken{5, folder_ / "x.jpg", CoverFile::Home::own_file};
  EXPECT_EQ(file_of(covers, broken), "");
  EXPECT_FALSE(covers.is_coming(broken)) << "it is not tried again";
  const CoverFile none;
  EXPECT_EQ(file_of(covers, none), "");
  EXPECT_EQ(log_.text(), "");
}

TEST_F(ACoverFile, IsOneOfTheLatest) {
  CoverFiles covers(loop, made());
  std::string last;
  for (std::uint64_t key = 1; key <= CoverFiles::kMostFiles + 5; ++key)
    last = file_of(covers, cover(key));
  const auto count = std::distance(fs::directory_iterator(made()), fs::directory_iterator());
  EXPECT_EQ(count, CoverFiles::kMostFiles);
  EXPECT_TRUE(fs::exists(last));
}

TEST_F(ACoverFile, ThatCannotBeWrittenIsSaidOnce) {
  media_tests::write_bytes(made(), "a file in the folder's place");
  const host::test::ToldUser user;
  CoverFiles covers(loop, made());
  EXPECT_EQ(file_of(covers, cover(1)), "");
  EXPECT_EQ(file_of(covers, cover(2)), "");
  EXPECT_THAT(user.words(), testing::ElementsAre(host::kDiskWarning));
  const std::string said = log_.take();
  EXPECT_THAT(said, HasSubstr("covers cannot be written to " + made()));
  EXPECT_EQ(std::ranges::count(said, '\n'), 1);
}

}  // namespace
