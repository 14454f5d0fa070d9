#include "tests/tweak/coloured_panel.h"
#include "tests/tweak/receiver_spy.h"

namespace host::test {
namespace {

using ::testing::ElementsAre;

/// Five songs on the phone and two in the cloud: Bea on the album "One", and Zoe on an album
/// without songs on the phone.
class SongSources : public ColouredPanel {
 protected:
  SongSources() {
    add_cloud_song("bea", "title = 'Bea'\nartist = 'Xenia'\nalbum = 'One'\nduration = 60.0\n");
    add_cloud_song("zoe", "title = 'Zoe'\nartist = 'Zora'\nalbum = 'Sky'\nduration = 60.0\n");
  }
  std::vector<std::string> library() const {
    std::vector<std::string> found;
    for (const auto item : global<MPMediaQuery>("fullList").items().of<MPMediaItem>())
      found.push_back(text(item.valueForProperty(MPMediaItemPropertyTitle)));
    return found;
  }
  std::vector<std::string> of_the_phone() const {
    std::vector<std::string> found;
    for (const std::string& title : library())
      if (title != "Bea" && title != "Zoe") found.push_back(title);
    return found;
  }
  NSInteger rows() const { return global<UITableView>("tableView").numberOfRowsInSection(0); }
};

TEST_F(SongSources, CloudSongsAreListedOnlyWhenTheirSettingIsOn) {
  launch();
  ASSERT_EQ(library().size(), 7u);
  ASSERT_EQ(of_the_phone().size(), 5u);
  EXPECT_EQ(titles("songItems"), of_the_phone());
  EXPECT_EQ(rows(), 5);
  change_settings(switch_entry("cloud", true));
  EXPECT_EQ(titles("songItems"), library());
  EXPECT_EQ(rows(), 7);
  change_settings(switch_entry("cloud", false));
  EXPECT_EQ(titles("songItems"), of_the_phone());
  EXPECT_EQ(rows(), 5);
}

TEST_F(SongSources, TheSettingAlsoDecidesAtLaunch) {
  write_preferences(switch_entry("cloud", true) + "<key>checked</key><true/>");
  launch();
  EXPECT_EQ(titles("songItems"), library());
  EXPECT_EQ(rows(), 7);
}

TEST_F(SongSources, TheTableIsReloadedAfterTheSongsAreThere) {
  launch();
  std::vector<std::size_t> listed;
  const ReceiverSpy<UITableView, "reloadData"> reloads([&](UITableView table) {
    if (table == view("tableView")) listed.push_back(titles("songItems").size());
  });
  change_settings(switch_entry("cloud", true));
  change_settings(switch_entry("cloud", false));
  EXPECT_THAT(listed, ElementsAre(7u, 5u));
}

TEST_F(SongSources, WithTheCloudTheListIsANewArrayAndWithoutItTheSameIsRefilled) {
  launch();
  const auto before = global<NSMutableArray>("songItems");
  change_settings(switch_entry("square", true));
  EXPECT_EQ(global<NSMutableArray>("songItems"), before);
  before.retain();
  change_settings(switch_entry("cloud", true));
  EXPECT_NE(global<NSMutableArray>("songItems"), before);
  before.release();
}

TEST_F(SongSources, HiddenSongsStayInTheQueue) {
  launch();
  play("Alpha");
  EXPECT_EQ(titles("songItems"), of_the_phone());
  EXPECT_EQ(global<MPMediaQuery>("fullList").items().count(), 7u);
}

TEST_F(SongSources, AHiddenSongIsNotAmongTheAlbumsOtherSongs) {
  launch();
  play("Alpha");
  EXPECT_THAT(titles("songArtist"), ElementsAre("Bravo", "Charlie"));
  change_settings(switch_entry("cloud", true));
  play("Bravo");
  EXPECT_THAT(titles("songArtist"), ::testing::UnorderedElementsAre("Alpha", "Bea", "Charlie"));
}

}  // namespace
}  // namespace host::test
