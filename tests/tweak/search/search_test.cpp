#include "tests/tweak/receiver_spy.h"
#include "tests/tweak/song_page.h"
#include "tests/tweak/told_property.h"

namespace host::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::UnorderedElementsAre;

class Search : public SongPage {
 protected:
  void open_with(std::initializer_list<const char*> more) {
    for (const char* title : more)
      add_title(title);
    list_cloud_songs();
    launch();
    open_song_page();
    tap_on_search();
  }
  /// The hits after `typed` has been typed into the field, key by key.
  std::vector<std::string> found_by(const char* typed) {
    uikit::press_key("control-a");
    EXPECT_TRUE(uikit::type_text(NSString::stringWithUTF8String(typed)));
    EXPECT_EQ(text(field().text()), typed);
    settle();
    EXPECT_TRUE(is("isSearching"));
    EXPECT_EQ(rows(), static_cast<NSInteger>(titles("result").size()));
    return titles("result");
  }
};

TEST_F(Search, FindsTheTextAnywhereInTheTitleInAnyCase) {
  open_with({"Let It Be", "BELLE", "Rumba"});
  for (const char* typed : {"be", "BE", "bE", "Be"})
    EXPECT_THAT(found_by(typed), UnorderedElementsAre("Let It Be", "BELLE")) << typed;
  EXPECT_THAT(found_by("ba"), ElementsAre("Rumba"));
  EXPECT_THAT(texts(), ElementsAre("Rumba"));
  EXPECT_THAT(found_by("bet"), IsEmpty());
  EXPECT_THAT(texts(), IsEmpty());
}

TEST_F(Search, FoldsTheCaseOfEveryScriptAndNothingElse) {
  open_with({"ÉTUI", "étang", "ЖАРКО", "жук", "Straße", "STRASSE"});
  for (const char* typed : {"é", "É"})
    EXPECT_THAT(found_by(typed), UnorderedElementsAre("ÉTUI", "étang")) << typed;
  for (const char* typed : {"ж", "Ж"})
    EXPECT_THAT(found_by(typed), UnorderedElementsAre("ЖАРКО", "жук")) << typed;
  // A letter with an accent is a different letter.
  EXPECT_THAT(found_by("et"), IsEmpty());
  EXPECT_THAT(found_by("ß"), ElementsAre("Straße"));
  EXPECT_THAT(found_by("ss"), ElementsAre("STRASSE"));
}

TEST_F(Search, FoldsTheCaseNextToACombiningMark) {
  // The accent is a separate combining character after its letter.
  const char* const title = "Cafe\u0301 NOIR";
  open_with({title, "Pinot Noir"});
  for (const char* typed : {"noir", "NOIR", "Noir"})
    EXPECT_THAT(found_by(typed), UnorderedElementsAre(title, "Pinot Noir")) << typed;
}

TEST_F(Search, FindsALetterComposedOrDecomposed) {
  // The accent composed with its letter, and as a separate combining character after it.
  const char* const one_piece = "Caf\u00e9";
  const char* const two_pieces = "Cafe\u0301 noir";
  open_with({one_piece, two_pieces});
  for (const char* typed : {"\u00e9", "\u00c9", "e\u0301", "E\u0301", "caf\u00e9", "cafe\u0301"})
    EXPECT_THAT(found_by(typed), UnorderedElementsAre(one_piece, two_pieces)) << typed;
  EXPECT_THAT(found_by("\u00e9 n"), ElementsAre(two_pieces));
  // The letter without its accent, or with another one, does not match.
  for (const char* typed : {"cafe", "fe", "\u00e8", "e\u0300"})
    EXPECT_THAT(found_by(typed), IsEmpty()) << typed;
}

TEST_F(Search, SearchesOnlyTheTitle) {
  open_with({"By Xenia"});
  // "Xenia" is also the artist of three songs, "One" the album of three.
  EXPECT_THAT(found_by("xenia"), ElementsAre("By Xenia"));
  EXPECT_THAT(found_by("one"), IsEmpty());
  EXPECT_THAT(found_by("beatrix"), IsEmpty());
}

