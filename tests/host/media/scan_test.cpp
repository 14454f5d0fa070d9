#include "host/media/scan.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <filesystem>

#include "tests/support/media_fixtures.h"
#include "tests/support/told_user.h"

using namespace host::media;
using namespace media_tests;
using testing::ElementsAre;
using testing::IsEmpty;

namespace fs = std::filesystem;

namespace {

SongTags titled(std::string title) {
  SongTags tags;
  tags.title = std::move(title);
  tags.artist = "Somebody";
  tags.album = "Something";
  return tags;
}

class Scanning : public testing::Test {
 protected:
  Scanning() {
    fs::create_directories(music());
    fs::create_directories(folder_ / "state");
  }

  std::string music() const { return folder_ / "music"; }
  std::string at(const std::string& name) const { return music() + "/" + name; }
  std::string index_path() const { return folder_ / "state/music.db"; }

  ScanOutcome scan() {
    Index index{index_path()};
    return scan(index);
  }

  ScanOutcome scan(Index& index) {
    const std::vector roots = {music()};
    return scan_folders(index, roots, [](const ScanProgress&) {});
  }

  static std::vector<std::string> titles(const Library& library) {
    std::vector<std::string> all;
    for (const Track& track : library.tracks())
      all.emplace_back(track.title);
    return all;
  }

  static const Track& only(const ScanOutcome& outcome) {
    EXPECT_EQ(outcome.library->tracks().size(), 1u);
    return outcome.library->tracks().front();
  }

  TemporaryFolder folder_;
};

}  // namespace

TEST_F(Scanning, FindsSongsInEveryFolderAndSkipsHiddenOnes) {
  fs::create_directories(at("a/b"));
  fs::create_directories(at(".trash"));
  write_song(at("two.flac"), titled("Two"));
  write_song(at("a/b/one.mp3"), titled("One"));
  write_song(at(".trash/gone.mp3"), titled("Gone"));
  write_song(at(".hidden.mp3"), titled("Hidden"));
  write_bytes(at("letter.txt"), "hello");
  const ScanOutcome outcome = scan();
  EXPECT_THAT(titles(*outcome.library), ElementsAre("One", "Two"));
  EXPECT_EQ(outcome.progress.seen, 2u);
  EXPECT_EQ(outcome.progress.read, 2u);
  EXPECT_EQ(outcome.progress.skipped, 0u);
}

TEST_F(Scanning, AnUnchangedFileIsNotReadAgainAndKeepsItsIdentifier) {
  write_song(at("a.flac"), titled("A"));
  const std::uint64_t id = only(scan()).id;
  const ScanOutcome second = scan();
  EXPECT_EQ(second.progress.read, 0u);
  EXPECT_EQ(second.progress.seen, 1u);
  EXPECT_EQ(only(second).id, id);
  EXPECT_EQ(only(second).title, "A");
  EXPECT_GT(only(second).duration_seconds, 0.5);
}

TEST_F(Scanning, ARetaggedFileIsReadAgainUnderTheSameIdentifier) {
  write_song(at("a.flac"), titled("Before"));
  const std::uint64_t id = only(scan()).id;
  write_song(at("a.flac"), titled("After it was corrected"));
  const ScanOutcome second = scan();
  EXPECT_EQ(second.progress.read, 1u);
  EXPECT_EQ(only(second).title, "After it was corrected");
  EXPECT_EQ(only(second).id, id);
}

TEST_F(Scanning, AMovedFileKeepsItsIdentifier) {
  write_song(at("a.flac"), titled("A"));
  const std::uint64_t id = only(scan()).id;
  fs::create_directories(at("sorted"));
  fs::rename(at("a.flac"), at("sorted/renamed.flac"));
  const ScanOutcome second = scan();
  EXPECT_EQ(only(second).id, id);
  EXPECT_EQ(only(second).path, at("sorted/renamed.flac"));
  EXPECT_EQ(only(scan()).id, id);
}

