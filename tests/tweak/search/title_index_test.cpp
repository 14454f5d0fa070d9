#include <random>

#include "tests/tweak/search/title_search.h"

namespace host::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

using TitleIndex = TitleSearch;

// Letters with unusual case, composition or direction, and pattern characters.
constexpr const char* kPieces[] = {
    "a",  "A",  "b",      "B",      " ", "e",  "E",      "\u0301", "é",  "É", "ö",  "o\u0308",
    "İ",  "ı",  "i",      "I",      "ß", "ẞ",  "ss",     "\u212a", "k",  "σ", "ς",  "Σ",
    "ж",  "Ж",  "\u00ad", "\u200d", "שׁ", "ש",  "א",      "ب",      "👩",  "🎵", "が", "か",
    "각", "가", "愛",     "ー",     "’", "…",  "\u0327", "c",      "ç",  "ﬁ", "f",  "DŽ",
    ".",  "*",  "[",      "]",      "(", "\\", "^",      "$",      "%@", "?"};

std::string random_text(std::mt19937& random, std::size_t most) {
  std::string text;
  for (std::size_t left = 1 + random() % most; left > 0; --left)
    text += kPieces[random() % std::size(kPieces)];
  return text;
}

TEST_F(TitleIndex, FindsWhatSearchingEachTitleFinds) {
  std::mt19937 random{11};
  std::vector<std::string> all;
  for (int i = 0; i < 300; ++i)
    all.push_back(random_text(random, 12));
  list_titles(all);
  int finds = 0;
  for (const char* piece : kPieces) {
    const auto expected = found_one_by_one(piece);
    EXPECT_EQ(found_by(piece), expected) << piece;
    finds += !expected.empty();
  }
  for (int i = 0; i < 150; ++i) {
    const std::string typed = random_text(random, 3);
    EXPECT_EQ(found_by(typed), found_one_by_one(typed)) << typed;
  }
  EXPECT_GT(finds, 20);
}

TEST_F(TitleIndex, NothingIsFoundAcrossTwoTitles) {
  list_titles({"ab", "cd", "d", std::string(40, 'x') + "a", "b"});
  EXPECT_THAT(found_by("bc"), IsEmpty());
  EXPECT_THAT(found_by("dd"), IsEmpty());
  EXPECT_THAT(found_by("ab"), ElementsAre("ab"));
}

TEST_F(TitleIndex, EveryPositionOfALongTitleIsSearched) {
  const std::string before(10000, 'a');
  list_titles({before, before + "B", "b" + before});
  EXPECT_EQ(found_by("ab"), found_one_by_one("ab"));
  EXPECT_THAT(found_by("ab"), ElementsAre(before + "B"));
  EXPECT_THAT(found_by(before + "b"), ElementsAre(before + "B"));
  EXPECT_THAT(found_by(before + "aa"), IsEmpty());
  EXPECT_EQ(found_by(before).size(), 3u);
  for (std::size_t length = 1; length < 40; ++length) {
    const std::string title = std::string(length, '.') + "xyz";
    list_titles({title, std::string(length, '.')});
    for (const char* typed : {"z", "yz", "xyz", ".xyz"})
      EXPECT_THAT(found_by(typed), ElementsAre(title)) << length;
  }
}

TEST_F(TitleIndex, ALetterIsFoundAnywhereInALongList) {
  // given titles of every length, so that letters and borders are at every alignment
  std::vector<std::string> titles;
  for (std::size_t length = 1; length <= 140; ++length) {
    titles.push_back(std::string(length, 'x'));
    titles.push_back(std::string(length - 1, 'x') + "q");
    titles.push_back("qr" + std::string(length, 'x'));
    titles.push_back("が" + std::string(length % 3, 'q'));
  }
  list_titles(titles);

  // then find one letter, two letters, and letters that do not occur
  for (const char* typed : {"q", "x", "qr", "xq", "rx", "r", "zz", "z", "qq"})
    EXPECT_EQ(found_by(typed), found_one_by_one(typed)) << typed;
}

TEST_F(TitleIndex, AListThatChangesBetweenKeystrokesIsReadAgain) {
  list_titles({"alpha", "beta", "gamma"});
  EXPECT_THAT(found_by("bet"), ElementsAre("beta"));
  // The same number of songs, but different ones.
  list_titles({"alphabet", "delta", "gamma"});
  EXPECT_THAT(found_by("bet"), ElementsAre("alphabet"));
  songs().removeObjectAtIndex(0);
  EXPECT_THAT(found_by("a"), ElementsAre("delta", "gamma"));
  const auto first = objc::Ref<objc::Object>::retain(songs().objectAtIndex(0));
  songs().removeObjectAtIndex(0);
  songs().addObject(first.get());
  EXPECT_THAT(found_by("a"), ElementsAre("gamma", "delta"));
  songs().removeAllObjects();
  EXPECT_THAT(found_by("a"), IsEmpty());
}

TEST_F(TitleIndex, AChangeFarDownALongListIsNoticed) {
  std::vector<std::string> all(3000, "song");
  list_titles(all);
  EXPECT_THAT(found_by("new"), IsEmpty());
  songs().replaceObjectAtIndex(2999, songs_titled({"newer"}).objectAtIndex(0));
  EXPECT_THAT(found_by("new"), ElementsAre("newer"));
  EXPECT_EQ(found_by("song").size(), 2999u);
}

TEST_F(TitleIndex, TheHitsOutliveTheList) {
  list_titles({"alpha", "beta", "gamma"});
  EXPECT_THAT(found_by("m"), ElementsAre("gamma"));
  songs().removeAllObjects();
  advance(0.1);
  EXPECT_THAT(titles("result"), ElementsAre("gamma"));
}

TEST_F(TitleIndex, TheHitsAreAMutableArray) {
  list_titles({"alpha", "beta", "gamma", "delta"});
  ASSERT_EQ(found_by("a").size(), 4u);
  const std::vector<std::string> all = titles("result");
  const auto copy = objc::Ref<NSArray>::adopt(hits().copy());
  const auto other = objc::Ref<objc::Object>::retain(hits().objectAtIndex(3));
  hits().removeObjectAtIndex(0);
  hits().removeLastObject();
  EXPECT_THAT(titles("result"), ElementsAre(all[1], all[2]));
  hits().addObject(other.get());
  hits().insertObject(other.get(), 0);
  hits().replaceObjectAtIndex(1, other.get());
  EXPECT_THAT(titles("result"), ElementsAre(all[3], all[3], all[2], all[3]));
  EXPECT_EQ(copy->count(), 4u);
  EXPECT_EQ(rows(), 4);
  // The next keystroke starts with an empty array.
  EXPECT_THAT(found_by("mm"), ElementsAre("gamma"));
  hits().removeAllObjects();
  EXPECT_THAT(titles("result"), IsEmpty());
}

}  // namespace
}  // namespace host::test
