#include "tests/tweak/method_spy.h"
#include "tests/tweak/panel_test.h"

namespace host::test {
namespace {

constexpr const char* kMark = "<key>checked</key><true/>";

class VolumeRing : public PanelTest {
 protected:
  using Moves = MethodSpy<"setProgress:animated:", void(UIView, float, BOOL)>;

  void SetUp() override { use_no_songs(); }

  void launch_with(const std::string& entries) {
    write_preferences(entries + kMark);
    launch();
    moves_.emplace(objc::class_of(view("ring").id()));
  }
  /// Changes the volume; the notification arrives in the next turn of the run loop.
  void change_volume(float volume) {
    media().setVolume(volume);
    ASSERT_EQ(media().volume(), volume);
    advance(RunLoop::kFrame);
  }
  const Moves& moves() const { return *moves_; }

 private:
  std::optional<Moves> moves_;
};

TEST_F(VolumeRing, FollowsTheVolumeIfSet) {
  launch_with("<key>play</key><string>volume</string>");
  for (const float volume : {0.25f, 0.75f, 0.0f}) {
    change_volume(volume);
    ASSERT_GE(moves().count(), 1);
    EXPECT_EQ(moves().last(), (Moves::Call{volume, YES}));
  }
  EXPECT_EQ(moves().count(), 3);
  advance(1);
  EXPECT_EQ(objc::send<float>(view("ring"), "progress"_sel), 0);
}

TEST_F(VolumeRing, FollowsTheVolumeWithoutAFile) {
  launch_with("");
  std::filesystem::remove(preferences_file());
  change_volume(0.25);
  EXPECT_THAT(moves().calls(), ::testing::ElementsAre(Moves::Call{0.25f, YES}));
}

TEST_F(VolumeRing, IgnoresTheVolumeIfItShowsTheTime) {
  launch_with("<key>play</key><string>time</string>");
  change_volume(0.25);
  EXPECT_EQ(moves().count(), 0);
}

TEST_F(VolumeRing, IgnoresTheVolumeIfTheFileLacksTheSetting) {
  launch_with("");
  change_volume(0.25);
  EXPECT_EQ(moves().count(), 0);
}

TEST_F(VolumeRing, TheSystemsOwnHandlerNeverRuns) {
  const MethodSpy<"_systemVolumeChanged:", void(SBMediaController, objc::Object)> system(
      SBMediaController::cls());
  media()._systemVolumeChanged(nil);
  ASSERT_EQ(system.count(), 1);
  launch_with("<key>play</key><string>volume</string>");
  change_volume(0.25);
  write_preferences(std::string("<key>play</key><string>time</string>") + kMark);
  change_volume(0.75);
  EXPECT_EQ(system.count(), 1);
}

}  // namespace
}  // namespace host::test