TEST_F(Scanning, ACopyThatKeepsItsTimeIsANewSong) {
  write_song(at("a.flac"), titled("A"));
  const std::uint64_t id = only(scan()).id;
  fs::copy_file(at("a.flac"), at("b.flac"));
  fs::last_write_time(at("b.flac"), fs::last_write_time(at("a.flac")));
  const ScanOutcome second = scan();
  ASSERT_EQ(second.library->tracks().size(), 2u);
  EXPECT_NE(second.library->tracks()[0].id, second.library->tracks()[1].id);
  ASSERT_NE(second.library->find(id), nullptr);
  EXPECT_EQ(second.library->find(id)->path, at("a.flac"));
}

TEST_F(Scanning, ARemovedFileLeavesTheLibraryAndComesBackAsItself) {
  write_song(at("a.flac"), titled("A"));
  const std::string bytes = read_bytes(at("a.flac"));
  const std::uint64_t id = only(scan()).id;
  fs::remove(at("a.flac"));
  EXPECT_THAT(titles(*scan().library), IsEmpty());
  write_bytes(at("a.flac"), bytes);
  EXPECT_EQ(only(scan()).id, id);
}

TEST_F(Scanning, ADamagedFileIsSkippedCountedAndLoggedOnce) {
  write_song(at("good.flac"), titled("Good"));
  write_bytes(at("bad.mp3"), "no music");
  const CapturedLog log;
  const ScanOutcome first = scan();
  EXPECT_THAT(titles(*first.library), ElementsAre("Good"));
  EXPECT_EQ(first.progress.skipped, 1u);
  const ScanOutcome second = scan();
  EXPECT_EQ(second.progress.skipped, 1u);
  EXPECT_EQ(second.progress.read, 0u);
  EXPECT_EQ(log.count("bad.mp3"), 1);
}

TEST_F(Scanning, ADamagedFileThatIsRepairedJoinsTheLibrary) {
  write_bytes(at("song.flac"), "no music");
  EXPECT_EQ(scan().progress.skipped, 1u);
  write_song(at("song.flac"), titled("Mended"));
  EXPECT_THAT(titles(*scan().library), ElementsAre("Mended"));
  const ScanOutcome third = scan();
  EXPECT_EQ(third.progress.read, 0u);
  EXPECT_EQ(third.progress.skipped, 0u);
}

TEST_F(Scanning, ASongThatBecomesDamagedLeavesTheLibrary) {
  write_song(at("song.flac"), titled("Whole"));
  scan();
  write_bytes(at("song.flac"), "no music");
  EXPECT_THAT(titles(*scan().library), IsEmpty());
  const ScanOutcome third = scan();
  EXPECT_EQ(third.progress.read, 0u);
  EXPECT_EQ(third.progress.skipped, 1u);
}

TEST_F(Scanning, CyclicLinksAreFollowedOnce) {
  fs::create_directories(at("a/b"));
  fs::create_directory_symlink(music(), at("a/b/up"));
  fs::create_directory_symlink(at("a"), at("again"));
  fs::create_symlink(at("itself.mp3"), at("itself.mp3"));
  write_song(at("a/b/song.flac"), titled("Once"));
  EXPECT_THAT(titles(*scan().library), ElementsAre("Once"));
}

TEST_F(Scanning, AFolderThatCannotBeReadIsCountedAndLoggedOnce) {
  write_song(at("song.flac"), titled("Here"));
  const std::vector roots = {music(), folder_ / "nowhere"};
  const CapturedLog log;
  Index index{index_path()};
  const ScanOutcome outcome = scan_folders(index, roots, [](const ScanProgress&) {});
  EXPECT_EQ(outcome.progress.unreadable_folders, 1u);
  EXPECT_EQ(log.count("nowhere"), 1);
  EXPECT_THAT(titles(*outcome.library), ElementsAre("Here"));
}

