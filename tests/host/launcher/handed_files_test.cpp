#include "host/launcher/handed_files.h"

#include <gmock/gmock.h>

#include <fstream>

#include "tests/host/launcher/temporary_folder.h"

namespace {

using namespace host::launcher;
using testing::ElementsAre;
using testing::IsEmpty;

TEST(HandedFiles, ArriveOnceInTheirOrder) {
  const TemporaryFolder folder;
  ASSERT_TRUE(hand_over(folder.path(), {"/music/b.flac", "/music/line\nfeed.mp3", "/caf\xe9"}));
  ASSERT_TRUE(hand_over(folder.path(), {"/music/a.flac"}));
  EXPECT_THAT(take_handed_files(folder.path()),
              ElementsAre("/music/b.flac", "/music/line\nfeed.mp3", "/caf\xe9", "/music/a.flac"));
  EXPECT_THAT(take_handed_files(folder.path()), IsEmpty());
}

TEST(HandedFiles, LeaveTheOtherFilesOfTheFolder) {
  const TemporaryFolder folder;
  std::ofstream(folder.path() / "control") << "a socket";
  std::ofstream(folder.path() / ".play-1") << "/unfinished";
  EXPECT_THAT(take_handed_files(folder.path()), IsEmpty());
  EXPECT_TRUE(std::filesystem::exists(folder.path() / "control"));
}

TEST(HandedFiles, NeedAFolder) {
  EXPECT_FALSE(hand_over("/nowhere", {"/music/a.flac"}));
  EXPECT_FALSE(hand_over("", {"/music/a.flac"}));
  EXPECT_THAT(take_handed_files("/nowhere"), IsEmpty());
}

}  // namespace
