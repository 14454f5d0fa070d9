#include "host/media_player/playback.h"

#include <gmock/gmock.h>

#include "host/media_player/exports.h"
#include "host/quartzcore/service/exports.h"
#include "host/uikit/drawing/exports.h"
#include "tests/support/host_test.h"

namespace {

using host::media::make_song_list;
using host::media_player::Playback;
using testing::ElementsAre;
using testing::IsEmpty;

// An engine in real time, whose songs last twenty seconds on the test's clock.
class FakePlayer final : public host::media::Player {
 public:
  FakePlayer(const host::RunLoop& loop, std::vector<std::string>& offers)
      : loop_(loop), offers_(offers) {}

  void set_listener(host::media::PlayerListener* listener) override { listener_ = listener; }
  void load(const std::string&) override { seek(0); }
  void follow_with(const std::string& path) override { offers_.push_back(path); }
  void play() override { is_paused_ = false, seek(at_); }
  void pause() override { at_ = position(), is_paused_ = true; }
  void stop() override { pause(); }
  void seek(double seconds) override { at_ = seconds, since_ = loop_.now(); }
  void set_volume(double) override {}
  void set_replay_gain(host::media::ReplayGain) override {}
  double volume() const override { return 1; }
  double position() const override { return is_paused_ ? at_ : at_ + loop_.now() - since_; }
  double duration() const override { return 20; }
  bool is_paused() const override { return is_paused_; }
  int descriptor() const override { return -1; }
  void pump() override {}
  host::media::EngineState engine() override { return {}; }

  void go_on() {
    seek(0);
    listener_->player_did_continue();
  }
  void lose_device() { listener_->player_did_lose_device(); }

 private:
  const host::RunLoop& loop_;
  std::vector<std::string>& offers_;
  host::media::PlayerListener* listener_ = nullptr;
  double at_ = 0;
  double since_ = 0;
  bool is_paused_ = true;
};

class OfferedSongs : public host::test::HostTest {
 protected:
  OfferedSongs() {
    host::quartzcore::export_quartzcore();
    host::uikit::export_drawing();
    host::media_player::export_media_player();
    host::media_player::export_media_controller();
    auto player = std::make_unique<FakePlayer>(loop, offers);
    engine = player.get();
    playback.emplace(std::move(player), host::media::PlayerPace::real, [](std::uint64_t id) {
      return id == 9 ? host::media::SongFile{{}, "song 9 is out of reach"}
                     : host::media::SongFile{std::to_string(id), {}};
    });
    playback->set_queue(make_song_list({1, 9, 2, 3}));
    playback->play();
  }

  std::vector<std::string> offers;
  FakePlayer* engine = nullptr;
  std::optional<Playback> playback;
};

TEST_F(OfferedSongs, TheNextPlayableSongIsOfferedShortlyBeforeTheEnd) {
  advance(14.9);
  EXPECT_THAT(offers, IsEmpty());
  advance(0.2);
  EXPECT_THAT(offers, ElementsAre("2"));
  advance(4);
  EXPECT_THAT(offers, ElementsAre("2"));
  engine->go_on();
  EXPECT_EQ(playback->song(), 2u);
  advance(14.9);
  EXPECT_THAT(offers, ElementsAre("2"));
  advance(0.2);
  EXPECT_THAT(offers, ElementsAre("2", "3"));
  engine->go_on();
  advance(19);
  EXPECT_THAT(offers, ElementsAre("2", "3")) << "nothing follows the last song";
}

TEST_F(OfferedSongs, AJumpBackTakesTheOfferBack) {
  advance(16);
  playback->seek(3);
  EXPECT_THAT(offers, ElementsAre("2", ""));
  advance(11);
  EXPECT_THAT(offers, ElementsAre("2", ""));
  advance(1.1);
  EXPECT_THAT(offers, ElementsAre("2", "", "2"));
}

TEST_F(OfferedSongs, APauseTakesTheOfferBackUntilTheMusicContinues) {
  advance(16);
  playback->pause();
  EXPECT_THAT(offers, ElementsAre("2", ""));
  advance(100);
  EXPECT_THAT(offers, ElementsAre("2", ""));
  playback->play();
  EXPECT_THAT(offers, ElementsAre("2", "", "2"));
}

TEST_F(OfferedSongs, AnotherQueueOffersItsOwnNextSong) {
  advance(16);
  playback->set_queue(make_song_list({1, 3}));
  EXPECT_THAT(offers, ElementsAre("2", "", "3"));
  playback->set_queue(make_song_list({3, 1}));
  EXPECT_THAT(offers, ElementsAre("2", "", "3", ""));
}

TEST_F(OfferedSongs, ARepeatedSongIsOfferedAgain) {
  playback->set_repeat(host::media::Repeat::one);
  advance(16);
  EXPECT_THAT(offers, ElementsAre("1"));
  int jumps = 0;
  playback->on_jump = [&] { ++jumps; };
  engine->go_on();
  EXPECT_EQ(playback->song(), 1u);
  EXPECT_EQ(jumps, 1);
  advance(16);
  EXPECT_THAT(offers, ElementsAre("1", "1"));
}

TEST_F(OfferedSongs, AnotherModeTakesTheOfferBackForItsOwn) {
  advance(16);
  playback->set_repeat(host::media::Repeat::one);
  EXPECT_THAT(offers, ElementsAre("2", "", "1"));
  playback->set_repeat(host::media::Repeat::all);
  EXPECT_THAT(offers, ElementsAre("2", "", "1", "", "2"));
  playback->set_current(3);
  advance(16);
  EXPECT_EQ(offers.back(), "1") << "the first after the last";
  playback->set_repeat(host::media::Repeat::none);
  EXPECT_EQ(offers.back(), "") << "nothing follows";
  offers.clear();
  playback->set_shuffles(true);
  EXPECT_EQ(offers.size(), 1u) << "the playing song is the first, so another follows";
}

TEST_F(OfferedSongs, ADeviceThatIsLostPauses) {
  engine->lose_device();
  EXPECT_EQ(playback->state(), host::media::PlaybackState::paused);
}

}  // namespace