TEST_F(Scanning, WhatIsBelowAFolderThatCannotBeReadIsNotForgotten) {
  const std::string disk = folder_ / "disk";
  fs::create_directories(disk + "/album");
  write_song(disk + "/album/song.flac", titled("There"));
  write_bytes(disk + "/album/letter.mp3", "no music");
  write_song(at("song.flac"), titled("Here"));
  const std::vector roots = {music(), disk};
  const auto scan_both = [&] {
    Index index{index_path()};
    return scan_folders(index, roots, [](const ScanProgress&) {});
  };
  EXPECT_THAT(titles(*scan_both().library), ElementsAre("Here", "There"));
  fs::rename(disk, folder_ / "away");
  EXPECT_THAT(titles(*scan_both().library), ElementsAre("Here"));
  fs::rename(folder_ / "away", disk);
  const ScanOutcome again = scan_both();
  EXPECT_THAT(titles(*again.library), ElementsAre("Here", "There"));
  EXPECT_EQ(again.progress.read, 0u);
}

TEST_F(Scanning, AFileThatALoopOfLinksHidesIsOneLineAndTheRestIsRead) {
  write_song(at("song.flac"), titled("Here"));
  for (const char* name : {"round.mp3", "round.cloud.toml", "cover.jpg"})
    fs::create_symlink(name, at(name));
  const CapturedLog log;
  EXPECT_THAT(titles(*scan().library), ElementsAre("Here"));
  for (const char* name : {"round.mp3 cannot be reached: Too many levels",
                           "round.cloud.toml cannot", "cover.jpg cannot be reached"})
    EXPECT_EQ(log.count(name), 1) << name;
}

TEST_F(Scanning, TheBestPictureOfAFolderServesSongsWithoutTheirOwn) {
  write_song(at("plain.flac"), titled("Plain"));
  write_song(at("own.flac"), titled("Own"), jpeg_picture(8, 8, 1));
  write_bytes(at("Front.png"), as_text(png_picture(8, 8, 2)));
  write_bytes(at("FOLDER.JPG"), as_text(jpeg_picture(8, 8, 3)));
  const ScanOutcome outcome = scan();
  const Track& own = outcome.library->tracks()[0];
  const Track& plain = outcome.library->tracks()[1];
  EXPECT_EQ(own.picture_path, "");
  EXPECT_TRUE(own.has_artwork());
  EXPECT_EQ(plain.picture_path, at("FOLDER.JPG"));
  EXPECT_TRUE(plain.has_artwork());
}

TEST_F(Scanning, ACoverThatArrivesLaterIsSeenWithoutReadingTheSongs) {
  write_song(at("song.flac"), titled("Song"));
  EXPECT_FALSE(only(scan()).has_artwork());
  write_bytes(at("Cover.JPEG"), as_text(jpeg_picture(8, 8, 3)));
  const ScanOutcome second = scan();
  EXPECT_EQ(second.progress.read, 0u);
  EXPECT_EQ(only(second).picture_path, at("Cover.JPEG"));
  const std::uint64_t key = only(second).artwork_key;
  EXPECT_EQ(only(scan()).artwork_key, key);
  write_bytes(at("Cover.JPEG"), as_text(jpeg_picture(16, 16, 4)));
  EXPECT_NE(only(scan()).artwork_key, key);
}

TEST_F(Scanning, AStoppedScanKeepsWhatItReadAndForgetsNothing) {
  write_song(at("a.flac"), titled("A"));
  write_song(at("b.flac"), titled("B"));
  scan();
  std::stop_source source;
  source.request_stop();
  {
    Index index{index_path()};
    const std::vector roots = {music()};
    scan_folders(
        index, roots, [](const ScanProgress&) {}, source.get_token());
  }
  EXPECT_EQ(scan().progress.read, 0u);
}

TEST_F(Scanning, RemembersTheSongsOfTheRequestedFoldersOnly) {
  fs::create_directories(at("x"));
  fs::create_directories(at("xy"));
  write_song(at("x/a.flac"), titled("A"));
  write_song(at("xy/b.flac"), titled("B"));
  scan();
  Index index{index_path()};
  const std::vector roots = {at("x")};
  EXPECT_THAT(titles(*remembered_library(index, roots)), ElementsAre("A"));
}

