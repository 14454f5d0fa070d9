#include "host/media/play_queue.h"

#include <gtest/gtest.h>

using host::media::make_song_list;
using host::media::PlayQueue;

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