TEST_F(Search, SpacesCountAndAreNotTrimmed) {
  open_with({"sea shore", "seashore"});
  EXPECT_THAT(found_by("a s"), ElementsAre("sea shore"));
  EXPECT_THAT(found_by(" "), ElementsAre("sea shore"));
  EXPECT_THAT(found_by("shore "), IsEmpty());
  EXPECT_THAT(found_by(" sea"), IsEmpty());
}

TEST_F(Search, KeepsTheOrderOfTheList) {
  open_with({"zebra", "abba", "mambo"});
  const auto found = found_by("b");
  EXPECT_THAT(found, UnorderedElementsAre("zebra", "abba", "mambo", "Bravo"));
  std::vector<std::string> in_the_list;
  for (const std::string& title : titles("songItems"))
    if (std::find(found.begin(), found.end(), title) != found.end()) in_the_list.push_back(title);
  EXPECT_EQ(found, in_the_list);
}

TEST_F(Search, PatternCharactersAreLiteral) {
  open_with({"a.c (live) [x]* \\d+$", "abc live x 42"});
  for (const char* typed : {".", "a.c", "(", "[x]*", "\\d", "$", "+", "x]"})
    EXPECT_THAT(found_by(typed), ElementsAre("a.c (live) [x]* \\d+$")) << typed;
  for (const char* typed : {".*", "^a", "%@", "?"})
    EXPECT_THAT(found_by(typed), IsEmpty()) << typed;
}

TEST_F(Search, ATextOfTenThousandCharactersFindsNothing) {
  open_with({});
  const std::string endless(10000, 'a');
  field().insertText(NSString::stringWithUTF8String(endless.c_str()));
  EXPECT_EQ(field().text().length(), 10000u);
  EXPECT_THAT(titles("result"), IsEmpty());
  EXPECT_EQ(rows(), 0);
  uikit::press_key("control-a");
  uikit::press_key("backspace");
  EXPECT_EQ(rows(), 5);
}

TEST_F(Search, EveryKeystrokeReloadsTheListOnce) {
  open_with({});
  int reloads = 0;
  const ReceiverSpy<UITableView, "reloadData"> reloaded([&](UITableView table) {
    if (table == list()) ++reloads;
  });
  for (int typed = 1; typed <= 3; ++typed) {
    uikit::type_text("z"_ns);
    EXPECT_EQ(reloads, typed);
  }
  for (int deleted = 1; deleted <= 3; ++deleted) {
    uikit::press_key("backspace");
    EXPECT_EQ(reloads, 3 + deleted);
  }
}

TEST_F(Search, ASongWithoutATitleIsListedButNeverFound) {
  const ToldProperty no_title("Charlie", MPMediaItemPropertyTitle, nil);
  const ToldProperty empty_title("Delta", MPMediaItemPropertyTitle, ""_ns);
  open_with({});
  EXPECT_EQ(rows(), 5);
  for (const char* typed : {"charlie", "delta", "xenia", "no data"})
    EXPECT_THAT(found_by(typed), IsEmpty()) << typed;
  EXPECT_THAT(found_by("a"), UnorderedElementsAre("Alpha", "Bravo"));
}

TEST_F(Search, HiddenSongsAreNotFound) {
  add_title("Bravissimo");
  launch();
  open_song_page();
  tap_on_search();
  EXPECT_THAT(found_by("brav"), ElementsAre("Bravo"));
}

TEST_F(Search, AnEmptyLibraryCanBeSearched) {
  use_no_songs();
  launch();
  open_song_page();
  tap_on_search();
  int reloads = 0;
  const ReceiverSpy<UITableView, "reloadData"> reloaded([&](UITableView) { ++reloads; });
  EXPECT_THAT(found_by("a"), IsEmpty());
  EXPECT_GE(reloads, 1);
  uikit::press_key("backspace");
  EXPECT_FALSE(is("isSearching"));
  EXPECT_EQ(rows(), 0);
}

}  // namespace
}  // namespace host::test