TEST_F(Scanning, NamesThatAreNotUtf8ArePreserved) {
  write_song(at("odd.flac"), titled("Odd"));
  const std::string odd = at("od\xff\xfe.flac");
  fs::rename(at("odd.flac"), odd);
  EXPECT_EQ(only(scan()).path, odd);
  const ScanOutcome second = scan();
  EXPECT_EQ(second.progress.read, 0u);
  EXPECT_EQ(only(second).path, odd);
}

TEST_F(Scanning, ADamagedIndexIsSetAsideAndRebuiltWithTheSameIdentifiers) {
  write_song(at("a.flac"), titled("A"));
  const std::uint64_t id = only(scan()).id;
  write_bytes(index_path(), std::string(20000, 'x'));
  const CapturedLog log;
  const ScanOutcome second = scan();
  EXPECT_EQ(only(second).id, id);
  EXPECT_EQ(second.progress.read, 1u);
  EXPECT_TRUE(fs::exists(index_path() + ".damaged"));
  EXPECT_EQ(log.count("was damaged"), 1);
  EXPECT_EQ(scan().progress.read, 0u);
}

TEST_F(Scanning, AnIndexDamagedInItsMiddleIsSetAsideToo) {
  for (int i = 0; i < 40; ++i) {
    write_song(at(std::to_string(i) + ".flac"), titled(std::string(900, 'a')), {}, 0.1);
  }
  scan();
  std::string bytes = read_bytes(index_path());
  ASSERT_GT(bytes.size(), 20000u);
  std::fill(bytes.begin() + 4096, bytes.end(), '\x55');
  write_bytes(index_path(), bytes);
  const CapturedLog log;
  const ScanOutcome second = scan();
  EXPECT_EQ(second.library->tracks().size(), 40u);
  EXPECT_EQ(log.count("was damaged"), 1);
  EXPECT_EQ(scan().progress.read, 0u);
}

TEST_F(Scanning, AFullDiskLosesNoSongAndSaysSoOnce) {
  for (int i = 0; i < 60; ++i) {
    write_song(at(std::to_string(i) + ".flac"), titled(std::string(1000, 'a')), {}, 0.1);
  }
  constexpr std::int64_t pages_for_the_tables_only = 8;
  const CapturedLog log;
  const host::test::ToldUser user;
  Index index{index_path(), pages_for_the_tables_only};
  EXPECT_EQ(scan(index).library->tracks().size(), 60u);
  EXPECT_EQ(scan(index).library->tracks().size(), 60u);
  EXPECT_EQ(log.count("cannot be written"), 1);
  EXPECT_THAT(user.words(), testing::ElementsAre(host::kDiskWarning));
  EXPECT_FALSE(fs::exists(index_path() + ".damaged"));
}

TEST_F(Scanning, AnIndexThatCannotBeMadeWorksInMemory) {
  write_song(at("a.flac"), titled("A"));
  fs::create_directories(index_path());
  const CapturedLog log;
  const host::test::ToldUser user;
  Index index{index_path()};
  EXPECT_EQ(index.store(), IndexStore::in_memory);
  EXPECT_THAT(user.words(), testing::ElementsAre(host::kDiskWarning));
  EXPECT_EQ(only(scan(index)).title, "A");
  EXPECT_EQ(scan(index).progress.read, 0u);
  EXPECT_EQ(log.count("cannot be kept"), 1);
}

TEST_F(Scanning, CountsSoundThatIsNotPlayedByItsKind) {
  fs::create_directories(at("album"));
  for (const char* name : {"a.mid", "album/b.MID", "c.ra", "d.txt", ".hidden.mid", "cover.jpg"})
    write_bytes(at(name), "sound");
  const ScanOutcome outcome = scan();
  EXPECT_EQ(line_of(outcome.left_out), "3 files are left out: 2 .mid, 1 .ra");
  EXPECT_EQ(outcome.progress.seen, 0u);
  EXPECT_EQ(line_of({{".mid", 1}}), "1 file is left out: 1 .mid");
  EXPECT_EQ(line_of({}), "");
}
