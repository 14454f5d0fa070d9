#include "host/springboard/system/system_actions.h"
#include "tests/tweak/method_spy.h"
#include "tests/tweak/search/title_search.h"

namespace host::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

constexpr std::size_t kSongs = 20'000;
/// The most titles that a finger or a turn of the loop may wait for.
constexpr int kMostAtOnce = 1024;

std::vector<std::string> many_titles() {
  static constexpr const char* words[] = {"Love", "night", "BLUE", "Déjà", "\u200dGhost", "Zürich"};
  std::vector<std::string> titles;
  for (std::size_t i = 0; i < kSongs; ++i)
    titles.push_back(std::string(words[i % std::size(words)]) + " " + std::to_string(i));
  return titles;
}

/// The titles are read in small parts, from the finger on the field on.
class TitleReader : public TitleSearch {
 protected:
  void SetUp() override {
    TitleSearch::SetUp();
    open_song_page();
    list_titles(many_titles());
  }
  void touch_field() const { ASSERT_TRUE(field().becomeFirstResponder()); }
  void expect_right_hits(const char* typed = "ue 1") {
    const auto expected = found_one_by_one(typed);
    ASSERT_FALSE(expected.empty());
    EXPECT_EQ(found_by(typed), expected);
  }
  /// Reads until about half of the titles are there.
  void read_half() { advance(0.04); }
};

using Reads = MethodSpy<"valueForProperty:", objc::Object(MPMediaItem, NSString)>;

TEST_F(TitleReader, NeitherTheFingerNorATurnOfTheLoopWaitsForManyTitles) {
  const Reads reads(MPMediaItem::cls());
  touch_field();
  EXPECT_GT(reads.count(), 0);
  EXPECT_LE(reads.count(), kMostAtOnce);
  int before = reads.count();
  int most = 0;
  const RunLoop::Id turns = loop.add_turn_observer(0, [&] {
    most = std::max(most, reads.count() - before);
    before = reads.count();
  });
  advance(2);
  loop.remove_turn_observer(turns);
  EXPECT_EQ(reads.count(), static_cast<int>(kSongs));
  EXPECT_LE(most, kMostAtOnce);

  // Then a key reads none, except those that only the platform can compare.
  search_for("ue 1");
  EXPECT_EQ(reads.count(), static_cast<int>(kSongs + (kSongs + 1) / 6));
}

TEST_F(TitleReader, ASearchFindsTheSameBeforeWhileAndAfterTheTitlesAreRead) {
  expect_right_hits();
  list_titles(many_titles());
  touch_field();
  expect_right_hits();
  field().resignFirstResponder();
  list_titles(many_titles());
  touch_field();
  read_half();
  expect_right_hits();
  expect_right_hits("3");
  advance(2);
  expect_right_hits();
  expect_right_hits("ü");
}

TEST_F(TitleReader, SongsThatChangeWhileTheTitlesAreReadAreFoundAsTheyAre) {
  const std::size_t places[] = {0, 10, kSongs - 1};
  for (const std::size_t place : places) {
    list_titles(many_titles());
    touch_field();
    read_half();
    songs().replaceObjectAtIndex(place, songs_titled({"Newer"}).objectAtIndex(0));
    EXPECT_THAT(found_by("new"), ElementsAre("Newer")) << place;
    expect_right_hits();
    field().resignFirstResponder();
  }
}

TEST_F(TitleReader, SongsThatComeAndGoWhileTheTitlesAreReadAreFoundAsTheyAre) {
  touch_field();
  read_half();
  songs().addObjectsFromArray(songs_titled({"Newer", "newest"}));
  advance(2);
  EXPECT_THAT(found_by("new"), ElementsAre("Newer", "newest"));
  list_titles({"alpha", "beta"});
  field().resignFirstResponder();
  touch_field();
  advance(2);
  EXPECT_THAT(found_by("b"), ElementsAre("beta"));
  list_titles(many_titles());
  field().resignFirstResponder();
  touch_field();
  read_half();
  songs().removeAllObjects();
  advance(2);
  EXPECT_THAT(found_by("b"), IsEmpty());
  EXPECT_THAT(found_by("new"), IsEmpty());
}

TEST_F(TitleReader, AnotherListIsReadFromItsBeginning) {
  touch_field();
  advance(2);
  expect_right_hits();
  field().resignFirstResponder();
  list_titles(many_titles());
  touch_field();
  advance(2);
  const Reads reads(MPMediaItem::cls());
  search_for("ue 1");
  EXPECT_EQ(reads.count(), static_cast<int>((kSongs + 1) / 6)) << "they had all been read";
}

TEST_F(TitleReader, AClosedPanelReadsNothingAndTheNextFingerGoesOn) {
  touch_field();
  read_half();
  springboard::press_home();
  ASSERT_FALSE(field().isFirstResponder());
  int after_closing = 0;
  {
    const Reads reads(MPMediaItem::cls());
    settle();
    ASSERT_FALSE(is("isShow"));
    after_closing = reads.count();
  }
  EXPECT_LT(after_closing, kMostAtOnce);

  open_panel();
  const Reads reads(MPMediaItem::cls());
  touch_field();
  advance(2);
  EXPECT_GT(reads.count(), kMostAtOnce);
  EXPECT_LT(reads.count(), static_cast<int>(kSongs) * 3 / 4) << "half of them had been read";
  expect_right_hits();
}

}  // namespace
}  // namespace host::test
