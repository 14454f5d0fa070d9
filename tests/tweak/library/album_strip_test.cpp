#include <set>

#include "platform/Foundation/NSValue.h"
#include "platform/UIKit/UITapGestureRecognizer.h"
#include "tests/tweak/library/album_page.h"
#include "tests/tweak/method_spy.h"
#include "tests/tweak/told_property.h"

namespace host::test {
namespace {

using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::Not;
using ::testing::UnorderedElementsAre;

class AlbumStrip : public AlbumPage {};

TEST_F(AlbumStrip, HasATileForEveryAlbumInTheLibrarysOrder) {
  add_album("Three");
  launch();
  // Songs without an album share one tile.
  EXPECT_THAT(tile_titles(), UnorderedElementsAre("One", "Two", "Three", ""));
  std::vector<std::string> order;
  for (const auto item : global<MPMediaQuery>("fullList").items().of<MPMediaItem>()) {
    const auto album = text(item.valueForProperty(MPMediaItemPropertyAlbumTitle));
    if (std::find(order.begin(), order.end(), album) == order.end()) order.push_back(album);
  }
  EXPECT_EQ(tile_titles(), order);
}

TEST_F(AlbumStrip, TwoAlbumsWithOneTitleHaveATileEach) {
  add_album("One", "album_artist = 'Somebody else'\n");
  launch();
  EXPECT_THAT(tile_titles(), UnorderedElementsAre("One", "One", "Two", ""));
  std::set<std::string> names;
  for (const UIView tile : tiles())
    names.insert(text(tile.layer().name()));
  EXPECT_EQ(names.size(), 4u);
}

TEST_F(AlbumStrip, TilesAreNamedByTheAlbumsID) {
  launch();
  std::set<std::string> numbers;
  for (const auto item : global<MPMediaQuery>("fullList").items().of<MPMediaItem>())
    numbers.insert(
        text(objc::cast<NSNumber>(item.valueForProperty(MPMediaItemPropertyAlbumPersistentID))
                 .stringValue()));
  for (const UIView tile : tiles())
    EXPECT_EQ(numbers.count(text(tile.layer().name())), 1u) << text(title_of(tile).text());
}

TEST_F(AlbumStrip, ItemsThatAreNotMusicHaveNoTile) {
  // A film, and an item that is both music and a film.
  const ToldProperty film("Delta", MPMediaItemPropertyMediaType, NSNumber::numberWithInt(256));
  const ToldProperty both("Echo", MPMediaItemPropertyMediaType, NSNumber::numberWithInt(257));
  launch();
  EXPECT_THAT(tile_titles(), ElementsAre("One"));
}

TEST_F(AlbumStrip, AnAlbumWhoseFirstItemsAreNotMusicHasATile) {
  const ToldProperty film("Alpha", MPMediaItemPropertyMediaType, NSNumber::numberWithInt(256));
  launch();
  EXPECT_THAT(tile_titles(), Contains("One"));
}

TEST_F(AlbumStrip, HiddenCloudSongsHaveTilesToo) {
  add_album("Sky");
  launch();
  ASSERT_EQ(titles("songItems").size(), 5u);
  EXPECT_THAT(tile_titles(), Contains("Sky"));
}

TEST_F(AlbumStrip, AnEmptyLibraryHasNoTiles) {
  use_no_songs();
  launch();
  EXPECT_TRUE(tiles().empty());
  EXPECT_TRUE(strip().isScrollEnabled());
}

TEST_F(AlbumStrip, TilesAreInTwoColumns) {
  for (const char* album : {"Three", "Four", "Five", "Six"})
    add_album(album);
  launch();
  const auto all = tiles();
  ASSERT_EQ(all.size(), 7u);
  const CGFloat side = tile_side();
  for (std::size_t i = 0; i < all.size(); ++i) {
    const auto column = static_cast<CGFloat>(i % 2), row = static_cast<CGFloat>(i / 2);
    EXPECT_THAT(all[i].frame(),
                IsNear(CGRect{10 + column * (side + 10), 10 + row * (side + 10), side, side}));
  }
  // The last tile can be scrolled into view.
  EXPECT_GE(strip().contentSize().height, all.back().frame().max_y());
  EXPECT_LE(strip().contentSize().width, frame("albums").size.width);
}

TEST_F(AlbumStrip, ATileIsACoverWithATitleBelow) {
  launch();
  const CGFloat side = tile_side();
  for (const UIView tile : tiles()) {
    ASSERT_EQ(tile.subviews().count(), 2u);
    const UIImageView cover = cover_of(tile);
    EXPECT_THAT(cover.frame(), IsNear(CGRect{8, 0, side - 16, side - 16}));
    EXPECT_TRUE(cover.clipsToBounds());
    EXPECT_EQ(cover.layer().cornerRadius(), 15);
    EXPECT_EQ(cover.layer().borderWidth(), 2.5);
    const UILabel title = title_of(tile);
    EXPECT_THAT(title.frame(), IsNear(CGRect{0, side - 16, side, 16}));
    EXPECT_EQ(title.numberOfLines(), 1);
    EXPECT_EQ(title.textAlignment(), NSTextAlignmentCenter);
    EXPECT_EQ(text(title.font().fontName()), "HelveticaNeue");
    EXPECT_EQ(title.font().pointSize(), 12);
  }
}

TEST_F(AlbumStrip, CoversAreDrawnAtOneHundredAndTwentyPoints) {
  const MethodSpy<"imageWithSize:", UIImage(MPMediaItemArtwork, CGSize)> drawn(
      MPMediaItemArtwork::cls());
  launch();
  EXPECT_THAT(drawn.calls(), Contains(std::tuple(CGSize{120, 120})));
  EXPECT_TRUE(cover_of(tile("One")).image());
}

TEST_F(AlbumStrip, AnAlbumWithoutArtworkShowsTheEmptyCover) {
  load_extension();
  const MethodSpy<"imageWithContentsOfFile:", UIImage(NSObject, NSString)> loaded(
      objc::class_of(reinterpret_cast<objc::Id>(UIImage::cls())));
  launch();
  int empty_covers = 0;
  for (const auto& [path] : loaded.calls())
    if (text(path) == "/Library/Application Support/Sonavue/empty_cover.png") ++empty_covers;
  // The tiles of "Two" and of no album, and any rows of the list.
  EXPECT_GE(empty_covers, 2);
  EXPECT_TRUE(cover_of(tile("Two")).image());
}

TEST_F(AlbumStrip, TilesAndTheStripTakeOneTap) {
  launch();
  const MethodSpy<"zoomInAlbum:", void(SpringBoard, UIGestureRecognizer)> in(SpringBoard::cls());
  const MethodSpy<"zoomOutAlbum:", void(SpringBoard, UIGestureRecognizer)> out(SpringBoard::cls());
  open_album_page();
  tap_on(tile("Two"));
  ASSERT_EQ(in.count(), 1);
  EXPECT_EQ(std::get<0>(in.last()).view(), tile("Two"));
  settle();
  tap_beside();
  ASSERT_EQ(out.count(), 1);
  EXPECT_EQ(std::get<0>(out.last()).view(), view("albums"));
}

}  // namespace
}  // namespace host::test
