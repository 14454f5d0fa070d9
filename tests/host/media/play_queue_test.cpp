#include "host/media/play_queue.h"

#include <gmock/gmock.h>

#include <numeric>

using host::media::make_song_list;
using host::media::PlayQueue;
using host::media::Repeat;
using testing::ElementsAre;
using testing::UnorderedElementsAre;

namespace {

PlayQueue queue_of(std::uint64_t songs, std::uint64_t selected) {
  std::vector<std::uint64_t> ids(songs);
  std::iota(ids.begin(), ids.end(), 1);
  PlayQueue queue;
  queue.set_tracks(make_song_list(std::move(ids)));
  queue.select(selected);
  return queue;
}

std::vector<std::uint64_t> order_of(const PlayQueue& queue) {
  return {queue.tracks().begin(), queue.tracks().end()};
}

}  // namespace

TEST(PlayQueue, AnEmptyQueueSelectsNothing) {
  PlayQueue queue;
  EXPECT_FALSE(queue.select_first());
  EXPECT_FALSE(queue.current());
  EXPECT_FALSE(queue.next());
  EXPECT_FALSE(queue.previous());
}

TEST(PlayQueue, SelectsNothingUntilAsked) {
  PlayQueue queue;
  queue.set_tracks(make_song_list({1, 2, 3}));
  EXPECT_FALSE(queue.current());
  EXPECT_FALSE(queue.next());
  EXPECT_TRUE(queue.select_first());
  EXPECT_EQ(queue.current(), 1u);
}

TEST(PlayQueue, AfterTheLastSongNothingIsSelected) {
  PlayQueue queue;
  queue.set_tracks(make_song_list({1, 2}));
  queue.select(2);
  EXPECT_FALSE(queue.next());
  EXPECT_FALSE(queue.index());
}

TEST(PlayQueue, BeforeTheFirstSongIsTheFirst) {
  PlayQueue queue;
  queue.set_tracks(make_song_list({1, 2}));
  queue.select(2);
  EXPECT_EQ(queue.previous(), 1u);
  EXPECT_EQ(queue.previous(), 1u);
}

TEST(PlayQueue, AnUnknownSongChangesNothing) {
  PlayQueue queue;
  queue.set_tracks(make_song_list({1, 2}));
  queue.select(2);
  EXPECT_FALSE(queue.select(9));
  EXPECT_EQ(queue.current(), 2u);
}

TEST(PlayQueue, ReplacingTheSongsKeepsTheOneThatPlays) {
  PlayQueue queue;
  queue.set_tracks(make_song_list({1, 2, 3}));
  queue.select(2);
  queue.set_tracks(make_song_list({5, 4, 2}));
  EXPECT_EQ(queue.index(), 2u);
  queue.set_tracks(make_song_list({7}));
  EXPECT_FALSE(queue.current());
}

TEST(PlayQueue, RepeatingAllGoesRound) {
  PlayQueue queue = queue_of(3, 3);
  queue.set_repeat(Repeat::all);
  EXPECT_EQ(queue.follow(), 1u);
  EXPECT_EQ(queue.previous(), 3u);
  EXPECT_EQ(queue.next(), 1u);
  queue.set_repeat(Repeat::none);
  EXPECT_EQ(queue.previous(), 1u);
}

TEST(PlayQueue, RepeatingOneIsOnlyForSongsThatEnd) {
  PlayQueue queue = queue_of(2, 1);
  queue.set_repeat(Repeat::one);
  EXPECT_EQ(queue.follow(), 1u);
  EXPECT_EQ(queue.next(), 2u);
  EXPECT_EQ(queue.follow(), 2u);
  EXPECT_EQ(queue.next(), 1u);
}

TEST(PlayQueue, ShufflingBeginsWithTheSelectedSongAndForgetsNothing) {
  PlayQueue queue = queue_of(50, 20);
  const std::vector<std::uint64_t> sorted = order_of(queue);
  queue.set_shuffles(true);
  EXPECT_EQ(queue.current(), 20u);
  EXPECT_EQ(queue.index(), 0u);
  EXPECT_NE(order_of(queue), sorted);
  EXPECT_THAT(order_of(queue), testing::UnorderedElementsAreArray(sorted));
  EXPECT_EQ(*queue.list(), sorted);
  queue.next();
  const auto song = queue.current();
  queue.set_shuffles(false);
  EXPECT_EQ(order_of(queue), sorted);
  EXPECT_EQ(queue.current(), song);
}

TEST(PlayQueue, AllSongsOfAShuffledQueueFollowTheChosenOne) {
  PlayQueue queue = queue_of(50, 1);
  queue.set_shuffles(true);
  const std::vector<std::uint64_t> before = order_of(queue);
  EXPECT_TRUE(queue.select(30));
  EXPECT_EQ(queue.index(), 0u);
  EXPECT_NE(order_of(queue), before);
  EXPECT_FALSE(queue.select(51));
  EXPECT_EQ(queue.current(), 30u);
}

TEST(PlayQueue, ANewQueueIsShuffledAsWell) {
  PlayQueue queue = queue_of(3, 2);
  queue.set_shuffles(true);
  queue.set_tracks(make_song_list({5, 4, 2}));
  EXPECT_EQ(queue.current(), 2u);
  EXPECT_EQ(queue.index(), 0u);
  EXPECT_THAT(order_of(queue), UnorderedElementsAre(2, 4, 5));
  queue.set_tracks(make_song_list({7}));
  EXPECT_FALSE(queue.current());
  EXPECT_TRUE(queue.select_first());
  EXPECT_THAT(order_of(queue), ElementsAre(7));
}

TEST(PlayQueue, TheSameSeedIsTheSameOrder) {
  const auto shuffled = [](std::uint32_t seed) {
    PlayQueue queue(seed);
    queue.set_shuffles(true);
    std::vector<std::uint64_t> ids(50);
    std::iota(ids.begin(), ids.end(), 1);
    queue.set_tracks(make_song_list(std::move(ids)));
    return order_of(queue);
  };
  EXPECT_EQ(shuffled(3), shuffled(3));
  EXPECT_NE(shuffled(3), shuffled(4));
}
