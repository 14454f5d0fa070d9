#include "host/media/cloud_song.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/stat.h>

#include <filesystem>

#include "host/media/scan.h"
#include "tests/support/media_fixtures.h"

using namespace host::media;
using namespace media_tests;
using testing::HasSubstr;

namespace fs = std::filesystem;

namespace {

class CloudSongs : public testing::Test {
 protected:
  CloudSongs() { fs::create_directories(folder_ / "music"); }

  std::string at(const std::string& name) const { return folder_ / ("music/" + name); }

  TagReading read(std::string_view text, const std::string& name = "song.cloud.toml") const {
    write_bytes(at(name), text);
    return read_cloud_song(at(name));
  }

  std::string refusal(std::string_view text) const {
    const TagReading reading = read(text);
    EXPECT_FALSE(reading.tags) << text;
    return reading.refusal;
  }

  ScanOutcome scan() const {
    Index index{folder_ / "music.db"};
    const std::vector roots = {folder_ / "music"};
    return scan_folders(index, roots, [](const ScanProgress&) {});
  }

  TemporaryFolder folder_;
};

TEST_F(CloudSongs, AnEntryHasEverythingThatATagHas) {
  write_bytes(at("far.jpg"), as_text(jpeg_picture(40, 20, 0x336699)));
  const TagReading reading = read(R"(
    title = "Füür"
    artist = "Xenia"
    album = "One"
    album_artist = "Various"
    genre = "Ambient"
    composer = "Yves"
    track = 3
    disc = 2
    duration = 215.5
    compilation = true
    cover = "far.jpg"
  )");
  ASSERT_TRUE(reading.tags) << reading.refusal;
  SongTags expected;
  expected.title = "Füür";
  expected.artist = "Xenia";
  expected.album = "One";
  expected.album_artist = "Various";
  expected.genre = "Ambient";
  expected.composer = "Yves";
  expected.track_number = 3;
  expected.disc_number = 2;
  expected.duration_seconds = 215.5;
  expected.is_compilation = true;
  expected.is_cloud = true;
  expected.own_artwork = reading.tags->own_artwork;
  expected.own_picture = {40, 20, true};
  expected.own_picture_path = at("far.jpg");
  EXPECT_EQ(*reading.tags, expected);
  EXPECT_NE(expected.own_artwork, 0u);
  EXPECT_FALSE(reading.has_broken_picture);
}

TEST_F(CloudSongs, AnEmptyEntryIsNamedAfterItsFile) {
  const TagReading reading = read("", "Far Away.cloud.toml");
  ASSERT_TRUE(reading.tags) << reading.refusal;
  EXPECT_EQ(reading.tags->title, "Far Away");
  EXPECT_TRUE(reading.tags->is_cloud);
}

TEST_F(CloudSongs, AcceptWholeSecondsAsADuration) {
  EXPECT_DOUBLE_EQ(read("duration = 90").tags->duration_seconds, 90);
}

TEST_F(CloudSongs, AnInvalidEntryIsRefusedWithTheReason) {
  EXPECT_THAT(refusal("title = "), HasSubstr("in line 1"));
  EXPECT_THAT(refusal("\xff\xfe rubbish"), HasSubstr("is not a song entry"));
  EXPECT_THAT(refusal("title = 7"), HasSubstr("title"));
  EXPECT_THAT(refusal("track = \"one\""), HasSubstr("track"));
  EXPECT_THAT(refusal("track = -1"), HasSubstr("track"));
  EXPECT_THAT(refusal("duration = nan"), HasSubstr("duration"));
  EXPECT_THAT(refusal("duration = -5"), HasSubstr("duration"));
  EXPECT_THAT(refusal("compilation = 1"), HasSubstr("compilation"));
  EXPECT_THAT(refusal(std::string(70'000, '#')), HasSubstr("too long"));
}

std::string repeated(std::string_view text, std::size_t times) {
  std::string made;
  for (std::size_t i = 0; i < times; ++i)
    made += text;
  return made;
}

TEST_F(CloudSongs, AnEntryThatIsNestedTooDeeplyIsRefusedBeforeItIsParsed) {
  const auto too_deep = HasSubstr("nested too deeply");
  EXPECT_THAT(refusal(repeated("a.", 30'000) + "a = 1"), too_deep);
  EXPECT_THAT(refusal('[' + repeated("a . ", 15'000) + "a]"), too_deep);
  EXPECT_THAT(refusal("[[" + repeated("\"[\".", 12'000) + "a]]"), too_deep);
  EXPECT_THAT(refusal("title = " + repeated("[", 50'000)), too_deep);
  EXPECT_THAT(refusal("title = " + repeated("{a=", 20'000)), too_deep);
  EXPECT_THAT(refusal("title = " + repeated("[\n# ]\n", 9'000)), too_deep);
  EXPECT_THAT(refusal("title = \"\"\"\\\"\"\"\"\"\nx = " + repeated("[", 50'000)), too_deep);
  EXPECT_THAT(refusal("title = '''\\''''\nx = " + repeated("[", 50'000)), too_deep);
  EXPECT_THAT(refusal("title = \"\\\\\" # \"\"\"\nx = " + repeated("[", 50'000)), too_deep);
}

TEST_F(CloudSongs, TextsAndCommentsNestNothing) {
  const std::string brackets = repeated("[{.", 300);
  EXPECT_EQ(read("title = \"" + brackets + "\"").tags->title.substr(0, 6), "[{.[{.");
  EXPECT_EQ(read("title = '" + brackets + "'").tags->title.substr(0, 6), "[{.[{.");
  EXPECT_EQ(read("title = \"\"\"\n\\\"\"\\\"" + brackets + "\"\"\"").tags->title.substr(0, 6),
            "\"\"\"[{.");
  EXPECT_EQ(read("title = '''\n'" + brackets + "'''").tags->title.substr(0, 4), "'[{.");
  EXPECT_EQ(read("# " + brackets + "\ntitle = \"A\" # " + brackets).tags->title, "A");
  EXPECT_EQ(read("a = [[1], [{b.c = [2.5]}]]\n[x.y]\nz = 1979-05-27T07:32:00.5").tags->title,
            "song");
}

TEST_F(CloudSongs, OnlyPlainFilesAreOpened) {
  ASSERT_EQ(::mkfifo(at("pipe.cloud.toml").c_str(), 0600), 0);
  EXPECT_FALSE(read_cloud_song(at("pipe.cloud.toml")).tags);
  EXPECT_FALSE(read_cloud_song(at("missing.cloud.toml")).tags);
  ASSERT_EQ(::mkfifo(at("cover.pipe").c_str(), 0600), 0);
  EXPECT_TRUE(read("cover = \"cover.pipe\"").has_broken_picture);
}

TEST_F(CloudSongs, AreInTheLibraryBesideTheOthers) {
  write_song(at("near.flac"), {}, {}, 0.1);
  write_bytes(at("far.cloud.toml"), "title = 'Far'\nartist = 'X'");
  write_bytes(at("cover.png"), as_text(png_picture(8, 6, 1)));
  const ScanOutcome outcome = scan();
  ASSERT_EQ(outcome.library->tracks().size(), 2u);
  const Track& far = outcome.library->tracks()[0];
  EXPECT_EQ(far.title, "Far");
  EXPECT_TRUE(far.is_cloud);
  EXPECT_EQ(far.picture_path, at("cover.png"));
  EXPECT_EQ(far.artwork, (PictureHeader{8, 6, true}));
  EXPECT_FALSE(outcome.library->tracks()[1].is_cloud);
  EXPECT_EQ(scan().progress.read, 0u);
}

TEST_F(CloudSongs, KeepTheirOwnCoverFromOneStartToTheNext) {
  write_bytes(at("cover.png"), as_text(png_picture(8, 6, 1)));
  write_bytes(at("mine.png"), as_text(png_picture(12, 10, 1)));
  write_bytes(at("far.cloud.toml"), "cover = 'mine.png'");
  const Track first = scan().library->tracks()[0];
  const ScanOutcome second = scan();
  EXPECT_EQ(second.progress.read, 0u);
  const Track& again = second.library->tracks()[0];
  EXPECT_EQ(again.picture_path, at("mine.png"));
  EXPECT_EQ(again.artwork, (PictureHeader{12, 10, true}));
  EXPECT_EQ(again.artwork_key, first.artwork_key);
}

TEST_F(CloudSongs, ADamagedEntryIsCountedAndLoggedOnce) {
  write_bytes(at("bad.cloud.toml"), "title");
  const CapturedLog log;
  EXPECT_EQ(scan().progress.skipped, 1u);
  EXPECT_EQ(scan().progress.skipped, 1u);
  EXPECT_EQ(log.count("bad.cloud.toml is not a song entry"), 1);
}

TEST_F(CloudSongs, AnInvalidCoverIsLoggedAndTheFoldersIsUsed) {
  write_bytes(at("cover.png"), as_text(png_picture(8, 6, 1)));
  write_bytes(at("far.cloud.toml"), "cover = 'missing.png'");
  const CapturedLog log;
  EXPECT_EQ(scan().library->tracks()[0].picture_path, at("cover.png"));
  scan();
  EXPECT_EQ(log.count("far.cloud.toml cannot be shown"), 1);
}

TEST(CloudName, IsTheWholeExtension) {
  EXPECT_TRUE(has_cloud_name("a.cloud.toml"));
  EXPECT_FALSE(has_cloud_name(".cloud.toml"));
  EXPECT_FALSE(has_cloud_name("a.toml"));
  EXPECT_FALSE(has_cloud_name("a.cloud.toml.bak"));
}

}  // namespace
