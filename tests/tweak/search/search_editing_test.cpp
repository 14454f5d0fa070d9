#include "tests/tweak/receiver_spy.h"
#include "tests/tweak/song_page.h"

namespace host::test {
namespace {

using ::testing::ElementsAre;

/// How a search starts and ends.
class SearchEditing : public SongPage {
 protected:
  void SetUp() override {
    launch();
    open_song_page();
    reloads_.emplace([this](UITableView table) {
      if (table == list()) ++reload_count;
    });
  }
  void expect_all_songs() const {
    EXPECT_FALSE(is("isSearching"));
    EXPECT_EQ(rows(), 5);
    EXPECT_EQ(texts(), titles("songItems"));
  }

  int reload_count = 0;

 private:
  std::optional<ReceiverSpy<UITableView, "reloadData">> reloads_;
};

TEST_F(SearchEditing, StartingKeepsTheRowsUntilTheFirstLetter) {
  tap_on_search();
  EXPECT_TRUE(is("isSearching"));
  EXPECT_EQ(reload_count, 0);
  EXPECT_EQ(rows(), 5);
  EXPECT_EQ(texts(), titles("songItems"));
  uikit::type_text("brav"_ns);
  EXPECT_THAT(texts(), ElementsAre("Bravo"));
}

TEST_F(SearchEditing, AReloadBeforeTheFirstLetterShowsNothing) {
  tap_on_search();
  change_settings(switch_entry("square", true));
  EXPECT_TRUE(is("isSearching"));
  EXPECT_EQ(rows(), 0);
}

TEST_F(SearchEditing, DeletingTheLastLetterListsAllSongsAtOnce) {
  tap_on_search();
  uikit::type_text("b"_ns);
  ASSERT_EQ(rows(), 1);
  uikit::press_key("backspace");
  expect_all_songs();
  EXPECT_TRUE(titles("result").empty());
  EXPECT_TRUE(field().isFirstResponder());
  // And the next letter searches again.
  uikit::type_text("c"_ns);
  EXPECT_EQ(texts(), titles("result"));
  EXPECT_TRUE(is("isSearching"));
}

TEST_F(SearchEditing, EndingWithoutTextListsAllSongs) {
  tap_on_search();
  change_settings(switch_entry("square", true));
  ASSERT_EQ(rows(), 0);
  const int before = reload_count;
  field().resignFirstResponder();
  EXPECT_EQ(reload_count, before + 1);
  expect_all_songs();
}

TEST_F(SearchEditing, EndingWithATextKeepsTheHits) {
  tap_on_search();
  uikit::type_text("a"_ns);
  const auto found = titles("result");
  ASSERT_FALSE(found.empty());
  const int before = reload_count;
  field().resignFirstResponder();
  EXPECT_TRUE(is("isSearching"));
  EXPECT_EQ(titles("result"), found);
  EXPECT_EQ(texts(), found);
  EXPECT_EQ(reload_count, before);
}

TEST_F(SearchEditing, TheReturnKeyEndsEditingAndKeepsTheHits) {
  tap_on_search();
  uikit::type_text("brav"_ns);
  uikit::press_key("return");
  EXPECT_FALSE(field().isFirstResponder());
  EXPECT_TRUE(is("isSearching"));
  EXPECT_THAT(texts(), ElementsAre("Bravo"));
  EXPECT_EQ(text(field().text()), "brav");
}

TEST_F(SearchEditing, TheReturnKeyInAnEmptyFieldListsAllSongs) {
  tap_on_search();
  change_settings(switch_entry("square", true));
  ASSERT_EQ(rows(), 0);
  uikit::press_key("return");
  EXPECT_FALSE(field().isFirstResponder());
  expect_all_songs();
}

// It lists them without the help of the end of editing.
TEST_F(SearchEditing, TheReturnKeyReturnsYesAndListsAllSongsItself) {
  field().setDelegate(nil);
  global<BOOL>("isSearching") = YES;
  list().reloadData();
  ASSERT_EQ(rows(), 0);
  ASSERT_TRUE(field().becomeFirstResponder());
  EXPECT_TRUE(objc::send<BOOL>(application, "textFieldShouldReturn:"_sel, field()));
  EXPECT_FALSE(field().isFirstResponder());
  expect_all_songs();
}

TEST_F(SearchEditing, AFieldThatIsNotEditedCanReturnToo) {
  field().setText("b"_ns);
  EXPECT_TRUE(objc::send<BOOL>(application, "textFieldShouldReturn:"_sel, field()));
  EXPECT_EQ(reload_count, 0);
}

TEST_F(SearchEditing, EditingAgainContinuesFromTheHits) {
  tap_on_search();
  uikit::type_text("brav"_ns);
  uikit::press_key("return");
  tap_on(view("searchBar"));
  change_settings(switch_entry("square", true));
  EXPECT_THAT(texts(), ElementsAre("Bravo"));
  uikit::press_key("end");
  uikit::press_key("backspace");
  EXPECT_THAT(texts(), ElementsAre("Bravo"));
}

TEST_F(SearchEditing, ADragBackHidesTheKeyboard) {
  tap_on_search();
  ASSERT_TRUE(field().isFirstResponder());
  drag(middle_of(view("music")), {screen().width / 2, 300}, 0.3);
  lift();
  settle();
  EXPECT_FALSE(is("isShow"));
  EXPECT_FALSE(field().isFirstResponder());
}

}  // namespace
}  // namespace host::test
