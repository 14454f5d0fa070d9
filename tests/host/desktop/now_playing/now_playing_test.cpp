#include <gmock/gmock.h>

#include "tests/support/desktop_fixture.h"

namespace {

using host::desktop::NowPlayingListener;
using host::desktop::PlayerState;
using host::test::run_until;
using testing::ElementsAre;
using testing::IsEmpty;

class WhatIsPlaying : public host::test::DesktopTest, public NowPlayingListener {
 protected:
  WhatIsPlaying() { follow(); }
  ~WhatIsPlaying() override { now_playing.reset(); }

  void listen() {
    now_playing->add_listener(*this);
    told_.clear();
  }
  void player_did_change(const PlayerState& state) override {
    told_.push_back(state.song ? state.song->title : "nothing");
  }
  void player_did_jump(std::int64_t position) override {
    told_.push_back("jump to " + std::to_string(position));
  }

  std::vector<std::string> told_;
};

TEST_F(WhatIsPlaying, IsToldOnceATurn) {
  listen();
  play("Bravo");
  media().changeTrack(1);
  media().changeTrack(1);
  media().setVolume(0.2F);
  EXPECT_THAT(told_, IsEmpty());
  loop.run_ready();
  EXPECT_THAT(told_, ElementsAre("Delta"));
}

TEST_F(WhatIsPlaying, IsToldBeforeTheJumpInIt) {
  listen();
  play("Bravo");
  player().setCurrentPlaybackTime(3);
  loop.run_ready();
  EXPECT_THAT(told_, ElementsAre("Bravo", "jump to 3000000"));
}

TEST_F(WhatIsPlaying, WhatChangesBackIsNotTold) {
  play("Bravo");
  loop.run_ready();
  listen();
  player().pause();
  player().play();
  loop.run_ready();
  EXPECT_THAT(told_, IsEmpty());
}

TEST_F(WhatIsPlaying, HasACoverLater) {
  listen();
  play("Alpha");
  now_playing->tell();
  EXPECT_TRUE(now_playing->state().awaits_cover);
  settle();
  EXPECT_THAT(told_, ElementsAre("Alpha", "Alpha"));
  EXPECT_THAT(now_playing->state().song->cover_address, testing::EndsWith(".jpg"));
}

TEST_F(WhatIsPlaying, HasTheTagsOfTheLatestScan) {
  play("Delta");
  settle();
  now_playing.reset();
  add_song("d.flac", "Delta Blues");
  auto options = this->options();
  options.pace = host::media::PlayerPace::real;
  host::media_player::MediaService::start(options);
  follow();
  ASSERT_EQ(now_playing->state().song->title, "Delta") << "as the scan before has left it";
  listen();
  EXPECT_TRUE(run_until(loop, [this] { return !told_.empty(); }));
  EXPECT_THAT(told_, ElementsAre("Delta Blues"));
}

}  // namespace
